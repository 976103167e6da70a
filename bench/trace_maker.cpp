// Writes a trace to standard output: one of a wanted length, for benchmarks, or one of the examples.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "example_stories.h"
#include "trace_stories.h"

namespace {

using quillon::compose::ExampleStories;
using quillon::compose::ExampleStory;
using quillon::compose::TraceMixes;
using quillon::compose::TracePlatforms;
using quillon::compose::TraceRequest;
using quillon::compose::WriteTrace;

constexpr int kStatusFailed = 1;
constexpr int kStatusUsage = 2;

/// A decimal number without sign, at most 12 digits.
std::optional<std::uint64_t> ParseNumber(std::string_view text) {
  if (text.empty() || text.size() > 12) return std::nullopt;
  std::uint64_t number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + static_cast<std::uint64_t>(digit - '0');
  }
  return number;
}

/// A number of bytes, with K, M or G for powers of 1024.
std::optional<std::uint64_t> ParseSize(std::string_view text) {
  constexpr std::string_view kUnits = "KMG";
  const std::size_t unit = text.empty() ? std::string_view::npos : kUnits.find(text.back());
  if (unit == std::string_view::npos) return ParseNumber(text);
  const std::optional<std::uint64_t> number = ParseNumber(text.substr(0, text.size() - 1));
  if (!number) return std::nullopt;
  return *number << (10 * (unit + 1));
}

bool IsOneOf(const std::vector<std::string_view>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::optional<TraceRequest> ParseArguments(int count, char** arguments) {
  if (count < 2 || count > 5) return std::nullopt;
  TraceRequest request;
  const std::optional<std::uint64_t> size = ParseSize(arguments[1]);
  const std::optional<std::uint64_t> seed = count > 2 ? ParseNumber(arguments[2]) : request.seed;
  if (count > 3) request.mix = arguments[3];
  if (count > 4) request.platform = arguments[4];
  if (!size || !seed || !IsOneOf(TraceMixes(), request.mix)) return std::nullopt;
  if (!IsOneOf(TracePlatforms(), request.platform)) return std::nullopt;
  request.size = *size;
  request.seed = *seed;
  return request;
}

void AddName(std::string& text, std::string_view name) {
  text += ' ';
  text += name;
}

std::string Usage() {
  std::string text =
      "Usage: trace_maker SIZE [SEED] [MIX [PLATFORM]]\n       trace_maker example NAME\n"
      "  SIZE  bytes, or with K, M, G\n  MIX  ";
  for (const std::string_view mix : TraceMixes()) AddName(text, mix);
  text += "\n  PLATFORM ";
  for (const std::string_view platform : TracePlatforms()) AddName(text, platform);
  text += "\n  NAME ";
  for (const ExampleStory& story : ExampleStories()) AddName(text, story.name);
  return text += '\n';
}

bool WriteSection(const std::string& section) {
  return std::fwrite(section.data(), 1, section.size(), stdout) == section.size();
}

/// The story that the arguments ask for; none when they ask for something else.
const ExampleStory* FindExample(int count, char** arguments) {
  if (count != 3 || std::string_view(arguments[1]) != "example") return nullptr;
  for (const ExampleStory& story : ExampleStories())
    if (story.name == arguments[2]) return &story;
  return nullptr;
}

int Finish(bool written) {
  if (written && std::fflush(stdout) == 0) return 0;
  std::perror("trace_maker");
  return kStatusFailed;
}

}  // namespace

int main(int count, char** arguments) {
  if (const ExampleStory* story = FindExample(count, arguments))
    return Finish(WriteSection(story->compose()));
  const std::optional<TraceRequest> request = ParseArguments(count, arguments);
  if (!request) {
    static_cast<void>(std::fputs(Usage().c_str(), stderr));
    return kStatusUsage;
  }
  return Finish(WriteTrace(*request, WriteSection));
}
