// The command line: usage text, switches, the choice of the CCSID and of the report's name.
#pragma once

#include <cstdio>

#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// Prints the usage text.
void ShowHelp(std::FILE* terminal, const char* programName);

/// Reads the arguments from index 2 on (index 1 is the input), fixes the CCSID with its character patterns
/// and the report's name. Returns 0, or -1 after an invalid parameter, which has been reported.
int ReadInputParameter(RunContext& runContext, TraceLineContext& traceLineContext, int argc, char** argv);

}  // namespace quillon
