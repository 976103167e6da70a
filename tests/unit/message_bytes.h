// Message bodies built field by field, and the lines that a report shows for them; for tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_view.h"

namespace quillon {

/// Bytes of message data; integers are appended in the byte order given.
struct MessageBytes {
  explicit MessageBytes(ByteOrder byteOrder = ByteOrder::Big) : order(byteOrder) {}

  MessageBytes& Int(std::int64_t value) {
    for (int i = 0; i < 4; ++i) {
      const int shift = order == ByteOrder::Big ? 24 - 8 * i : 8 * i;
      bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint64_t>(value) >> shift));
    }
    return *this;
  }
  /// The text padded with blanks to `width`; a longer one is appended whole.
  MessageBytes& Text(std::string_view text, std::size_t width = 0) {
    for (const char c : text) bytes.push_back(static_cast<std::uint8_t>(c));
    for (std::size_t i = text.size(); i < width; ++i) bytes.push_back(' ');
    return *this;
  }
  MessageBytes& Zeros(std::size_t count) {
    bytes.insert(bytes.end(), count, 0);
    return *this;
  }
  MessageBytes& Add(const MessageBytes& other) {
    bytes.insert(bytes.end(), other.bytes.begin(), other.bytes.end());
    return *this;
  }
  /// `count` bytes that all differ: `first`, `first` + 1 and so on.
  MessageBytes& Ascending(int first, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(first + i));
    return *this;
  }

  ByteView View() const { return {bytes.data(), bytes.size()}; }
  /// The first `count` bytes in a block of exactly that size.
  std::vector<std::uint8_t> First(std::size_t count) const {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
  }

  ByteOrder order;
  std::vector<std::uint8_t> bytes;
};

/// A field line: the marker, the name in 25 columns, a colon and a blank, the value.
inline std::string Field(std::string_view name, std::string_view value) {
  std::string line = "|> ";
  line += name;
  line.append(name.size() < 25 ? 25 - name.size() : 0, ' ');
  line += ": ";
  line += value;
  line += '\n';
  return line;
}

/// The frame of a notice around what the program does not know.
inline std::string Notice(std::string_view unknown) {
  const std::string rule = "|**********************************\n";
  return rule + "|* Unknown : " + std::string(unknown) + "\n" + rule;
}

/// The characters `first` to `last` as a text field shows them: "." for those outside 0x20 to 0x7E.
inline std::string Characters(int first, int last) {
  std::string text;
  for (int c = first; c <= last; ++c) text += c >= 0x20 && c <= 0x7E ? static_cast<char>(c) : '.';
  return text;
}

}  // namespace quillon
