// The structure reader: walks a structure's bytes in the order of its fields.
#pragma once

#include <cstdint>

#include "base/byte_view.h"
#include "base/run_context.h"

namespace quillon {

/// A variable-length string descriptor (ZKCHARV) as it stands in a structure.
struct VariableString {
  std::uint64_t address;  ///< VSPtr, in the traced program; never followed
  std::int32_t offset;    ///< VSOffset, from the start of the enclosing structure
  std::int32_t bufferSize;
  std::int32_t length;
  std::int32_t ccsid;
};

/// A message handle: a 64-bit value as two words.
struct MessageHandle {
  std::uint32_t high;
  std::uint32_t low;
};

/// A cursor over a structure. A formatter reads field by field and writes no offset; the offsets follow from
/// the fields. Bytes beyond the dump read as zero. Because only the reader knows the byte order and what a
/// pointer is, a formatter serves every layout.
class StructReader {
 public:
  StructReader(ByteView structure, ByteOrder byteOrder, ByteOrder asStored, bool wideLayout = false)
      : bytes(structure), order(byteOrder), storedOrder(asStored), wide(wideLayout) {}

  std::int32_t Int32() { return static_cast<std::int32_t>(UInt32()); }
  std::uint32_t UInt32() {
    const std::uint32_t value = bytes.Word(position, order);
    position += 4;
    return value;
  }
  /// A text or byte field of fixed width; bytes beyond the dump read as zero.
  ByteView Bytes(std::int64_t width) {
    const ByteView field = bytes.Field(position, width);
    position += width;
    return field;
  }
  /// An address in the traced program.
  std::uint64_t Pointer() { return PointerIn(order); }
  /// A field that is read as stored whatever the structure's own order is.
  std::int32_t StoredInt32() {
    const std::int32_t value = bytes.Int32(position, storedOrder);
    position += 4;
    return value;
  }
  /// A string descriptor, read as stored.
  VariableString Charv();
  /// A message handle, read as stored.
  MessageHandle StoredMessageHandle();
  void Skip(std::int64_t width) { position += width; }
  void SkipPointer() { Pointer(); }

  std::int64_t Offset() const { return position; }
  ByteOrder Order() const { return order; }
  /// The whole structure, the base of offsets that stand in it.
  ByteView Structure() const { return bytes; }

 private:
  /// 8 bytes at the next multiple of 8 in a 64-bit layout, else 4 bytes.
  std::uint64_t PointerIn(ByteOrder byteOrder);

  ByteView bytes;
  ByteOrder order;
  ByteOrder storedOrder;
  bool wide;
  std::int64_t position = 0;
};

/// Offset of the Version field in most structures, in bytes, and in the channel definition.
inline constexpr std::int64_t kVersionOffset = 4;
inline constexpr std::int64_t kChannelVersionOffset = 20;

/// The three rules for the byte order of a structure. A formatter's first line shows which one it follows.

/// The message descriptor, the object descriptor and the get and put options tell their order by the most
/// significant byte of Version: zero means big-endian.
StructReader ReaderByVersion(RunContext& runContext, ByteView structure);
/// Message data is read reversed when the encoding that governs it is non-zero and even. It holds no
/// pointers.
StructReader ReaderByEncoding(const RunContext& runContext, ByteView structure, std::uint32_t encoding);
/// All other structures are read as stored.
StructReader ReaderAsStored(RunContext& runContext, ByteView structure,
                            std::int64_t versionOffset = kVersionOffset);

// Where the trace itself tells the platform, every structure is read by its own Version, and what it tells
// becomes the run's stored order: data without a version has the order of the last structure before it.

/// Records and arrays have no version: they are read as stored.
StructReader ReaderOfRecords(const RunContext& runContext, ByteView records);

/// The order of the words of a copy that was kept of a versioned structure.
ByteOrder OrderOfSavedCopy(const RunContext& runContext, ByteView structure);
/// The order in which a message descriptor's Encoding is taken for the message data behind it.
ByteOrder OrderOfSavedEncoding(const RunContext& runContext, ByteView descriptor);

/// The byte order that the most significant byte of Version tells.
ByteOrder OrderOfVersion(ByteView structure, std::int64_t versionOffset);
/// The byte order that an encoding value stands for.
ByteOrder OrderOfEncoding(std::uint32_t encoding);

}  // namespace quillon
