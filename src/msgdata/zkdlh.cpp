// Dead-letter header (ZKDLH).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkdlhLength = 172;
constexpr std::int32_t kHighestVersion = 1;

}  // namespace

void ShowParsedZKDLH(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding, ByteView header,
                     std::int64_t offset) {
  header = CapParsedLength(runContext, header);
  if (header.Size() < kZkdlhLength) return;
  StructReader dlh = ReaderByEncoding(runContext, header, encoding);
  dlh.Skip(4);  // StrucId
  const std::int32_t version = dlh.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKDLH", version);
  ShowSectionTitle(runContext, offset, kZkdlhLength, "ZKDLH (Dead-letter header)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldReason(runContext, "Reason", dlh.Int32());
  ShowFieldValueStringFixed(runContext, "DestQName", dlh.Bytes(48));
  ShowFieldValueStringFixed(runContext, "DestQMgrName", dlh.Bytes(48));
  const FollowingData following = ShowFollowingData(runContext, dlh);
  ShowFieldConstantOrNumber(runContext, "PutApplType", dlh.Int32(), Constant_ApplType);
  ShowFieldValueStringFixed(runContext, "PutApplName", dlh.Bytes(28));
  ShowFieldValueStringFixed(runContext, "PutDate", dlh.Bytes(8));
  ShowFieldValueStringFixed(runContext, "PutTime", dlh.Bytes(8));
  HandOn(following, nextFormat, encoding);
}

}  // namespace quillon
