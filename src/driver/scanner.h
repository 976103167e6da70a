// The trace line scanner: the main loop over the lines of the trace.
#pragma once

#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// Reads the input line by line until its end (a read error counts as the end), a broken dump or a trace of
/// another word size. Ordinary lines are copied to the report, dumps are taken over by ProcessHexData.
void ScanTrace(RunContext& runContext, TraceLineContext& traceLineContext);

/// The notice at the end of a report that shows an unknown value; nothing when there was none.
void WriteClosingNotice(RunContext& runContext);

}  // namespace quillon
