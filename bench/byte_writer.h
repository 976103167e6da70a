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

/// The bytes of a text.
inline Bytes BytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

/// Appends fields to a growing buffer. Widths and positions are bytes.
class ByteWriter {
 public:
  explicit ByteWriter(Order byteOrder) : order(byteOrder) {}

  void UInt32(std::uint32_t value);
  void Int32(std::int32_t value) { UInt32(static_cast<std::uint32_t>(value)); }
  void Int64(std::int64_t value);
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
  /// The bytes so far; the writer is empty afterwards.
  Bytes Take();

 private:
  Order order;
  Bytes bytes;
};

}  // namespace quillon::compose
