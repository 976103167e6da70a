// The message catalogue: the only way to print progress and errors.
#include "driver/message_catalogue.h"

#include <sys/time.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <ctime>

#include "driver/message_table.h"

namespace quillon {
namespace {

constexpr char kUnknownMessage[] = "(Unknown message id)";

const char* SearchMessageText(std::int32_t code) {
  const MessageRow* row = MessageTableMonitorTool;
  while (*row->text != '\0' && row->code != code) ++row;
  return *row->text != '\0' ? row->text : kUnknownMessage;
}

/// Empty for a number that has no row.
const char* SearchSystemErrorText(std::int32_t number) {
  for (const SystemErrorRow& row : MessageTable)
    if (row.number == number) return row.text;
  return "";
}

/// Replaces the first occurrence of `pattern`; false when there is none.
bool ReplaceFirst(std::string& text, std::string_view pattern, std::string_view replacement) {
  const int position = StringSearch(text, pattern);
  if (position < 0) return false;
  StringReplace(text, static_cast<std::size_t>(position), replacement, pattern.size());
  return true;
}

/// The local time with microseconds: "2024/03/01 09:05:00.000123".
std::string CurrentTimeText() {
  timeval now = {};
  gettimeofday(&now, nullptr);
  const std::time_t seconds = now.tv_sec;
  std::tm local = {};
  if (localtime_r(&seconds, &local) == nullptr) local = {};
  char text[96];
  // Seven integers of any value fit, so that nothing is cut off.
  static_cast<void>(std::snprintf(text, sizeof text, "%04d/%02d/%02d %02d:%02d:%02d.%06d",
                                  local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                                  local.tm_min, local.tm_sec, static_cast<int>(now.tv_usec)));
  return text;
}

/// `kind` is the letter of the placeholder: s, d, u or x.
std::string ArgumentText(char kind, const MessageArgument& argument) {
  if (kind == 's') return std::string(argument.text);
  if (kind == 'd') return std::to_string(argument.number);
  const auto number = static_cast<std::uint32_t>(argument.number);
  if (kind == 'u') return std::to_string(number);
  char text[16];
  static_cast<void>(std::snprintf(text, sizeof text, "0x%08X", number));  // always ten characters
  return text;
}

/// Replaces the placeholder of argument `argumentNumber` (from 1); false when the text has none.
bool ReplaceArgument(std::string& text, int argumentNumber, const MessageArgument& argument) {
  for (const char kind : {'s', 'd', 'u', 'x'}) {
    const std::string placeholder = "[$" + std::to_string(argumentNumber) + kind + "]";
    const int position = StringSearch(text, placeholder);
    if (position < 0) continue;
    StringReplace(text, static_cast<std::size_t>(position), ArgumentText(kind, argument), placeholder.size());
    return true;
  }
  return false;
}

}  // namespace

int StringSearch(std::string_view text, std::string_view pattern) {
  const std::size_t position = text.find(pattern);
  return position > static_cast<std::size_t>(INT_MAX) ? -1 : static_cast<int>(position);
}

void StringReplace(std::string& text, std::size_t position, std::string_view replacement,
                   std::size_t oldLength) {
  text.replace(std::min(position, text.size()), oldLength, replacement);
}

std::string FormatMessage(std::int32_t code, std::int32_t resultCode,
                          std::initializer_list<MessageArgument> arguments) {
  const std::int32_t result = resultCode == kResultFromErrno ? errno : resultCode;
  std::string text = SearchMessageText(code);
  if (StringSearch(text, "[$t]") >= 0) ReplaceFirst(text, "[$t]", CurrentTimeText());
  ReplaceFirst(text, "[$0s]", SearchSystemErrorText(result));
  ReplaceFirst(text, "[$0d]", std::to_string(result));
  // Kept: each search starts at the front of the whole text, so a placeholder inside an inserted argument
  // (a file name "a[$2s]") receives the next argument in place of the message's own one.
  int argumentNumber = 1;
  for (const MessageArgument& argument : arguments)
    if (!ReplaceArgument(text, argumentNumber++, argument)) break;
  return text += '\n';
}

void PutMessageTo(std::FILE* terminal, std::int32_t code, std::int32_t resultCode,
                  std::initializer_list<MessageArgument> arguments) {
  if (terminal == nullptr) return;
  const std::string text = FormatMessage(code, resultCode, arguments);
  // A terminal that takes no more text does not stop the run; the report does not depend on it.
  static_cast<void>(std::fwrite(text.data(), 1, text.size(), terminal));
}

}  // namespace quillon
