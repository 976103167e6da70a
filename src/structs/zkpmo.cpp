// Put-message options (ZKPMO).
#include <iterator>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "structs/alias_line.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kOptions[] = {
    {0x00000002, "SYNCPOINT"},
    {0x00000004, "NO_SYNCPOINT"},
    {0x00000040, "NEW_MSG_ID"},
    {0x00000080, "NEW_CORREL_ID"},
    {0x00008000, "LOGICAL_ORDER"},
    {0x00004000, "NO_CONTEXT"},
    {0x00000020, "DEFAULT_CONTEXT"},
    {0x00000100, "PASS_IDENTITY_CONTEXT"},
    {0x00000200, "PASS_ALL_CONTEXT"},
    {0x00000400, "SET_IDENTITY_CONTEXT"},
    {0x00000800, "SET_ALL_CONTEXT"},
    {0x00001000, "ALTERNATE_USER_AUTHORITY"},
    {0x00002000, "FAIL_IF_QUIESCING"},
    {0x00040000, "RESOLVE_LOCAL_Q"},
    {0x00080000, "WARN_IF_NO_SUBS_MATCHED"},
    {0x00010000, "ASYNC_RESPONSE"},
    {0x00020000, "SYNC_RESPONSE"},
    {0x00200000, "RETAIN"},
    {0x00800000, "MD_FOR_OUTPUT_ONLY"},
    {0x04000000, "SCOPE_QMGR"},
    {0x08000000, "SUPPRESS_REPLYTO"},
    {0x10000000, "NOT_OWN_SUBS"},
};
constexpr FlagWord kOptionsWord = {kOptions, std::size(kOptions), ~std::uint32_t{0x1CAFFFE6},
                                   "ZKPMO - Options"};
static_assert(EveryBitHasOneClass(kOptionsWord));

// Kept: the action codes are tested as masks; 1 shows FORWARD and REPORT, 3 shows all three names.
constexpr FlagRow kActions[] = {
    {1, "FORWARD", 0, FlagTest::Any},
    {2, "REPLY", 0, FlagTest::Any},
    {3, "REPORT", 0, FlagTest::Any},
};
constexpr FlagWord kActionsWord = {kActions, std::size(kActions), ~std::uint32_t{3}, "ZKPMO - Action"};
static_assert(EveryBitHasOneClass(kActionsWord));

}  // namespace

int ShowParsedZkpmo(RunContext& runContext, ByteView structure) {
  StructReader pmo = ReaderByVersion(runContext, structure);
  pmo.Skip(4);  // structure id: the data name has already chosen the formatter
  const std::int32_t version = pmo.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFlagField(runContext, "Options", kOptionsWord, pmo.UInt32());
  ShowFieldValueZklong(runContext, "Timeout", pmo.Int32());
  ShowZKHOBJ(runContext, "Context", static_cast<std::uint32_t>(pmo.StoredInt32()));
  ShowFieldValueZklong(runContext, "KnownDestCount", pmo.Int32());
  ShowFieldValueZklong(runContext, "UnknownDestCount", pmo.Int32());
  ShowFieldValueZklong(runContext, "InvalidDestCount", pmo.Int32());
  const ByteView resolvedQName = pmo.Bytes(48);
  ShowFieldValueStringFixed(runContext, "ResolvedQName", resolvedQName);
  ShowAliasName(runContext, resolvedQName);
  int result = ShowFieldValueStringFixed(runContext, "ResolvedQMgrName", pmo.Bytes(48));
  if (version < 2) return result;

  ShowDataVersion(runContext, "PMO", 2);
  ShowFieldValueZklong(runContext, "RecsPresent", pmo.Int32());
  result = ShowParsedZkpmrf(runContext, pmo.UInt32());
  pmo.Skip(4 + 4);  // offsets of the put-message and response records, which have dumps of their own
  pmo.SkipPointer();
  pmo.SkipPointer();
  if (version < 3) return result;

  ShowDataVersion(runContext, "PMO", 3);
  ShowZKHMSG(runContext, "OriginalMsgHandle", pmo.StoredMessageHandle());
  ShowZKHMSG(runContext, "NewMsgHandle", pmo.StoredMessageHandle());
  ShowFlagField(runContext, "Action", kActionsWord, pmo.UInt32());
  return ShowFieldValueZklong(runContext, "PubLevel", pmo.Int32());
}

}  // namespace quillon
