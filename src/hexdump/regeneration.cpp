#include "hexdump/regeneration.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "base/decimal.h"
#include "base/hex_digits.h"
#include "driver/message_catalogue.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::string_view kAgentPrefix = "AgentBuffer-";
constexpr std::string_view kVariablePrefix = "Variable-";
constexpr std::string_view kReportMarker = "|> ";

// Columns of a dump line.
constexpr std::size_t kKindColumn = 8;     // ':' data, '-' repeat
constexpr std::size_t kContentColumn = 9;  // first pair, or the end offset of a repeat

void ReportInvalidRecord(RunContext& runContext, const TraceLineContext& traceLineContext,
                         std::uint32_t lineNumber, const TraceLine& line) {
  PutMessage(runContext, 2006, kResultFromErrno, traceLineContext.inputFileName, lineNumber, line.View());
}

// What the first character of a pair means: the upper four bits of a byte, or one of the marks.
constexpr std::uint16_t kSkipped = 0x100;
constexpr std::uint16_t kEndOfPairs = 0x200;

consteval std::array<std::uint16_t, 256> MakePairStarts() {
  std::array<std::uint16_t, 256> starts{};
  for (std::size_t character = 0; character < starts.size(); ++character)
    starts[character] = character < 0x20 ? kEndOfPairs : HexUpper4Bits[character];
  starts[' '] = kSkipped;
  starts['['] = kEndOfPairs;  // the image; anything else behind the groups reads as pairs
  return starts;
}
constexpr std::array<std::uint16_t, 256> kPairStarts = MakePairStarts();

std::uint16_t PairStart(char character) {
  return kPairStarts[static_cast<unsigned char>(character)];
}

// Kept: the character behind the first of a pair is its second digit whatever it is; a blank counts as 0.
std::uint8_t PairByte(std::uint16_t start, char second) {
  return static_cast<std::uint8_t>(start | HexLower4Bits[static_cast<unsigned char>(second)]);
}

// Most data lines are full: four groups of four bytes, a blank between them.
constexpr std::size_t kGroups = 4;
constexpr std::size_t kGroupDigits = 8;
constexpr std::size_t kGroupWidth = kGroupDigits + 1;
constexpr std::size_t kFullContent = kGroups * kGroupWidth - 1;
constexpr std::size_t kFullDigits = kGroups * kGroupDigits;

// The digits of a full line side by side; false when the text is no such line.
bool TakeFullDigits(const char* content, std::uint8_t (&digits)[kFullDigits]) {
  for (std::size_t group = 0; group < kGroups; ++group)
    std::memcpy(digits + group * kGroupDigits, content + group * kGroupWidth, kGroupDigits);
  std::uint8_t others = 0;
  for (const std::uint8_t digit : digits) others |= static_cast<std::uint8_t>(!IsHexDigit(digit));
  for (std::size_t group = 1; group < kGroups; ++group)
    others |= static_cast<std::uint8_t>(content[group * kGroupWidth - 1] != ' ');
  return others == 0;
}

// Loops over 32 digits and 16 bytes, which compilers turn into vector instructions.
bool DecodeFullLine(const char* content, std::uint8_t* decoded) {
  std::uint8_t digits[kFullDigits];
  if (!TakeFullDigits(content, digits)) return false;
  for (std::uint8_t& digit : digits) digit = HexDigitValue(digit);
  for (std::size_t i = 0; i < kFullDigits / 2; ++i)
    decoded[i] = static_cast<std::uint8_t>(digits[i * 2] << 4 | digits[i * 2 + 1]);
  return true;
}

// Appends the bytes of a data line: those of a full line at once, others pair by pair.
bool AppendDataLine(const TraceLine& line, DumpBytes& bytes) {
  std::uint8_t* const decoded = bytes.Room(kMaxLineLength / 2);
  if (decoded == nullptr) return false;
  std::size_t count = 0;
  std::size_t column = kContentColumn;
  if (line.length >= kContentColumn + kFullContent && DecodeFullLine(line.text + kContentColumn, decoded)) {
    count = kFullDigits / 2;
    column += kFullContent;
  }
  while (column < line.length) {
    const std::uint16_t start = PairStart(line.text[column]);
    if (start == kEndOfPairs) break;
    if (start == kSkipped) {
      ++column;
      continue;
    }
    decoded[count++] = PairByte(start, line.At(column + 1));
    column += 2;
  }
  bytes.Take(count);
  return true;
}

// Appends what a repeat line stands for. Its offsets compare as signed words; a range of the wrong way round
// is empty.
bool AppendRepeatLine(const TraceLine& line, DumpBytes& bytes) {
  const std::int64_t start = ConvertEightByteHexToInteger(line.View());
  const std::int64_t end = ConvertEightByteHexToInteger(line.From(kContentColumn));
  return start >= end || bytes.AppendRepeat((end - start + 15) / 16);
}

enum class DumpLine : std::uint8_t { Taken, CutShort, Broken, NoMemory };

DumpLine TakeDumpLine(const TraceLine& line, DumpBytes& bytes) {
  switch (line.At(kKindColumn)) {
    case '-':
      return AppendRepeatLine(line, bytes) ? DumpLine::Taken : DumpLine::NoMemory;
    case ':':
      return AppendDataLine(line, bytes) ? DumpLine::Taken : DumpLine::NoMemory;
    default:
      return line.At(0) == ' ' ? DumpLine::CutShort : DumpLine::Broken;
  }
}

