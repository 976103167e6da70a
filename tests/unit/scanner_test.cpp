#include "driver/scanner.h"

#include <gtest/gtest.h>

#include <cstdio>

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
  std::FILE* report = capture.Context().outputFile;
  std::FILE* full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  std::setvbuf(full, nullptr, _IONBF, 0);
  capture.Context().outputFile = full;
  capture.Context().unknownAttributeSeen = true;
  WriteClosingNotice(capture.Context());
  FlushReport(capture.Context());
  EXPECT_TRUE(capture.Context().fatalIoError);
  capture.Context().outputFile = report;
  std::fclose(full);
}

}  // namespace
}  // namespace quillon
