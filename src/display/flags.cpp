#include "display/flags.h"

#include <algorithm>
#include <string>

#include "base/format_name.h"
#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/line_buffer.h"
#include "display/named_values.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

bool RowHolds(const FlagRow& row, std::uint32_t value) {
  if (row.test == FlagTest::All) return (value & row.mask) == row.mask;
  return ((value & row.mask) != 0) == (row.test == FlagTest::Any);
}

template <std::size_t count>
consteval FlagWord MakeWord(const FlagRow (&rows)[count], std::uint32_t unknownBits, const char* unknownLabel,
                            const char* emptyText = "(none)") {
  return {rows, count, unknownBits, unknownLabel, emptyText};
}

// Kept: the rows do not stand in the order of their bits; report readers know the order of the names.
constexpr FlagRow kOpenOptions[] = {
    {0x1, "INPUT_AS_Q_DEF"},
    {0x2, "INPUT_SHARED"},
    {0x4, "INPUT_EXCLUSIVE"},
    {0x8, "BROWSE"},
    {0x10, "OUTPUT"},
    {0x20, "INQUIRE"},
    {0x40, "SET"},
    {0x4000, "BIND_ON_OPEN"},
    {0x8000, "BIND_NOT_FIXED"},
    {0x80, "SAVE_ALL_CONTEXT"},
    {0x100, "PASS_IDENTITY_CONTEXT"},
    {0x200, "PASS_ALL_CONTEXT"},
    {0x400, "SET_IDENTITY_CONTEXT"},
    {0x800, "SET_ALL_CONTEXT"},
    {0x1000, "ALTERNATE_USER_AUTHORITY"},
    {0x2000, "FAIL_IF_QUIESCING"},
    {0x10000, "RESOLVE_NAMES"},
    {0x40000, "RESOLVE_LOCAL_Q"},
    {0x80000, "NO_READ_AHEAD"},
    {0x100000, "READ_AHEAD"},
    {0x20000, "CO_OP"},
};
constexpr FlagWord kOpenOptionsWord = MakeWord(kOpenOptions, 0xFFE00000, "ZKOPEN - ZKOO_...");
static_assert(EveryBitHasOneClass(kOpenOptionsWord));

constexpr FlagRow kCloseOptions[] = {
    {0x1, "DELETE"}, {0x2, "DELETE_PURGE"}, {0x4, "KEEP_SUB"}, {0x8, "REMOVE_SUB"}, {0x20, "QUIESCE"},
};
constexpr FlagWord kCloseOptionsWord = MakeWord(kCloseOptions, ~0x2FU, "ZKCLOSE - ZKCO_...");
static_assert(EveryBitHasOneClass(kCloseOptionsWord));

constexpr FlagRow kMessageFlags[] = {
    {0x1, "SEGMENTATION_ALLOWED"}, {0x8, "MSG_IN_GROUP"}, {0x10, "LAST_MSG_IN_GROUP"}, {0x2, "SEGMENT"},
    {0x4, "LAST_SEGMENT"},
};
constexpr FlagWord kMessageFlagsWord = MakeWord(kMessageFlags, ~0x1FU, "ZKMD - ZKMF_...");
static_assert(EveryBitHasOneClass(kMessageFlagsWord));

// The reports that may carry data are groups of three bits, the widest pattern first. Kept: a group whose
// lowest bit is clear shows nothing.
constexpr FlagRow kReportOptions[] = {
    {0x7000000, "EXCEPTION_WITH_FULL_DATA", 1},
    {0x3000000, "EXCEPTION_WITH_DATA", 1},
    {0x1000000, "EXCEPTION", 1},
    {0xE00000, "EXPIRATION_WITH_FULL_DATA", 2},
    {0x600000, "EXPIRATION_WITH_DATA", 2},
    {0x200000, "EXPIRATION", 2},
    {0x700, "COA_WITH_FULL_DATA", 3},
    {0x300, "COA_WITH_DATA", 3},
    {0x100, "COA", 3},
    {0x3800, "COD_WITH_FULL_DATA", 4},
    {0x1800, "COD_WITH_DATA", 4},
    {0x800, "COD", 4},
    {0x1, "PAN"},
    {0x2, "NAN"},
    {0x4, "ACTIVITY"},
    {0x80, "PASS_MSG_ID"},
    {0x40, "PASS_CORREL_ID"},
    {0x8000000, "DISCARD_MSG"},
    {0x4000, "PASS_DISCARD_AND_EXPIRY"},
};
constexpr FlagWord kReportOptionsWord = MakeWord(kReportOptions, 0xF01F8038, "ZKMD - ZKRO_...");
static_assert(EveryBitHasOneClass(kReportOptionsWord));
static_assert(GroupsStandTogether(kReportOptionsWord));

