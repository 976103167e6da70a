// Named values: field lines whose value is looked up in a constant table.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/run_context.h"
#include "display/constants.h"

namespace quillon {

/// The name column, the table's text (its not-found text included) and a line end; nothing is reported.
int ShowFieldConstant(RunContext& runContext, std::string_view name, std::int32_t value,
                      const ConstantRow* table);

/// The table's name alone, or the number alone when the table has no row for it.
int ShowFieldConstantOrNumber(RunContext& runContext, std::string_view name, std::int32_t value,
                              const ConstantRow* table);

/// A reason or feedback code: 0 as a number; any other value with its name in parentheses.
int ShowFieldReason(RunContext& runContext, std::string_view name, std::int32_t reason);

/// How a value outside a fixed list is written.
enum class UnknownForm : std::uint8_t {
  NumberOnly,  ///< the name column, then the number
  NameTwice    ///< the name column twice, then the number
};

/// A value of a fixed list: the name column and the list's text. A value outside the list is written as
/// `form` says, followed by the notice with `unknownLabel`.
int ShowFieldEnumeration(RunContext& runContext, std::string_view name, std::int32_t value,
                         const ConstantRow* list, UnknownForm form, std::string_view unknownLabel);

}  // namespace quillon
