#include "structure_composer_object.h"

namespace quillon::compose {

Bytes ComposeObjectDescriptor(const ObjectDescriptor& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("OD", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.objectType);
  writer.Text(fields.objectName, 48);
  writer.Text(fields.objectQMgrName, 48);
  writer.Text(fields.dynamicQName, 48);
  writer.Text(fields.alternateUserId, 12);
  if (fields.version < 2) return writer.Take();
  writer.Int32(fields.recsPresent);
  writer.Int32(fields.knownDestCount);
  writer.Int32(fields.unknownDestCount);
  writer.Int32(fields.invalidDestCount);
  writer.Int32(fields.objectRecOffset);
  writer.Int32(fields.responseRecOffset);
  writer.Pointer(fields.objectRecAddress);
  writer.Pointer(fields.responseRecAddress);
  if (fields.version < 3) return writer.Take();
  writer.Opaque(fields.alternateSecurityId, 40);
  writer.Text(fields.resolvedQName, 48);
  writer.Text(fields.resolvedQMgrName, 48);
  if (fields.version < 4) return writer.Take();
  WriteDescriptor(writer, fields.objectString);
  WriteDescriptor(writer, fields.selectionString);
  WriteDescriptor(writer, fields.resObjectString);
  writer.Int32(fields.resolvedType);
  return writer.Take();
}

Bytes ComposeObjectRecords(const std::vector<ObjectRecord>& records) {
  ByteWriter writer(Order::Big);
  for (const ObjectRecord& record : records) {
    writer.Text(record.objectName, 48);
    writer.Text(record.objectQMgrName, 48);
  }
  return writer.Take();
}

Bytes ComposeResponseRecords(const std::vector<ResponseRecord>& records, const Layout& layout) {
  ByteWriter writer(layout);
  for (const ResponseRecord& record : records) {
    writer.Int32(record.compCode);
    writer.Int32(record.reason);
  }
  return writer.Take();
}

}  // namespace quillon::compose
