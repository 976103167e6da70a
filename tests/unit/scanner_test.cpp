#include "driver/scanner.h"

#include <gtest/gtest.h>

#include "report_capture.h"

namespace quillon {
namespace {

TEST(ClosingNotice, StandsOnlyWhereSomethingUnknownWasMet) {
  ReportCapture capture;
  WriteClosingNotice(capture.Context());
  EXPECT_EQ(capture.Report(), "");
  capture.Context().unknownAttributeSeen = true;
  WriteClosingNotice(capture.Context());
  EXPECT_NE(capture.Report().find("\n|**   Unknown ZK attribute exists.\n"), std::string::npos);
  EXPECT_FALSE(capture.Context().fatalIoError);
}

TEST(ClosingNotice, ThatCannotBeWrittenFailsTheRun) {
  ReportCapture capture;
  FullDevice full(capture.Context());
  capture.Context().unknownAttributeSeen = true;
  WriteClosingNotice(capture.Context());
  FlushReport(capture.Context());
  EXPECT_TRUE(capture.Context().fatalIoError);
}

}  // namespace
}  // namespace quillon
