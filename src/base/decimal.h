// Decimal numbers of the command line, the environment and the trace.
#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

namespace quillon {

/// The digits at the start of the text; 0 when there are none, the largest 32-bit number when they do not
/// fit.
constexpr std::int32_t DecimalDigits(std::string_view text) {
  constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
  std::int64_t value = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') break;
    value = value * 10 + (digit - '0');
    if (value > largest) return largest;
  }
  return static_cast<std::int32_t>(value);
}

/// The number at the start of the text: blanks, a sign, digits. What follows them is not looked at; a number
/// that does not fit counts as the largest, a negative one as that with a minus.
constexpr std::int32_t DecimalValue(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || (text.front() >= '\t' && text.front() <= '\r')))
    text.remove_prefix(1);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
  return negative ? -DecimalDigits(text) : DecimalDigits(text);
}

}  // namespace quillon
