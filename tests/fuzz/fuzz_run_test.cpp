// The fuzz targets' own test: a run whose output breaks a rule ends the process, and inputs are taken as
// described.
#include "fuzz_run.h"

#include <gtest/gtest.h>

#include "driver/message_catalogue.h"
#include "output/report_writer.h"

namespace quillon::fuzz {
namespace {

using namespace std::string_view_literals;

void WriteReportOf(std::string_view text, std::uint64_t mostOutput) {
  CheckedRun run(mostOutput);
  WriteTraceData(run.context, text);
}

TEST(FuzzRunDeathTest, AReportWithANulEndsTheProcess) {
  WriteReportOf("line\n", 5);
  EXPECT_DEATH(WriteReportOf("li\0ne\n"sv, 100), "FAILED: the report holds a NUL");
}

TEST(FuzzRunDeathTest, AReportThatIsTooLongEndsTheProcess) {
  EXPECT_DEATH(WriteReportOf("line\n", 4), "FAILED: the report is longer");
}

TEST(FuzzRunDeathTest, MessagesThatAreTooLongEndTheProcess) {
  const auto putMessage = [](std::uint64_t mostOutput) {
    CheckedRun run(mostOutput);
    PutMessage(run.context, 4016, kResultFromErrno, "a report");  // "Output file : a report" and a line end
  };
  putMessage(23);
  EXPECT_DEATH(putMessage(22), "FAILED: the messages' text is longer");
}

TEST(FuzzRunDeathTest, AFailedWriteEndsTheProcess) {
  const auto fail = [] {
    CheckedRun run(100);
    run.context.fatalIoError = true;
  };
  EXPECT_DEATH(fail(), "FAILED: the report was not written");
}

TEST(FuzzRunDeathTest, ARunThatTakesTooLongEndsTheProcess) {
  const auto takeTime = [] {
    CheckedRun run(0);
    run.mostSeconds = -1;
  };
  EXPECT_DEATH(takeTime(), "FAILED: the run took too long");
}

TEST(FuzzInput, IsTakenFromItsFrontAndZeroBehindItsEnd) {
  const std::uint8_t bytes[] = {1, 2, 3, 4, 5};
  Input input(bytes, sizeof(bytes));
  EXPECT_EQ(input.Byte(), 1);
  EXPECT_EQ(input.Word16(), 0x0203);
  EXPECT_EQ(input.Left(), 2U);
  EXPECT_EQ(input.Word32(), 0x04050000U);
  EXPECT_TRUE(input.Empty());
  std::size_t count = 3;
  input.Take(count);
  EXPECT_EQ(count, 0U);
}

TEST(FuzzInput, SettingsOfZerosAreTheDefaultsWithCcsid0) {
  CheckedRun run(0);
  Input input(nullptr, 0);
  TakeSettings(input, run.context);
  EXPECT_FALSE(run.context.platform.IsChosen());
  EXPECT_EQ(run.context.ccsid, 0);
  EXPECT_EQ(run.context.apiKind, kApiKindOther);
  EXPECT_EQ(run.context.maxXmlLineLength, 100);
  EXPECT_EQ(run.context.maxCharvLength, 400);
}

TEST(FuzzInput, MessageDataHasWhatItCarriesAndWhatItClaims) {
  // Encoding, choice, claim, data.
  std::uint8_t bytes[] = {0, 0, 1, 0x11, 7, kNoClaim, 'a', 'b'};
  Input carried(bytes, sizeof(bytes));
  const MessageInput message(carried);
  EXPECT_EQ(message.encoding, 273U);
  EXPECT_EQ(message.choice, 7);
  EXPECT_EQ(message.data.Size(), 2);
  EXPECT_EQ(message.data.At(1), 'b');

  bytes[5] = kClaimsMissing | kClaimsSixteen;
  Input missing(bytes, sizeof(bytes));
  const MessageInput longer(missing);
  EXPECT_EQ(longer.data.Size(), 2 + 16);
  EXPECT_EQ(longer.data.At(17), 0);

  bytes[5] = kClaimsRepeat | (kClaimsSixteen + 1);
  Input repeated(bytes, sizeof(bytes));
  const MessageInput longest(repeated);
  EXPECT_EQ(longest.data.Size(), 2 + 32);
  // The last 16 bytes are 14 before the start, which count as zero, and the two that are there.
  EXPECT_EQ(longest.data.At(16), 'a');
  EXPECT_EQ(longest.data.At(33), 'b');

  bytes[5] = kClaimsRepeat | kClaimsMost;
  Input most(bytes, sizeof(bytes));
  EXPECT_EQ(MessageInput(most).data.Size(), 2147483647);
}

#ifdef QUILLON_ADDRESS_SANITIZER
TEST(FuzzInputDeathTest, AReadBehindTheTakenBytesIsSeen) {
  const std::uint8_t bytes[] = {1, 2, 3, 4};
  const auto overread = [&bytes] {
    Input input(bytes, sizeof(bytes));
    std::size_t count = 3;
    const std::unique_ptr<std::uint8_t[]> block = input.Take(count);
    const volatile std::uint8_t* behind = block.get() + count;
    return *behind;
  };
  EXPECT_DEATH(overread(), "heap-buffer-overflow");
}
#endif

}  // namespace
}  // namespace quillon::fuzz
