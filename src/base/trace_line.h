// One line of the trace, and the reader that takes lines from the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace quillon {

/// Longest piece of the input that counts as a line, in bytes with its line feed; a longer line arrives in
/// pieces.
inline constexpr std::size_t kMaxLineLength = 998;

/// The text of a line up to its line feed (which it keeps) or its first NUL. Columns count from 0; a column
/// beyond the text reads as NUL.
struct TraceLine {
  char text[kMaxLineLength + 1];
  std::size_t length;

  std::string_view View() const { return {text, length}; }
  char At(std::size_t column) const { return column < length ? text[column] : '\0'; }
  bool StartsWith(std::string_view start) const {
    return start.size() <= length && std::memcmp(text, start.data(), start.size()) == 0;
  }
  /// The characters from `column` on; empty when the line is shorter.
  std::string_view From(std::size_t column) const {
    return column < length ? View().substr(column) : std::string_view();
  }
  void Clear() { length = 0; }
  /// Replaces the text, cut at kMaxLineLength bytes and at its first NUL.
  void Set(std::string_view newText);
};

/// What becomes of a carriage return that stands right before a line feed.
enum class ReturnBeforeLineFeed : std::uint8_t { Keep, Drop };

/// Reads the input in blocks and hands it out line by line. It owns its block, not the stream.
class LineReader {
 public:
  // cppcheck-suppress uninitMemberVar ; the block holds nothing before it is filled
  explicit LineReader(std::FILE* input, ReturnBeforeLineFeed carriageReturn = ReturnBeforeLineFeed::Keep)
      : stream(input), returns(carriageReturn) {}

  /// Reads the next line; false at the end of the input and after a read error, which counts as the end.
  bool Read(TraceLine& line);

  /// What of the input stands in the block and has not been read yet; the first block when nothing has been
  /// read at all. It stays to be read; the view is valid until the next Read. The last line in it may be cut.
  std::string_view Peek();

 private:
  bool Fill();
  void DropReturns();

  std::FILE* stream;
  ReturnBeforeLineFeed returns;
  std::size_t position = 0;
  std::size_t filled = 0;
  bool holdsNul = false;  ///< the block does; few traces have any
  static constexpr std::size_t kBlockSize = 65536;
  char block[kBlockSize];
};

}  // namespace quillon
