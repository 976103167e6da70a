// A run context for benchmarks: the report is written, and goes nowhere.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

#include "base/run_context.h"
#include "driver/ccsid_choice.h"

namespace quillon {

/// A run with the settings of a bare command line whose report and terminal are the null device. The report's
/// stream has a large buffer, as in a run of the program.
class BenchmarkContext {
 public:
  explicit BenchmarkContext(std::int32_t ccsid = 1208) : context(std::make_unique<RunContext>()) {
    context->outputFile = nullDevice.get();
    context->outputFileName = "report.txt";
    context->terminal = nullDevice.get();
    context->ccsid = ccsid;
    SetValueForCodeRangeCheck(*context);
    static_cast<void>(std::setvbuf(nullDevice.get(), buffer, _IOFBF, sizeof buffer));
  }

  RunContext& Context() { return *context; }

 private:
  struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
  };
  char buffer[262144];  // outlives the stream, which is declared behind it
  std::unique_ptr<std::FILE, CloseFile> nullDevice{std::fopen("/dev/null", "w")};
  std::unique_ptr<RunContext> context;
};

}  // namespace quillon
