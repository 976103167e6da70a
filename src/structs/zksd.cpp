// Subscription descriptor (ZKSD).
#include <iterator>

#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/named_values.h"
#include "display/table_checks.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kOptionRows[] = {
    {0x00000001, "ALTER"},
    {0x00000002, "CREATE"},
    {0x00000004, "RESUME"},
    {0x00000008, "DURABLE"},
    {0x00000010, "GROUP_SUB"},
    {0x00000020, "MANAGED"},
    {0x00000040, "SET_IDENTITY_CONTEXT"},
    {0x00000080, "NO_MULTICAST"},
    {0x00000100, "FIXED_USERID"},
    {0x00000200, "ANY_USERID"},
    {0x00000800, "PUBLICATIONS_ON_REQUEST"},
    {0x00001000, "NEW_PUBLICATIONS_ONLY"},
    {0x00002000, "FAIL_IF_QUIESCING"},
    {0x00040000, "ALTERNATE_USER_AUTHORITY"},
    {0x00100000, "WILDCARD_CHAR"},
    {0x00200000, "WILDCARD_TOPIC"},
    {0x00400000, "SET_CORREL_ID"},
    {0x04000000, "SCOPE_QMGR"},
    {0x08000000, "NO_READ_AHEAD"},
    {0x10000000, "READ_AHEAD"},
};

constexpr std::uint32_t kKnownOptions = 0x1C743BFF;
constexpr FlagWord kOptions = {kOptionRows, std::size(kOptionRows), ~kKnownOptions, "ZKSD - Options"};
static_assert(EveryBitHasOneClass(kOptions));

constexpr ConstantRow kPubPriority[] = {
    {-1, "as queue definition"},
    {-2, "as parent"},
    {-3, "as published"},
    {kEndOfTable, "(Unknown value)"},
};
static_assert(CheckTable(kPubPriority, {3}));

}  // namespace

int ShowParsedZksd(RunContext& runContext, ByteView structure, const SubscriptionTexts& texts) {
  StructReader sd = ReaderAsStored(runContext, structure);
  sd.Skip(4);  // structure id
  // All fields are shown whatever the version says.
  ShowFieldValueZklong(runContext, "Version", sd.Int32());
  ShowFlagField(runContext, "Options", kOptions, sd.UInt32());
  ShowFieldValueStringFixed(runContext, "ObjectName", sd.Bytes(48));
  ShowFieldValueStringFixed(runContext, "AlternateUserId", sd.Bytes(12));
  ShowParsedHexValueSingleLine(runContext, "AlternateSecurityId", sd.Bytes(40));
  ShowFieldValueZklong(runContext, "SubExpiry", sd.Int32());
  ShowZKCHARV(runContext, "ObjectString", sd.Charv(), structure, texts.objectString);
  ShowZKCHARV(runContext, "SubName", sd.Charv(), structure, texts.subName);
  ShowZKCHARV(runContext, "SubUserData", sd.Charv(), structure, texts.subUserData);
  ShowParsedHexValueSingleLine(runContext, "SubCorrelId", sd.Bytes(24));
  ShowFieldConstantOrNumber(runContext, "PubPriority", sd.Int32(), kPubPriority);
  ShowParsedHexValueSingleLine(runContext, "PubAccountingToken", sd.Bytes(32));
  ShowFieldValueStringFixed(runContext, "PubApplIdentityData", sd.Bytes(32));
  ShowZKCHARV(runContext, "SelectionString", sd.Charv(), structure, texts.selectionString);
  ShowFieldValueZklong(runContext, "SubLevel", sd.Int32());
  return ShowZKCHARV(runContext, "ResObjectString", sd.Charv(), structure, texts.resObjectString);
}

}  // namespace quillon
