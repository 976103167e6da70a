// The report writer: every byte of the report goes through its buffer.
#pragma once

#include <cstring>
#include <string_view>

#include "base/run_context.h"

namespace quillon {

/// Writes what waits. After a failed write it is gone: the next text is tried again. 0, or -1 after message
/// 1001.
int FlushReport(RunContext& runContext);

/// The same without a message; false after a failed write, with errno as it left it.
bool EmptyReportBuffer(RunContext& runContext);

/// Makes room for `count` characters (at most ReportBuffer::kSize) that the caller puts at
/// `report.text + report.used`. Returns as FlushReport.
inline int EnsureReportRoom(RunContext& runContext, std::size_t count) {
  return ReportBuffer::kSize - runContext.report.used >= count ? 0 : FlushReport(runContext);
}

/// What WriteTraceData does with a text that does not fit in the buffer.
int WriteLongTraceData(RunContext& runContext, std::string_view text);

/// Writes the text to the report without adding anything; the caller supplies the line ends. The text must
/// hold no NUL (callers that write dumped or traced bytes cut or replace them first). Returns 0, or -1 after
/// a failed write, which prints message 1001 each time and does not end the run. Text waits in the context's
/// buffer: what fails is told when the buffer is written.
inline int WriteTraceData(RunContext& runContext, std::string_view text) {
  ReportBuffer& report = runContext.report;
  if (text.size() > ReportBuffer::kSize - report.used) return WriteLongTraceData(runContext, text);
  report.used += text.copy(report.text + report.used, text.size());
  return 0;
}

/// The entry of the driver and the dump regeneration: as WriteTraceData; an empty text writes nothing and
/// gives 0.
inline int SetDataToWriteBuffer(RunContext& runContext, std::string_view text) {
  return text.empty() ? 0 : WriteTraceData(runContext, text);
}

}  // namespace quillon
