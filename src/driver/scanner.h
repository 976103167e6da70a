// The trace line scanner: the main loop over the lines of the trace.
#pragma once

#include <string_view>

#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// How the trace's line with the word size of the traced process begins.
inline constexpr std::string_view kAddressingModeStart = "|  Addressing mode    : ";
/// How the first line of every dump begins.
inline constexpr std::string_view kFirstDumpLine = "00000000:";

/// Reads the input line by line until its end (a read error counts as the end), a broken dump or a trace of
/// another word size. Ordinary lines are copied to the report, dumps are taken over by ProcessHexData.
void ScanTrace(RunContext& runContext, TraceLineContext& traceLineContext);

/// The notice at the end of a report that shows an unknown value; nothing when there was none.
void WriteClosingNotice(RunContext& runContext);

}  // namespace quillon
