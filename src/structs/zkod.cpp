// Object descriptor (ZKOD).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

// Kept: these names differ in style from those of Constant_Zkot, which names ResolvedType; a report shows
// "Q_MGR" in the one line and "queue manager" in the other.
constexpr ConstantRow kObjectTypes[] = {
    {1, "QUEUE"},
    {2, "NAMELIST"},
    {3, "PROCESS"},
    {4, "STORAGE_CLASS"},
    {5, "Q_MGR"},
    {6, "CHANNEL"},
    {7, "AUTH_INFO"},
    {8, "TOPIC"},
    {10, "CF_STRUC"},
    {11, "LISTENER"},
    {12, "SERVICE"},
    {999, "RESERVED_1"},
    {1001, "ALL"},
    {1002, "ALIAS_QUEUE"},
    {1003, "MODEL_QUEUE"},
    {1004, "LOCAL_QUEUE"},
    {1005, "REMOTE_QUEUE"},
    {1007, "SENDER_CHANNEL"},
    {1008, "SERVER_CHANNEL"},
    {1009, "REQUESTER_CHANNEL"},
    {1010, "RECEIVER_CHANNEL"},
    {1011, "CURRENT_CHANNEL"},
    {1012, "SAVED_CHANNEL"},
    {1013, "SVRCONN_CHANNEL"},
    {1014, "CLNTCONN_CHANNEL"},
    {1015, "SHORT_CHANNEL"},
    {1016, "CHLAUTH"},
    {1017, "REMOTE_Q_MGR_NAME"},
    {1019, "PROT_POLICY"},
    {kEndOfTable, ""},
};
static_assert(sizeof kObjectTypes / sizeof kObjectTypes[0] == 29 + 1, "29 object types and the end");

}  // namespace

int ShowParsedZkod(RunContext& runContext, ByteView structure, const CharvText& objectString,
                   const CharvText& selectionString, const CharvText& resObjectString) {
  StructReader od = ReaderByVersion(runContext, structure);
  od.Skip(4);  // structure id: the data name has already chosen the formatter
  const std::int32_t version = od.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  // Kept: an object type outside the list carries the field name twice on its line, and is reported in every
  // phase of every call.
  ShowFieldEnumeration(runContext, "ObjectType", od.Int32(), kObjectTypes, UnknownForm::NameTwice,
                       "ZKOD - ZKOT_...");
  ShowFieldValueStringFixed(runContext, "ObjectName", od.Bytes(48));
  ShowFieldValueStringFixed(runContext, "ObjectQMgrName", od.Bytes(48));
  ShowFieldValueStringFixed(runContext, "DynamicQName", od.Bytes(48));
  int result = ShowFieldValueStringFixed(runContext, "AlternateUserId", od.Bytes(12));
  if (version < 2) return result;

  ShowDataVersion(runContext, "OD", 2);
  ShowFieldValueZklong(runContext, "RecsPresent", od.Int32());
  ShowFieldValueZklong(runContext, "KnownDestCount", od.Int32());
  ShowFieldValueZklong(runContext, "UnknownDestCount", od.Int32());
  result = ShowFieldValueZklong(runContext, "InvalidDestCount", od.Int32());
  od.Skip(4 + 4);  // offsets of the object and response records, which have dumps of their own
  od.SkipPointer();
  od.SkipPointer();
  if (version < 3) return result;

  ShowDataVersion(runContext, "OD", 3);
  ShowParsedHexValueSingleLine(runContext, "AlternateSecurityId", od.Bytes(40));
  ShowFieldValueStringFixed(runContext, "ResolvedQName", od.Bytes(48));
  result = ShowFieldValueStringFixed(runContext, "ResolvedQMgrName", od.Bytes(48));
  if (version < 4) return result;

  ShowDataVersion(runContext, "OD", 4);
  ShowZKCHARV(runContext, "ObjectString", od.Charv(), structure, objectString);
  ShowZKCHARV(runContext, "SelectionString", od.Charv(), structure, selectionString);
  ShowZKCHARV(runContext, "ResObjectString", od.Charv(), structure, resObjectString);
  // Kept: the resolved type is read as stored even in a structure of the other byte order, where every type
  // but 0 then reads as unknown. It is not reported.
  return ShowFieldConstant(runContext, "ResolvedType", od.StoredInt32(), Constant_Zkot);
}

}  // namespace quillon
