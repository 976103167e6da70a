#include "base/struct_reader.h"

namespace quillon {

// Kept: every even encoding means reversed, also one whose integer part is not "reversed"; message data is
// shown accordingly.
ByteOrder OrderOfEncoding(std::uint32_t encoding) {
  return encoding != 0 && encoding % 2 == 0 ? ByteOrder::Little : ByteOrder::Big;
}

ByteOrder OrderOfVersion(ByteView structure, std::int64_t versionOffset) {
  return structure.At(versionOffset) != 0 ? ByteOrder::Little : ByteOrder::Big;
}

namespace {

void NoteOrder(RunContext& runContext, ByteView structure, std::int64_t versionOffset) {
  if (runContext.platform.autoDetect) runContext.storedOrder = OrderOfVersion(structure, versionOffset);
}

}  // namespace

StructReader ReaderByVersion(RunContext& runContext, ByteView structure) {
  NoteOrder(runContext, structure, kVersionOffset);
  return {structure, OrderOfVersion(structure, kVersionOffset), runContext.storedOrder,
          runContext.platform.wide};
}

StructReader ReaderByEncoding(const RunContext& runContext, ByteView structure, std::uint32_t encoding) {
  return {structure, OrderOfEncoding(encoding), runContext.storedOrder};
}

StructReader ReaderAsStored(RunContext& runContext, ByteView structure, std::int64_t versionOffset) {
  NoteOrder(runContext, structure, versionOffset);
  return ReaderOfRecords(runContext, structure);
}

StructReader ReaderOfRecords(const RunContext& runContext, ByteView records) {
  return {records, runContext.storedOrder, runContext.storedOrder, runContext.platform.wide};
}

ByteOrder OrderOfSavedCopy(const RunContext& runContext, ByteView structure) {
  return runContext.platform.autoDetect ? OrderOfVersion(structure, kVersionOffset) : runContext.storedOrder;
}

// Kept: on the default platform the encoding is taken as stored, also when the descriptor itself was read
// reversed, so the message data of a little-endian process is shown by a reversed encoding.
ByteOrder OrderOfSavedEncoding(const RunContext& runContext, ByteView descriptor) {
  return runContext.platform.IsChosen() ? OrderOfVersion(descriptor, kVersionOffset) : runContext.storedOrder;
}

std::uint64_t StructReader::PointerIn(ByteOrder byteOrder) {
  if (!wide) {
    position += 4;
    return bytes.Word(position - 4, byteOrder);
  }
  position = (position + 7) / 8 * 8 + 8;
  const std::uint64_t first = bytes.Word(position - 8, byteOrder);
  const std::uint64_t second = bytes.Word(position - 4, byteOrder);
  return byteOrder == ByteOrder::Big ? first << 32 | second : second << 32 | first;
}

VariableString StructReader::Charv() {
  VariableString descriptor;
  descriptor.address = PointerIn(storedOrder);
  descriptor.offset = StoredInt32();
  descriptor.bufferSize = StoredInt32();
  descriptor.length = StoredInt32();
  descriptor.ccsid = StoredInt32();
  return descriptor;
}

MessageHandle StructReader::StoredMessageHandle() {
  const auto first = static_cast<std::uint32_t>(StoredInt32());
  const auto second = static_cast<std::uint32_t>(StoredInt32());
  if (storedOrder == ByteOrder::Little) return {second, first};
  return {first, second};
}

}  // namespace quillon
