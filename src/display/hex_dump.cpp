// The hex dump: 16 bytes to a line, with offsets, characters and folded repeats.
#include <algorithm>
#include <cstring>

#include "display/character_walk.h"
#include "display/fieldline.h"
#include "display/line_buffer.h"

namespace quillon {
namespace {

constexpr std::int64_t kBytesPerLine = 16;
constexpr int kHexColumns = 45;  // offset, colon, digits and blanks of a full line

// What stands before every line of a dump beneath a field.
constexpr std::string_view kDumpPrefix = "|>     ";

// Prefix, hex columns, image and what stands around it, at their longest; behind it room for the
// dots of a whole character, which are copied whole, however short it is.
constexpr std::size_t kLongestLine = kDumpPrefix.size() + kHexColumns + 2 + kBytesPerLine +
                                     2 * std::size_t{CharacterPatternMap::kPositions} + 2;

struct HexDump {
  RunContext& runContext;
  ByteView data;
  bool prefixed;
  CharacterWalk walk;
  std::int64_t foldStart = -1;  ///< offset of the first line of the run that is being folded
  int status = 0;               ///< of the last write
};

// Puts the digits and blanks of a full line. Most lines are full: the loop over 16 bytes is one that
// compilers turn into vector instructions.
void PutFullColumns(char* column, const std::uint8_t* bytes) {
  char digits[kBytesPerLine * 2];
  for (std::size_t i = 0; i < kBytesPerLine; ++i) {
    digits[i * 2] = HexDigit(bytes[i] >> 4);
    digits[i * 2 + 1] = HexDigit(bytes[i] & 0xF);
  }
  for (std::size_t group = 0; group < 4; ++group) {
    std::memcpy(column + group * 9, digits + group * 8, 8);
    column[group * 9 + 8] = ' ';
  }
}

// Puts the offset, the colon, the digits and the blanks up to the image.
char* PutHexColumns(char* target, std::int64_t offset, const std::uint8_t* bytes, std::int64_t count) {
  PutHexWord(target, static_cast<std::uint32_t>(offset));
  target[8] = ':';
  char* const column = target + 9;
  if (count == kBytesPerLine) {
    PutFullColumns(column, bytes);
  } else {
    std::memset(column, ' ', kHexColumns - 9);
    for (std::int64_t i = 0; i < count; ++i) PutHexByte(column + i * 2 + i / 4, bytes[i]);
  }
  return target + kHexColumns;
}

// Puts the images of a full line as if its bytes were all ASCII; false when some are not. Another loop for
// vectors.
bool PutAsciiImages(char* target, const std::uint8_t* bytes, std::uint8_t lastAscii) {
  char images[kBytesPerLine];
  std::uint8_t allBits = 0;
  for (std::size_t i = 0; i < kBytesPerLine; ++i) {
    allBits |= bytes[i];
    images[i] = AsciiImage(bytes[i], lastAscii);
  }
  std::memcpy(target, images, sizeof images);
  return allBits < 0x80;
}

// Puts the images of the bytes from `taken` on that are characters of their own; most lines hold no others.
char* PutSingleBytes(const CharacterPatternMap& patterns, char* target, const std::uint8_t* bytes,
                     std::int64_t count, std::int64_t& taken) {
  for (; taken < count; ++taken) {
    const char image = patterns.image[bytes[taken]];
    if (image == '\0') break;
    *target++ = image;
  }
  return target;
}

// A character that a line leaves incomplete is shown on the next one. Of the dots for a byte that no pattern
// admits, only those whose bytes stand on this line are written: the line before has its own.
char* PutCharacterColumn(HexDump& dump, char* target, const std::uint8_t* bytes, std::int64_t count) {
  const CharacterPatternMap& patterns = dump.runContext.characterPatterns;
  if (patterns.lastAscii != 0 && count == kBytesPerLine && dump.walk.PendingCount() == 0 &&
      PutAsciiImages(target, bytes, patterns.lastAscii)) {
    return target + kBytesPerLine;
  }
  for (std::int64_t taken = 0;;) {
    if (dump.walk.PendingCount() == 0) target = PutSingleBytes(patterns, target, bytes, count, taken);
    if (taken == count) return target;
    switch (dump.walk.FeedByPatterns(patterns, bytes[taken++])) {
      case CharacterWalk::Step::Pending:
        break;
      case CharacterWalk::Step::Complete:
        for (int i = 0; i < dump.walk.count; ++i) *target++ = dump.walk.bytes[i];
        break;
      case CharacterWalk::Step::Rejected:
        std::memcpy(target, ".....", sizeof dump.walk.bytes);
        target += std::min<std::int64_t>(dump.walk.count, taken);
        break;
    }
  }
}

// Kept: a full last line that leaves a character incomplete ends with ">" as well, and nothing follows it.
char* PutImageEnd(const HexDump& dump, char* target, std::int64_t count) {
  const int pending = dump.walk.PendingCount();
  if (count < kBytesPerLine) target = std::fill_n(target, std::min<std::int64_t>(pending, count), '.');
  *target++ = count == kBytesPerLine && pending > 0 ? '>' : ']';
  return target;
}

void ShowDumpLine(HexDump& dump, std::int64_t offset, const std::uint8_t* bytes, std::int64_t count) {
  LineBuffer line(dump.runContext);
  char* end = line.Prepare(kLongestLine);
  if (dump.prefixed) end += kDumpPrefix.copy(end, kDumpPrefix.size());
  end = PutHexColumns(end, offset, bytes, count);
  if (dump.runContext.showHexCharImage || dump.prefixed) {
    *end++ = ' ';
    *end++ = '[';
    end = PutCharacterColumn(dump, end, bytes, count);
    end = PutImageEnd(dump, end, count);
  }
  *end++ = '\n';
  line.EndAt(end);
  dump.status = line.Flush();
}

void ShowFoldedLines(HexDump& dump, std::int64_t end) {
  if (dump.foldStart < 0) return;
  LineBuffer line(dump.runContext);
  if (dump.prefixed) line.Add(kDumpPrefix);
  line.AddHex8(static_cast<std::uint32_t>(dump.foldStart))
      .Add('-')
      .AddHex8(static_cast<std::uint32_t>(end - 1));
  dump.status = line.Add(" same as above\n").Flush();
  dump.foldStart = -1;
}

// Folded lines still count for a pending character. What is pending after a line depends only on how many
// bytes were pending before it (0 to 4), so equal lines bring it into a cycle of at most five lengths, all of
// which divide 60: of a long run 60 lines and the remainder tell the same as all of them.
void FeedFoldedLines(HexDump& dump, const std::uint8_t* bytes, std::int64_t lines) {
  if (dump.walk.PendingCount() == 0) {
    char images[kBytesPerLine];
    std::int64_t single = 0;
    PutSingleBytes(dump.runContext.characterPatterns, images, bytes, kBytesPerLine, single);
    if (single == kBytesPerLine) return;
  }
  const std::int64_t telling = lines > 120 ? 60 + (lines - 60) % 60 : lines;
  for (std::int64_t i = 0; i < telling * kBytesPerLine; ++i) {
    dump.walk.Feed(dump.runContext.characterPatterns, bytes[i % kBytesPerLine]);
  }
}

// How many lines from `offset` on equal the line before them and are followed by more bytes; 0 or more. Kept:
// the last line of a dump is shown even where it equals the one before it; readers see there where it ends.
std::int64_t EqualLines(const HexDump& dump, std::int64_t offset, bool equal) {
  if (!equal) return 0;
  const std::int64_t known = (dump.data.EndOfRepeat(offset) - offset) / kBytesPerLine;
  const std::int64_t beforeLast = (dump.data.Size() - offset - 1) / kBytesPerLine;
  return std::min(std::max<std::int64_t>(known, 1), beforeLast);
}

void ShowDumpLines(HexDump& dump) {
  const std::int64_t size = dump.data.Size();
  std::uint8_t lines[2][kBytesPerLine];
  std::uint8_t* current = lines[0];
  std::uint8_t* previous = lines[1];
  for (std::int64_t offset = 0; offset < size;) {
    const std::int64_t count = std::min(kBytesPerLine, size - offset);
    if (count == kBytesPerLine) {
      dump.data.CopyTo(current, offset, kBytesPerLine);
    } else {
      dump.data.CopyTo(current, offset, static_cast<std::size_t>(count));
    }
    const bool foldable = offset > 0 && count == kBytesPerLine && !dump.runContext.noRepeatCompression;
    const std::int64_t equal =
        EqualLines(dump, offset, foldable && std::memcmp(current, previous, sizeof(lines[0])) == 0);
    if (equal > 0) {
      if (dump.foldStart < 0) dump.foldStart = offset;
      FeedFoldedLines(dump, current, equal);
      offset += equal * kBytesPerLine;
      continue;
    }
    ShowFoldedLines(dump, offset);
    ShowDumpLine(dump, offset, current, count);
    std::swap(current, previous);
    offset += count;
  }
}

// Kept: no caller gives a name, so no report holds a header line.
int ShowDumpHeader(RunContext& runContext, std::string_view name, ByteView data, std::int64_t shownLength) {
  LineBuffer line(runContext);
  line.Add(name).Add(":(").AddDecimal(shownLength).Add("=x").AddHex(static_cast<std::uint32_t>(shownLength));
  line.Add(" bytes");
  if (!runContext.hexHeaderNoAddress) {
    line.Add(", Address ").Flush();
    ShowPointerInHex(runContext, data.Address(), false);
  }
  return line.Add(")\n").Flush();
}

}  // namespace

int PutHexDataLen(RunContext& runContext, std::string_view name, ByteView data, bool prefixed,
                  std::int64_t shownLength) {
  HexDump dump{runContext, data, prefixed, {}};
  if (!name.empty() && !prefixed) dump.status = ShowDumpHeader(runContext, name, data, shownLength);
  ShowDumpLines(dump);
  return dump.status;
}

int PutHexData(RunContext& runContext, std::string_view name, ByteView data, bool prefixed) {
  return PutHexDataLen(runContext, name, data, prefixed, data.Size());
}

}  // namespace quillon
