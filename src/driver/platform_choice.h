// The choice of the traced process's platform: by "-p", or by what the trace itself tells.
#pragma once

#include <string>
#include <string_view>

#include "base/run_context.h"
#include "base/trace_line.h"

namespace quillon {

/// Sets the run's platform by its name ("auto", "be32", "le32", "be64", "le64"); false for any other name,
/// which changes nothing.
bool ChoosePlatform(RunContext& runContext, std::string_view name);

/// Where the trace tells its platform, looks ahead into what the reader holds: the word size of the
/// "Addressing mode" line and the byte order of the first dump that has a Version. The scan begins with what
/// was found; what was not found stays 32-bit and big-endian. Reads nothing away, so a pipe will do.
void LookAheadForPlatform(RunContext& runContext, LineReader& input);

/// The platform's name for the report's header; with "auto" also the one that was found: "auto (le64)".
std::string PlatformText(const RunContext& runContext);

}  // namespace quillon
