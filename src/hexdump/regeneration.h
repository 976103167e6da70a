// Hex dump regeneration: turns the dump lines of one traced data item back into bytes.
#pragma once

#include <cstdint>
#include <string>

#include "base/dump_bytes.h"
#include "base/run_context.h"
#include "base/trace_line_context.h"

namespace quillon {

/// What a dump reader hands back when the trace is broken; it ends the scan.
inline constexpr std::int32_t kBrokenDump = -1;

/// What a data-name line says.
struct DataNameLine {
  std::string name;         ///< without the "AgentBuffer-" prefix
  std::int32_t length = 0;  ///< declared length in bytes; one too large for 32 bits counts as the largest
};

/// Reads a data-name line; false when a piece of its grammar is missing.
bool ParseDataNameLine(const TraceLine& line, DataNameLine& result);

/// Whether the dump lines that are read go to the report as they stand.
enum class Echo : std::uint8_t { Off, On };

/// Rebuilds the dump whose data-name line is the previous line and whose first dump line is the current one.
/// Reads on until the declared length is reached or a line that begins with a blank cuts the dump short; that
/// last line becomes the current line. Returns the declared length (also 0 or less: then nothing is read), or
/// kBrokenDump after a message.
std::int32_t RegenerateHexData(RunContext& runContext, TraceLineContext& traceLineContext,
                               std::string& dataName, DumpBytes& bytes, Echo echo);

/// Bytes that one variable-length item is given, or twice as many as are shown of a text (-v) when that is
/// more; those behind read as zero. All items of a structure are kept at the same time.
inline constexpr std::int64_t kMostMemoryOfItem = 262144;

/// Rebuilds the "Variable-" items behind a dump into the context's items. The line that ends them has been
/// written and stays the current line. Returns 0, or -1 after a message.
int RegenerateVariableData(RunContext& runContext, TraceLineContext& traceLineContext);

/// Makes the current line the previous one and reads the next; false at the end of the input.
bool AdvanceLine(TraceLineContext& traceLineContext);

}  // namespace quillon
