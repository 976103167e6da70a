// The limits that docs/limits.md states, for the tests that hold the program to them.
#pragma once

#include <algorithm>
#include <cstdint>

namespace quillon {

inline constexpr std::int64_t kMebibyte = 1048576;

/// Memory of a run: this much and four times the bytes of the largest dump.
inline constexpr std::int64_t kMostMemoryOfRun = 32000000;
inline constexpr std::int64_t kMemoryPerDumpByte = 4;

/// Bytes of the report without what is repeated: the header and the notice, and so many for each byte of the
/// trace. XML tags are indented up to the length of a line, so a long one (-x) allows more.
inline constexpr std::int64_t kReportBytesOfRun = 4096;
constexpr std::int64_t ReportBytesPerTraceByte(std::int64_t maxXmlLineLength) {
  return std::max<std::int64_t>(2500, maxXmlLineLength * 9);
}
/// Bytes of the report for text that the trace does not carry, in the whole run.
constexpr std::int64_t ReportBytesOfClaimedText(std::int64_t maxXmlLineLength) {
  return std::max<std::int64_t>(160, maxXmlLineLength / 2 + 1) * kMebibyte;
}
/// Bytes of messages for each byte of the trace, and of the run.
inline constexpr std::int64_t kTerminalBytesPerTraceByte = 150;
inline constexpr std::int64_t kTerminalBytesOfRun = 32 * kMebibyte;

/// Time of a run in a release build, in seconds of processor time; many times what it takes.
inline constexpr double kSecondsOfRun = 4;
inline constexpr double kSecondsPerTraceByte = 60e-6;

}  // namespace quillon
