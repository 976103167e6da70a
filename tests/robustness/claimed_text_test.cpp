// The stock of claimed text: how much a run shows of bytes that the trace declares or repeats but does not
// carry.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/run_context.h"
#include "robustness/run_in_memory.h"

namespace quillon {
namespace {

const std::string kSixteenA = "00000000:41414141414141414141414141414141\n";

/// A text of two million characters of which the trace carries 16. Of the repeats one stands in memory.
const std::string kClaimedText =
    "CNO->SCO->AIR->LDAPUserName:(2000000=)\n" + kSixteenA + "00000010-7FFFFFFF same as above\n";
constexpr std::size_t kInMemory = 32;

/// A body that is shown by its dump alone.
const std::string kBinaryBody = "Data:(2000000=)\n" + kSixteenA + "00000010-7FFFFFFF same as above\n";

/// Lengths of the texts of a report's LDAPUserName lines, in their order.
std::vector<std::size_t> TextLengths(std::string_view report) {
  constexpr std::string_view name = "\n|> LDAPUserName             : ";
  std::vector<std::size_t> lengths;
  for (std::size_t at = report.find(name); at != std::string_view::npos; at = report.find(name, at + 1))
    lengths.push_back(report.find('\n', at + 1) - at - name.size());
  return lengths;
}

std::vector<std::size_t> TextLengthsOf(const std::string& trace) {
  MemoryRun run({});
  return TextLengths(run.Scan(trace).report);
}

TEST(ClaimedText, OfOneDumpIsAMebibyte) {
  EXPECT_EQ(TextLengthsOf(kClaimedText), std::vector<std::size_t>{kInMemory + kMostClaimedText});
}

// What a dump carries raises the stock by sixteen bytes for each byte: 16 give 256. What the first one gives
// is left for the second.
TEST(ClaimedText, OfTheNextDumpIsWhatTheTraceHasEarned) {
  EXPECT_EQ(TextLengthsOf(kClaimedText + kClaimedText + kClaimedText),
            (std::vector<std::size_t>{kInMemory + kMostClaimedText, kInMemory + 256, kInMemory + 256}));
}

TEST(ClaimedText, ThatIsLeftOutIsToldOnce) {
  MemoryRun run({});
  const std::string_view message =
      "The trace declares or repeats much text that it does not carry; not all of it is shown.";
  const std::string fits = "CNO->SCO->AIR->LDAPUserName:(" + std::to_string(kInMemory + kMostClaimedText) +
                           "=)\n" + kSixteenA + "00000010-7FFFFFFF same as above\n";
  EXPECT_EQ(run.Scan(fits).terminal.find(message), std::string_view::npos);
  for (const int dumps : {1, 3}) {
    std::string trace;
    for (int i = 0; i < dumps; ++i) trace += kClaimedText;
    const std::string_view terminal = run.Scan(trace).terminal;
    const std::size_t first = terminal.find(message);
    ASSERT_NE(first, std::string_view::npos) << dumps;
    EXPECT_EQ(terminal.find(message, first + 1), std::string_view::npos) << dumps;
  }
}

// Only what is claimed counts: text that the trace carries behind a folded repeat is shown whole.
TEST(ClaimedText, DoesNotIncludeWhatIsCarriedBehindIt) {
  // One line, 1024 blanks of which 16 stand in memory, 2 MiB of lines.
  constexpr int kLines = 131072;
  std::string text =
      "Data:(" + std::to_string(16 + 1024 + kLines * 16) +
      "=)\n00000000:3C613E62636465666768696A3C2F613E\n00000010:20202020202020202020202020202020\n"
      "00000020-0000040F same as above\n";
  for (int line = 0; line < kLines; ++line) text += "00000410:3C613E62636465666768696A3C2F613E\n";
  // Also behind a dump that has used up the stock.
  for (const std::string& before : {std::string(), kClaimedText}) {
    MemoryRun run({});
    const MemoryRunOutcome outcome = run.Scan(before + text);
    std::size_t tags = 0;
    for (std::size_t at = outcome.report.find("|> <a>"); at != std::string_view::npos;
         at = outcome.report.find("|> <a>", at + 1))
      ++tags;
    EXPECT_EQ(tags, kLines + 1U) << before.size();
  }
}

// A descriptor tells a buffer of 10240 bytes; the trace carries two. With -v -1 the whole buffer is shown.
TEST(ClaimedText, OfAStringsBufferIsFree) {
  const std::string call =
      "OD:(400=)\n00000000:4F442020000000040000000000000000\n00000010:00002800000028000000280000002800\n"
      "00000020-0000018F same as above\nVariable-:(2=)\n00000000:4142\nend\n";
  MemoryRun run({.maxCharvLength = -1});
  const auto dots = [&](int calls) {
    std::string trace;
    for (int i = 0; i < calls; ++i) trace += call;
    const MemoryRunOutcome outcome = run.Scan(trace);
    EXPECT_EQ(outcome.terminal.find("not all of it is shown"), std::string_view::npos) << calls;
    return std::count(outcome.report.begin(), outcome.report.end(), '.');
  };
  const std::int64_t once = dots(1);
  EXPECT_GT(once, 10238);
  EXPECT_EQ(dots(500), 500 * once);
}

TEST(ClaimedText, ComesBackWithTheBytesThatTheTraceCarries) {
  std::string carried = "Data:(400000=)\n";
  for (int line = 0; line < 25000; ++line) carried += kSixteenA;
  EXPECT_EQ(TextLengthsOf(kClaimedText + carried + kClaimedText),
            std::vector<std::size_t>(2, kInMemory + kMostClaimedText));
}

TEST(ClaimedText, IsNotUsedUpByBodiesThatAreDumpedOnly) {
  std::string bodies;
  for (int i = 0; i < 100; ++i) bodies += kBinaryBody;
  EXPECT_EQ(TextLengthsOf(bodies + kClaimedText), std::vector<std::size_t>{kInMemory + kMostClaimedText});
}

std::string DescriptorOfFormat(const std::string& formatDigits) {
  return "MD:(40=)\n00000000:4D442020000000010000000000000000\n00000010:00000000000000000000000000000000\n"
         "00000020:" +
         formatDigits + "\n";
}

// Of messages that the tracer has cut off a header is shown. The bytes that follow are claimed and not shown.
TEST(ClaimedText, IsNotUsedUpByMessagesThatAreCutOff) {
  std::string cutOff = DescriptorOfFormat("5A4B584D49542020") + "Data:(100000=)\n";
  cutOff += "00000000:58514820000000010000000000000000\n";
  for (int line = 0; line < 30; ++line) cutOff += "00000010:00000000000000000000000000000000\n";
  cutOff += " end\n";
  const std::string text =
      DescriptorOfFormat("5A4B535452202020") +
      "Data:(5056=)\n00000000:3C613E74657874206265666F72652020\n00000010:20202020202020202020202020202020\n"
      "00000020-0000139F same as above\n00000000:6361727269656420626568696E642E2E\n"
      "00000000:69743A2073686F776E3F20203C2F613E\n";
  std::string trace;
  for (int message = 0; message < 30; ++message) trace += cutOff;
  MemoryRun run({});
  const MemoryRunOutcome outcome = run.Scan(trace + text);
  EXPECT_NE(outcome.report.find("ZKXQH (Transmission"), std::string_view::npos);
  EXPECT_NE(outcome.report.find("\n|> </a>\n"), std::string_view::npos);
  EXPECT_EQ(outcome.terminal.find("not all of it is shown"), std::string_view::npos);
}

TEST(ClaimedText, LeavesTheDumpComplete) {
  MemoryRun run({});
  const std::string twice = kClaimedText + kClaimedText;
  const std::string_view report = run.Scan(twice).report;
  const std::string_view last = "\n00000010-001E846F same as above\n001E8470:41414141";
  const std::size_t first = report.find(last);
  ASSERT_NE(first, std::string_view::npos);
  EXPECT_NE(report.find(last, first + 1), std::string_view::npos);
}

/// A parameter of length 0 in a message of so many parameters.
const std::string kZeroLengthParameter =
    "Data:(52=)\n00000000:00000000000000000000000000000000\n00000010:00000000000000000000000000000000\n"
    "00000020:7FFFFFFF000000030000000000000001\n00000030:00000005\n";
const std::string kPcfDescriptor =
    "MD:(40=)\n00000000:4D442020000000010000000000000000\n00000010:00000000000000000000000000000000\n"
    "00000020:5A4B504346202020\n";

// A message may repeat a parameter of length 0 sixteen times and is charged for more: 1000 at the start of a
// run.
TEST(ClaimedText, PaysForParametersOfLengthZero) {
  MemoryRun run({});
  std::string trace = kPcfDescriptor;
  for (int i = 0; i < 100; ++i) trace += kZeroLengthParameter;
  const MemoryRunOutcome outcome = run.Scan(trace);
  std::vector<int> shown;
  constexpr std::string_view start = "PCF parameters of length 0 were shown ";
  for (std::size_t at = outcome.terminal.find(start); at != std::string_view::npos;
       at = outcome.terminal.find(start, at + 1))
    shown.push_back(std::stoi(std::string(outcome.terminal.substr(at + start.size(), 8))));
  ASSERT_EQ(shown.size(), 100U);
  EXPECT_EQ(shown.front(), 1000);
  // 52 carried bytes give 832, which pay for 52; where one byte is left, one more is shown.
  EXPECT_EQ(shown.back(), 16 + 52);
  EXPECT_TRUE(std::is_sorted(shown.rbegin(), shown.rend()));
}

// A message of 40 parameters, of which the tracer has written a piece: all are shown, as the zeros that they
// are.
TEST(ClaimedText, LeavesParametersThatTheTracerHasCutOff) {
  const std::string message =
      "Data:(4000000=)\n00000000:00000001000000240000000100000000\n00000010:"
      "00000001000000010000000000000000\n"
      "00000020:0000002800000003000000100000000D\n00000030:00000007\n end\n";
  MemoryRun run({});
  const MemoryRunOutcome outcome = run.Scan(kPcfDescriptor + message);
  EXPECT_EQ(outcome.terminal.find("were shown"), std::string_view::npos) << outcome.terminal;
  std::size_t parameters = 0;
  for (std::size_t at = outcome.report.find("(parm) - Type"); at != std::string_view::npos;
       at = outcome.report.find("(parm) - Type", at + 1))
    ++parameters;
  EXPECT_EQ(parameters, 40U);
}

}  // namespace
}  // namespace quillon
