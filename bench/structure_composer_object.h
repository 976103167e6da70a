// Object descriptor, object records and response records.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "structure_composer_common.h"

namespace quillon::compose {

/// Version 1: 168 bytes, 2: 200, 3: 336, 4: 400.
struct ObjectDescriptor {
  std::int32_t version = 4;
  std::int32_t objectType = 1;
  std::string objectName = {};
  std::string objectQMgrName = {};
  std::string dynamicQName = {};
  std::string alternateUserId = {};
  std::int32_t recsPresent = 0;
  std::int32_t knownDestCount = 0;
  std::int32_t unknownDestCount = 0;
  std::int32_t invalidDestCount = 0;
  std::int32_t objectRecOffset = 0;
  std::int32_t responseRecOffset = 0;
  std::uint64_t objectRecAddress = 0;
  std::uint64_t responseRecAddress = 0;
  Bytes alternateSecurityId = {};
  std::string resolvedQName = {};
  std::string resolvedQMgrName = {};
  StringDescriptor objectString = {};
  StringDescriptor selectionString = {};
  StringDescriptor resObjectString = {};
  std::int32_t resolvedType = 0;
};
Bytes ComposeObjectDescriptor(const ObjectDescriptor& fields, const Layout& layout = {});

struct ObjectRecord {
  std::string objectName = {};
  std::string objectQMgrName = {};
};
/// 96 bytes to a record.
Bytes ComposeObjectRecords(const std::vector<ObjectRecord>& records);

struct ResponseRecord {
  std::int32_t compCode = 0;
  std::int32_t reason = 0;
};
/// 8 bytes to a record.
Bytes ComposeResponseRecords(const std::vector<ResponseRecord>& records, const Layout& layout = {});

}  // namespace quillon::compose
