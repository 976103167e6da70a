// A line of the report that is put together in place: at the end of the report's buffer.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/run_context.h"
#include "output/report_writer.h"

namespace quillon {

using HexDigitImages = std::array<char, 256>;

/// The hex digit of a number below 16. Arithmetic instead of a table: compilers turn a loop over bytes into
/// vector instructions.
constexpr char HexDigit(unsigned number) {
  return static_cast<char>(number + (number < 10 ? '0' : 'A' - 10));
}

consteval HexDigitImages MakeHexDigitImages(int shift) {
  HexDigitImages images{};
  for (unsigned byte = 0; byte < images.size(); ++byte) images[byte] = HexDigit(byte >> shift & 0xF);
  return images;
}

/// The hex digits of a byte's upper and lower four bits.
inline constexpr HexDigitImages GraphicHexUpper4Bits = MakeHexDigitImages(4);
inline constexpr HexDigitImages GraphicHexLower4Bits = MakeHexDigitImages(0);

/// Both digits of a byte side by side, so that one copy writes them.
struct HexDigitPair {
  char digits[2];
};
using HexDigitPairs = std::array<HexDigitPair, 256>;

consteval HexDigitPairs MakeHexDigitPairs() {
  HexDigitPairs pairs{};
  for (std::size_t byte = 0; byte < pairs.size(); ++byte)
    pairs[byte] = {{GraphicHexUpper4Bits[byte], GraphicHexLower4Bits[byte]}};
  return pairs;
}
inline constexpr HexDigitPairs GraphicHexPairs = MakeHexDigitPairs();

/// Writes the two hex digits of a byte.
inline void PutHexByte(char* target, std::uint8_t byte) {
  std::memcpy(target, GraphicHexPairs[byte].digits, 2);
}
/// Writes the eight hex digits of a number.
inline void PutHexWord(char* target, std::uint32_t number) {
  PutHexByte(target, static_cast<std::uint8_t>(number >> 24));
  PutHexByte(target + 2, static_cast<std::uint8_t>(number >> 16));
  PutHexByte(target + 4, static_cast<std::uint8_t>(number >> 8));
  PutHexByte(target + 6, static_cast<std::uint8_t>(number));
}

/// Collects the pieces of a line, which may have any length. Flush() ends it; nobody else may write to the
/// report between the first piece and Flush().
class LineBuffer {
 public:
  static constexpr std::size_t kUsualLine = 256;

  explicit LineBuffer(RunContext& context)
      : runContext(context), status(EnsureReportRoom(context, kUsualLine)) {
    Begin();
  }
  LineBuffer(const LineBuffer&) = delete;
  LineBuffer& operator=(const LineBuffer&) = delete;

  LineBuffer& Add(char character) {
    if (end == limit) MakeRoom(1);
    *end++ = character;
    return *this;
  }
  LineBuffer& Add(std::string_view piece) {
    if (piece.size() > Room()) return AddLong(piece);
    end += piece.copy(end, piece.size());
    return *this;
  }
  LineBuffer& AddRepeated(char character, std::int64_t count);
  /// A decimal number, right-aligned in `width` columns (at most 32).
  LineBuffer& AddDecimal(std::int64_t number, int width = 0);
  /// Upper-case hex digits: eight of them, or as many as the number has.
  LineBuffer& AddHex8(std::uint32_t number) {
    PutHexWord(Extend(8), number);
    return *this;
  }
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
    char* target = Prepare(count);
    end += count;
    return target;
  }
  /// Room for up to `count` characters (at most 128); the caller tells EndAt() how far they reach.
  char* Prepare(std::size_t count) {
    if (count > Room()) MakeRoom(count);
    return end;
  }
  void EndAt(char* newEnd) { end = newEnd; }

  /// Characters of a line so far; told right up to kUsualLine.
  std::size_t Size() const { return static_cast<std::size_t>(end - start); }
  /// Gives what was collected to the report; the status of the last write (0 or -1).
  int Flush() {
    runContext.report.used += Size();
    // Others may write now: what is added next begins behind their text.
    start = end = limit = nullptr;
    return status;
  }

 private:
  std::size_t Room() const { return static_cast<std::size_t>(limit - end); }
  void Begin() {
    start = end = runContext.report.text + runContext.report.used;
    limit = runContext.report.text + ReportBuffer::kSize;
  }
  void MakeRoom(std::size_t count);
  LineBuffer& AddLong(std::string_view piece);

  RunContext& runContext;
  int status;
  char* start = nullptr;  ///< of what is collected, in the report's buffer
  char* end = nullptr;
  char* limit = nullptr;
};

}  // namespace quillon
