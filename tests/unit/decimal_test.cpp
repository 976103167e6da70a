#include "base/decimal.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace quillon {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

TEST(DecimalDigits, EndWithTheFirstCharacterThatIsNone) {
  EXPECT_EQ(DecimalDigits("364 = 0x16C bytes)"), 364);
  EXPECT_EQ(DecimalDigits("12a34"), 12);
  EXPECT_EQ(DecimalDigits("7"), 7);
  EXPECT_EQ(DecimalDigits("0007"), 7);
  EXPECT_EQ(DecimalDigits("9:"), 9);
  EXPECT_EQ(DecimalDigits("8/"), 8);
}

TEST(DecimalDigits, AreZeroWhenThereAreNone) {
  for (const char* text : {"", " 5", "-5", "+5", "x", "=", "\xB2"}) EXPECT_EQ(DecimalDigits(text), 0) << text;
}

TEST(DecimalDigits, ThatDoNotFitAreTheLargestNumber) {
  EXPECT_EQ(DecimalDigits("2147483646"), kLargest - 1);
  EXPECT_EQ(DecimalDigits("2147483647"), kLargest);
  EXPECT_EQ(DecimalDigits("2147483648"), kLargest);
  EXPECT_EQ(DecimalDigits("4294967297"), kLargest);
  EXPECT_EQ(DecimalDigits("18446744073709551617"), kLargest);
  EXPECT_EQ(DecimalDigits(std::string(1000, '9')), kLargest);
  EXPECT_EQ(DecimalDigits(std::string(1000, '0') + "12"), 12);
}

TEST(DecimalValue, TakesBlanksAndASign) {
  EXPECT_EQ(DecimalValue("5"), 5);
  EXPECT_EQ(DecimalValue("  5"), 5);
  EXPECT_EQ(DecimalValue("\t\n\v\f\r5"), 5);
  EXPECT_EQ(DecimalValue("+5"), 5);
  EXPECT_EQ(DecimalValue(" -5 6"), -5);
  EXPECT_EQ(DecimalValue("-0"), 0);
  EXPECT_EQ(DecimalValue("1208,"), 1208);
}

TEST(DecimalValue, IsZeroForWhatIsNoNumber) {
  for (const char* text : {"", " ", "-", "+", "--5", "+-5", "- 5", "latin1", "0x10", ".5",
                           "\x08"
                           "5",
                           "\x0E"
                           "5"})
    EXPECT_EQ(DecimalValue(text), 0) << text;
}

TEST(DecimalValue, ThatDoesNotFitIsTheLargestNumber) {
  EXPECT_EQ(DecimalValue("99999999999999999999"), kLargest);
  EXPECT_EQ(DecimalValue("-2147483647"), -kLargest);
  EXPECT_EQ(DecimalValue("-99999999999999999999"), -kLargest);
}

TEST(DecimalValue, IsKnownToTheCompiler) {
  static_assert(DecimalValue(" -12x") == -12);
  static_assert(DecimalDigits("2147483648") == kLargest);
}

}  // namespace
}  // namespace quillon