std::int32_t FailDump(RunContext& runContext, const TraceLineContext& traceLineContext, DumpLine failure) {
  if (failure == DumpLine::NoMemory) {
    PutMessage(runContext, 1010, kResultFromErrno);
  } else {
    ReportInvalidRecord(runContext, traceLineContext, traceLineContext.lineNumber,
                        *traceLineContext.currentLine);
  }
  return kBrokenDump;
}

// Reads the next dump line in place of the current one: the previous line stays the data-name line.
bool ReadDumpLine(RunContext& runContext, TraceLineContext& traceLineContext, Echo echo) {
  traceLineContext.currentLine->Clear();
  if (!traceLineContext.input->Read(*traceLineContext.currentLine)) {
    PutMessage(runContext, 1001, kResultFromErrno, traceLineContext.inputFileName, "read (2)");
    return false;
  }
  ++traceLineContext.lineNumber;
  if (echo == Echo::On) SetDataToWriteBuffer(runContext, traceLineContext.currentLine->View());
  return true;
}

// Whether the items' search goes on with the next line, takes the current one as an item's first, or is over.
enum class ItemSearch : std::uint8_t { GoOn, Item, Over };

ItemSearch ExamineLine(RunContext& runContext, const TraceLineContext& traceLineContext) {
  const TraceLine& line = *traceLineContext.currentLine;
  const bool nameBefore = traceLineContext.previousLine->StartsWith(kVariablePrefix);
  if (line.StartsWith(kReportMarker)) return nameBefore ? ItemSearch::Item : ItemSearch::Over;
  SetDataToWriteBuffer(runContext, line.View());
  if (nameBefore) return ItemSearch::Item;
  return line.StartsWith(kVariablePrefix) || line.At(0) == '0' ? ItemSearch::GoOn : ItemSearch::Over;
}

// Reads lines until an item's first line stands in the current line (Item) or the items are over.
bool FindVariableItem(RunContext& runContext, TraceLineContext& traceLineContext, ItemSearch& found) {
  do {
    if (!AdvanceLine(traceLineContext)) {
      PutMessage(runContext, 1001, kResultFromErrno, traceLineContext.inputFileName, "read (1)");
      return false;
    }
    found = ExamineLine(runContext, traceLineContext);
  } while (found == ItemSearch::GoOn);
  return true;
}

// Nothing that is carried and would be shown is left out.
std::int64_t MostMemoryOfItem(const RunContext& runContext) {
  if (runContext.maxCharvLength < 0) return DumpBytes::kAnyMemory;
  return std::max(kMostMemoryOfItem, std::int64_t{runContext.maxCharvLength} * 2);
}

}  // namespace

bool AdvanceLine(TraceLineContext& traceLineContext) {
  std::swap(traceLineContext.currentLine, traceLineContext.previousLine);
  traceLineContext.currentLine->Clear();
  if (!traceLineContext.input->Read(*traceLineContext.currentLine)) return false;
  ++traceLineContext.lineNumber;
  return true;
}

bool ParseDataNameLine(const TraceLine& line, DataNameLine& result) {
  std::string_view text = line.View();
  if (line.StartsWith(kAgentPrefix)) text.remove_prefix(kAgentPrefix.size());
  const std::size_t nameEnd = text.find_first_of(": ");
  if (nameEnd == std::string_view::npos) return false;
  result.name = text.substr(0, nameEnd);
  const std::size_t opening = text.find(":(", nameEnd);
  if (opening == std::string_view::npos) return false;
  const std::string_view declared = text.substr(opening + 2);
  if (declared.find('=') == std::string_view::npos) return false;
  result.length = DecimalDigits(declared);
  return true;
}

std::int32_t RegenerateHexData(RunContext& runContext, TraceLineContext& traceLineContext,
                               std::string& dataName, DumpBytes& bytes, Echo echo) {
  DataNameLine header;
  if (!ParseDataNameLine(*traceLineContext.previousLine, header)) {
    ReportInvalidRecord(runContext, traceLineContext, traceLineContext.lineNumber - 1,
                        *traceLineContext.previousLine);
    return kBrokenDump;
  }
  dataName = header.name;
  bytes.Start(header.length, echo == Echo::On ? MostMemoryOfItem(runContext) : DumpBytes::kAnyMemory);
  if (header.length < 1) return header.length;
  for (;;) {
    const DumpLine line = TakeDumpLine(*traceLineContext.currentLine, bytes);
    if (line == DumpLine::CutShort) return header.length;
    if (line != DumpLine::Taken) return FailDump(runContext, traceLineContext, line);
    if (bytes.Count() >= header.length) return header.length;
    if (!ReadDumpLine(runContext, traceLineContext, echo)) return kBrokenDump;
  }
}

int RegenerateVariableData(RunContext& runContext, TraceLineContext& traceLineContext) {
  for (VariableItem& item : traceLineContext.variableItems) item.present = false;
  std::string itemName;
  for (VariableItem& item : traceLineContext.variableItems) {
    ItemSearch found = ItemSearch::Over;
    if (!FindVariableItem(runContext, traceLineContext, found)) return -1;
    if (found == ItemSearch::Over) return 0;
    const std::int32_t length =
        RegenerateHexData(runContext, traceLineContext, itemName, item.bytes, Echo::On);
    if (length == kBrokenDump) return -1;
    item.present = length > 0;
  }
  return 0;
}

}  // namespace quillon
