#include "display/encoding.h"

#include <algorithm>

#include "display/character_walk.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/line_buffer.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr ConstantRow kIntegerEncodings[] = {
    {1, "INTEGER_NORMAL"}, {2, "INTEGER_REVERSED"}, {kEndOfTable, "INTEGER_UNDEFINED"}};
constexpr ConstantRow kDecimalEncodings[] = {
    {1, "DECIMAL_NORMAL"}, {2, "DECIMAL_REVERSED"}, {kEndOfTable, "DECIMAL_UNDEFINED"}};
constexpr ConstantRow kFloatEncodings[] = {{1, "FLOAT_IEEE_NORMAL"},
                                           {2, "FLOAT_IEEE_REVERSED"},
                                           {3, "FLOAT_S390"},
                                           {4, "FLOAT_TNS"},
                                           {kEndOfTable, "FLOAT_UNDEFINED"}};

// Column widths of a text line that a name column precedes, as the line length limit counts them.
constexpr std::int32_t kTextNameColumns = 29;
constexpr std::int32_t kTextIndent = 4;

std::uint32_t Reversed(std::uint32_t value) {
  return value << 24 | (value & 0xFF00) << 8 | (value >> 8 & 0xFF00) | value >> 24;
}

std::int32_t EncodingPart(std::uint32_t encoding, int shift) {
  return static_cast<std::int32_t>(encoding >> shift & 0xF);
}

// What is shown of a wrapped text. A descriptor may tell more bytes than the trace holds of its string.
ByteView PayForString(RunContext& runContext, ByteView text, std::int32_t length) {
  const ByteView string = text.Field(0, length);
  const std::int64_t size = string.TextSize(std::max(kFreeClaimedTextOfString, runContext.claimedTextLeft));
  runContext.claimedTextLeft -=
      std::max<std::int64_t>(0, string.ClaimedBefore(size) - kFreeClaimedTextOfString);
  if (size < string.Size()) ReportTextLeftOut(runContext);
  return string.Sub(0, size);
}

void ShowTextOfLength(RunContext& runContext, ByteView text, std::int32_t length) {
  constexpr std::string_view name = "  Value (in string)";
  if (std::int64_t{length} + kTextNameColumns < runContext.maxXmlLineLength) {
    ShowFieldValueStringFixed(runContext, name, text.Field(0, length));
    return;
  }
  ShowFieldName(runContext, name);
  WriteTraceData(runContext, "\n");
  const std::int32_t most = runContext.maxCharvLength;
  const bool cut = most >= 0 && length > most;
  ShowTextStringDataRegardingMaximumLrecl(runContext, kTextIndent,
                                          PayForString(runContext, text, cut ? most : length));
  if (!cut) return;
  LineBuffer line(runContext);
  line.Add(kLineMarker).Add("     (Shown only leading ").AddDecimal(most).Add(" byte(s) ...)\n").Flush();
}

void ShowDescriptor(RunContext& runContext, std::string_view name, const VariableString& descriptor) {
  ShowFieldName(runContext, name);
  WriteTraceData(runContext, "\n");
  ShowFieldName(runContext, "  VSPtr");
  ShowPointerInHex(runContext, descriptor.address, true);
  WriteTraceData(runContext, "\n");
  ShowFieldValueZklong(runContext, "  VSOffset", descriptor.offset);
  if (descriptor.bufferSize != 0) {
    ShowFieldValueZklong(runContext, "  VSBufSize", descriptor.bufferSize);
  } else {
    ShowFieldValueStringFixed(runContext, "  VSBufSize", "(use VSLength)");
  }
  if (descriptor.length != -1) {
    ShowFieldValueZklong(runContext, "  VSLength", descriptor.length);
  } else {
    // Kept: the name stands two columns to the left of its neighbours.
    ShowFieldValueStringFixed(runContext, "VSLength", "(null terminate)");
  }
  ShowParsedCommonCcsid(runContext, "  VSCCSID", descriptor.ccsid, false);
}

// Where the text begins, or false when the trace does not hold it.
bool FindText(const VariableString& descriptor, ByteView structure, const CharvText& text, ByteView& bytes) {
  if (text.place == CharvText::Place::NotTraced) return false;
  if (text.place == CharvText::Place::Rebuilt) {
    bytes = text.bytes;
    return true;
  }
  // An address belongs to the traced program: the text behind it is not in the trace.
  if (descriptor.address != 0 || descriptor.offset == 0) return false;
  bytes = structure.From(descriptor.offset);
  return true;
}

}  // namespace

std::uint32_t ZklongValueRegardingEncoding(std::uint32_t value, std::uint32_t encoding) {
  return OrderOfEncoding(encoding) == ByteOrder::Little ? Reversed(value) : value;
}

