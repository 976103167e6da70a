// Message descriptor extension (ZKMDE).
#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkmdeLength = 72;
constexpr std::int32_t kHighestVersion = 2;

}  // namespace

void ShowParsedZKMDE(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding, ByteView header,
                     std::int64_t offset) {
  header = CapParsedLength(runContext, header);
  if (header.Size() < kZkmdeLength) return;
  StructReader mde = ReaderByEncoding(runContext, header, encoding);
  mde.Skip(4);  // StrucId
  const std::int32_t version = mde.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKMDE", version);
  ShowSectionTitle(runContext, offset, kZkmdeLength, "ZKMDE (ZKMD extension)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueZklong(runContext, "StrucLength", mde.Int32());
  const FollowingData following = ShowFollowingData(runContext, mde);
  ShowFieldValueZklong(runContext, "Flags", mde.Int32());
  ShowParsedHexValueSingleLine(runContext, "GroupId", mde.Bytes(24));
  ShowFieldValueZklong(runContext, "MsgSeqNumber", mde.Int32());
  ShowFieldValueZklong(runContext, "Offset", mde.Int32());
  // Kept: the flags follow a name of this function's own, so unknown bits here give no notice.
  ShowFieldName(runContext, "MsgFlags");
  ShowParsedMsgFlags(runContext, mde.UInt32(), NameMode::NoName);
  ShowFieldValueZklong(runContext, "OriginalLength", mde.Int32());
  HandOn(following, nextFormat, encoding);
}

}  // namespace quillon
