#include "display/line_buffer.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "display/fieldline.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::size_t kNameColumns = 25;
constexpr std::string_view kNameEnd = ": ";
constexpr std::int64_t kLongestExtension = 128;

}  // namespace

LineBuffer& LineBuffer::AddLong(std::string_view piece) {
  Flush();
  if (piece.size() <= sizeof(text)) return Add(piece);
  status = WriteTraceData(runContext, piece);
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
  char digits[24];
  const char* end = std::to_chars(digits, digits + sizeof(digits), number).ptr;
  AddRepeated(' ', width - (end - digits));
  return Add(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

LineBuffer& LineBuffer::AddHexBytes(const std::uint8_t* bytes, std::int64_t count) {
  char* digits = Extend(static_cast<std::size_t>(count) * 2);
  for (std::int64_t i = 0; i < count; ++i) PutHexByte(digits + i * 2, bytes[i]);
  return *this;
}

LineBuffer& LineBuffer::AddHex8(std::uint32_t number) {
  char* digits = Extend(8);
  for (int i = 0; i < 4; ++i) PutHexByte(digits + i * 2, static_cast<std::uint8_t>(number >> (24 - 8 * i)));
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

int LineBuffer::Flush() {
  if (used > 0) {
    status = WriteTraceData(runContext, std::string_view(text, used));
    used = 0;
  }
  return status;
}

}  // namespace quillon
