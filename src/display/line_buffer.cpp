#include "display/line_buffer.h"

#include <algorithm>
#include <cstring>

#include "display/fieldline.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::size_t kNameColumns = 25;
constexpr std::string_view kNameEnd = ": ";
constexpr std::int64_t kLongestExtension = 128;
constexpr std::size_t kLongestDecimal = 32;  // sign and digits, or the columns that callers ask for

}  // namespace

void LineBuffer::MakeRoom(std::size_t count) {
  Flush();
  status = EnsureReportRoom(runContext, count);
  Begin();
}

LineBuffer& LineBuffer::AddLong(std::string_view piece) {
  Flush();
  status = WriteTraceData(runContext, piece);
  Begin();
  return *this;
}

LineBuffer& LineBuffer::AddRepeated(char character, std::int64_t count) {
  while (count > 0) {
    const auto part = static_cast<std::size_t>(std::min<std::int64_t>(count, kLongestExtension));
    std::memset(Extend(part), character, part);
    count -= static_cast<std::int64_t>(part);
  }
  return *this;
}

LineBuffer& LineBuffer::AddDecimal(std::int64_t number, int width) {
  char digits[kLongestDecimal];
  char* const digitsEnd = digits + sizeof digits;
  char* first = digitsEnd;
  const bool negative = number < 0;
  std::uint64_t rest = negative ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
  do {
    *--first = static_cast<char>('0' + rest % 10);
    rest /= 10;
  } while (rest > 0);
  if (negative) *--first = '-';
  while (digitsEnd - first < width) *--first = ' ';
  return Add(std::string_view(first, static_cast<std::size_t>(digitsEnd - first)));
}

LineBuffer& LineBuffer::AddHexBytes(const std::uint8_t* bytes, std::int64_t count) {
  char* digits = Extend(static_cast<std::size_t>(count) * 2);
  for (std::int64_t i = 0; i < count; ++i) PutHexByte(digits + i * 2, bytes[i]);
  return *this;
}

LineBuffer& LineBuffer::AddHex(std::uint32_t number) {
  int shift = 28;
  while (shift > 0 && (number >> shift) == 0) shift -= 4;
  for (; shift >= 0; shift -= 4) Add(GraphicHexLower4Bits[number >> shift & 0xF]);
  return *this;
}

LineBuffer& LineBuffer::AddNameColumn(std::string_view name) {
  if (name.size() > kNameColumns) return Add(kLineMarker).Add(name).Add(kNameEnd);
  constexpr std::size_t width = kLineMarker.size() + kNameColumns + kNameEnd.size();
  char* column = Extend(width);
  std::memset(column, ' ', width);
  kLineMarker.copy(column, kLineMarker.size());
  name.copy(column + kLineMarker.size(), name.size());
  kNameEnd.copy(column + width - kNameEnd.size(), kNameEnd.size());
  return *this;
}

LineBuffer& LineBuffer::AddByteRange(std::uint32_t offset, std::uint32_t length) {
  // Kept: a part without bytes ends before it begins, and one at offset 0 at 4294967295.
  const std::uint32_t last = offset + length - 1;
  Add("offset ").AddDecimal(offset).Add('-').AddDecimal(last);
  Add(" (=x").AddHex(offset).Add("-x").AddHex(last);
  return Add(") length ").AddDecimal(length).Add(" (=x").AddHex(length).Add(')');
}

}  // namespace quillon
