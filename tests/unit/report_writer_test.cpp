#include "output/report_writer.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "unit/report_capture.h"

namespace quillon {
namespace {

TEST(ReportWriter, WritesATextAsItStands) {
  ReportCapture capture;
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), "a line\n"), 0);
  EXPECT_EQ(WriteTraceData(capture.Context(), "|> Name: "), 0);
  EXPECT_EQ(WriteTraceData(capture.Context(), "%s%n value\n"), 0);
  EXPECT_EQ(capture.Report(), "a line\n|> Name: %s%n value\n");
  EXPECT_EQ(capture.Terminal(), "");
}

TEST(ReportWriter, WritesNothingForAnEmptyText) {
  ReportCapture capture;
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), ""), 0);
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), {}), 0);
  EXPECT_EQ(WriteTraceData(capture.Context(), ""), 0);
  EXPECT_EQ(WriteTraceData(capture.Context(), {}), 0);
  EXPECT_EQ(capture.Report(), "");
  EXPECT_FALSE(capture.Context().fatalIoError);
}

TEST(ReportWriter, WritesLongTexts) {
  ReportCapture capture;
  const std::string text(1000000, 'x');
  EXPECT_EQ(WriteTraceData(capture.Context(), text), 0);
  EXPECT_EQ(capture.Report(), text);
}

/// A report on a device that is always full, without a buffer: every write fails.
class FullReport : public testing::Test {
 protected:
  FullReport() : device(std::fopen("/dev/full", "w")), report(capture.Context().outputFile) {
    std::setvbuf(device, nullptr, _IONBF, 0);
    capture.Context().outputFile = device;
    capture.Context().outputFileName = "full.txt";
  }
  ~FullReport() override {
    capture.Context().outputFile = report;
    std::fclose(device);
  }

  ReportCapture capture;
  std::FILE* device;
  std::FILE* report;
};

constexpr const char* kFailed =
    "File I/O error. \n  File      : full.txt\n  Operation : fputs\n"
    "  Result    : ENOSPC - No space left on device (28).\n";

TEST_F(FullReport, EachFailedWriteIsReported) {
  EXPECT_EQ(WriteTraceData(capture.Context(), "one\n"), -1);
  EXPECT_EQ(capture.Terminal(), kFailed);
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), "two\n"), -1);
  EXPECT_EQ(capture.Terminal(), std::string(kFailed) + kFailed);
}

TEST_F(FullReport, AFailedWriteIsNeverForgotten) {
  EXPECT_FALSE(capture.Context().fatalIoError);
  WriteTraceData(capture.Context(), "one\n");
  EXPECT_TRUE(capture.Context().fatalIoError);
  std::FILE* full = capture.Context().outputFile;
  capture.Context().outputFile = report;
  EXPECT_EQ(WriteTraceData(capture.Context(), "two\n"), 0);
  EXPECT_TRUE(capture.Context().fatalIoError);
  EXPECT_EQ(capture.Report(), "two\n");
  capture.Context().outputFile = full;
}

TEST_F(FullReport, AnEmptyTextDoesNotFail) {
  EXPECT_EQ(WriteTraceData(capture.Context(), ""), 0);
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), ""), 0);
  EXPECT_EQ(capture.Terminal(), "");
  EXPECT_FALSE(capture.Context().fatalIoError);
}

}  // namespace
}  // namespace quillon
