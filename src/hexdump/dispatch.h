// Structure dispatch: hands the bytes of a dump to the formatter that its data name selects.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// Takes over a dump: the current line is its first dump line, the previous line its data-name line. Rebuilds
/// the bytes, writes the program's own hex dump of them, shows the structure and keeps what later dumps of
/// the call refer to. Returns 0, or -1 to stop the scan.
int ProcessHexData(RunContext& runContext, TraceLineContext& traceLineContext);

/// Offset of the Version field, in bytes, in the structure that dumps of this data name hold; kNoVersion for
/// data without a version: records, arrays, texts and message data.
std::int64_t VersionOffsetOf(std::string_view dataName);
inline constexpr std::int64_t kNoVersion = -1;

}  // namespace quillon
