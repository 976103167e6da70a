// Connection options (ZKCNO).
#include <iterator>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kOptionRows[] = {
    {0x00000001, "FASTPATH_BINDING"},         {0x00000100, "SHARED_BINDING"},
    {0x00000200, "ISOLATED_BINDING"},         {0x00000400, "LOCAL_BINDING"},
    {0x00000800, "CLIENT_BINDING"},           {0x00000F01, "STANDARD_BINDING", 0, FlagTest::None},
    {0x00000002, "SERIALIZE_CONN_TAG_Q_MGR"}, {0x00000004, "SERIALIZE_CONN_TAG_QSG"},
    {0x00000008, "RESTRICT_CONN_TAG_Q_MGR"},  {0x00000010, "RESTRICT_CONN_TAG_QSG"},
    {0x00000020, "HANDLE_SHARE_NONE"},        {0x00000040, "HANDLE_SHARE_BLOCK"},
    {0x00000080, "HANDLE_SHARE_NO_BLOCK"},    {0x00001000, "ACCOUNTING_ZKI_ENABLED"},
    {0x00002000, "ACCOUNTING_ZKI_DISABLED"},  {0x00004000, "ACCOUNTING_Q_ENABLED"},
    {0x00008000, "ACCOUNTING_Q_DISABLED"},    {0x00010000, "NO_CONV_SHARING"},
    {0x00040000, "ALL_CONVS_SHARE"},          {0x00080000, "CD_FOR_OUTPUT_ONLY"},
    {0x00100000, "USE_CD_SELECTION"},         {0x01000000, "RECONNECT"},
    {0x02000000, "RECONNECT_DISABLED"},       {0x04000000, "RECONNECT_Q_MGR"},
    {0x08000000, "ACTIVITY_TRACE_ENABLED"},   {0x10000000, "ACTIVITY_TRACE_DISABLED"},
};

// Kept: the four conversation-sharing and channel-definition bits are reported as unknown although they have
// names, so a report that shows them also shows the notice and the closing remark; report readers know it.
constexpr std::uint32_t kUnknownOptions = 0xE0FF0000;
constexpr std::uint32_t kNamedAndReported = 0x001D0000;

constexpr FlagWord kOptions = {kOptionRows, std::size(kOptionRows), kUnknownOptions, "ZKCNO - Options"};
static_assert(EveryBitHasOneClass(kOptions, {.namedAndReported = kNamedAndReported}));

}  // namespace

int ShowParsedZkcno(RunContext& runContext, ByteView structure) {
  StructReader cno = ReaderAsStored(runContext, structure);
  cno.Skip(4);  // structure id
  const std::int32_t version = cno.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  int result = ShowFlagField(runContext, "Options", kOptions, cno.UInt32());
  // Versions 2 and 4 added only offsets and addresses, which are not shown: they have no marker.
  if (version < 3) return result;

  cno.Skip(4);        // offset of the channel definition
  cno.SkipPointer();  // its address
  ShowDataVersion(runContext, "CNO", 3);
  result = ShowParsedHexValueMultipleLines(runContext, "ConnTag", cno.Bytes(128));
  if (version < 5) return result;

  // In a 64-bit layout the address stands first; in a 32-bit layout the two are equally wide.
  cno.SkipPointer();  // address of the TLS configuration options
  cno.Skip(4);        // their offset
  ShowDataVersion(runContext, "CNO", 5);
  result = ShowParsedHexValueSingleLine(runContext, "ConnectionId", cno.Bytes(24));
  // The offset and the address of the security parameters end the structure.
  return result;
}

}  // namespace quillon
