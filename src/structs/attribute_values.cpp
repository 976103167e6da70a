// Values of integer attributes: the attributes with a display of their own, and the value tables of all
// others.
#include "structs/attribute_values.h"

#include <cstddef>
#include <iterator>

#include "display/constants.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr FlagRow kAuthOptionRows[] = {
    {0x100, "CUMULATIVE"},       {0x1, "ENTITY_EXPLICIT"},   {0x2, "ENTITY_SET"},
    {0x20, "NAME_ALL_MATCHING"}, {0x40, "NAME_AS_WILDCARD"}, {0x10, "NAME_EXPLICIT"},
};
constexpr FlagWord kAuthOptions = {kAuthOptionRows, std::size(kAuthOptionRows), ~0x173U,
                                   "ZKIACF_AUTH_OPTIONS"};
static_assert(EveryBitHasOneClass(kAuthOptions));

constexpr FlagRow kRegistrationOptionRows[] = {
    {0x1, "CORREL_ID_AS_IDENTITY"},
    {0x2, "ANONYMOUS"},
    {0x4, "LOCAL"},
    {0x8, "DIRECT_REQUESTS"},
    {0x10, "NEW_PUBLICATION_ONLY"},
    {0x20, "PUBLISH_ON_REQUEST_ONLY"},
    {0x40, "DEREGISTER_ALL"},
    {0x80, "INCLUDE_STREAM_NAME"},
    {0x100, "INFORM_IF_RETAINED"},
    {0x200, "DUPLICATES_OK"},
    {0x400, "NON_PERSISTENT"},
    {0x800, "PERSISTENT"},
    {0x1000, "PERSISTENT_AS_PUBLISH"},
    {0x2000, "PERSISTENT_AS_Q"},
    {0x4000, "ADD_NAME"},
    {0x8000, "NO_ALTERATION"},
    {0x10000, "FULL_RESPONSE"},
    {0x20000, "JOIN_SHARED"},
    {0x40000, "JOIN_EXCLUSIVE"},
    {0x80000, "LEAVE_ONLY"},
    {0x100000, "VARIABLE_USER_ID"},
    {0x200000, "LOCKED"},
};
constexpr FlagWord kRegistrationOptions = {kRegistrationOptionRows, std::size(kRegistrationOptionRows),
                                           0xFFC00000U, "ZKIACF_REGISTRATION_OPTIONS"};
static_assert(EveryBitHasOneClass(kRegistrationOptions));

constexpr FlagRow kPublicationOptionRows[] = {
    {0x1, "CORREL_ID_AS_IDENTITY"}, {0x2, "RETAIN_PUBLICATION"},       {0x4, "OTHER_SUBSCRIBERS_ONLY"},
    {0x8, "NO_REGISTRATION"},       {0x10, "IS_RETAINED_PUBLICATION"},
};
constexpr FlagWord kPublicationOptions = {kPublicationOptionRows, std::size(kPublicationOptionRows),
                                          0xFFFFFFE0U, "ZKIACF_PUBLICATION_OPTIONS"};
static_assert(EveryBitHasOneClass(kPublicationOptions));

constexpr FlagRow kDeleteOptionRows[] = {{0x4, "LOCAL"}};
constexpr FlagWord kDeleteOptions = {kDeleteOptionRows, std::size(kDeleteOptionRows), ~0x4U,
                                     "ZKIACF_DELETE_OPTIONS"};
static_assert(EveryBitHasOneClass(kDeleteOptions));

/// The value as a number that continues the line.
int ShowNumber(RunContext& runContext, std::int32_t value, bool fixedWidth) {
  return fixedWidth ? ShowFieldValueZklongFixedLen(runContext, "", value, LineEnd::None)
                    : ShowFieldValueZklong(runContext, "", value, LineEnd::None);
}

int ShowInParentheses(RunContext& runContext, std::string_view text) {
  WriteTraceData(runContext, " (");
  WriteTraceData(runContext, text);
  return WriteTraceData(runContext, ")");
}

int ShowOptionWord(RunContext& runContext, const FlagWord& word, std::int32_t value) {
  const std::uint32_t flags = static_cast<std::uint32_t>(value);
  const int result = ShowFlagNames(runContext, word, flags);
  if ((flags & word.unknownBits) == 0) return result;
  return ShowUnknownAttribute(runContext, word.unknownLabel, value);
}

int ShowAuthOptions(RunContext& runContext, std::int32_t value, bool) {
  return ShowOptionWord(runContext, kAuthOptions, value);
}

int ShowRegistrationOptions(RunContext& runContext, std::int32_t value, bool) {
  return ShowOptionWord(runContext, kRegistrationOptions, value);
}

int ShowPublicationOptions(RunContext& runContext, std::int32_t value, bool) {
  return ShowOptionWord(runContext, kPublicationOptions, value);
}

