// Traces composed to take as much time, memory and report as a byte of trace can.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "robustness/run_in_memory.h"

namespace quillon {

struct WorstInput {
  const char* name;
  /// The trace, of about `size` bytes.
  std::string (*compose)(std::size_t size);
  MemoryRunSettings settings = {};
};

inline void PrintTo(const WorstInput& input, std::ostream* stream) {
  *stream << input.name;
}

extern const std::vector<WorstInput> kWorstInputs;

/// Every buffer of the program filled by a dump of `dumpSize` bytes that the trace carries.
std::string DumpsOfEveryKind(std::size_t dumpSize);

}  // namespace quillon
