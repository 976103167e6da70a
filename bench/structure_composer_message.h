// Message descriptor, get options, put options and put-message records.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "structure_composer_common.h"

namespace quillon::compose {

// A structure's version decides how far it is written; a version above the highest known one writes all
// fields, one below 1 writes those of version 1. The value itself is written as given.

/// Version 1: 324 bytes, 2: 364.
struct MessageDescriptor {
  std::int32_t version = 2;
  std::int32_t report = 0;
  std::int32_t msgType = 8;
  std::int32_t expiry = -1;
  std::int32_t feedback = 0;
  std::int32_t encoding = 273;
  std::int32_t codedCharSetId = 819;
  std::string format = {};
  std::int32_t priority = 0;
  std::int32_t persistence = 0;
  Bytes msgId = {};
  Bytes correlId = {};
  std::int32_t backoutCount = 0;
  std::string replyToQ = {};
  std::string replyToQMgr = {};
  std::string userIdentifier = {};
  Bytes accountingToken = {};
  std::string applIdentityData = {};
  std::int32_t putApplType = 0;
  std::string putApplName = {};
  std::string putDate = {};
  std::string putTime = {};
  std::string applOriginData = {};
  Bytes groupId = {};
  std::int32_t msgSeqNumber = 1;
  std::int32_t offset = 0;
  std::int32_t msgFlags = 0;
  std::int32_t originalLength = -1;
};
Bytes ComposeMessageDescriptor(const MessageDescriptor& fields, const Layout& layout = {});

/// Version 1: 72 bytes, 2: 80, 3: 100, 4: 112.
struct GetOptions {
  std::int32_t version = 4;
  std::uint32_t options = 0;
  std::int32_t waitInterval = 0;
  std::int32_t signal1 = 0;
  std::int32_t signal2 = 0;
  std::string resolvedQName = {};
  std::uint32_t matchOptions = 3;
  char groupStatus = ' ';
  char segmentStatus = ' ';
  char segmentation = ' ';
  char reserved1 = ' ';
  Bytes msgToken = {};
  std::int32_t returnedLength = -1;
  std::int32_t reserved2 = 0;
  HandlePair msgHandle = {};
};
Bytes ComposeGetOptions(const GetOptions& fields, const Layout& layout = {});

/// Version 1: 128 bytes, 2: 152, 3: 176.
struct PutOptions {
  std::int32_t version = 2;
  std::uint32_t options = 0;
  std::int32_t timeout = -1;
  std::uint32_t context = 0;
  std::int32_t knownDestCount = 0;
  std::int32_t unknownDestCount = 0;
  std::int32_t invalidDestCount = 0;
  std::string resolvedQName = {};
  std::string resolvedQMgrName = {};
  std::int32_t recsPresent = 0;
  std::uint32_t putMsgRecFields = 0;
  std::int32_t putMsgRecOffset = 0;
  std::int32_t responseRecOffset = 0;
  std::uint64_t putMsgRecAddress = 0;
  std::uint64_t responseRecAddress = 0;
  HandlePair originalMsgHandle = {};
  HandlePair newMsgHandle = {};
  std::int32_t action = 0;
  std::int32_t pubLevel = 9;
};
Bytes ComposePutOptions(const PutOptions& fields, const Layout& layout = {});

/// Bits of `putMsgRecFields`: which fields a put-message record holds.
inline constexpr std::uint32_t kRecordMsgId = 0x1;
inline constexpr std::uint32_t kRecordCorrelId = 0x2;
inline constexpr std::uint32_t kRecordGroupId = 0x4;
inline constexpr std::uint32_t kRecordFeedback = 0x8;
inline constexpr std::uint32_t kRecordAccountingToken = 0x10;

struct PutMessageRecord {
  Bytes msgId = {};
  Bytes correlId = {};
  Bytes groupId = {};
  std::int32_t feedback = 0;
  Bytes accountingToken = {};
};
/// The records back to back, each with the fields whose bits are set.
Bytes ComposePutMessageRecords(const std::vector<PutMessageRecord>& records, std::uint32_t fields,
                               const Layout& layout = {});

}  // namespace quillon::compose
