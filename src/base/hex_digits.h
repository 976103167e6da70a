// Hexadecimal digits of the trace: the digit tables and the rule for eight-digit words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillon {

/// Digits of a 32-bit word in the trace.
inline constexpr std::size_t kHexWordDigits = 8;

// Arithmetic instead of a table: compilers turn a loop over characters into vector instructions.
constexpr std::uint8_t DistanceFrom(char first, std::uint8_t character) {
  return static_cast<std::uint8_t>(character - static_cast<std::uint8_t>(first));
}
constexpr bool IsHexDigit(std::uint8_t character) {
  return DistanceFrom('0', character) < 10 || DistanceFrom('a', character | 0x20) < 6;
}
/// The value of a character that is a digit.
constexpr std::uint8_t HexDigitValue(std::uint8_t digit) {
  return digit <= '9' ? DistanceFrom('0', digit)
                      : static_cast<std::uint8_t>(DistanceFrom('a', digit | 0x20) + 10);
}

using HexDigitTable = std::array<std::uint8_t, 256>;

/// Digit values by character, shifted left by `shift` bits. A character that is no digit has the value 0: a
/// damaged line still gives a value, and the trace goes on.
consteval HexDigitTable HexDigitTableShifted(unsigned shift) {
  HexDigitTable table{};
  for (unsigned character = 0; character < table.size(); ++character) {
    const auto digit = static_cast<std::uint8_t>(character);
    if (IsHexDigit(digit)) table[character] = static_cast<std::uint8_t>(HexDigitValue(digit) << shift);
  }
  return table;
}

/// A character's digit value in the high or the low four bits; a byte is the OR of the two.
inline constexpr HexDigitTable HexUpper4Bits = HexDigitTableShifted(4);
inline constexpr HexDigitTable HexLower4Bits = HexDigitTableShifted(0);

/// The byte of two digits.
constexpr std::uint8_t HexByte(char upper, char lower) {
  return static_cast<std::uint8_t>(HexUpper4Bits[static_cast<std::uint8_t>(upper)] |
                                   HexLower4Bits[static_cast<std::uint8_t>(lower)]);
}

/// The word of the first eight characters, the most significant digit first. Characters beyond the text count
/// as 0, as do characters that are no digits; what stands behind the eighth is not looked at.
constexpr std::int32_t ConvertEightByteHexToInteger(std::string_view text) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < kHexWordDigits; ++i) {
    const char digit = i < text.size() ? text[i] : '0';
    value = value << 4 | HexLower4Bits[static_cast<std::uint8_t>(digit)];
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace quillon
