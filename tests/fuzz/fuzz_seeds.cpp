// Makes the fuzz targets' first inputs: `fuzz_seeds FOLDER NAME TRACE [ARGS]` takes the trace apart (with the
// program's arguments, one per line in the file ARGS) and writes what each target can use into
// FOLDER/<target>/.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "base/decimal.h"
#include "base/hex_digits.h"
#include "base/struct_reader.h"
#include "driver/command_line.h"
#include "driver/platform_choice.h"
#include "driver/scanner.h"
#include "fuzz_run.h"
#include "hexdump/regeneration.h"
#include "message_formats.h"
#include "structure_pieces.h"

namespace quillon::fuzz {
namespace {

using std::filesystem::path;

/// Inputs longer than this are left out: a fuzzer does little with them.
constexpr std::size_t kLongestSeed = 16384;
/// A list of pieces ends with the section that makes it longer than this.
constexpr std::size_t kLongList = 1024;
/// A piece of a long trace the same.
constexpr std::size_t kLongTrace = 4096;
constexpr std::size_t kReaderBlock = 65536;

constexpr std::int64_t kMdEncodingOffset = 24;
constexpr std::int64_t kMdFormatOffset = 32;

/// Where a trace's seeds go, and what they have in common.
struct Seeds {
  path folder;
  std::string name;
  std::string settings = {};  ///< what TakeSettings takes
  std::string pieces = {};    ///< of the structures since the last list was written
  int count = 0;
  std::uint32_t encoding = 0;  ///< of the last message descriptor
  FormatName format = {};
};

void Write(Seeds& seeds, const char* target, const std::string& input) {
  if (input.size() > kLongestSeed) return;
  const path folder = seeds.folder / target;
  std::filesystem::create_directories(folder);
  std::ofstream(folder / (seeds.name + "_" + std::to_string(seeds.count++)), std::ios::binary) << input;
}

void AddWord(std::string& text, std::uint32_t value, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) text += static_cast<char>(value >> (8 * i));
}

std::string TextOf(ByteView bytes) {
  std::string text;
  for (std::int64_t i = 0; i < bytes.Size(); ++i) text += static_cast<char>(bytes.At(i));
  return text;
}

void WriteMessage(Seeds& seeds, const char* target, std::size_t choice, const std::string& data) {
  std::string input = seeds.settings;
  AddWord(input, seeds.encoding, 4);
  input += static_cast<char>(choice);
  input += static_cast<char>(kNoClaim);
  Write(seeds, target, input + data);
}

std::size_t ChoiceOf(const FormatName& format) {
  for (std::size_t i = 0; i < kMessageFormatCount; ++i)
    if (format == kMessageFormats[i]) return i;
  return kMessageFormatCount - 1;
}

void WriteMessages(Seeds& seeds, const std::string& data) {
  WriteMessage(seeds, "fuzz_message_chain", ChoiceOf(seeds.format), data);
  if (seeds.format == "ZKHEPCF ") WriteMessage(seeds, "fuzz_pcf", 1, data);
  for (const char* pcf : {"ZKADMIN ", "ZKPCF   ", "ZKEVENT "})
    if (seeds.format == pcf) WriteMessage(seeds, "fuzz_pcf", 0, data);
  if (seeds.format == "ZKHRF   ") WriteMessage(seeds, "fuzz_rules_headers", 0, data);
  if (seeds.format == "ZKHRF2  ") WriteMessage(seeds, "fuzz_rules_headers", 1, data);
  if (const std::size_t xml = data.find('<'); xml != std::string::npos)
    WriteMessage(seeds, "fuzz_xml", 0, data.substr(xml));
}

bool IsBody(std::string_view dataName) {
  return dataName == "Buffer" || dataName == "Data";
}

void TakeDescriptor(Seeds& seeds, const RunContext& context, ByteView descriptor) {
  seeds.encoding = descriptor.Word(kMdEncodingOffset, OrderOfSavedEncoding(context, descriptor));
  seeds.format = FormatNameOf(descriptor.From(kMdFormatOffset));
}

void AddDump(Seeds& seeds, std::string_view dataName, const std::string& bytes) {
  for (std::size_t i = 0; i < kDataNameCount; ++i) {
    const bool isItem = dataName.starts_with("Variable-") && kDataNames[i].starts_with("Variable-");
    if (dataName != kDataNames[i] && !isItem) continue;
    seeds.pieces += static_cast<char>(i);
    AddWord(seeds.pieces, static_cast<std::uint32_t>(bytes.size()), 2);
    seeds.pieces += bytes;
    return;
  }
}

/// False at a dump that is broken.
bool TakeDump(Seeds& seeds, CheckedRun& run) {
  std::string dataName;
  if (RegenerateHexData(run.context, run.trace, dataName, run.trace.dump, Echo::Off) < 0) return false;
  if (run.trace.dump.Count() > static_cast<std::int64_t>(kLongestSeed)) return true;
  const std::string bytes = TextOf(run.trace.dump.Whole().Sub(0, run.trace.dump.Count()));
  AddDump(seeds, dataName, bytes);
  if (dataName == "MD") TakeDescriptor(seeds, run.context, run.trace.dump.Whole());
  if (IsBody(dataName)) WriteMessages(seeds, bytes);
  return true;
}

std::size_t CallOf(std::string_view name) {
  for (std::size_t i = 0; i < kCallCount; ++i)
    if (name == kCalls[i]) return i;
  return 0;
}

/// A line that is one of the other pieces; the last of them, an empty line, is of no use.
void AddLine(Seeds& seeds, std::string_view line) {
  for (std::size_t i = 0; i + 1 < kOtherPieceCount; ++i) {
    const OtherPiece& piece = kOtherPieces[i];
    if (!line.starts_with(piece.start)) continue;
    line.remove_prefix(piece.start.size());
    seeds.pieces += static_cast<char>(kOtherPiece + i);
    if (piece.value == PieceValue::Call) AddWord(seeds.pieces, static_cast<std::uint32_t>(CallOf(line)), 1);
    if (piece.value == PieceValue::Decimal)
      AddWord(seeds.pieces, static_cast<std::uint32_t>(DecimalValue(line)), 2);
    if (piece.value == PieceValue::Hex)
      AddWord(seeds.pieces, static_cast<std::uint32_t>(ConvertEightByteHexToInteger(line)), 4);
    return;
  }
}

void WritePieces(Seeds& seeds) {
  if (!seeds.pieces.empty()) Write(seeds, "fuzz_structures", seeds.settings + seeds.pieces);
  seeds.pieces.clear();
}

void TakeApart(Seeds& seeds, CheckedRun& run) {
  while (AdvanceLine(run.trace)) {
    std::string_view line = run.trace.currentLine->View();
    if (line.starts_with(kFirstDumpLine)) {
      if (!TakeDump(seeds, run)) break;
      continue;
    }
    line.remove_suffix(line.ends_with('\n') ? 1 : 0);
    AddLine(seeds, line);
    if (line.starts_with("---") && seeds.pieces.size() > kLongList) WritePieces(seeds);
  }
  WritePieces(seeds);
}

/// The bytes from which TakeSettings makes the platform and the CCSID of the context.
std::string SettingsOf(const RunContext& context) {
  for (std::uint8_t platform = 0; platform < 5; ++platform) {
    for (std::uint8_t ccsid = 0; ccsid < 32; ++ccsid) {
      const std::uint8_t bytes[] = {platform, ccsid, 0, 0};
      Input input(bytes, sizeof(bytes));
      RunContext made;
      TakeSettings(input, made);
      if (made.ccsid == context.ccsid && PlatformText(made) == PlatformText(context))
        return {static_cast<char>(platform), static_cast<char>(ccsid), 0, 0};
    }
  }
  return std::string(4, '\0');
}

/// None when there is no such file.
std::vector<std::string> LinesOf(const path& file) {
  std::vector<std::string> lines;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string ContentOf(const path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// A long trace is cut into pieces that end with a call.
void WriteTraceSeeds(Seeds& seeds, const std::vector<std::string>& arguments, std::string_view trace) {
  std::string switches;
  for (const std::string& argument : arguments) switches += (switches.empty() ? "#" : " ") + argument;
  // Traces with switches also with the end of a block of the reader in their middle.
  if (!switches.empty() && trace.size() < kLongTrace)
    Write(seeds, "fuzz_trace",
          switches + " +" + std::to_string(kReaderBlock - trace.size() / 2) + "\n" + std::string(trace));
  if (!switches.empty()) switches += '\n';
  while (!trace.empty()) {
    const std::size_t rule = trace.find("\n---", trace.size() <= kLongestSeed ? trace.size() : kLongTrace);
    const std::size_t end =
        std::min(trace.find('\n', std::min(rule, trace.size() - 1) + 1), trace.size() - 1) + 1;
    Write(seeds, "fuzz_trace", switches + std::string(trace.substr(0, end)));
    trace.remove_prefix(end);
  }
}

bool ReadArguments(CheckedRun& run, std::vector<std::string> arguments) {
  std::vector<char*> words;
  arguments.insert(arguments.begin(), {"quillon", "trace.txt"});
  words.reserve(arguments.size() + 1);
  for (std::string& word : arguments) words.push_back(word.data());
  return ReadInputParameter(run.context, run.trace, static_cast<int>(words.size()), words.data()) == 0;
}

void MakeSeeds(Seeds& seeds, const path& traceFile) {
  const std::vector<std::string> arguments = LinesOf(traceFile.parent_path() / "args");
  const std::string trace = ContentOf(traceFile);
  WriteTraceSeeds(seeds, arguments, trace);
  std::FILE* stream = std::fopen(traceFile.c_str(), "r");
  if (stream == nullptr) return;
  CheckedRun run(MostOutputOfMessage(trace.size()));
  if (ReadArguments(run, arguments)) {
    LineReader lines(stream, ReturnBeforeLineFeed::Drop);
    run.trace.input = &lines;
    seeds.settings = SettingsOf(run.context);
    TakeApart(seeds, run);
  }
  std::fclose(stream);
}

/// "tests/cases/pcf/x/trace.txt" is called "tests_cases_pcf_x_trace".
std::string NameOf(const path& trace) {
  std::string name;
  for (const path& part : trace.parent_path() / trace.stem())
    if (part != ".." && part != "/") name += (name.empty() ? "" : "_") + part.string();
  return name;
}

std::vector<path> TracesOf(const path& named) {
  if (!std::filesystem::is_directory(named)) return {named};
  std::vector<path> traces;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(named))
    if (entry.path().filename() == "trace.txt") traces.push_back(entry.path());
  std::sort(traces.begin(), traces.end());
  return traces;
}

}  // namespace
}  // namespace quillon::fuzz

int main(int count, char** arguments) {
  if (count < 3) {
    std::fputs("Usage: fuzz_seeds FOLDER TRACE...\n", stderr);
    return 2;
  }
  for (int i = 2; i < count; ++i) {
    for (const std::filesystem::path& trace : quillon::fuzz::TracesOf(arguments[i])) {
      quillon::fuzz::Seeds seeds{
          .folder = arguments[1], .name = quillon::fuzz::NameOf(trace), .settings = {}, .pieces = {}};
      quillon::fuzz::MakeSeeds(seeds, trace);
    }
  }
  return 0;
}
