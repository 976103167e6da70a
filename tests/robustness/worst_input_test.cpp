// The worst inputs against the limits that docs/limits.md states.
#include <gtest/gtest.h>

#include <string>

#include "robustness/run_in_memory.h"
#include "robustness/stated_limits.h"
#include "robustness/worst_inputs.h"

namespace quillon {
namespace {

class WorstInputTest : public testing::TestWithParam<WorstInput> {
 protected:
  /// A scan that keeps to every limit.
  MemoryRunOutcome Scan(std::size_t size) {
    const WorstInput& input = GetParam();
    MemoryRunSettings settings = input.settings;
    settings.keepTexts = false;
    MemoryRun run(settings);
    const std::string trace = input.compose(size);
    const MemoryRunOutcome outcome = run.Scan(trace);
    const auto bytes = static_cast<std::int64_t>(trace.size());
    const std::int64_t line = settings.maxXmlLineLength;
    EXPECT_LE(outcome.reportBytes,
              kReportBytesOfRun + ReportBytesOfClaimedText(line) + bytes * ReportBytesPerTraceByte(line));
    EXPECT_LE(outcome.terminalBytes, kTerminalBytesOfRun + bytes * kTerminalBytesPerTraceByte);
    // No dump has more bytes than the trace, but for those that cost no memory.
    EXPECT_LE(outcome.mostMemory, kMostMemoryOfRun + bytes * kMemoryPerDumpByte);
    EXPECT_LE(outcome.seconds,
              (kSecondsOfRun + static_cast<double>(bytes) * kSecondsPerTraceByte) * SlownessOfBuild());
    std::printf(
        "[  FIGURES ] %s: %lld bytes of trace, %lld of report (%.1f per byte), %lld of messages, "
        "%.1f MiB, %.2f s\n",
        input.name, static_cast<long long>(bytes), static_cast<long long>(outcome.reportBytes),
        static_cast<double>(outcome.reportBytes) / static_cast<double>(bytes),
        static_cast<long long>(outcome.terminalBytes),
        static_cast<double>(outcome.mostMemory) / static_cast<double>(kMebibyte), outcome.seconds);
    return outcome;
  }
};

TEST_P(WorstInputTest, KeepsToTheLimitsWhenItIsShort) {
  Scan(100);
}

TEST_P(WorstInputTest, KeepsToTheLimits) {
  Scan(SlownessOfBuild() > 10 ? 50000 : 500000);
}

INSTANTIATE_TEST_SUITE_P(Of, WorstInputTest, testing::ValuesIn(kWorstInputs),
                         [](const auto& input) { return std::string(input.param.name); });

// The stated memory is that of all dumps that a run keeps, not that of one.
TEST(MemoryOfDumps, StaysBelowFourTimesTheLargest) {
  for (const std::size_t size : {100000U, SlownessOfBuild() > 10 ? 400000U : 6000000U}) {
    MemoryRun run({.keepTexts = false});
    const MemoryRunOutcome outcome = run.Scan(DumpsOfEveryKind(size));
    EXPECT_GT(outcome.reportBytes, static_cast<std::int64_t>(size)) << "the dumps were read";
    EXPECT_LE(outcome.mostMemory, kMostMemoryOfRun + kMemoryPerDumpByte * static_cast<std::int64_t>(size));
  }
}

}  // namespace
}  // namespace quillon
