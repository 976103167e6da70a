#include "base/struct_reader.h"

namespace quillon {

// Kept: every even encoding means reversed, also one whose integer part is not "reversed"; message data is
// shown accordingly.
ByteOrder OrderOfEncoding(std::uint32_t encoding) {
  return encoding != 0 && encoding % 2 == 0 ? ByteOrder::Little : ByteOrder::Big;
}

StructReader ReaderByVersion(RunContext& runContext, ByteView structure) {
  const ByteOrder order = structure.At(kVersionOffset) != 0 ? ByteOrder::Little : ByteOrder::Big;
  return {structure, order, runContext.storedOrder};
}

StructReader ReaderByEncoding(RunContext& runContext, ByteView structure, std::uint32_t encoding) {
  return {structure, OrderOfEncoding(encoding), runContext.storedOrder};
}

StructReader ReaderAsStored(RunContext& runContext, ByteView structure) {
  return {structure, runContext.storedOrder, runContext.storedOrder};
}

VariableString StructReader::Charv() {
  VariableString descriptor;
  descriptor.address = static_cast<std::uint32_t>(StoredInt32());
  descriptor.offset = StoredInt32();
  descriptor.bufferSize = StoredInt32();
  descriptor.length = StoredInt32();
  descriptor.ccsid = StoredInt32();
  return descriptor;
}

MessageHandle StructReader::StoredMessageHandle() {
  const auto high = static_cast<std::uint32_t>(StoredInt32());
  const auto low = static_cast<std::uint32_t>(StoredInt32());
  return {high, low};
}

}  // namespace quillon
