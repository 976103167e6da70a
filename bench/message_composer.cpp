#include "message_composer.h"

namespace quillon::compose {

namespace {

constexpr std::size_t kFormatWidth = 8;

std::int32_t Length(std::size_t size) {
  return static_cast<std::int32_t>(size);
}

/// Encoding, CodedCharSetId and Format, which most headers hold in a row.
void WriteSuccessor(ByteWriter& writer, const MessageBody& body) {
  writer.Int32(body.encoding);
  writer.Int32(body.codedCharSetId);
  writer.Text(body.format, kFormatWidth);
}

/// The header in `writer` with the body behind it. Headers hold their own names in single-byte characters.
MessageBody Joined(ByteWriter& writer, const MessageBody& body, std::string format, std::int32_t encoding) {
  writer.Raw(body.bytes);
  return {std::move(format), encoding, 819, writer.Take()};
}

}  // namespace

void DescribeBody(MessageDescriptor& descriptor, const MessageBody& body) {
  descriptor.format = body.format;
  descriptor.encoding = body.encoding;
  descriptor.codedCharSetId = body.codedCharSetId;
}

MessageBody TextBody(std::string_view text, std::int32_t ccsid, std::string format) {
  return {std::move(format), kEncodingNormal, ccsid, BytesOf(text)};
}

Bytes ComposeTransmissionHeader(const TransmissionHeader& fields, Order order) {
  ByteWriter writer(order);
  writer.Text("XQH", 4);
  writer.Int32(fields.version);
  writer.Text(fields.remoteQName, 48);
  writer.Text(fields.remoteQMgrName, 48);
  return writer.Take();
}

MessageBody WithTransmissionHeader(const MessageBody& body, const TransmissionHeader& fields,
                                   MessageDescriptor original, std::int32_t encoding) {
  DescribeBody(original, body);
  original.version = 1;
  ByteWriter writer(OrderOf(encoding));
  writer.Raw(ComposeTransmissionHeader(fields, OrderOf(encoding)));
  writer.Raw(ComposeMessageDescriptor(original, OrderOf(encoding)));
  return Joined(writer, body, "ZKXMIT", encoding);
}

MessageBody WithDistributionHeader(const MessageBody& body, const DistributionHeader& fields,
                                   std::int32_t encoding) {
  constexpr std::int32_t kHeaderLength = 48;
  const Order order = OrderOf(encoding);
  const Bytes objects = ComposeObjectRecords(fields.objectRecords);
  const Bytes puts = ComposePutMessageRecords(fields.putMessageRecords, fields.putMsgRecFields, order);
  const std::int32_t putOffset = kHeaderLength + Length(objects.size());
  ByteWriter writer(order);
  writer.Text("DH", 4);
  writer.Int32(fields.version);
  writer.Int32(putOffset + Length(puts.size()));
  WriteSuccessor(writer, body);
  writer.Int32(fields.flags);
  writer.UInt32(fields.putMsgRecFields);
  writer.Int32(Length(fields.objectRecords.size()));
  writer.Int32(objects.empty() ? 0 : kHeaderLength);
  writer.Int32(puts.empty() ? 0 : putOffset);
  writer.Raw(objects);
  writer.Raw(puts);
  return Joined(writer, body, "ZKHDIST", encoding);
}

MessageBody WithReferenceHeader(const MessageBody& body, const ReferenceHeader& fields,
                                std::int32_t encoding) {
  constexpr std::int32_t kHeaderLength = 108;
  constexpr std::size_t kLengthPosition = 8;
  ByteWriter writer(OrderOf(encoding));
  writer.Text("RMH", 4);
  writer.Int32(fields.version);
  writer.Int32(0);
  WriteSuccessor(writer, body);
  writer.Int32(fields.flags);
  writer.Text(fields.objectType, 8);
  writer.Opaque(fields.objectInstanceId, 24);
  std::string items;
  for (const std::string* item : {&fields.sourceEnvironment, &fields.sourceName,
                                  &fields.destinationEnvironment, &fields.destinationName}) {
    writer.Int32(Length(item->size()));
    writer.Int32(item->empty() ? 0 : kHeaderLength + Length(items.size()));
    items += *item;
  }
  writer.Int32(fields.dataLogicalLength);
  writer.Int32(fields.dataLogicalOffset);
  writer.Int32(fields.dataLogicalOffset2);
  writer.Raw(items);
  writer.FillTo(4, ' ');
  writer.ReplaceInt32(kLengthPosition, Length(writer.Size()));
  return Joined(writer, body, "ZKHREF", encoding);
}

MessageBody WithDeadLetterHeader(const MessageBody& body, const DeadLetterHeader& fields,
                                 std::int32_t encoding) {
  ByteWriter writer(OrderOf(encoding));
  writer.Text("DLH", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.reason);
  writer.Text(fields.destQName, 48);
  writer.Text(fields.destQMgrName, 48);
  WriteSuccessor(writer, body);
  writer.Int32(fields.putApplType);
  writer.Text(fields.putApplName, 28);
  writer.Text(fields.putDate, 8);
  writer.Text(fields.putTime, 8);
  return Joined(writer, body, "ZKDEAD", encoding);
}

MessageBody WithDescriptorExtension(const MessageBody& body, const DescriptorExtension& fields,
                                    std::int32_t encoding) {
  ByteWriter writer(OrderOf(encoding));
  writer.Text("MDE", 4);
  writer.Int32(fields.version);
  writer.Int32(72);
  WriteSuccessor(writer, body);
  writer.Int32(fields.flags);
  writer.Opaque(fields.groupId, 24);
  writer.Int32(fields.msgSeqNumber);
  writer.Int32(fields.offset);
  writer.Int32(fields.msgFlags);
  writer.Int32(fields.originalLength);
  return Joined(writer, body, "ZKHMDE", encoding);
}

MessageBody WithRulesHeader1(const MessageBody& body, const RulesHeader1& fields, std::int32_t encoding) {
  constexpr std::size_t kLengthPosition = 8;
  ByteWriter writer(OrderOf(encoding));
  writer.Text("RFH", 4);
  writer.Int32(fields.version);
  writer.Int32(0);
  WriteSuccessor(writer, body);
  writer.Int32(fields.flags);
  writer.Raw(fields.nameValueString);
  writer.FillTo(4, ' ');
  writer.ReplaceInt32(kLengthPosition, Length(writer.Size()));
  return Joined(writer, body, "ZKHRF", encoding);
}

MessageBody WithRulesHeader2(const MessageBody& body, const RulesHeader2& fields, std::int32_t encoding) {
  constexpr std::size_t kLengthPosition = 8;
  ByteWriter writer(OrderOf(encoding));
  writer.Text("RFH", 4);
  writer.Int32(fields.version);
  writer.Int32(0);
  WriteSuccessor(writer, body);
  writer.Int32(fields.flags);
  writer.Int32(fields.nameValueCcsid);
  for (const std::string& folder : fields.folders) {
    const std::size_t width = (folder.size() + 3) / 4 * 4;
    writer.Int32(Length(width));
    writer.Text(folder, width);
  }
  writer.ReplaceInt32(kLengthPosition, Length(writer.Size()));
  return Joined(writer, body, "ZKHRF2", encoding);
}

MessageBody TriggerBody(const TriggerMessage& fields, std::int32_t encoding) {
  ByteWriter writer(OrderOf(encoding));
  writer.Text("TM", 4);
  writer.Int32(fields.version);
  writer.Text(fields.queueName, 48);
  writer.Text(fields.processName, 48);
  writer.Text(fields.triggerData, 64);
  writer.Int32(fields.applType);
  writer.Text(fields.applId, 256);
  writer.Text(fields.envData, 128);
  writer.Text(fields.userData, 128);
  return {"ZKTRIG", encoding, 819, writer.Take()};
}

}  // namespace quillon::compose
