#include "msgdata/pcf_values.h"

#include "display/encoding.h"
#include "display/fieldline.h"
#include "output/report_writer.h"
#include "structs/attribute_values.h"

namespace quillon {
namespace {

constexpr std::string_view kValueName = "(parm) - Value";

/// Blanks before a wrapped line of a string.
constexpr std::int32_t kWrapIndent = 2;

int ShowValueText(RunContext& runContext, std::string_view line) {
  ShowFieldName(runContext, kValueName);
  return WriteTraceData(runContext, line);
}

std::int64_t CalculateLengthWithoutTrailingBlanks(ByteView text) {
  std::int64_t length = text.Size();
  while (length > 0 && text.At(length - 1) == ' ') --length;
  return length;
}

}  // namespace

int ShowPcfIntegerValue(RunContext& runContext, std::int32_t value, const IntAttributeRow* row,
                        std::string_view description) {
  if (row != nullptr) {
    ShowFieldName(runContext, kValueName);
    return SearchIntZkAttrValueAndSetString(runContext, value, *row, true, description);
  }
  ShowFieldValueZklongFixedLen(runContext, kValueName, value, LineEnd::None);
  ShowPcfDescription(runContext, description);
  return WriteTraceData(runContext, "\n");
}

int ShowPcfDescription(RunContext& runContext, std::string_view description) {
  if (description.empty()) return 0;
  WriteTraceData(runContext, " (");
  WriteTraceData(runContext, description);
  return WriteTraceData(runContext, ")");
}

int ShowPcfStringValue(RunContext& runContext, ByteView text) {
  if (text.Empty() || text.At(0) == 0) return ShowValueText(runContext, "(null)\n");
  const std::int64_t length = CalculateLengthWithoutTrailingBlanks(text);
  if (length == 0) return ShowValueText(runContext, "(blank)\n");
  const ByteView trimmed = text.Sub(0, length);
  if (runContext.maxXmlLineLength > length) return ShowFieldValueStringFixed(runContext, kValueName, trimmed);
  ShowValueText(runContext, "\n");
  return ShowTextStringDataRegardingMaximumLrecl(runContext, kWrapIndent, trimmed);
}

}  // namespace quillon
