#include "byte_writer.h"

#include <algorithm>
#include <utility>

namespace quillon::compose {

namespace {

/// Byte `index` of a value of `width` bytes as it stands in memory of the given order.
std::uint8_t ByteOfValue(std::uint64_t value, std::size_t width, std::size_t index, Order order) {
  const std::size_t place = order == Order::Big ? width - 1 - index : index;
  return static_cast<std::uint8_t>((value >> (8 * place)) & 0xFF);
}

}  // namespace

void ByteWriter::UInt32(std::uint32_t value) {
  for (std::size_t index = 0; index < 4; ++index) bytes.push_back(ByteOfValue(value, 4, index, layout.order));
}

void ByteWriter::Int64(std::int64_t value) {
  for (std::size_t index = 0; index < 8; ++index)
    bytes.push_back(ByteOfValue(static_cast<std::uint64_t>(value), 8, index, layout.order));
}

void ByteWriter::Pointer(std::uint64_t address) {
  if (!layout.wide) return UInt32(static_cast<std::uint32_t>(address));
  FillTo(8, 0);
  Int64(static_cast<std::int64_t>(address));
  holdsWidePointer = true;
}

void ByteWriter::Text(std::string_view text, std::size_t width) {
  Raw(text.substr(0, width));
  if (text.size() < width) bytes.insert(bytes.end(), width - text.size(), ' ');
}

void ByteWriter::Opaque(const Bytes& value, std::size_t width) {
  const std::size_t taken = std::min(value.size(), width);
  bytes.insert(bytes.end(), value.begin(), value.begin() + static_cast<std::ptrdiff_t>(taken));
  Zeros(width - taken);
}

void ByteWriter::Zeros(std::size_t count) {
  bytes.insert(bytes.end(), count, 0);
}

void ByteWriter::FillTo(std::size_t unit, std::uint8_t filler) {
  while (bytes.size() % unit != 0) bytes.push_back(filler);
}

void ByteWriter::ReplaceInt32(std::size_t position, std::int32_t value) {
  for (std::size_t index = 0; index < 4; ++index)
    bytes[position + index] = ByteOfValue(static_cast<std::uint32_t>(value), 4, index, layout.order);
}

Bytes ByteWriter::Take() {
  if (std::exchange(holdsWidePointer, false)) FillTo(8, 0);
  return std::exchange(bytes, {});
}

}  // namespace quillon::compose
