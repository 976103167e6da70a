// A small fixed buffer in which a line is assembled before it is written.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/run_context.h"

namespace quillon {

using HexDigitImages = std::array<char, 256>;

constexpr HexDigitImages MakeHexDigitImages(int shift) {
  HexDigitImages images{};
  for (std::size_t byte = 0; byte < images.size(); ++byte)
    images[byte] = "0123456789ABCDEF"[byte >> shift & 0xF];
  return images;
}

/// The hex digits of a byte's upper and lower four bits.
inline constexpr HexDigitImages GraphicHexUpper4Bits = MakeHexDigitImages(4);
inline constexpr HexDigitImages GraphicHexLower4Bits = MakeHexDigitImages(0);

/// Writes the two hex digits of a byte.
inline void PutHexByte(char* target, std::uint8_t byte) {
  target[0] = GraphicHexUpper4Bits[byte];
  target[1] = GraphicHexLower4Bits[byte];
}

/// Collects the pieces of a line. What does not fit is written in parts, so a line may have any length;
/// nothing reaches the report before Flush() otherwise.
class LineBuffer {
 public:
  explicit LineBuffer(RunContext& context) : runContext(context) {}
  LineBuffer(const LineBuffer&) = delete;
  LineBuffer& operator=(const LineBuffer&) = delete;

  LineBuffer& Add(char character) {
    if (used == sizeof(text)) Flush();
    text[used++] = character;
    return *this;
  }
  LineBuffer& Add(std::string_view piece) {
    if (piece.size() > sizeof(text) - used) return AddLong(piece);
    used += piece.copy(text + used, piece.size());
    return *this;
  }
  LineBuffer& AddRepeated(char character, std::int64_t count);
  /// A decimal number, right-aligned in `width` columns.
  LineBuffer& AddDecimal(std::int64_t number, int width = 0);
  /// Upper-case hex digits: eight of them, or as many as the number has.
  LineBuffer& AddHex8(std::uint32_t number);
  LineBuffer& AddHex(std::uint32_t number);
  /// The two hex digits of each byte; at most 64 bytes.
  LineBuffer& AddHexBytes(const std::uint8_t* bytes, std::int64_t count);
  /// The marker, the name padded to its column and ": ".
  LineBuffer& AddNameColumn(std::string_view name);
  /// The same, but nothing for an empty name: the value then continues the current line.
  LineBuffer& AddFieldName(std::string_view name) { return name.empty() ? *this : AddNameColumn(name); }
  /// "offset A-B (=xA-xB) length N (=xN)".
  LineBuffer& AddByteRange(std::uint32_t offset, std::uint32_t length);

  /// Room for exactly `count` characters (at most 128) that the caller fills at once.
  char* Extend(std::size_t count) {
    if (count > sizeof(text) - used) Flush();
    used += count;
    return text + used - count;
  }

  /// Characters collected and not written yet.
  std::size_t Size() const { return used; }
  /// Writes what was collected; the status of the last write.
  int Flush();

 private:
  LineBuffer& AddLong(std::string_view piece);

  RunContext& runContext;
  std::size_t used = 0;
  int status = 0;
  char text[256];
};

}  // namespace quillon
