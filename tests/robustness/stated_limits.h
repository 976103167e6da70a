// The limits that docs/limits.md states, for the tests that hold the program to them.
#pragma once

#include <cstdint>

namespace quillon {

inline constexpr std::int64_t kMebibyte = 1048576;

/// Memory of a run: this much and four times the bytes of the largest dump.
inline constexpr std::int64_t kMostMemoryOfRun = 32 * kMebibyte;
inline constexpr std::int64_t kMemoryPerDumpByte = 4;

/// Time of a run in a release build, in seconds of processor time; many times what it takes.
inline constexpr double kSecondsOfRun = 2;
inline constexpr double kSecondsPerTraceByte = 20e-6;

}  // namespace quillon
