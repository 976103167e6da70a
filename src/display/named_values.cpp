#include "display/named_values.h"

#include "display/fieldline.h"
#include "display/line_buffer.h"

namespace quillon {

int ShowFieldConstant(RunContext& runContext, std::string_view name, std::int32_t value,
                      const ConstantRow* table) {
  LineBuffer line(runContext);
  return line.AddNameColumn(name).Add(SearchConstantInt(value, table)).Add('\n').Flush();
}

int ShowFieldConstantOrNumber(RunContext& runContext, std::string_view name, std::int32_t value,
                              const ConstantRow* table) {
  const std::string_view text = SearchConstantInt(value, table);
  // A not-found text begins with a parenthesis; no name does. An empty text would hide the value.
  if (text.empty() || text.front() == '(') return ShowFieldValueZklong(runContext, name, value);
  return ShowFieldValueStringFixed(runContext, name, text);
}

int ShowFieldReason(RunContext& runContext, std::string_view name, std::int32_t reason) {
  if (reason == 0) return ShowFieldValueZklong(runContext, name, reason);
  // Kept: the text for an unknown reason has parentheses of its own, so its line shows two pairs.
  LineBuffer line(runContext);
  line.AddNameColumn(name).AddDecimal(reason).Add(" (").Add(SearchConstantReasonString(reason));
  return line.Add(")\n").Flush();
}

int ShowFieldEnumeration(RunContext& runContext, std::string_view name, std::int32_t value,
                         const ConstantRow* list, UnknownForm form, std::string_view unknownLabel) {
  if (const char* text = FindConstant(value, list)) {
    LineBuffer line(runContext);
    return line.AddNameColumn(name).Add(text).Add('\n').Flush();
  }
  ShowFieldName(runContext, name);
  // Kept: some structures write the name column a second time before the number; report readers rely on it.
  ShowFieldValueZklong(runContext, form == UnknownForm::NameTwice ? name : "", value);
  return ShowUnknownAttribute(runContext, unknownLabel, value);
}

}  // namespace quillon
