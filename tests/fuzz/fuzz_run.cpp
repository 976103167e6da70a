#include "fuzz_run.h"

#include <sys/types.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <string_view>

#include "driver/ccsid_choice.h"
#include "driver/platform_choice.h"
#include "driver/program.h"
#include "output/report_writer.h"
#include "robustness/stated_limits.h"

namespace quillon::fuzz {
namespace {

[[noreturn]] void Fail(const char* what, const char* rule) {
  std::fprintf(stderr, "FAILED: the %s %s\n", what, rule);
  std::abort();
}

/// A stream that takes everything and keeps nothing.
struct Sink {
  const char* name;
  std::uint64_t written = 0;
  std::uint64_t limit = 0;
  std::FILE* stream = nullptr;
  char buffer[65536] = {};
};

ssize_t WriteToSink(void* cookie, const char* text, std::size_t size) {
  Sink& sink = *static_cast<Sink*>(cookie);
  if (std::memchr(text, '\0', size) != nullptr) Fail(sink.name, "holds a NUL");
  sink.written += size;
  if (sink.written > sink.limit) Fail(sink.name, "is longer than an input of this size allows");
  return static_cast<ssize_t>(size);
}

void OpenSink(Sink& sink) {
  sink.stream = fopencookie(&sink, "w", {nullptr, WriteToSink, nullptr, nullptr});
  if (sink.stream == nullptr) Fail(sink.name, "cannot be opened");
  std::setvbuf(sink.stream, sink.buffer, _IOFBF, sizeof(sink.buffer));
}

// The sinks outlive the runs: opening them takes longer than a small input.
Sink report{.name = "report"};
Sink terminal{.name = "messages' text"};

std::FILE* StartSink(Sink& sink, std::uint64_t limit) {
  if (sink.stream == nullptr) OpenSink(sink);
  sink.written = 0;
  sink.limit = limit;
  return sink.stream;
}

constexpr std::string_view kPlatforms[] = {"be32", "le32", "be64", "le64", "auto"};
constexpr std::int32_t kXmlLineLengths[] = {100, 40, 999, 41};
constexpr std::int32_t kCharvLengths[] = {400, 0, 1, -1};

// The CCSIDs with character patterns, and 0 and 500, which have none.
std::int32_t CcsidOf(std::uint8_t choice) {
  constexpr std::int32_t ccsids[] = {0,   500,  437,  819,  850,  932,  942,  943,  949,  950,   954,  964,
                                     970, 1208, 1363, 1370, 1381, 1383, 1386, 5050, 5488, 17338, 33722};
  return ccsids[choice % std::size(ccsids)];
}

// Most inputs of a fuzzer keep the CCSID of the one before, and its map has 12,800 entries.
void SetPatterns(RunContext& context) {
  static CharacterPatternMap patterns;
  static std::int32_t ccsid = -1;
  if (context.ccsid != ccsid) {
    SetValueForCodeRangeCheck(context);
    patterns = context.characterPatterns;
    ccsid = context.ccsid;
  }
  context.characterPatterns = patterns;
}

}  // namespace

std::uint8_t Input::Byte() {
  if (left == 0) return 0;
  --left;
  return *next++;
}

std::uint16_t Input::Word16() {
  const unsigned high = Byte();
  return static_cast<std::uint16_t>(high << 8 | Byte());
}

std::uint32_t Input::Word32() {
  const std::uint32_t high = Word16();
  return high << 16 | Word16();
}

std::unique_ptr<std::uint8_t[]> Input::Take(std::size_t& count) {
  count = std::min(count, left);
  std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[count]);
  if (count > 0) std::memcpy(block.get(), next, count);
  next += count;
  left -= count;
  return block;
}

CheckedRun::CheckedRun(std::uint64_t mostOutput) : started(std::clock()) {
  InitializeCommonDataArea(context, trace);
  context.outputFile = StartSink(report, mostOutput);
  context.terminal = StartSink(terminal, mostOutput);
  context.outputFileName = "report.txt";
  trace.inputFileName = "trace.txt";
}

void CheckedRun::AllowForTrace(std::size_t traceSize) {
  const auto size = static_cast<std::int64_t>(traceSize);
  const std::int64_t longestLine = context.maxXmlLineLength;
  report.limit = static_cast<std::uint64_t>(kReportBytesOfRun + size * ReportBytesPerTraceByte(longestLine) +
                                            ReportBytesOfClaimedText(longestLine));
  terminal.limit = static_cast<std::uint64_t>(kTerminalBytesOfRun + size * kTerminalBytesPerTraceByte);
}

CheckedRun::~CheckedRun() {
  if (FlushReport(context) != 0 || std::fflush(report.stream) != 0 || context.fatalIoError)
    Fail(report.name, "was not written");
  if (std::fflush(terminal.stream) != 0) Fail(terminal.name, "was not written");
  const auto taken = static_cast<double>(std::clock() - started);
  if (taken > mostSeconds * CLOCKS_PER_SEC) Fail("run", "took too long");
}

void TakeSettings(Input& input, RunContext& context) {
  ChoosePlatform(context, kPlatforms[input.Byte() % std::size(kPlatforms)]);
  context.ccsid = CcsidOf(input.Byte());
  SetPatterns(context);
  const std::uint8_t call = input.Byte();
  constexpr std::int32_t kinds[] = {kApiKindOther, kApiKindGet, kApiKindDataConvOnGet};
  context.apiKind = kinds[call % 3];
  context.apiPhase = call / 3 % 3;
  context.compCode = call / 9 % 3;
  const std::uint8_t limits = input.Byte();
  context.maxXmlLineLength = kXmlLineLengths[limits % 4];
  context.maxCharvLength = kCharvLengths[limits / 4 % 4];
}

std::int64_t ClaimedBytes(std::uint8_t claim) {
  if ((claim & kClaimsMissing) != kClaimsMissing) return 0;
  constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
  constexpr std::int64_t large[] = {1 << 20, 1 << 24, 1 << 30, most};
  constexpr unsigned firstLarge = kClaimsMost + 1 - std::size(large);
  const unsigned choice = claim & kClaimsMost;
  return choice >= firstLarge ? large[choice - firstLarge] : std::int64_t{1} << (choice % 16);
}

MessageInput::MessageInput(Input& input) : encoding(input.Word32()), choice(input.Byte()) {
  const std::uint8_t claim = input.Byte();
  std::size_t size = input.Left();
  bytes = input.Take(size);
  const std::int64_t declared = std::min<std::int64_t>(static_cast<std::int64_t>(size) + ClaimedBytes(claim),
                                                       std::numeric_limits<std::int32_t>::max());
  if (!ClaimsRepeat(claim)) {
    data = ByteView(bytes.get(), static_cast<std::int64_t>(size), declared, nullptr);
    return;
  }
  dump.Start(static_cast<std::int32_t>(declared));
  if (!dump.Append(bytes.get(), size) || !dump.AppendRepeat(declared / 16 + 1)) std::abort();
  data = dump.Declared();
}

}  // namespace quillon::fuzz
