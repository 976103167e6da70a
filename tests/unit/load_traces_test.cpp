// The load traces are what their names say; otherwise the figures taken with them would mean nothing.

#include "bench/load_traces.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/trace_stories.h"

namespace quillon::compose {
namespace {

std::vector<std::string> LinesOfMix(const std::string& mix, std::uint64_t size) {
  std::stringstream trace;
  EXPECT_TRUE(WriteTrace({.size = size, .mix = mix}, [&](const std::string& section) {
    trace << section;
    return true;
  }));
  std::vector<std::string> lines;
  for (std::string line; std::getline(trace, line);) lines.push_back(line);
  return lines;
}

/// What opens and closes tell, in their order: "+" or "-" and the handle.
std::vector<std::string> HandleSteps(const std::vector<std::string>& lines) {
  std::vector<std::string> steps;
  std::string section;
  for (const std::string& line : lines) {
    if (line.starts_with("<")) section = line;
    if (line.starts_with("(")) section += line;
    if (!line.starts_with("Hobj:0x")) continue;
    if (section == "<ZKOPEN(AFTER") steps.push_back("+" + line.substr(7));
    if (section == "<ZKCLOSE(BEFORE") steps.push_back("-" + line.substr(7));
  }
  return steps;
}

TEST(LoadTraces, HandlesAreAllOpenBeforeTheFirstIsClosed) {
  const std::vector<std::string> steps = HandleSteps(LinesOfMix("handles", 1900000));
  std::set<std::string> open;
  std::size_t step = 0;
  bool ascending = true;
  for (; step < steps.size() && steps[step][0] == '+'; ++step) {
    ascending = ascending && (step == 0 || steps[step - 1] < steps[step]);
    EXPECT_TRUE(open.insert(steps[step].substr(1)).second) << "opened twice: " << steps[step];
  }
  EXPECT_EQ(open.size(), 1000U);
  EXPECT_FALSE(ascending);
  for (; step < steps.size() && steps[step][0] == '-'; ++step)
    EXPECT_EQ(open.erase(steps[step].substr(1)), 1U) << "not open: " << steps[step];
  // The wanted length may cut the last closes off, or leave room for a first open of the next round.
  EXPECT_LT(open.size(), 100U);
}

TEST(LoadTraces, AHundredThousandHandlesAtMost) {
  std::uint64_t opens = 0;
  bool closed = false;
  WriteTrace({.size = 400000000, .mix = "handles"}, [&](const std::string& section) {
    closed = section.find("<ZKCLOSE") != std::string::npos;
    if (section.starts_with("<ZKOPEN\n(AFTER")) ++opens;
    return !closed;
  });
  EXPECT_TRUE(closed);
  EXPECT_EQ(opens, 100000U);
}

TEST(LoadTraces, EveryLineIsDifferent) {
  const std::vector<std::string> lines = LinesOfMix("lines", 500000);
  std::set<std::string_view> seen;
  std::size_t notes = 0;
  for (const std::string& line : lines) {
    if (!line.starts_with("Note ")) continue;  // the header of the trace
    ++notes;
    EXPECT_TRUE(seen.insert(line).second) << line;
  }
  EXPECT_GT(notes, 5000U);
  EXPECT_LT(lines.size() - notes, 20U);
}

}  // namespace
}  // namespace quillon::compose