constexpr FlagRow kReferenceHeaderFlags[] = {{0x1, "LAST"}};
constexpr FlagWord kReferenceHeaderFlagsWord = MakeWord(kReferenceHeaderFlags, ~0x1U, "ZKRMH - ZKRMHF_...");
static_assert(EveryBitHasOneClass(kReferenceHeaderFlagsWord));

constexpr FlagRow kDistributionHeaderFlags[] = {{0x1, "NEW_MSG_IDS"}};
constexpr FlagWord kDistributionHeaderFlagsWord =
    MakeWord(kDistributionHeaderFlags, ~0x1U, "ZKDH - ZKDHF_...");
static_assert(EveryBitHasOneClass(kDistributionHeaderFlagsWord));

constexpr FlagRow kPutMsgRecFields[] = {
    {0x1, "MSG_ID"}, {0x2, "CORREL_ID"}, {0x4, "GROUP_ID"}, {0x8, "FEEDBACK"}, {0x10, "ACCOUNTING_TOKEN"},
};
constexpr FlagWord kPutMsgRecFieldsWord = MakeWord(kPutMsgRecFields, ~0x1FU, "PutMsgRecFields");
static_assert(EveryBitHasOneClass(kPutMsgRecFieldsWord));

constexpr FlagRow kOperation[] = {
    {0x1, "START"},        {0x2, "START_WAIT"},  {0x4, "STOP"},       {0x100, "REGISTER"},
    {0x200, "DEREGISTER"}, {0x10000, "SUSPEND"}, {0x20000, "RESUME"},
};
constexpr FlagWord kOperationWord = MakeWord(kOperation, ~0x30307U, "ZKCB/ZKCTL - ZKOP_...");
static_assert(EveryBitHasOneClass(kOperationWord));

constexpr FlagRow kSubscriptionAction[] = {{0x1, "PUBLICATION"}};
constexpr FlagWord kSubscriptionActionWord = MakeWord(kSubscriptionAction, ~0x1U, "ZKSR_...");
static_assert(EveryBitHasOneClass(kSubscriptionActionWord));

constexpr FlagRow kXaFlags[] = {
    {0x80000000, "TMASYNC"},  {0x40000000, "TMONEPHASE"},  {0x20000000, "TMFAIL"},
    {0x10000000, "TMNOWAIT"}, {0x8000000, "TMRESUME"},     {0x4000000, "TMSUCCESS"},
    {0x2000000, "TMSUSPEND"}, {0x1000000, "TMSTARTRSCAN"}, {0x800000, "TMENDRSCAN"},
    {0x400000, "TMMULTIPLE"}, {0x200000, "TMJOIN"},        {0x100000, "TMMIGRATE"},
};
// Kept: the lower twenty bits are neither named nor reported; transaction managers set flags of their own
// there.
constexpr FlagWord kXaFlagsWord = MakeWord(kXaFlags, 0, "", "TMNOFLAGS");
static_assert(EveryBitHasOneClass(kXaFlagsWord, {.silent = 0x000FFFFF}));

// Kept: bits without a name are ignored, and a value that has no named bit shows an empty list.
constexpr FlagRow kCompression[] = {{0x1, "RLE"}, {0x2, "ZLIBFAST"}, {0x4, "ZLIBHIGH"}, {0x8, "SYSTEM"}};
constexpr FlagWord kCompressionWord = MakeWord(kCompression, 0, "", "");
static_assert(EveryBitHasOneClass(kCompressionWord, {.silent = ~0xFU}));

constexpr ConstantRow kCompressionWhole[] = {
    {-1, "not available"}, {0, "none"}, {0x0FFFFFFF, "any"}, {kEndOfTable, ""}};

