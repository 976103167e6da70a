// The report writer: every byte of the report goes through these two functions.
#pragma once

#include <string_view>

#include "base/run_context.h"

namespace quillon {

/// Writes the text to the report without adding anything; the caller supplies the line ends. The text must
/// hold no NUL (callers that write dumped or traced bytes cut or replace them first). Returns 0, or -1 after
/// a failed write, which prints message 1001 each time and does not end the run.
int WriteTraceData(RunContext& runContext, std::string_view text);

/// The entry of the driver and the dump regeneration: as WriteTraceData; an empty text writes nothing and
/// gives 0.
int SetDataToWriteBuffer(RunContext& runContext, std::string_view text);

}  // namespace quillon
