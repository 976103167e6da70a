// Security parameters (ZKCSP).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/named_values.h"
#include "display/table_checks.h"
#include "output/report_writer.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr ConstantRow kAuthenticationType[] = {
    {0, "NONE"},
    {1, "USER_ID_AND_PWD"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kAuthenticationType, {2, 0, ""}));

/// Where the user id or the password is: an address in the traced program, or an offset from the structure's
/// start. The length is in bytes.
struct SecurityText {
  std::uint64_t address;
  std::int32_t offset;
  std::int32_t length;
};

SecurityText ReadSecurityText(StructReader& csp) {
  SecurityText text;
  text.address = csp.Pointer();
  text.offset = csp.Int32();
  text.length = csp.Int32();
  return text;
}

/// Whether there is a text to show: it has a length, and an address or an offset.
bool IsGiven(const SecurityText& text) {
  return text.length > 0 && (text.address != 0 || text.offset != 0);
}

bool LiesInside(ByteView structure, const SecurityText& text) {
  const std::int64_t end = std::int64_t{text.offset} + text.length;
  return text.offset > 0 && end <= structure.Size();
}

/// Shows the text in its full length, which is the application's and may claim anything: bytes outside the
/// dump show as zeros. The address is never followed; it is shown when the dump does not hold the whole text.
int ShowSecurityText(RunContext& runContext, std::string_view name, ByteView structure,
                     const SecurityText& text) {
  if (text.address != 0 && !LiesInside(structure, text)) {
    ShowFieldName(runContext, name);
    ShowPointerInHex(runContext, text.address, true);
    return WriteTraceData(runContext, "\n");
  }
  return ShowParsedHexValueFormatSelect(runContext, name, structure.Field(text.offset, text.length));
}

}  // namespace

int ShowParsedZkcsp(RunContext& runContext, ByteView structure) {
  StructReader csp = ReaderAsStored(runContext, structure);
  csp.Skip(4);  // structure id
  // Kept: the version is not shown, although all other structures show theirs.
  csp.Skip(4);
  int result = ShowFieldEnumeration(runContext, "AuthenticationType", csp.Int32(), kAuthenticationType,
                                    UnknownForm::NumberOnly, "ZKCSP - ZKCSP_AUTH_...");
  csp.Skip(4);  // reserved
  const SecurityText userId = ReadSecurityText(csp);
  if (IsGiven(userId)) result = ShowSecurityText(runContext, "CSPUserId", structure, userId);
  csp.Skip(8);  // reserved
  const SecurityText password = ReadSecurityText(csp);
  if (IsGiven(password)) result = ShowSecurityText(runContext, "CSPPassword", structure, password);
  return result;
}

}  // namespace quillon
