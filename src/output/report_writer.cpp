#include "output/report_writer.h"

#include "driver/message_catalogue.h"

namespace quillon {

int WriteTraceData(RunContext& runContext, std::string_view text) {
  if (text.empty()) return 0;
  if (fwrite_unlocked(text.data(), 1, text.size(), runContext.outputFile) == text.size()) return 0;
  runContext.fatalIoError = true;
  // Kept: the operation is called "fputs" whatever the writer uses; administrators search for this message.
  PutMessage(runContext, 1001, kResultFromErrno, runContext.outputFileName, "fputs");
  return -1;
}

int SetDataToWriteBuffer(RunContext& runContext, std::string_view text) {
  if (text.empty()) return 0;
  return WriteTraceData(runContext, text);
}

}  // namespace quillon