int ShowDeleteOptions(RunContext& runContext, std::int32_t value, bool) {
  return ShowOptionWord(runContext, kDeleteOptions, value);
}

// Kept: the names of the report options and of the message flags bring their own line end, so the closing
// parenthesis stands alone on the next line, without the line marker.
int ShowReport(RunContext& runContext, std::int32_t value, bool) {
  Show4ByteIntegerInHex(runContext, static_cast<std::uint32_t>(value), false);
  WriteTraceData(runContext, " (");
  ShowParsedReportOptions(runContext, static_cast<std::uint32_t>(value), NameMode::NoName);
  return WriteTraceData(runContext, ")\n");
}

int ShowMsgFlags(RunContext& runContext, std::int32_t value, bool) {
  Show4ByteIntegerInHex(runContext, static_cast<std::uint32_t>(value), false);
  WriteTraceData(runContext, " (");
  ShowParsedMsgFlags(runContext, static_cast<std::uint32_t>(value), NameMode::NoName);
  return WriteTraceData(runContext, ")\n");
}

// Kept: the text for a value without a row brings its own parentheses, so they stand doubled.
int ShowNumberAndConstant(RunContext& runContext, std::int32_t value, bool fixedWidth,
                          const ConstantRow* table) {
  ShowNumber(runContext, value, fixedWidth);
  ShowInParentheses(runContext, SearchConstantInt(value, table));
  return WriteTraceData(runContext, "\n");
}

int ShowReason(RunContext& runContext, std::int32_t value, bool fixedWidth) {
  return ShowNumberAndConstant(runContext, value, fixedWidth, Constant_Zkrc);
}

int ShowCommand(RunContext& runContext, std::int32_t value, bool fixedWidth) {
  return ShowNumberAndConstant(runContext, value, fixedWidth, Constant_ZkAttrsPcfCommand);
}

// Kept: the encoding's line follows the number on the same line, with its own marker and field name.
int ShowEncoding(RunContext& runContext, std::int32_t value, bool fixedWidth) {
  ShowNumber(runContext, value, fixedWidth);
  WriteTraceData(runContext, " ");
  return ShowParsedEncodingValue(runContext, static_cast<std::uint32_t>(value));
}

/// An attribute with a display of its own.
struct OwnDisplay {
  std::int32_t selector;
  int (*show)(RunContext& runContext, std::int32_t value, bool fixedWidth);
};

constexpr OwnDisplay kOwnDisplays[] = {
    {1228, ShowAuthOptions},          // IACF_AUTH_OPTIONS
    {1255, ShowReport},               // IACF_REPORT
    {1247, ShowMsgFlags},             // IACF_MSG_FLAGS
    {1013, ShowReason},               // IACF_ERROR_ID
    {1072, ShowReason},               // IACF_CONV_REASON_CODE
    {1245, ShowReason},               // IACF_FEEDBACK
    {1021, ShowCommand},              // IACF_COMMAND
    {1243, ShowEncoding},             // IACF_ENCODING
    {1081, ShowRegistrationOptions},  // IACF_REGISTRATION_OPTIONS
    {1082, ShowPublicationOptions},   // IACF_PUBLICATION_OPTIONS
    {1092, ShowDeleteOptions},        // IACF_DELETE_OPTIONS
};

/// Name of the value: nullptr when the attribute's table (or, for a value that is itself a selector, the
/// attribute tables) does not have it.
const char* SearchValueName(RunContext& runContext, std::int32_t value, const IntAttributeRow& row) {
  if (row.values != kValueIsSelector) return FindConstant(value, row.values);
  const char* name = nullptr;
  return SearchZkAttributeTable(runContext, value, &name, nullptr, nullptr) == 0 ? name : nullptr;
}

void ShowNamedValue(RunContext& runContext, std::int32_t value, const IntAttributeRow& row, bool fixedWidth) {
  const char* name = SearchValueName(runContext, value, row);
  if (name == nullptr) {
    ShowNumber(runContext, value, fixedWidth);
    WriteTraceData(runContext, " (Unknown value)");
  } else if (fixedWidth) {
    ShowNumber(runContext, value, fixedWidth);
    ShowInParentheses(runContext, name);
  } else {
    WriteTraceData(runContext, name);
  }
}

}  // namespace

int SearchIntZkAttrValueAndSetString(RunContext& runContext, std::int32_t value, const IntAttributeRow& row,
                                     bool fixedWidth, std::string_view description) {
  for (const OwnDisplay& display : kOwnDisplays)
    if (display.selector == row.selector) return display.show(runContext, value, fixedWidth);

  if (row.values == nullptr)
    ShowNumber(runContext, value, fixedWidth);
  else
    ShowNamedValue(runContext, value, row, fixedWidth);
  if (!description.empty()) ShowInParentheses(runContext, description);
  return WriteTraceData(runContext, "\n");
}

}  // namespace quillon
