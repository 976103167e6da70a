// Builds the bytes of structures and messages field by field, in either byte order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// The composers share nothing with the program on purpose: a mistake made on both sides would not be found.
namespace quillon::compose {

using Bytes = std::vector<std::uint8_t>;

/// The order of the bytes of an integer.
enum class Order { Big, Little };

/// How structures lie in the memory of a process: an order alone stands for 32 bits.
struct Layout {
  // cppcheck-suppress noExplicitConstructor ; callers that know of no pointers give the order
  Layout(Order byteOrder = Order::Big, bool widePointers = false) : order(byteOrder), wide(widePointers) {}

  Order order;
  bool wide;  ///< 64-bit: pointers of 8 bytes in their natural alignment

  friend bool operator==(const Layout&, const Layout&) = default;
};

/// The bytes of a text.
inline Bytes BytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

/// Appends fields to a growing buffer. Widths and positions are bytes.
class ByteWriter {
 public:
  explicit ByteWriter(Layout structureLayout) : layout(structureLayout) {}

  void UInt32(std::uint32_t value);
  void Int32(std::int32_t value) { UInt32(static_cast<std::uint32_t>(value)); }
  void Int64(std::int64_t value);
  /// 8 bytes at the next multiple of 8 in a 64-bit layout, else the low 4 bytes.
  void Pointer(std::uint64_t address);
  /// A character field: padded with blanks, cut at its width.
  void Text(std::string_view text, std::size_t width);
  /// A byte field: padded with zeros, cut at its width.
  void Opaque(const Bytes& value, std::size_t width);
  void Zeros(std::size_t count);
  void Raw(const Bytes& value) { bytes.insert(bytes.end(), value.begin(), value.end()); }
  void Raw(std::string_view text) { bytes.insert(bytes.end(), text.begin(), text.end()); }
  /// Fills with `filler` up to the next multiple of `unit`.
  void FillTo(std::size_t unit, std::uint8_t filler);
  /// Overwrites an integer that was written before.
  void ReplaceInt32(std::size_t position, std::int32_t value);

  std::size_t Size() const { return bytes.size(); }
  bool Wide() const { return layout.wide; }
  /// The bytes so far, filled to a multiple of 8 when they hold a pointer of 8 bytes; the writer is empty
  /// afterwards.
  Bytes Take();

 private:
  Layout layout;
  bool holdsWidePointer = false;
  Bytes bytes;
};

}  // namespace quillon::compose
