#include "display/line_buffer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "report_capture.h"

namespace quillon {
namespace {

/// What a buffer writes.
template <typename Fill>
std::string Written(Fill fill) {
  ReportCapture capture;
  LineBuffer line(capture.Context());
  fill(line);
  line.Flush();
  return capture.Report();
}

std::string X(std::size_t count) {
  return std::string(count, 'x');
}

TEST(LineBuffer, WritesNothingBeforeItIsFlushed) {
  ReportCapture capture;
  LineBuffer line(capture.Context());
  line.Add("ab").Add('c');
  EXPECT_EQ(line.Size(), 3u);
  EXPECT_EQ(capture.Report(), "");
  EXPECT_EQ(line.Flush(), 0);
  EXPECT_EQ(line.Size(), 0u);
  EXPECT_EQ(capture.Report(), "abc");
  EXPECT_EQ(line.Flush(), 0);
  EXPECT_EQ(capture.Report(), "abc");
}

// Around the length of a usual line.
TEST(LineBuffer, TakesPiecesOfAnyLength) {
  for (const std::size_t before : {0U, 1U, 128U, 255U, 256U})
    for (const std::size_t length : {0U, 1U, 127U, 128U, 255U, 256U, 257U, 300U, 1000U})
      EXPECT_EQ(
          Written([&](LineBuffer& line) { line.Add(X(before)).Add(std::string(length, 'y')).Add('z'); }),
          X(before) + std::string(length, 'y') + "z")
          << before << " and " << length;
}

TEST(LineBuffer, TakesMoreCharactersThanItHolds) {
  std::string expected;
  for (int i = 0; i < 1000; ++i) expected += static_cast<char>('a' + i % 26);
  EXPECT_EQ(Written([&](LineBuffer& line) {
              for (const char c : expected) line.Add(c);
            }),
            expected);
}

TEST(LineBuffer, RepeatsACharacter) {
  for (const std::int64_t count : {1, 128, 129, 256, 257, 1000})
    EXPECT_EQ(Written([&](LineBuffer& line) { line.Add("ab").AddRepeated('x', count); }),
              "ab" + X(static_cast<std::size_t>(count)));
  for (const std::int64_t count : {0, -1, -1000})
    EXPECT_EQ(Written([&](LineBuffer& line) { line.AddRepeated('x', count); }), "") << count;
}

TEST(LineBuffer, AlignsNumbersRight) {
  const auto number = [](std::int64_t value, int width) {
    return Written([&](LineBuffer& line) { line.AddDecimal(value, width); });
  };
  EXPECT_EQ(number(0, 0), "0");
  EXPECT_EQ(number(7, 4), "   7");
  EXPECT_EQ(number(-7, 4), "  -7");
  EXPECT_EQ(number(12345, 4), "12345");
  EXPECT_EQ(number(INT64_MIN, 0), "-9223372036854775808");
}

TEST(LineBuffer, WritesHexDigits) {
  const auto digits = [](std::uint32_t value) {
    return Written([&](LineBuffer& line) { line.AddHex(value).Add(' ').AddHex8(value); });
  };
  EXPECT_EQ(digits(0), "0 00000000");
  EXPECT_EQ(digits(0xF), "F 0000000F");
  EXPECT_EQ(digits(0x10), "10 00000010");
  EXPECT_EQ(digits(0x0A0B0C0D), "A0B0C0D 0A0B0C0D");
  EXPECT_EQ(digits(0xFEDCBA98), "FEDCBA98 FEDCBA98");
}

TEST(LineBuffer, WritesTheDigitsOfBytes) {
  std::vector<std::uint8_t> bytes;
  std::string expected;
  for (int byte = 0; byte < 64; ++byte) {
    bytes.push_back(static_cast<std::uint8_t>(byte * 4 + 1));
    char pair[3];
    std::snprintf(pair, sizeof pair, "%02X", byte * 4 + 1);
    expected += pair;
  }
  EXPECT_EQ(Written([&](LineBuffer& line) { line.Add(X(200)).AddHexBytes(bytes.data(), 64); }),
            X(200) + expected);
  EXPECT_EQ(Written([&](LineBuffer& line) { line.AddHexBytes(bytes.data(), 0); }), "");
}

TEST(LineBuffer, GivesANameItsColumnOrMore) {
  const auto column = [](const std::string& name) {
    return Written([&](LineBuffer& line) { line.AddFieldName(name); });
  };
  EXPECT_EQ(column("Name"), "|> Name                     : ");
  EXPECT_EQ(column(X(25)), "|> " + X(25) + ": ");
  EXPECT_EQ(column(X(26)), "|> " + X(26) + ": ");
  EXPECT_EQ(column(X(300)), "|> " + X(300) + ": ");
  EXPECT_EQ(column(""), "");
}

TEST(LineBuffer, TellsWhetherTheLastWriteFailed) {
  ReportCapture capture;
  FullDevice full(capture.Context());
  LineBuffer line(capture.Context());
  line.Add(X(ReportBuffer::kSize + 1));
  EXPECT_EQ(line.Flush(), -1) << "a long piece has been written before";
  full.Release();
  line.Add("more");
  EXPECT_EQ(line.Flush(), 0);
}

}  // namespace
}  // namespace quillon
