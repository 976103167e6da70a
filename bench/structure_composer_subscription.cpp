#include "structure_composer_subscription.h"

namespace quillon::compose {

Bytes ComposeSubscriptionDescriptor(const SubscriptionDescriptor& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("SD", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.options);
  writer.Text(fields.objectName, 48);
  writer.Text(fields.alternateUserId, 12);
  writer.Opaque(fields.alternateSecurityId, 40);
  writer.Int32(fields.subExpiry);
  WriteDescriptor(writer, fields.objectString);
  WriteDescriptor(writer, fields.subName);
  WriteDescriptor(writer, fields.subUserData);
  writer.Opaque(fields.subCorrelId, 24);
  writer.Int32(fields.pubPriority);
  writer.Opaque(fields.pubAccountingToken, 32);
  writer.Text(fields.pubApplIdentityData, 32);
  WriteDescriptor(writer, fields.selectionString);
  writer.Int32(fields.subLevel);
  WriteDescriptor(writer, fields.resObjectString);
  return writer.Take();
}

Bytes ComposeSubscriptionRequestOptions(const SubscriptionRequestOptions& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("SRO", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.options);
  writer.Int32(fields.numPubs);
  return writer.Take();
}

Bytes ComposeStatusStructure(const StatusStructure& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("STS", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.compCode);
  writer.Int32(fields.reason);
  writer.Int32(fields.putSuccessCount);
  writer.Int32(fields.putWarningCount);
  writer.Int32(fields.putFailureCount);
  writer.Int32(fields.objectType);
  writer.Text(fields.objectName, 48);
  writer.Text(fields.objectQMgrName, 48);
  writer.Text(fields.resolvedObjectName, 48);
  writer.Text(fields.resolvedQMgrName, 48);
  if (fields.version < 2) return writer.Take();
  WriteDescriptor(writer, fields.objectString);
  WriteDescriptor(writer, fields.subName);
  writer.Int32(fields.openOptions);
  writer.Int32(fields.subOptions);
  return writer.Take();
}

Bytes ComposeCallbackDescriptor(const CallbackDescriptor& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("CBD", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.callbackType);
  writer.UInt32(fields.options);
  writer.Pointer(fields.callbackArea);
  writer.Pointer(fields.callbackFunction);
  writer.Text(fields.callbackName, 128);
  writer.Int32(fields.maxMsgLength);
  return writer.Take();
}

Bytes ComposeCallbackContext(const CallbackContext& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("CBC", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.callType);
  writer.UInt32(fields.objectHandle);
  writer.Pointer(fields.callbackArea);
  writer.Pointer(fields.connectionArea);
  writer.Int32(fields.compCode);
  writer.Int32(fields.reason);
  writer.Int32(fields.state);
  writer.Int32(fields.dataLength);
  writer.Int32(fields.bufferLength);
  writer.UInt32(fields.flags);
  if (fields.version < 2) return writer.Take();
  writer.Int32(fields.reconnectDelay);
  return writer.Take();
}

Bytes ComposeControlOptions(const ControlOptions& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("CTLO", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.options);
  writer.Zeros(4);
  writer.Pointer(fields.connectionArea);
  return writer.Take();
}

}  // namespace quillon::compose
