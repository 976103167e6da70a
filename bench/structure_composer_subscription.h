// Subscription, status, callback and control structures.
#pragma once

#include <cstdint>
#include <string>

#include "structure_composer_common.h"

namespace quillon::compose {

/// 312 bytes.
struct SubscriptionDescriptor {
  std::int32_t version = 1;
  std::uint32_t options = 0;
  std::string objectName = {};
  std::string alternateUserId = {};
  Bytes alternateSecurityId = {};
  std::int32_t subExpiry = -1;
  StringDescriptor objectString = {};
  StringDescriptor subName = {};
  StringDescriptor subUserData = {};
  Bytes subCorrelId = {};
  std::int32_t pubPriority = -3;
  Bytes pubAccountingToken = {};
  std::string pubApplIdentityData = {};
  StringDescriptor selectionString = {};
  std::int32_t subLevel = 1;
  StringDescriptor resObjectString = {};
};
Bytes ComposeSubscriptionDescriptor(const SubscriptionDescriptor& fields, const Layout& layout = {});

/// 16 bytes.
struct SubscriptionRequestOptions {
  std::int32_t version = 1;
  std::uint32_t options = 0;
  std::int32_t numPubs = 0;
};
Bytes ComposeSubscriptionRequestOptions(const SubscriptionRequestOptions& fields, const Layout& layout = {});

/// Version 1: 224 bytes, 2: 272.
struct StatusStructure {
  std::int32_t version = 2;
  std::int32_t compCode = 0;
  std::int32_t reason = 0;
  std::int32_t putSuccessCount = 0;
  std::int32_t putWarningCount = 0;
  std::int32_t putFailureCount = 0;
  std::int32_t objectType = 1;
  std::string objectName = {};
  std::string objectQMgrName = {};
  std::string resolvedObjectName = {};
  std::string resolvedQMgrName = {};
  StringDescriptor objectString = {};
  StringDescriptor subName = {};
  std::int32_t openOptions = 0;
  std::int32_t subOptions = 0;
};
Bytes ComposeStatusStructure(const StatusStructure& fields, const Layout& layout = {});

/// 156 bytes.
struct CallbackDescriptor {
  std::int32_t version = 1;
  std::uint32_t callbackType = 1;
  std::uint32_t options = 0;
  std::uint64_t callbackArea = 0;
  std::uint64_t callbackFunction = 0;
  std::string callbackName = {};
  std::int32_t maxMsgLength = -1;
};
Bytes ComposeCallbackDescriptor(const CallbackDescriptor& fields, const Layout& layout = {});

/// Version 1: 48 bytes, 2: 52.
struct CallbackContext {
  std::int32_t version = 2;
  std::int32_t callType = 6;
  std::uint32_t objectHandle = 0;
  std::uint64_t callbackArea = 0;
  std::uint64_t connectionArea = 0;
  std::int32_t compCode = 0;
  std::int32_t reason = 0;
  std::int32_t state = 0;
  std::int32_t dataLength = 0;
  std::int32_t bufferLength = 0;
  std::uint32_t flags = 0;
  std::int32_t reconnectDelay = 0;
};
Bytes ComposeCallbackContext(const CallbackContext& fields, const Layout& layout = {});

/// 20 bytes.
struct ControlOptions {
  std::int32_t version = 1;
  std::uint32_t options = 0;
  std::uint64_t connectionArea = 0;
};
Bytes ComposeControlOptions(const ControlOptions& fields, const Layout& layout = {});

}  // namespace quillon::compose
