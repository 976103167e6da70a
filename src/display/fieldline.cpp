#include "display/fieldline.h"

#include <algorithm>
#include <cstring>

#include "display/character_walk.h"
#include "display/encoding.h"
#include "display/line_buffer.h"
#include "driver/message_catalogue.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

// Longest value that a hex display shows on one line, in bytes.
constexpr std::int64_t kLongestOneLineHex = 32;

// Bytes whose digits stand together.
constexpr std::int64_t kHexGroup = 4;

// A text is written in pieces of this many bytes; a NUL ends what is shown of its piece.
constexpr std::int64_t kStringPiece = 99;

bool AllZero(ByteView data) {
  constexpr std::uint8_t kZeros[16] = {};
  for (std::int64_t offset = 0; offset < data.Size();) {
    std::uint8_t bytes[sizeof kZeros];
    data.CopyTo(bytes, offset, sizeof bytes);
    if (std::memcmp(bytes, kZeros, sizeof bytes) != 0) return false;
    // A long repeat of zeros is not walked: 16 of them tell the rest of it.
    offset += sizeof bytes;
    if (offset < data.Size()) offset = data.EndOfRepeat(offset);
  }
  return true;
}

void AddCharacters(LineBuffer& line, const CharacterPatternMap& patterns, ByteView data, std::int64_t size) {
  CharacterWalk walk;
  for (std::int64_t offset = 0; offset < size; ++offset) {
    switch (walk.Feed(patterns, data.At(offset))) {
      case CharacterWalk::Step::Pending:
        break;
      case CharacterWalk::Step::Complete:
        line.Add(std::string_view(walk.bytes, static_cast<std::size_t>(walk.count)));
        break;
      case CharacterWalk::Step::Rejected:
        line.AddRepeated('.', walk.count);
        break;
    }
  }
  line.AddRepeated('.', walk.PendingCount());
}

// Fields cost nothing: a structure has a bounded number of them. Texts of any length do.
constexpr std::int64_t kLongestField = 1024;
std::int64_t ShownSize(RunContext& runContext, ByteView text) {
  return text.Size() <= kLongestField ? text.Size() : PayForText(runContext, text);
}

// Names fill their fields with many blanks: eight are passed over at once.
std::int64_t SizeWithoutTrailingBlanks(RunContext& runContext, ByteView text) {
  constexpr std::string_view kBlanks = "        ";
  std::int64_t size = ShownSize(runContext, text);
  for (char last[kBlanks.size()]; size >= static_cast<std::int64_t>(kBlanks.size()); size -= sizeof last) {
    text.CopyTo(reinterpret_cast<std::uint8_t*>(last), size - static_cast<std::int64_t>(sizeof last),
                sizeof last);
    if (std::memcmp(last, kBlanks.data(), sizeof last) != 0) break;
  }
  while (size > 0) {
    const std::uint8_t last = text.At(size - 1);
    if (last != '\n' && last != '\r' && last != ' ') break;
    --size;
  }
  return size;
}

// The frame of a notice.
constexpr std::string_view kUnknownRule = "|**********************************\n";
constexpr std::string_view kUnknownStart = "|* Unknown : ";

}  // namespace

int ShowFieldName(RunContext& runContext, std::string_view name) {
  LineBuffer line(runContext);
  return line.AddNameColumn(name).Flush();
}

int ShowAttributeDescription(RunContext& runContext, std::int32_t& counter, std::string_view text) {
  LineBuffer line(runContext);
  if (counter > 0) line.Add(" / ");
  ++counter;
  return line.Add(text).Flush();
}

int ShowFieldValueZklong(RunContext& runContext, std::string_view name, std::int32_t value, LineEnd lineEnd) {
  LineBuffer line(runContext);
  line.AddFieldName(name).AddDecimal(value);
  if (lineEnd == LineEnd::Write) line.Add('\n');
  return line.Flush();
}

int ShowFieldValueZklongFixedLen(RunContext& runContext, std::string_view name, std::int32_t value,
                                 LineEnd lineEnd) {
  LineBuffer line(runContext);
  line.AddFieldName(name).AddDecimal(value, 6);
  if (lineEnd == LineEnd::Write) line.Add('\n');
  return line.Flush();
}

int ShowFieldValueZkInt64FixedLen(RunContext& runContext, std::string_view name, std::uint32_t high,
                                  std::uint32_t low, std::string_view description) {
  LineBuffer line(runContext);
  line.AddFieldName(name).AddDecimal(static_cast<std::int64_t>(std::uint64_t{high} << 32 | low), 6);
  if (!description.empty()) line.Add(" (").Add(description).Add(')');
  return line.Add('\n').Flush();
}

int ShowParsedHexValueSingleLine(RunContext& runContext, std::string_view name, ByteView data,
                                 HexLineStyle style) {
  LineBuffer line(runContext);
  line.AddFieldName(name);
  // Kept: "(null)" ends the line even where the caller asked for no line end.
  if (style.nullCheck && AllZero(data)) return line.Add("(null)\n").Flush();
  const std::int64_t size = ShownSize(runContext, data);
  if (style.showHex) {
    for (std::int64_t offset = 0; offset < size; offset += kHexGroup) {
      if (offset > 0) line.Add(' ');
      std::uint8_t group[kHexGroup];
      data.CopyTo(group, offset, sizeof(group));
      line.AddHexBytes(group, std::min(kHexGroup, size - offset));
    }
    line.Add("  ");
  }
  line.Add('[');
  AddCharacters(line, runContext.characterPatterns, data, size);
  line.Add(']');
  if (style.lineEnd) line.Add('\n');
  return line.Flush();
}

