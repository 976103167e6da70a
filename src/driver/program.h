// The run: set-up, scan and end.
#pragma once

#include <cstdio>

#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// Sets the defaults of both contexts.
void InitializeCommonDataArea(RunContext& runContext, TraceLineContext& traceLineContext);

/// The part of a run between opening the files and closing them: reads the trace to its end and writes the
/// whole report to the run context's output file. The arguments have been read by ReadInputParameter.
void WriteReport(RunContext& runContext, TraceLineContext& traceLineContext, std::FILE* input);

/// One run of the program with the arguments of main. Returns 0 after the scan, also when it stopped early;
/// -1 after a failure of set-up, and when a part of the report could not be written.
int RunProgram(int argc, char** argv);

}  // namespace quillon
