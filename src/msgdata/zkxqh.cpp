// Transmission-queue header (ZKXQH).
#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "msgdata/formatters.h"

namespace quillon {
namespace {

constexpr std::int32_t kHighestVersion = 1;

}  // namespace

void ShowParsedZkxqh(RunContext& runContext, ByteView header) {
  // No encoding governs this header: it may be the first of a body or a dump of its own.
  StructReader xqh = ReaderByVersion(runContext, header);
  xqh.Skip(4);  // StrucId
  const std::int32_t version = xqh.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKXQH", version);
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueStringFixed(runContext, "RemoteQName", xqh.Bytes(48));
  ShowFieldValueStringFixed(runContext, "RemoteQMgrName", xqh.Bytes(48));
}

}  // namespace quillon
