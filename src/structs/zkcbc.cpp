// Callback context (ZKCBC).
#include <iterator>

#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/line_buffer.h"
#include "display/named_values.h"
#include "display/table_checks.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

// Kept: a call type or a state outside its list carries its label twice on one line; report readers rely on
// it.
constexpr ConstantRow kCallType[] = {
    {1, "START_CALL"}, {2, "STOP_CALL"},   {3, "REGISTER_CALL"},   {4, "DEREGISTER_CALL"},
    {5, "EVENT_CALL"}, {6, "MSG_REMOVED"}, {7, "MSG_NOT_REMOVED"}, {kEndOfTable, ""},
};
static_assert(CheckTable(kCallType, {7, 0, ""}));

constexpr ConstantRow kState[] = {
    {0, "NONE"},    {1, "SUSPENDED_TEMPORARY"}, {2, "SUSPENDED_USER_ACTION"}, {3, "SUSPENDED"},
    {4, "STOPPED"}, {kEndOfTable, ""},
};
static_assert(CheckTable(kState, {5, 0, ""}));

constexpr FlagRow kFlagRows[] = {
    {0x00000001, "READA_BUFFER_EMPTY"},
};

constexpr std::uint32_t kKnownFlags = 0x00000001;
constexpr FlagWord kFlags = {kFlagRows, std::size(kFlagRows), ~kKnownFlags, "ZKCBC - ZKCBCF_..."};
static_assert(EveryBitHasOneClass(kFlags));

// Kept: the object handle stands as eight hex digits without "0x", as no other handle or address does.
int ShowHobj(RunContext& runContext, std::uint32_t handle) {
  LineBuffer line(runContext);
  return line.AddNameColumn("Hobj").AddHex8(handle).Add('\n').Flush();
}

}  // namespace

int ShowParsedZkcbc(RunContext& runContext, ByteView structure) {
  StructReader cbc = ReaderAsStored(runContext, structure);
  cbc.Skip(4);  // structure id
  const std::int32_t version = cbc.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldEnumeration(runContext, "CallType", cbc.Int32(), kCallType, UnknownForm::NameTwice,
                       "ZKCBC - ZKCBCT_...");
  ShowHobj(runContext, cbc.UInt32());
  cbc.SkipPointer();  // callback area
  cbc.SkipPointer();  // connection area
  ShowFieldValueZklong(runContext, "CompCode", cbc.Int32());
  // Kept: the reason is a number alone here; the status structure names it.
  ShowFieldValueZklong(runContext, "Reason", cbc.Int32());
  ShowFieldEnumeration(runContext, "State", cbc.Int32(), kState, UnknownForm::NameTwice, "ZKCBC - ZKCS_...");
  ShowFieldValueZklong(runContext, "DataLength", cbc.Int32());
  ShowFieldValueZklong(runContext, "BufferLength", cbc.Int32());
  int result = ShowFlagField(runContext, "Flags", kFlags, cbc.UInt32());
  // Version 2 has no marker.
  if (version < 2) return result;

  result = ShowFieldValueZklong(runContext, "ReconnectDelay", cbc.Int32());
  return result;
}

}  // namespace quillon
