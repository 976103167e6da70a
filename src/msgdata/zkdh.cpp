// Distribution header (ZKDH) with its object records and put-message records.
#include <algorithm>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkdhLength = 48;
constexpr std::int64_t kObjectRecordLength = 96;
constexpr std::int32_t kHighestVersion = 1;

/// Where a distribution header says that its records stand; offsets are counted from the header.
struct DistributionRecords {
  std::int32_t count;
  std::int32_t objectRecOffset;
  std::uint32_t putMsgRecFields;
  std::int32_t putMsgRecOffset;
};

// The object records, when the data covers `advance` bytes, which is raised to their end first.
void ShowObjectRecords(RunContext& runContext, ByteView header, std::int64_t offset,
                       const DistributionRecords& records, std::int64_t& advance) {
  if (records.objectRecOffset <= 0) return;
  const std::int64_t length = kObjectRecordLength * records.count;
  advance = std::max(advance, records.objectRecOffset + length);
  if (header.Size() < advance) return;
  ShowSectionTitle(runContext, offset + records.objectRecOffset, length, "ZKDH -> ZKOR (Object record)");
  ShowParsedZkor(runContext, header.Sub(records.objectRecOffset, length), records.count);
}

// The same for the put-message records. `advance` covers the object records by now, so these are shown only
// where the data holds both arrays.
void ShowPutMessageRecords(RunContext& runContext, ByteView header, std::int64_t offset,
                           const DistributionRecords& records, std::int64_t& advance) {
  const std::int64_t unitLength = CalculateZkpmrUnitLength(records.putMsgRecFields);
  if (records.putMsgRecOffset <= 0 || unitLength <= 0) return;
  const std::int64_t length = unitLength * records.count;
  advance = std::max(advance, records.putMsgRecOffset + length);
  if (header.Size() < advance) return;
  ShowSectionTitle(runContext, offset + records.putMsgRecOffset, length,
                   "ZKDH -> ZKPMR (Put message record)");
  ShowParsedZkpmr(runContext, header.Sub(records.putMsgRecOffset, length), records.count,
                  records.putMsgRecFields);
}

}  // namespace

std::int64_t ShowParsedZKDH(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                            ByteView header, std::int64_t offset) {
  header = CapParsedLength(runContext, header);
  if (header.Size() < kZkdhLength) return 0;
  StructReader dh = ReaderByEncoding(runContext, header, encoding);
  dh.Skip(4);  // StrucId
  const std::int32_t version = dh.Int32();
  const std::int32_t strucLength = dh.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKDH", version);
  ShowSectionTitle(runContext, offset, strucLength, "ZKDH (Distribution header)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueZklong(runContext, "StrucLength", strucLength);
  const FollowingData following = ShowFollowingData(runContext, dh);
  ShowParsedZkdhFlags(runContext, dh.UInt32(), NameMode::WriteName);
  DistributionRecords records;
  records.putMsgRecFields = dh.UInt32();
  ShowParsedZkpmrf(runContext, records.putMsgRecFields);
  records.count = dh.Int32();
  ShowFieldValueZklong(runContext, "RecsPresent", records.count);
  records.objectRecOffset = dh.Int32();
  records.putMsgRecOffset = dh.Int32();

  std::int64_t advance = strucLength;
  if (records.count > 0) {
    ShowObjectRecords(runContext, header, offset, records, advance);
    ShowPutMessageRecords(runContext, header, offset, records, advance);
  }
  HandOn(following, nextFormat, encoding);
  return advance;
}

}  // namespace quillon
