// Trigger message (ZKTM).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"

namespace quillon {
namespace {

constexpr std::int64_t kZktmLength = 684;
constexpr std::int32_t kHighestVersion = 1;

}  // namespace

void ShowParsedZKTM(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset) {
  data = CapParsedLength(runContext, data);
  if (data.Size() < kZktmLength) return;
  StructReader tm = ReaderByEncoding(runContext, data, encoding);
  tm.Skip(4);  // StrucId
  const std::int32_t version = tm.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKTM", version);
  // Kept: the title spans the rest of the data, not the structure's length: a trigger message is the body.
  ShowSectionTitle(runContext, offset, data.Size(), "ZKTM (Trigger message)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueStringFixed(runContext, "QName", tm.Bytes(48));
  ShowFieldValueStringFixed(runContext, "ProcessName", tm.Bytes(48));
  ShowFieldValueStringFixed(runContext, "TriggerData", tm.Bytes(64));
  // Kept: an unknown application type shows "(Unknown value)" here, but its number in a dead-letter header.
  ShowFieldConstant(runContext, "ApplType", tm.Int32(), Constant_ApplType);
  ShowFieldValueStringFixed(runContext, "ApplId", tm.Bytes(256));
  ShowFieldValueStringFixed(runContext, "EnvData", tm.Bytes(128));
  ShowFieldValueStringFixed(runContext, "UserData", tm.Bytes(128));
}

}  // namespace quillon
