#include "output/report_writer.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "display/fieldline.h"
#include "display/line_buffer.h"
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

// A line is put together at the end of the report's buffer: wherever that ends, the line stays whole.
TEST(ReportWriter, KeepsALineThatMeetsTheBuffersEnd) {
  const std::string longText(300, 'y');
  for (std::size_t left = 0; left <= 400; ++left) {
    ReportCapture capture;
    const std::string before(ReportBuffer::kSize - left, 'x');
    WriteTraceData(capture.Context(), before);
    LineBuffer line(capture.Context());
    line.AddNameColumn("Name").AddDecimal(-12, 6).Add(' ').AddHex8(0xAB).Add(longText).AddRepeated('z', 200);
    EXPECT_EQ(line.Add('\n').Flush(), 0);
    ShowFieldValueZklong(capture.Context(), "Next", 7);
    EXPECT_EQ(capture.Report(), before + "|> Name                     :    -12 000000AB" + longText +
                                    std::string(200, 'z') + "\n|> Next                     : 7\n")
        << left;
  }
}

TEST(ReportWriter, WritesATextOfManyBuffersBehindAnotherOne) {
  ReportCapture capture;
  const std::string text(3 * ReportBuffer::kSize + 5, 'x');
  WriteTraceData(capture.Context(), "first\n");
  LineBuffer line(capture.Context());
  line.Add("second ").Add(text).Add('\n').Flush();
  EXPECT_EQ(capture.Report(), "first\nsecond " + text + "\n");
}

class FullReport : public testing::Test {
 protected:
  FullReport() : device(capture.Context()) { capture.Context().outputFileName = "full.txt"; }

  ReportCapture capture;
  FullDevice device;
};

constexpr const char* kFailed =
    "File I/O error. \n  File      : full.txt\n  Operation : fputs\n"
    "  Result    : ENOSPC - No space left on device (28).\n";

TEST_F(FullReport, EachFailedWriteIsReported) {
  EXPECT_EQ(WriteTraceData(capture.Context(), "one\n"), 0);
  EXPECT_EQ(capture.Terminal(), "") << "it waits";
  EXPECT_EQ(FlushReport(capture.Context()), -1);
  EXPECT_EQ(capture.Terminal(), kFailed);
  EXPECT_EQ(FlushReport(capture.Context()), 0) << "what could not be written is gone";
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), std::string(2 * ReportBuffer::kSize, 'x')), -1);
  EXPECT_EQ(capture.Terminal(), std::string(kFailed) + kFailed);
}

TEST_F(FullReport, AFailedWriteIsNeverForgotten) {
  EXPECT_FALSE(capture.Context().fatalIoError);
  WriteTraceData(capture.Context(), "one\n");
  FlushReport(capture.Context());
  EXPECT_TRUE(capture.Context().fatalIoError);
  device.Release();
  EXPECT_EQ(WriteTraceData(capture.Context(), "two\n"), 0);
  EXPECT_TRUE(capture.Context().fatalIoError);
  EXPECT_EQ(capture.Report(), "two\n");
}

TEST_F(FullReport, AnEmptyTextDoesNotFail) {
  EXPECT_EQ(WriteTraceData(capture.Context(), ""), 0);
  EXPECT_EQ(SetDataToWriteBuffer(capture.Context(), ""), 0);
  EXPECT_EQ(FlushReport(capture.Context()), 0);
  EXPECT_EQ(capture.Terminal(), "");
  EXPECT_FALSE(capture.Context().fatalIoError);
}

}  // namespace
}  // namespace quillon
