// Message bodies: chains of headers in front of text, XML or a trigger message.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "structure_composer_message.h"
#include "structure_composer_object.h"

namespace quillon::compose {

/// Encoding values: integers, decimals and floating-point numbers as they stand, or all reversed.
inline constexpr std::int32_t kEncodingNormal = 273;
inline constexpr std::int32_t kEncodingReversed = 546;

/// The byte order of integers under an encoding value.
inline Order OrderOf(std::int32_t encoding) {
  return encoding != 0 && encoding % 2 == 0 ? Order::Little : Order::Big;
}

/// A message body, or the rest of one, with what the header or descriptor in front of it has to say about it.
struct MessageBody {
  std::string format = {};
  std::int32_t encoding = kEncodingNormal;
  std::int32_t codedCharSetId = 819;
  Bytes bytes = {};
};

/// Copies a body's format, encoding and CCSID into the descriptor of its message.
void DescribeBody(MessageDescriptor& descriptor, const MessageBody& body);

/// Text or XML.
MessageBody TextBody(std::string_view text, std::int32_t ccsid = 819, std::string format = "ZKSTR");

// Each of these puts one header in front of a body; the result's encoding is the one that the header is
// written in. So a chain is composed from its end.

/// 104 bytes and the original message's descriptor in version 1 (324 bytes).
struct TransmissionHeader {
  std::int32_t version = 1;
  std::string remoteQName = {};
  std::string remoteQMgrName = {};
};
MessageBody WithTransmissionHeader(const MessageBody& body, const TransmissionHeader& fields,
                                   MessageDescriptor original, std::int32_t encoding = kEncodingNormal);
/// The header alone, as the trace shows it in an item of its own.
Bytes ComposeTransmissionHeader(const TransmissionHeader& fields, Order order = Order::Big);

/// 48 bytes, then the records.
struct DistributionHeader {
  std::int32_t version = 1;
  std::int32_t flags = 0;
  std::uint32_t putMsgRecFields = 0;
  std::vector<ObjectRecord> objectRecords = {};
  std::vector<PutMessageRecord> putMessageRecords = {};
};
MessageBody WithDistributionHeader(const MessageBody& body, const DistributionHeader& fields,
                                   std::int32_t encoding = kEncodingNormal);

/// 108 bytes, then the four items; an empty item has offset 0.
struct ReferenceHeader {
  std::int32_t version = 1;
  std::int32_t flags = 1;
  std::string objectType = {};
  Bytes objectInstanceId = {};
  std::string sourceEnvironment = {};
  std::string sourceName = {};
  std::string destinationEnvironment = {};
  std::string destinationName = {};
  std::int32_t dataLogicalLength = 0;
  std::int32_t dataLogicalOffset = 0;
  std::int32_t dataLogicalOffset2 = 0;
};
MessageBody WithReferenceHeader(const MessageBody& body, const ReferenceHeader& fields,
                                std::int32_t encoding = kEncodingNormal);

/// 172 bytes.
struct DeadLetterHeader {
  std::int32_t version = 1;
  std::int32_t reason = 0;
  std::string destQName = {};
  std::string destQMgrName = {};
  std::int32_t putApplType = 6;
  std::string putApplName = {};
  std::string putDate = {};
  std::string putTime = {};
};
MessageBody WithDeadLetterHeader(const MessageBody& body, const DeadLetterHeader& fields,
                                 std::int32_t encoding = kEncodingNormal);

/// 72 bytes.
struct DescriptorExtension {
  std::int32_t version = 2;
  std::int32_t flags = 0;
  Bytes groupId = {};
  std::int32_t msgSeqNumber = 1;
  std::int32_t offset = 0;
  std::int32_t msgFlags = 0;
  std::int32_t originalLength = -1;
};
MessageBody WithDescriptorExtension(const MessageBody& body, const DescriptorExtension& fields,
                                    std::int32_t encoding = kEncodingNormal);

/// 32 bytes and a string of name/value pairs, filled with blanks to a multiple of 4.
struct RulesHeader1 {
  std::int32_t version = 1;
  std::int32_t flags = 0;
  std::string nameValueString = {};
};
MessageBody WithRulesHeader1(const MessageBody& body, const RulesHeader1& fields,
                             std::int32_t encoding = kEncodingNormal);

/// 36 bytes and folders, each filled with blanks to a multiple of 4.
struct RulesHeader2 {
  std::int32_t version = 2;
  std::int32_t flags = 0;
  std::int32_t nameValueCcsid = 1208;
  std::vector<std::string> folders = {};
};
MessageBody WithRulesHeader2(const MessageBody& body, const RulesHeader2& fields,
                             std::int32_t encoding = kEncodingNormal);

/// 684 bytes.
struct TriggerMessage {
  std::int32_t version = 1;
  std::string queueName = {};
  std::string processName = {};
  std::string triggerData = {};
  std::int32_t applType = 6;
  std::string applId = {};
  std::string envData = {};
  std::string userData = {};
};
MessageBody TriggerBody(const TriggerMessage& fields, std::int32_t encoding = kEncodingNormal);

}  // namespace quillon::compose
