// Reference message header (ZKRMH) and the data that it points at.
#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkrmhLength = 108;
constexpr std::int32_t kHighestVersion = 1;

// One pointed-at item. The reader stands at its length; its offset follows, counted from the start of the
// header.
void ShowOneZKRMHData(RunContext& runContext, std::string_view label, StructReader& rmh) {
  const std::int64_t length = rmh.Int32();
  const std::int64_t itemOffset = rmh.Int32();
  if (length <= 0 || itemOffset <= 0) {
    ShowFieldName(runContext, label);
    WriteTraceData(runContext, "(none)\n");
  } else if (itemOffset + length > rmh.Structure().Size()) {
    ShowFieldName(runContext, label);
    WriteTraceData(runContext, " ...\n");
  } else {
    ShowParsedHexValueFormatSelect(runContext, label, rmh.Structure().Sub(itemOffset, length));
  }
}

}  // namespace

std::int64_t ShowParsedZKRMH(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                             ByteView header, std::int64_t offset) {
  header = CapParsedLength(runContext, header);
  if (header.Size() < kZkrmhLength) return 0;
  StructReader rmh = ReaderByEncoding(runContext, header, encoding);
  rmh.Skip(4);  // StrucId
  const std::int32_t version = rmh.Int32();
  const std::int32_t strucLength = rmh.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKRMH", version);
  ShowSectionTitle(runContext, offset, strucLength, "ZKRMH (Reference message header)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueZklong(runContext, "StrucLength", strucLength);
  const FollowingData following = ShowFollowingData(runContext, rmh);
  ShowParsedZkrmhFlags(runContext, rmh.UInt32(), NameMode::WriteName);
  ShowFieldValueStringFixed(runContext, "ObjectType", rmh.Bytes(8));
  ShowParsedHexValueSingleLine(runContext, "ObjectInstanceId", rmh.Bytes(24));
  ShowOneZKRMHData(runContext, "source environment data", rmh);
  ShowOneZKRMHData(runContext, "source object name", rmh);
  ShowOneZKRMHData(runContext, "dest environment data", rmh);
  ShowOneZKRMHData(runContext, "dest object name", rmh);
  ShowFieldValueZklong(runContext, "DataLogicalLength", rmh.Int32());
  ShowFieldValueZklong(runContext, "DataLogicalOffset", rmh.Int32());
  ShowFieldValueZklong(runContext, "DataLogicalOffset2", rmh.Int32());
  HandOn(following, nextFormat, encoding);
  return strucLength;
}

}  // namespace quillon