constexpr ConstantRow kStatusTypes[] = {
    {0, "ASYNC_ERROR"}, {1, "RECONNECTION"}, {2, "RECONNECTION_ERROR"}, {kEndOfTable, ""}};

constexpr std::int64_t kObjectNameWidth = 48;
constexpr std::int64_t kObjectRecordSize = 2 * kObjectNameWidth;
constexpr std::int64_t kResponseRecordSize = 8;

// The names alone, without a line end.
int ShowNames(RunContext& runContext, const FlagWord& word, std::uint32_t value) {
  std::int32_t counter = 0;
  int groupWritten = 0;
  for (const FlagRow* row = word.rows; row != word.rows + word.rowCount; ++row) {
    if (!RowHolds(*row, value) || (row->group != 0 && row->group == groupWritten)) continue;
    ShowAttributeDescription(runContext, counter, row->name);
    groupWritten = row->group;
  }
  return counter > 0 ? 0 : WriteTraceData(runContext, word.emptyText);
}

int ShowUnknownBits(RunContext& runContext, const FlagWord& word, std::uint32_t value) {
  if ((value & word.unknownBits) == 0) return 0;
  return ShowUnknownAttribute(runContext, word.unknownLabel, static_cast<std::int32_t>(value));
}

// The two words of a message descriptor: their notice may be suppressed.
int ShowDescriptorFlags(RunContext& runContext, std::string_view fieldName, const FlagWord& word,
                        std::uint32_t value, NameMode mode) {
  if (mode == NameMode::NoName) return ShowFlagNames(runContext, word, value);
  ShowFieldName(runContext, fieldName);
  const int result = ShowFlagNames(runContext, word, value);
  return UnknownValuesAreReported(runContext) ? ShowUnknownBits(runContext, word, value) : result;
}

int ShowHeaderFlags(RunContext& runContext, const FlagWord& word, std::uint32_t value, NameMode mode) {
  if (mode == NameMode::WriteName) return ShowFlagField(runContext, "Flags", word, value);
  ShowFlagNames(runContext, word, value);
  return ShowUnknownBits(runContext, word, value);
}

}  // namespace

bool UnknownValuesAreReported(const RunContext& runContext) {
  const bool get = runContext.apiKind == kApiKindGet;
  const bool conversion = runContext.apiKind == kApiKindDataConvOnGet;
  if ((get || conversion) && runContext.apiPhase == kApiPhaseBefore) return false;
  return !(get && runContext.apiPhase == kApiPhaseAfter && runContext.compCode == kCompCodeFailed);
}

int ShowFlagNames(RunContext& runContext, const FlagWord& word, std::uint32_t value) {
  ShowNames(runContext, word, value);
  return WriteTraceData(runContext, "\n");
}

int ShowFlagField(RunContext& runContext, std::string_view fieldName, const FlagWord& word,
                  std::uint32_t value) {
  ShowFieldName(runContext, fieldName);
  ShowFlagNames(runContext, word, value);
  return ShowUnknownBits(runContext, word, value);
}

int ShowParsedZkoo(RunContext& runContext, std::uint32_t options) {
  return ShowFlagField(runContext, "Options", kOpenOptionsWord, options);
}

int ShowParsedZkco(RunContext& runContext, std::uint32_t options) {
  return ShowFlagField(runContext, "Options", kCloseOptionsWord, options);
}

int ShowParsedMsgFlags(RunContext& runContext, std::uint32_t flags, NameMode mode) {
  return ShowDescriptorFlags(runContext, "MsgFlags", kMessageFlagsWord, flags, mode);
}

int ShowParsedReportOptions(RunContext& runContext, std::uint32_t options, NameMode mode) {
  return ShowDescriptorFlags(runContext, "Report", kReportOptionsWord, options, mode);
}

int ShowParsedZkrmhFlags(RunContext& runContext, std::uint32_t flags, NameMode mode) {
  return ShowHeaderFlags(runContext, kReferenceHeaderFlagsWord, flags, mode);
}

int ShowParsedZkdhFlags(RunContext& runContext, std::uint32_t flags, NameMode mode) {
  return ShowHeaderFlags(runContext, kDistributionHeaderFlagsWord, flags, mode);
}

int ShowParsedZkpmrf(RunContext& runContext, std::uint32_t fields) {
  return ShowFlagField(runContext, "PutMsgRecFields", kPutMsgRecFieldsWord, fields);
}

