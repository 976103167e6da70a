// Authentication-information record (ZKAIR) and the user name that it points to.
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "display/table_checks.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr ConstantRow kAuthInfoType[] = {
    {1, "CRL_LDAP"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kAuthInfoType, {1, 0, ""}));

}  // namespace

int ShowParsedZkair(RunContext& runContext, ByteView structure) {
  StructReader air = ReaderAsStored(runContext, structure);
  air.Skip(4);  // structure id
  const std::int32_t version = air.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldEnumeration(runContext, "AuthInfoType", air.Int32(), kAuthInfoType, UnknownForm::NumberOnly,
                       "ZKAIR - ZKAIT_...");
  ShowFieldValueStringFixed(runContext, "AuthInfoConnName", air.Bytes(264));
  air.SkipPointer();  // address of the LDAP user name
  air.Skip(4);        // its offset
  air.Skip(4);        // its length
  int result = ShowFieldValueStringFixed(runContext, "LDAPPassword", air.Bytes(32));
  // Version 2 has no marker.
  if (version < 2) return result;

  result = ShowFieldValueStringFixed(runContext, "OCSPResponderURL", air.Bytes(256));
  return result;
}

int ShowParsedLDAPUserName(RunContext& runContext, ByteView data) {
  return ShowFieldValueStringFixed(runContext, "LDAPUserName", data);
}

}  // namespace quillon