int ShowParsedHexValueMultipleLines(RunContext& runContext, std::string_view name, ByteView data,
                                    bool nullCheck) {
  ShowFieldName(runContext, name);
  if (nullCheck && AllZero(data)) return WriteTraceData(runContext, "(null)\n");
  WriteTraceData(runContext, "\n");
  return PutHexData(runContext, "", data, true);
}

int ShowParsedHexValueFormatSelect(RunContext& runContext, std::string_view name, ByteView data) {
  if (data.Size() > kLongestOneLineHex) return ShowParsedHexValueMultipleLines(runContext, name, data);
  return ShowParsedHexValueSingleLine(runContext, name, data);
}

int ShowZKHOBJ(RunContext& runContext, std::string_view name, std::uint32_t handle) {
  std::uint8_t bytes[4];
  for (int i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(handle >> (24 - 8 * i));
  return ShowParsedHexValueSingleLine(runContext, name, ByteView(bytes, sizeof(bytes)));
}

int ShowZKHMSG(RunContext& runContext, std::string_view name, MessageHandle handle) {
  std::uint8_t bytes[8];
  for (int i = 0; i < 4; ++i) {
    bytes[i] = static_cast<std::uint8_t>(handle.high >> (24 - 8 * i));
    bytes[4 + i] = static_cast<std::uint8_t>(handle.low >> (24 - 8 * i));
  }
  return ShowParsedHexValueSingleLine(runContext, name, ByteView(bytes, sizeof(bytes)));
}

int ShowFieldValueStringFixed(RunContext& runContext, std::string_view name, ByteView data) {
  LineBuffer line(runContext);
  line.AddNameColumn(name);
  const std::int64_t size = SizeWithoutTrailingBlanks(runContext, data);
  for (std::int64_t piece = 0; piece < size; piece += kStringPiece) {
    const auto count = static_cast<std::size_t>(std::min(size - piece, kStringPiece));
    char* const text = line.Prepare(count);
    data.CopyTo(reinterpret_cast<std::uint8_t*>(text), piece, count);
    // Kept: a NUL hides the rest of its piece only; the next piece is shown again.
    line.EndAt(text + StringXlateToSevenBitAscii(text, TextBeforeNul({text, count}).size()));
  }
  return line.Add('\n').Flush();
}

int ShowFieldValueStringFixed(RunContext& runContext, std::string_view name, std::string_view text) {
  return ShowFieldValueStringFixed(runContext, name, ByteView(text));
}

std::int64_t PayForText(RunContext& runContext, ByteView text) {
  const std::int64_t size = text.TextSize(std::max<std::int64_t>(0, runContext.claimedTextLeft));
  runContext.claimedTextLeft -= text.ClaimedBefore(size);
  if (size < text.KnownSize()) ReportTextLeftOut(runContext);
  return size;
}

void ReportTextLeftOut(RunContext& runContext) {
  if (runContext.claimedTextLeftOut) return;
  runContext.claimedTextLeftOut = true;
  PutMessage(runContext, 1, 0,
             "The trace declares or repeats much text that it does not carry; not all of it is shown.");
}

int ShowDataVersion(RunContext& runContext, std::string_view label, std::int32_t version) {
  constexpr std::int64_t kMarkerWidth = 29;
  LineBuffer line(runContext);
  line.Add(kLineMarker).Add("--- ").Add(label).Add(" version ").AddDecimal(version);
  return line.AddRepeated('-', kMarkerWidth - static_cast<std::int64_t>(line.Size())).Add('\n').Flush();
}

int ShowParsedValueOffset(RunContext& runContext, std::uint32_t offset, std::uint32_t length,
                          std::string_view label) {
  LineBuffer line(runContext);
  line.Add(kLineMarker).Add("----- ");
  return line.AddByteRange(offset, length).Add(" - ").Add(label).Add('\n').Flush();
}

int ShowUnknownAttribute(RunContext& runContext, std::string_view attributeName, std::int32_t value) {
  PutMessage(runContext, 3101, kResultFromErrno, attributeName, value);
  runContext.unknownAttributeSeen = true;
  LineBuffer line(runContext);
  line.Add(kUnknownRule).Add(kUnknownStart).Add(attributeName);
  line.Add(" 0x").AddHex8(static_cast<std::uint32_t>(value)).Add('\n');
  return line.Add(kUnknownRule).Flush();
}

int ShowUnknownStructureVersion(RunContext& runContext, std::string_view structureName,
                                std::int32_t version) {
  runContext.unknownAttributeSeen = true;
  // Kept: the message shows a negative version as an unsigned number, the report as it is.
  PutMessage(runContext, 3100, kResultFromErrno, structureName, version);
  LineBuffer line(runContext);
  line.Add(kUnknownRule).Add(kUnknownStart).Add(structureName);
  line.Add(" version ").AddDecimal(version).Add('\n');
  return line.Add(kUnknownRule).Flush();
}

int Show4ByteIntegerInHex(RunContext& runContext, std::uint32_t value, bool zeroIsNull) {
  if (zeroIsNull && value == 0) return WriteTraceData(runContext, "(null)");
  LineBuffer line(runContext);
  return line.Add("0x").AddHex8(value).Flush();
}

int ShowPointerInHex(RunContext& runContext, std::uint64_t address, bool zeroIsNull) {
  const auto low = static_cast<std::uint32_t>(address);
  if (!runContext.platform.wide) return Show4ByteIntegerInHex(runContext, low, zeroIsNull);
  if (zeroIsNull && address == 0) return WriteTraceData(runContext, "(null)");
  LineBuffer line(runContext);
  return line.Add("0x").AddHex8(static_cast<std::uint32_t>(address >> 32)).AddHex8(low).Flush();
}

std::string_view TextBeforeNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

}  // namespace quillon