std::uint64_t ZkInt64ValueRegardingEncoding(std::uint32_t high, std::uint32_t low, std::uint32_t encoding) {
  if (OrderOfEncoding(encoding) == ByteOrder::Big) return std::uint64_t{high} << 32 | low;
  return std::uint64_t{Reversed(low)} << 32 | Reversed(high);
}

int ShowParsedEncodingValue(RunContext& runContext, std::uint32_t encoding) {
  LineBuffer line(runContext);
  line.AddNameColumn("Encoding").AddDecimal(encoding).Add(' ');
  if (encoding == kNativeEncoding) line.Add("(Native encoding) ");
  line.Add(SearchConstantInt(EncodingPart(encoding, 0), kIntegerEncodings)).Add(" / ");
  line.Add(SearchConstantInt(EncodingPart(encoding, 4), kDecimalEncodings)).Add(" / ");
  return line.Add(SearchConstantInt(EncodingPart(encoding, 8), kFloatEncodings)).Add('\n').Flush();
}

int ShowParsedCommonCcsid(RunContext& runContext, std::string_view name, std::int32_t ccsid,
                          bool fixedWidth) {
  // Kept: the text for an unknown CCSID has parentheses of its own, so its line shows two pairs.
  LineBuffer line(runContext);
  line.AddNameColumn(name).AddDecimal(ccsid, fixedWidth ? 6 : 0);
  return line.Add(" (").Add(SearchConstantCcsidString(ccsid, 0)).Add(")\n").Flush();
}

std::int32_t CalculateZkcharvDataLength(const VariableString& descriptor, ByteView text) {
  // Kept: the buffer's size wins over the text's length.
  if (descriptor.bufferSize != 0) return descriptor.bufferSize;
  if (descriptor.length != -1) return descriptor.length;
  // Kept: the NUL of a NUL-terminated text counts, so a wrapped one ends with a dot.
  std::int64_t length = 0;
  const std::int64_t most = text.TextSize(kMostClaimedText);
  for (; length < most && text.At(length) != 0; ++length) {
    // A long repeat without a NUL is not walked.
    if (length % 16 == 15) length = std::clamp(text.EndOfRepeat(length + 1) - 1, length, most - 1);
  }
  return static_cast<std::int32_t>(length) + 1;
}

int ShowZKCHARV(RunContext& runContext, std::string_view name, const VariableString& descriptor,
                ByteView structure, const CharvText& text) {
  ShowDescriptor(runContext, name, descriptor);
  ByteView bytes;
  if (!FindText(descriptor, structure, text, bytes)) return 0;
  const std::int32_t length = CalculateZkcharvDataLength(descriptor, bytes);
  if (length >= 1) ShowTextOfLength(runContext, bytes, length);
  return 0;
}

std::size_t StringXlateToSevenBitAscii(char* text, std::size_t length) {
  for (std::size_t i = 0; i < length; ++i) {
    const auto character = static_cast<unsigned char>(text[i]);
    text[i] = character >= 0x20 && character <= 0x7E ? text[i] : '.';
  }
  return length;
}

int ShowTextStringDataRegardingMaximumLrecl(RunContext& runContext, std::int32_t indent, ByteView text) {
  const std::int64_t maximum = runContext.maxXmlLineLength;
  const std::int64_t blanks = indent + 19 >= maximum ? maximum - 20 : indent;
  const std::int64_t prefix = static_cast<std::int64_t>(kLineMarker.size()) + blanks;
  LineBuffer line(runContext);
  std::int64_t length = 0;
  const auto add = [&](std::string_view character, std::int64_t count) {
    if (length > 0 && length + count > maximum) {
      line.Add('\n');
      length = 0;
    }
    if (length == 0) {
      line.Add(kLineMarker).AddRepeated(' ', blanks);
      length = prefix;
    }
    line.Add(character);
    length += count;
  };
  constexpr std::string_view dots = ".....";
  const auto addDots = [&](int count) { add(dots.substr(0, static_cast<std::size_t>(count)), count); };

  CharacterWalk walk;
  for (std::int64_t offset = 0; offset < text.Size(); ++offset) {
    const CharacterWalk::Step step = walk.Feed(runContext.characterPatterns, text.At(offset));
    if (step == CharacterWalk::Step::Complete) {
      add(std::string_view(walk.bytes, static_cast<std::size_t>(walk.count)), walk.count);
    } else if (step == CharacterWalk::Step::Rejected) {
      addDots(walk.count);
    }
  }
  if (walk.PendingCount() > 0) addDots(walk.PendingCount());
  if (length > 0) line.Add('\n');
  return line.Flush();
}

}  // namespace quillon
