// Traces that were damaged on their way: the examples, cut at every byte, with flipped bits, with lines
// dropped, doubled and swapped, with other declared lengths and other numbers in their dumps. However a trace
// is damaged, its report begins with what the lines before the damage gave.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "golden/program_run.h"
#include "robustness/run_in_memory.h"
#include "robustness/stated_limits.h"

namespace quillon {
namespace {

struct Example {
  const char* test;
  const char* name;
  const char* platform;  ///< as behind -p; nothing: none
  /// With "auto" the start of a trace is read by what stands further down, so damage there changes how the
  /// fields before it are shown. Their ordinary lines must stand all the same.
  bool looksAhead = false;
};

void PrintTo(const Example& example, std::ostream* stream) {
  *stream << example.test;
}

/// Under sanitizers a scan takes twenty times as long: of the bits, every eighth byte's is flipped there, and
/// of the words of the dumps every fourth is replaced. The other kinds of damage are done in full.
std::size_t StepOfBits() {
  return SlownessOfBuild() > 10 ? 4 : 1;
}
std::size_t StepOfWords() {
  return SlownessOfBuild() > 10 ? 4 : 1;
}

bool IsHexDigit(char c) {
  return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

bool IsDumpLine(std::string_view line) {
  return line.size() > 9 && std::all_of(line.begin(), line.begin() + 8, IsHexDigit) &&
         (line[8] == ':' || line[8] == '-');
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
    lines.push_back(text.substr(start, end - start));
    start = end;
  }
  return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

class DamagedTrace : public testing::TestWithParam<Example> {
 protected:
  DamagedTrace()
      : run({.platform = GetParam().platform}),
        trace(ReadWholeFile(std::string(QUILLON_SOURCE_DIR "/examples/") + GetParam().name + ".txt")),
        lines(LinesOf(trace)) {
    std::string before;
    for (const std::string& line : lines) {
      lineStarts.push_back(before.size());
      reportsBefore.emplace_back(run.Scan(before).report);
      ordinaryBefore.push_back(ordinary.size());
      if (!IsDumpLine(line)) ordinary.push_back(line);
      before += line;
    }
    whole = run.Scan(trace).report;
  }

  /// The number of the line that holds the byte.
  std::size_t LineOf(std::size_t byte) const {
    return static_cast<std::size_t>(std::upper_bound(lineStarts.begin(), lineStarts.end(), byte) -
                                    lineStarts.begin()) -
           1;
  }

  /// Whether the report holds the ordinary lines before that line, in order.
  bool HoldsOrdinaryLines(std::string_view report, std::size_t line) const {
    std::size_t position = 0;
    for (std::size_t i = 0; i < ordinaryBefore[line]; ++i) {
      const std::size_t found = report.find(ordinary[i], position);
      if (found == std::string_view::npos || (found > 0 && report[found - 1] != '\n')) return false;
      position = found + ordinary[i].size();
    }
    return true;
  }

  bool HoldsWhatStoodBefore(std::string_view report, std::size_t line) const {
    if (GetParam().looksAhead) return HoldsOrdinaryLines(report, line);
    const std::string& before = reportsBefore[line];
    return report.substr(0, before.size()) == before;
  }

  /// Scans a trace whose first difference from the example lies in the line of that number. False (and a
  /// failure) when the scan broke a limit or its report lacks what stood before the damage.
  bool Survives(std::string_view damaged, std::size_t line, const std::string& damage) {
    const MemoryRunOutcome outcome = run.Scan(damaged);
    const auto size = static_cast<double>(damaged.size());
    const bool reportHolds = HoldsWhatStoodBefore(outcome.report, line);
    const bool timeHolds =
        outcome.seconds < (kSecondsOfRun + size * kSecondsPerTraceByte) * SlownessOfBuild();
    const bool memoryHolds =
        outcome.mostMemory < kMostMemoryOfRun + kMemoryPerDumpByte * static_cast<std::int64_t>(size);
    EXPECT_TRUE(reportHolds) << damage << ": the report lacks something of the lines before the damage";
    EXPECT_TRUE(timeHolds) << damage << ": " << outcome.seconds << " s";
    EXPECT_TRUE(memoryHolds) << damage << ": " << outcome.mostMemory << " bytes";
    ++scans;
    return reportHolds && timeHolds && memoryHolds;
  }

  /// The line replaced by another text.
  bool SurvivesLine(std::size_t line, const std::string& text, const std::string& damage) {
    std::vector<std::string> changed = lines;
    changed[line] = text;
    return Survives(Joined(changed), line, damage + " in line " + std::to_string(line + 1));
  }

  MemoryRun run;
  std::string trace;
  std::vector<std::string> lines;
  std::vector<std::size_t> lineStarts;
  std::vector<std::string> reportsBefore;   ///< what the lines before each line give
  std::vector<std::string> ordinary;        ///< every line but those of dumps
  std::vector<std::size_t> ordinaryBefore;  ///< how many of them stand before each line
  std::string whole;
  std::size_t scans = 0;
};

// What the other tests of this file rest on: the texts in reportsBefore hold every ordinary line.
TEST_P(DamagedTrace, ReportsOfLeadingPartsHoldEveryOrdinaryLineInOrder) {
  ASSERT_GT(ordinary.size(), 60U);
  for (std::size_t line = 0; line < lines.size(); ++line) {
    const std::string& report = reportsBefore[line];
    EXPECT_TRUE(HoldsOrdinaryLines(report, line)) << "before line " << line + 1;
    if (GetParam().looksAhead) continue;
    EXPECT_EQ(whole.substr(0, report.size()), report) << "before line " << line + 1;
  }
  EXPECT_TRUE(HoldsOrdinaryLines(whole, lines.size() - 1));
  EXPECT_FALSE(HoldsOrdinaryLines(reportsBefore[5], lines.size() - 1));
}

TEST_P(DamagedTrace, SurvivesACutAtEveryByte) {
  for (std::size_t size = 0; size < trace.size(); ++size) {
    ASSERT_TRUE(Survives(std::string_view(trace).substr(0, size), LineOf(size),
                         "cut at byte " + std::to_string(size)));
  }
  EXPECT_EQ(scans, trace.size());
}

TEST_P(DamagedTrace, SurvivesTheLossOfEveryByte) {
  for (std::size_t byte = 0; byte < trace.size(); byte += StepOfBits()) {
    std::string damaged = trace;
    damaged.erase(byte, 1);
    ASSERT_TRUE(Survives(damaged, LineOf(byte), "without byte " + std::to_string(byte)));
  }
}

// One bit of every byte; which one changes from byte to byte.
TEST_P(DamagedTrace, SurvivesAFlippedBitInEveryByte) {
  std::string damaged = trace;
  for (std::size_t byte = 0; byte < trace.size(); byte += StepOfBits()) {
    const unsigned bit = byte / StepOfBits() * 5 % 8;
    damaged[byte] = static_cast<char>(static_cast<unsigned char>(trace[byte]) ^ 1U << bit);
    ASSERT_TRUE(
        Survives(damaged, LineOf(byte), "bit " + std::to_string(bit) + " of byte " + std::to_string(byte)));
    damaged[byte] = trace[byte];
  }
}

TEST_P(DamagedTrace, SurvivesTheLossOfEveryLine) {
  for (std::size_t line = 0; line < lines.size(); ++line) SurvivesLine(line, "", "nothing");
}

TEST_P(DamagedTrace, SurvivesEveryLineTwice) {
  for (std::size_t line = 0; line < lines.size(); ++line)
    SurvivesLine(line, lines[line] + lines[line], "the line twice");
}

TEST_P(DamagedTrace, SurvivesEveryLineWithoutItsEnd) {
  for (std::size_t line = 0; line < lines.size(); ++line)
    SurvivesLine(line, lines[line].substr(0, lines[line].size() - 1), "no line end");
}

// Neighbours, and lines far apart.
TEST_P(DamagedTrace, SurvivesSwappedLines) {
  for (const std::size_t distance : {1U, 2U, 7U, 40U, 99U}) {
    for (std::size_t line = 0; line + distance < lines.size(); ++line) {
      std::vector<std::string> changed = lines;
      std::swap(changed[line], changed[line + distance]);
      Survives(Joined(changed), line,
               "lines " + std::to_string(line + 1) + " and " + std::to_string(line + distance + 1));
    }
  }
}

TEST_P(DamagedTrace, SurvivesEveryLineReplacedByOneOfAnotherKind) {
  for (const char* const text : {"\n", " \n", "|> \n", "-\n", "<ZKOPEN\n", "(AFTER\n", "00000000:\n",
                                 "00000000-7FFFFFFF same as above\n", "Data:(2147483647=)\n",
                                 "Variable-Data:(2147483647=)\n", "CompCode:2\n", "Hobj:0x00000000\n"}) {
    for (std::size_t line = 0; line < lines.size(); ++line)
      SurvivesLine(line, text, "\"" + std::string(text, std::string_view(text).size() - 1) + "\"");
  }
}

TEST_P(DamagedTrace, SurvivesOtherDeclaredLengths) {
  std::size_t found = 0;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    const std::size_t start = lines[line].find(":(") + 2;
    const std::size_t end = lines[line].find(" = 0x", start);
    if (start == std::string::npos + 2 || end == std::string::npos) continue;
    ++found;
    const int length = std::stoi(lines[line].substr(start, end - start));
    for (const std::string& declared :
         {std::string("0"), std::string("-1"), std::string("1"), std::string("2147483647"),
          std::string("2147483648"), std::string("4294967295"), std::string("99999999999999999999"),
          std::string(""), std::string("x"), std::to_string(length - 1), std::to_string(length + 1),
          std::to_string(length - 16), std::to_string(length + 16), std::to_string(length * 1000)}) {
      std::string text = lines[line];
      text.replace(start, end - start, declared);
      SurvivesLine(line, text, "the length " + declared);
    }
  }
  EXPECT_GT(found, 5U);
}

// Every word of every dump, whatever it means: counts, lengths, offsets, versions and types among them.
TEST_P(DamagedTrace, SurvivesOtherNumbersInDumps) {
  std::size_t words = 0;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    if (!IsDumpLine(lines[line])) continue;
    for (std::size_t column = 9; column + 8 <= lines[line].size(); column += 9) {
      if (!IsHexDigit(lines[line][column]) || !IsHexDigit(lines[line][column + 7])) break;
      if (words++ % StepOfWords() != 0) continue;
      for (const char* const word : {"7FFFFFFF", "FFFFFF7F", "80000000", "FFFFFFFF", "00000000"}) {
        std::string text = lines[line];
        text.replace(column, 8, word);
        ASSERT_TRUE(SurvivesLine(line, text, std::string(word) + " at column " + std::to_string(column)));
      }
    }
  }
  EXPECT_GT(words, 100U);
}

INSTANTIATE_TEST_SUITE_P(Examples, DamagedTrace,
                         testing::Values(Example{"queue_session", "queue_session", ""},
                                         Example{"publish_subscribe", "publish_subscribe", ""},
                                         Example{"admin_command", "admin_command", ""},
                                         Example{"client_connect", "client_connect", ""},
                                         Example{"little_endian_session", "little_endian_session", "le64"},
                                         Example{"platform_by_the_trace", "little_endian_session", "auto",
                                                 true}),
                         [](const auto& example) { return std::string(example.param.test); });

}  // namespace
}  // namespace quillon
