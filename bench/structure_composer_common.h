// What several structures share: string descriptors and message handles.
#pragma once

#include <cstdint>
#include <string_view>

#include "byte_writer.h"

namespace quillon::compose {

// Every field of the composers' structures has a default, so that designated initializers may name any of
// them.

/// A descriptor of a variable-length string (20 bytes, or 24 in a 64-bit layout).
struct StringDescriptor {
  std::uint64_t address = 0;
  std::int32_t offset = 0;
  std::int32_t bufferSize = 0;
  std::int32_t length = 0;
  std::int32_t ccsid = 1208;
};

/// A descriptor of `text` at an address of the traced process.
inline StringDescriptor DescriptorOf(std::string_view text, std::uint64_t address) {
  return {.address = address, .length = static_cast<std::int32_t>(text.size())};
}

/// A message handle (8 bytes), an integer of two words.
struct HandlePair {
  std::uint32_t high = 0;
  std::uint32_t low = 0;
};

inline void WriteDescriptor(ByteWriter& writer, const StringDescriptor& descriptor) {
  writer.Pointer(descriptor.address);
  writer.Int32(descriptor.offset);
  writer.Int32(descriptor.bufferSize);
  writer.Int32(descriptor.length);
  writer.Int32(descriptor.ccsid);
}

inline void WriteHandle(ByteWriter& writer, const HandlePair& handle) {
  writer.Int64(static_cast<std::int64_t>(std::uint64_t{handle.high} << 32 | handle.low));
}

}  // namespace quillon::compose