int ShowParsedZkop(RunContext& runContext, std::uint32_t operation) {
  return ShowFlagField(runContext, "Operation", kOperationWord, operation);
}

int ShowParsedZksr(RunContext& runContext, std::uint32_t action) {
  return ShowFlagField(runContext, "Action", kSubscriptionActionWord, action);
}

int ShowParsedXaFlags(RunContext& runContext, std::uint32_t flags) {
  return ShowFlagField(runContext, "flags", kXaFlagsWord, flags);
}

std::int64_t RecordsInside(RunContext& runContext, ByteView data, std::int64_t count,
                           std::int64_t recordSize) {
  if (recordSize <= 0 || count <= 0) return 0;
  const std::int64_t inside = std::min(count, data.Size() / recordSize);
  return PayForText(runContext, data.Sub(0, inside * recordSize)) / recordSize;
}

int ShowParsedZkrr(RunContext& runContext, ByteView records, std::int32_t count) {
  const std::int64_t inside = RecordsInside(runContext, records, count, kResponseRecordSize);
  int result = 0;
  for (std::int64_t i = 0; i < inside; ++i) {
    StructReader record =
        ReaderOfRecords(runContext, records.Sub(i * kResponseRecordSize, kResponseRecordSize));
    ShowFieldValueZklong(runContext, "CompCode", record.Int32());
    const std::int32_t reason = record.Int32();
    // Before the call the records hold what the application left in them: a name would mislead.
    result = runContext.apiPhase == kApiPhaseBefore ? ShowFieldValueZklong(runContext, "Reason", reason)
                                                    : ShowFieldReason(runContext, "Reason", reason);
  }
  return result;
}

int ShowParsedZkor(RunContext& runContext, ByteView records, std::int32_t count) {
  const std::int64_t inside = RecordsInside(runContext, records, count, kObjectRecordSize);
  int result = 0;
  for (std::int64_t i = 0; i < inside; ++i) {
    StructReader record = ReaderOfRecords(runContext, records.Sub(i * kObjectRecordSize, kObjectRecordSize));
    ShowFieldValueStringFixed(runContext, "ObjectName", record.Bytes(kObjectNameWidth));
    result = ShowFieldValueStringFixed(runContext, "ObjectQMgrName", record.Bytes(kObjectNameWidth));
  }
  return result;
}

int ShowParsedCompressInfo(RunContext& runContext, std::string_view name, std::int32_t value, bool fixedWidth,
                           bool lineEnd) {
  LineBuffer line(runContext);
  line.AddFieldName(name).AddDecimal(value, fixedWidth ? 6 : 0).Add(" (").Flush();
  if (const char* whole = FindConstant(value, kCompressionWhole)) {
    WriteTraceData(runContext, whole);
  } else {
    ShowNames(runContext, kCompressionWord, static_cast<std::uint32_t>(value));
  }
  return WriteTraceData(runContext, lineEnd ? ")\n" : ")");
}

int ShowParsedMsgFormat(RunContext& runContext, ByteView format) {
  FormatName name = FormatNameOf(format);
  std::fill(std::find(name.begin(), name.end(), '\0'), name.end(), ' ');
  const MsgFormatRow* row = Constant_MsgFormat;
  while (row->name != nullptr && !(name == std::string_view(row->name))) ++row;

  std::string_view trimmed(name.data(), name.size());
  trimmed.remove_prefix(std::min(trimmed.find_first_not_of(' '), trimmed.size()));
  trimmed = trimmed.substr(0, trimmed.find_last_not_of(' ') + 1);
  std::string text(trimmed.empty() ? "(blank)" : trimmed);
  if (row->name != nullptr) text.append(" (").append(row->description).append(")");
  return ShowFieldValueStringFixed(runContext, "Format", text);
}

int ShowParsedZkstatType(RunContext& runContext, std::string_view name, std::int32_t value) {
  const char* text = FindConstant(value, kStatusTypes);
  // Kept: an unknown type has no line of its own, only the notice.
  if (text == nullptr) return ShowUnknownAttribute(runContext, "ZKSTAT_TYPE_...", value);
  return ShowFieldValueStringFixed(runContext, name, text);
}

}  // namespace quillon
