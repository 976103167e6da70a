#include "structure_composer_message.h"

namespace quillon::compose {

namespace {

constexpr std::size_t kIdWidth = 24;
constexpr std::size_t kTokenWidth = 32;

}  // namespace

Bytes ComposeMessageDescriptor(const MessageDescriptor& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("MD", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.report);
  writer.Int32(fields.msgType);
  writer.Int32(fields.expiry);
  writer.Int32(fields.feedback);
  writer.Int32(fields.encoding);
  writer.Int32(fields.codedCharSetId);
  writer.Text(fields.format, 8);
  writer.Int32(fields.priority);
  writer.Int32(fields.persistence);
  writer.Opaque(fields.msgId, kIdWidth);
  writer.Opaque(fields.correlId, kIdWidth);
  writer.Int32(fields.backoutCount);
  writer.Text(fields.replyToQ, 48);
  writer.Text(fields.replyToQMgr, 48);
  writer.Text(fields.userIdentifier, 12);
  writer.Opaque(fields.accountingToken, kTokenWidth);
  writer.Text(fields.applIdentityData, 32);
  writer.Int32(fields.putApplType);
  writer.Text(fields.putApplName, 28);
  writer.Text(fields.putDate, 8);
  writer.Text(fields.putTime, 8);
  writer.Text(fields.applOriginData, 4);
  if (fields.version < 2) return writer.Take();
  writer.Opaque(fields.groupId, kIdWidth);
  writer.Int32(fields.msgSeqNumber);
  writer.Int32(fields.offset);
  writer.Int32(fields.msgFlags);
  writer.Int32(fields.originalLength);
  return writer.Take();
}

Bytes ComposeGetOptions(const GetOptions& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("GMO", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.options);
  writer.Int32(fields.waitInterval);
  writer.Int32(fields.signal1);
  writer.Int32(fields.signal2);
  writer.Text(fields.resolvedQName, 48);
  if (fields.version < 2) return writer.Take();
  writer.UInt32(fields.matchOptions);
  writer.Text(std::string{fields.groupStatus, fields.segmentStatus, fields.segmentation, fields.reserved1},
              4);
  if (fields.version < 3) return writer.Take();
  writer.Opaque(fields.msgToken, 16);
  writer.Int32(fields.returnedLength);
  if (fields.version < 4) return writer.Take();
  writer.Int32(fields.reserved2);
  WriteHandle(writer, fields.msgHandle);
  return writer.Take();
}

Bytes ComposePutOptions(const PutOptions& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("PMO", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.options);
  writer.Int32(fields.timeout);
  writer.UInt32(fields.context);
  writer.Int32(fields.knownDestCount);
  writer.Int32(fields.unknownDestCount);
  writer.Int32(fields.invalidDestCount);
  writer.Text(fields.resolvedQName, 48);
  writer.Text(fields.resolvedQMgrName, 48);
  if (fields.version < 2) return writer.Take();
  writer.Int32(fields.recsPresent);
  writer.UInt32(fields.putMsgRecFields);
  writer.Int32(fields.putMsgRecOffset);
  writer.Int32(fields.responseRecOffset);
  writer.Pointer(fields.putMsgRecAddress);
  writer.Pointer(fields.responseRecAddress);
  if (fields.version < 3) return writer.Take();
  WriteHandle(writer, fields.originalMsgHandle);
  WriteHandle(writer, fields.newMsgHandle);
  writer.Int32(fields.action);
  writer.Int32(fields.pubLevel);
  return writer.Take();
}

Bytes ComposePutMessageRecords(const std::vector<PutMessageRecord>& records, std::uint32_t fields,
                               const Layout& layout) {
  ByteWriter writer(layout);
  for (const PutMessageRecord& record : records) {
    if (fields & kRecordMsgId) writer.Opaque(record.msgId, kIdWidth);
    if (fields & kRecordCorrelId) writer.Opaque(record.correlId, kIdWidth);
    if (fields & kRecordGroupId) writer.Opaque(record.groupId, kIdWidth);
    if (fields & kRecordFeedback) writer.Int32(record.feedback);
    if (fields & kRecordAccountingToken) writer.Opaque(record.accountingToken, kTokenWidth);
  }
  return writer.Take();
}

}  // namespace quillon::compose
