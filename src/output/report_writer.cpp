#include "output/report_writer.h"

#include "driver/message_catalogue.h"

namespace quillon {

bool EmptyReportBuffer(RunContext& runContext) {
  ReportBuffer& report = runContext.report;
  const std::size_t waiting = report.used;
  report.used = 0;
  if (waiting == 0 || fwrite_unlocked(report.text, 1, waiting, runContext.outputFile) == waiting) return true;
  runContext.fatalIoError = true;
  return false;
}

int FlushReport(RunContext& runContext) {
  if (EmptyReportBuffer(runContext)) return 0;
  // Kept: the operation is called "fputs" whatever the writer uses; administrators search for this message.
  PutMessage(runContext, 1001, kResultFromErrno, runContext.outputFileName, "fputs");
  return -1;
}

int WriteLongTraceData(RunContext& runContext, std::string_view text) {
  int status = 0;
  while (!text.empty()) {
    const std::string_view part = text.substr(0, ReportBuffer::kSize);
    if (EnsureReportRoom(runContext, part.size()) != 0) status = -1;
    ReportBuffer& report = runContext.report;
    report.used += part.copy(report.text + report.used, part.size());
    text.remove_prefix(part.size());
  }
  return status;
}

}  // namespace quillon
