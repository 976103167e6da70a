#include "base/hex_digits.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

// Value of a character as a digit, written out one by one.
int DigitValue(int character) {
  const std::string upper = "0123456789ABCDEF";
  const std::string lower = "0123456789abcdef";
  const std::size_t inUpper = upper.find(static_cast<char>(character));
  if (inUpper != std::string::npos) return static_cast<int>(inUpper);
  const std::size_t inLower = lower.find(static_cast<char>(character));
  return inLower != std::string::npos ? static_cast<int>(inLower) : 0;
}

TEST(HexDigits, TablesGiveTheValueOfEveryCharacter) {
  for (int character = 0; character < 256; ++character) {
    const auto index = static_cast<std::size_t>(character);
    EXPECT_EQ(HexLower4Bits[index], DigitValue(character)) << "character " << character;
    EXPECT_EQ(HexUpper4Bits[index], DigitValue(character) * 16) << "character " << character;
  }
}

TEST(HexDigits, NeighboursOfDigitsAreNone) {
  for (const char character : {'/', ':', '@', 'G', '`', 'g'}) {
    EXPECT_EQ(HexLower4Bits[static_cast<unsigned char>(character)], 0) << character;
    EXPECT_EQ(HexUpper4Bits[static_cast<unsigned char>(character)], 0) << character;
  }
}

TEST(HexDigits, ByteOfTwoDigits) {
  EXPECT_EQ(HexByte('4', 'D'), 0x4D);
  EXPECT_EQ(HexByte('f', '0'), 0xF0);
  EXPECT_EQ(HexByte('G', '7'), 0x07);
  EXPECT_EQ(HexByte('7', '\xFF'), 0x70);
}

TEST(HexDigits, WordOfEightDigits) {
  EXPECT_EQ(ConvertEightByteHexToInteger("00000000"), 0);
  EXPECT_EQ(ConvertEightByteHexToInteger("00002011"), 8209);
  EXPECT_EQ(ConvertEightByteHexToInteger("12345678"), 305419896);
  EXPECT_EQ(ConvertEightByteHexToInteger("7FFFFFFF"), 2147483647);
  EXPECT_EQ(ConvertEightByteHexToInteger("80000000"), -2147483647 - 1);
  EXPECT_EQ(ConvertEightByteHexToInteger("FFFFFFFF"), -1);
}

TEST(HexDigits, LowerCaseCounts) {
  EXPECT_EQ(ConvertEightByteHexToInteger("00abCDef"), 11259375);
}

TEST(HexDigits, OtherCharactersCountAsZeroInTheirPlace) {
  EXPECT_EQ(ConvertEightByteHexToInteger("G0000001"), 1);
  EXPECT_EQ(ConvertEightByteHexToInteger("1 0x0 1\n"), 0x10000010);
  EXPECT_EQ(ConvertEightByteHexToInteger("\xFF\x80zZ-+.,"), 0);
}

TEST(HexDigits, MissingCharactersCountAsZero) {
  EXPECT_EQ(ConvertEightByteHexToInteger(""), 0);
  EXPECT_EQ(ConvertEightByteHexToInteger("1"), 0x10000000);
  EXPECT_EQ(ConvertEightByteHexToInteger("1234567"), 0x12345670);
}

TEST(HexDigits, NothingBehindTheEighthCharacterCounts) {
  EXPECT_EQ(ConvertEightByteHexToInteger("000000109"), 16);
  EXPECT_EQ(ConvertEightByteHexToInteger("00000010FFFFFFFF"), 16);
}

}  // namespace
}  // namespace quillon
