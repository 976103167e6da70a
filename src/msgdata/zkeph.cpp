// Embedded PCF header (ZKEPH): the 32 bytes of its own. The PCF header behind them is not shown here.
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkephLength = 68;  // the PCF header included
constexpr std::int32_t kHighestVersion = 1;

}  // namespace

void ShowParsedZKEPH(RunContext& runContext, std::uint32_t encoding, ByteView header, std::int64_t offset) {
  header = CapParsedLength(runContext, header);
  if (header.Size() < kZkephLength) return;
  StructReader eph = ReaderByEncoding(runContext, header, encoding);
  eph.Skip(4);  // StrucId
  const std::int32_t version = eph.Int32();
  if (version > kHighestVersion) ShowUnknownStructureVersion(runContext, "ZKEPH", version);
  // Kept: the title spans the rest of the data, the PCF message included.
  ShowSectionTitle(runContext, offset, header.Size(), "ZKEPH (Embedded PCF header)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueZklong(runContext, "StrucLength", eph.Int32());
  // Kept: these say what the PCF message is, but it is read in the encoding of the header itself.
  ShowFollowingData(runContext, eph);
  ShowFieldConstant(runContext, "Flags", eph.Int32(), Constant_EPH_Flags);
}

}  // namespace quillon
