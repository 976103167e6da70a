// Message descriptor (ZKMD).
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/named_values.h"
#include "output/report_writer.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr ConstantRow kPersistence[] = {
    {0, "NOT_PERSISTENT"},
    {1, "PERSISTENT"},
    {2, "PERSISTENCE_AS_Q_DEF"},
    {kEndOfTable, ""},
};

// Kept: an unknown persistence shows the number and "(Unknown value)" on one line, unlike other enumerations;
// the line is written even where the notice is suppressed.
void ShowPersistence(RunContext& runContext, std::int32_t persistence) {
  ShowFieldName(runContext, "Persistence");
  if (const char* text = FindConstant(persistence, kPersistence)) {
    WriteTraceData(runContext, text);
    WriteTraceData(runContext, "\n");
    return;
  }
  ShowFieldValueZklong(runContext, "", persistence, LineEnd::None);
  WriteTraceData(runContext, " (Unknown value)\n");
  if (UnknownValuesAreReported(runContext)) ShowUnknownAttribute(runContext, "ZKMD - ZKPER_...", persistence);
}

}  // namespace

int ShowParsedZkmd(RunContext& runContext, ByteView structure) {
  StructReader md = ReaderByVersion(runContext, structure);
  md.Skip(4);  // structure id: the data name has already chosen the formatter
  const std::int32_t version = md.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  ShowParsedReportOptions(runContext, md.UInt32(), NameMode::WriteName);
  // Kept: the message type and the application type show a name alone, the feedback code shows its number
  // too.
  ShowFieldConstantOrNumber(runContext, "MsgType", md.Int32(), Constant_Zkmt);
  ShowFieldValueZklong(runContext, "Expiry", md.Int32());
  ShowFieldReason(runContext, "Feedback", md.Int32());
  ShowParsedEncodingValue(runContext, md.UInt32());
  ShowParsedCommonCcsid(runContext, "CodedCharSetId", md.Int32(), false);
  ShowParsedMsgFormat(runContext, md.Bytes(8));
  ShowFieldValueZklong(runContext, "Priority", md.Int32());
  ShowPersistence(runContext, md.Int32());
  ShowParsedHexValueSingleLine(runContext, "MsgId", md.Bytes(24));
  ShowParsedHexValueSingleLine(runContext, "CorrelId", md.Bytes(24));
  ShowFieldValueZklong(runContext, "BackoutCount", md.Int32());
  ShowFieldValueStringFixed(runContext, "ReplyToQ", md.Bytes(48));
  ShowFieldValueStringFixed(runContext, "ReplyToQMgr", md.Bytes(48));
  ShowFieldValueStringFixed(runContext, "UserIdentifier", md.Bytes(12));
  ShowParsedHexValueSingleLine(runContext, "AccountingToken", md.Bytes(32));
  ShowFieldValueStringFixed(runContext, "ApplIdentityData", md.Bytes(32));
  ShowFieldConstantOrNumber(runContext, "PutApplType", md.Int32(), Constant_ApplType);
  ShowFieldValueStringFixed(runContext, "PutApplName", md.Bytes(28));
  ShowFieldValueStringFixed(runContext, "PutDate", md.Bytes(8));
  ShowFieldValueStringFixed(runContext, "PutTime", md.Bytes(8));
  int result = ShowFieldValueStringFixed(runContext, "ApplOriginData", md.Bytes(4));
  if (version < 2) return result;

  ShowDataVersion(runContext, "MD", 2);
  ShowParsedHexValueSingleLine(runContext, "GroupId", md.Bytes(24));
  ShowFieldValueZklong(runContext, "MsgSeqNumber", md.Int32());
  ShowFieldValueZklong(runContext, "Offset", md.Int32());
  ShowParsedMsgFlags(runContext, md.UInt32(), NameMode::WriteName);
  result = ShowFieldValueZklong(runContext, "OriginalLength", md.Int32());
  return result;
}

}  // namespace quillon
