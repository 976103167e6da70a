// One scan of a trace that stands in memory: its report, its messages and what it took.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/run_context.h"

namespace quillon {

/// What a run is started with.
struct MemoryRunSettings {
  std::int32_t ccsid = 1208;
  std::string_view platform = {};       ///< as behind -p; empty: none
  std::int32_t maxXmlLineLength = 100;  ///< -x
  std::int32_t maxCharvLength = 400;    ///< -v
  bool keepTexts = true;                ///< else report and messages are only counted
};

/// What a run left. The texts live as long as the MemoryRun and until its next Scan.
struct MemoryRunOutcome {
  std::string_view report;    ///< without the report's header and the closing notice
  std::string_view terminal;  ///< the messages
  std::int64_t reportBytes = 0;
  std::int64_t terminalBytes = 0;
  bool unknownSeen = false;  ///< the run would have ended with the closing notice
  double seconds = 0;        ///< of processor time
  std::int64_t mostMemory =
      0;  ///< bytes that the run's own buffers hold at its end; they never shrink before
};

/// Scans traces one after the other, each as a run of its own. Its buffers are kept from scan to scan, so
/// that thousands of scans take little time.
class MemoryRun {
 public:
  explicit MemoryRun(const MemoryRunSettings& chosen);
  MemoryRun(const MemoryRun&) = delete;
  MemoryRun& operator=(const MemoryRun&) = delete;

  MemoryRunOutcome Scan(std::string_view trace);

  /// Where a stream's bytes go.
  struct Sink {
    std::string text;
    std::int64_t bytes = 0;
    bool keep = true;
  };

 private:
  MemoryRunSettings settings;
  CharacterPatternMap patterns = {};
  Sink report;
  Sink terminal;
};

/// Bytes that the process has allocated and not freed.
std::int64_t AllocatedBytes();

/// How many times slower than a release build this build may be: sanitizers and missing optimisation cost.
double SlownessOfBuild();

}  // namespace quillon
