// The message catalogue: the only way to print progress and errors.
#pragma once

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/run_context.h"

namespace quillon {

/// Result code that stands for the current errno.
inline constexpr std::int32_t kResultFromErrno = -1;

/// One argument of a message: a string or a 32-bit integer, printed as its placeholder says.
struct MessageArgument {
  MessageArgument(std::string_view value) : text(value) {}
  MessageArgument(const char* value) : text(value) {}
  MessageArgument(const std::string& value) : text(value) {}
  MessageArgument(std::int32_t value) : number(value) {}
  MessageArgument(std::uint32_t value) : number(static_cast<std::int32_t>(value)) {}

  std::string_view text;
  std::int32_t number = 0;
};

/// The text that PutMessage prints for a code, with its line feed.
std::string FormatMessage(std::int32_t code, std::int32_t resultCode,
                          std::initializer_list<MessageArgument> arguments);

/// Prints one message on `terminal`; for the time before there is a run context.
void PutMessageTo(std::FILE* terminal, std::int32_t code, std::int32_t resultCode,
                  std::initializer_list<MessageArgument> arguments);

/// Prints one message: the catalogue's text for `code` with its placeholders filled from `arguments` in their
/// order. An argument that holds an integer where the text wants a string (or the reverse) is the caller's
/// fault and prints as empty or 0.
template <typename... Arguments>
void PutMessage(RunContext& runContext, std::int32_t code, std::int32_t resultCode,
                const Arguments&... arguments) {
  PutMessageTo(runContext.terminal, code, resultCode, {MessageArgument(arguments)...});
}

/// Index of the first occurrence of `pattern` in `text`, or -1.
int StringSearch(std::string_view text, std::string_view pattern);

/// Replaces the `oldLength` characters of `text` at `position` with `replacement`.
void StringReplace(std::string& text, std::size_t position, std::string_view replacement,
                   std::size_t oldLength);

}  // namespace quillon
