// TLS configuration options (ZKSCO).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "display/table_checks.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr ConstantRow kFipsRequired[] = {
    {0, "NO"},
    {1, "YES"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kFipsRequired, {2, 0, ""}));

// Kept: the label ends in two dots where its sisters end in three; the notice shows it so.
constexpr const char* kFipsRequiredLabel = "ZKSCO - ZKSSL_FIPS_..";

}  // namespace

int ShowParsedZksco(RunContext& runContext, ByteView structure) {
  StructReader sco = ReaderAsStored(runContext, structure);
  sco.Skip(4);  // structure id
  const std::int32_t version = sco.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueStringFixed(runContext, "KeyRepository", sco.Bytes(256));
  ShowFieldValueStringFixed(runContext, "CryptoHardware", sco.Bytes(256));
  int result = ShowFieldValueZklong(runContext, "AuthInfoRecCount", sco.Int32());
  // No version of this structure has a marker.
  if (version < 2) return result;

  sco.Skip(4);        // offset of the authentication-information records
  sco.SkipPointer();  // their address
  ShowFieldValueZklong(runContext, "KeyResetCount", sco.Int32());
  result = ShowFieldEnumeration(runContext, "FipsRequired", sco.Int32(), kFipsRequired,
                                UnknownForm::NumberOnly, kFipsRequiredLabel);
  if (version < 3) return result;

  ShowFieldValueZklong(runContext, "EncryptionPolicySuiteB[0]", sco.Int32());
  ShowFieldValueZklong(runContext, "EncryptionPolicySuiteB[1]", sco.Int32());
  ShowFieldValueZklong(runContext, "EncryptionPolicySuiteB[2]", sco.Int32());
  result = ShowFieldValueZklong(runContext, "EncryptionPolicySuiteB[3]", sco.Int32());
  if (version < 4) return result;

  result = ShowFieldConstant(runContext, "CertificateValPolicy", sco.Int32(), Constant_Zkcert);
  return result;
}

}  // namespace quillon
