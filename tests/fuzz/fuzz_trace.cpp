// The whole program in memory on a trace. An input that begins with "#" has the program's switches in its
// first line ("#-c 1208 -p auto"); the rest, or all of an input without them, is the trace. A "+65000" among
// the switches puts so many bytes of text lines in front of the trace, so that a block of the reader ends
// inside it.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/decimal.h"
#include "driver/command_line.h"
#include "driver/program.h"
#include "fuzz_run.h"

namespace quillon::fuzz {
namespace {

constexpr char kSwitchesMark = '#';
/// Two blocks of the reader.
constexpr std::size_t kMostPadding = 131072;
/// Bytes of the messages about the switches.
constexpr std::uint64_t kMostBeforeTheTrace = 65536;

/// The words of the first line, behind those that name the program and its input.
std::vector<std::string> ArgumentsOf(std::string_view line) {
  std::vector<std::string> arguments = {"quillon", "trace.txt"};
  for (std::size_t start = 0; start < line.size();) {
    const std::size_t end = std::min(line.find(' ', start), line.size());
    if (end > start) arguments.emplace_back(line.substr(start, end - start));
    start = end + 1;
  }
  return arguments;
}

/// Cuts the switches off the trace.
std::vector<std::string> TakeArguments(std::string_view& trace) {
  if (!trace.starts_with(kSwitchesMark)) return ArgumentsOf({});
  const std::size_t end = std::min(trace.find('\n'), trace.size() - 1);
  const std::string_view line = trace.substr(1, end > 0 ? end - 1 : 0);
  std::vector<std::string> arguments = ArgumentsOf(line.substr(0, line.find('\0')));
  trace.remove_prefix(end + 1);
  return arguments;
}

/// Takes the number behind a "+" out of the arguments; 0 when there is none.
std::size_t TakePadding(std::vector<std::string>& arguments) {
  const auto padding = std::find_if(arguments.begin(), arguments.end(),
                                    [](const std::string& word) { return word.starts_with('+'); });
  if (padding == arguments.end()) return 0;
  const auto count = static_cast<std::size_t>(DecimalDigits(padding->substr(1)));
  arguments.erase(padding);
  return std::min(count, kMostPadding);
}

std::string PaddingOf(std::size_t count) {
  std::string text(count, '.');
  for (std::size_t end = count; end > 0; end -= std::min<std::size_t>(end, 80)) text[end - 1] = '\n';
  return text;
}

bool ReadArguments(CheckedRun& run, std::vector<std::string> arguments) {
  std::vector<char*> words;
  words.reserve(arguments.size() + 1);
  for (std::string& word : arguments) words.push_back(word.data());
  words.push_back(nullptr);
  return ReadInputParameter(run.context, run.trace, static_cast<int>(arguments.size()), words.data()) == 0;
}

// The fuzzer's surroundings do not decide on the CCSID.
void ClearEnvironment() {
  for (const char* name : {"ZKCCSID", "LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
}

void Scan(CheckedRun& run, std::string_view trace) {
  run.AllowForTrace(trace.size());
  // The stream only reads.
  std::FILE* input = fmemopen(const_cast<char*>(trace.data()), trace.size(), "r");
  if (input == nullptr) return;
  WriteReport(run.context, run.trace, input);
  std::fclose(input);
}

void Reformat(std::string_view trace) {
  static const bool cleared = (ClearEnvironment(), true);
  static_cast<void>(cleared);
  std::vector<std::string> arguments = TakeArguments(trace);
  const std::string padding = PaddingOf(TakePadding(arguments));
  CheckedRun run(kMostBeforeTheTrace);
  if (!ReadArguments(run, std::move(arguments))) return;
  if (padding.empty()) return Scan(run, trace);
  Scan(run, padding + std::string(trace));
}

}  // namespace
}  // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::fuzz::Reformat({reinterpret_cast<const char*>(data), size});
  return 0;
}
