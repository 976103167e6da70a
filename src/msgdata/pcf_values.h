// PCF values: the lines that show one integer or one string of a parameter.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "display/attribute_tables.h"

namespace quillon {

/// One integer with its name and, in parentheses, its description unless that is empty. Without a row
/// (nullptr) the integer has no name.
int ShowPcfIntegerValue(RunContext& runContext, std::int32_t value, const IntAttributeRow* row,
                        std::string_view description);

/// A description behind a value: a blank and the text in parentheses; nothing for an empty text. No line end.
int ShowPcfDescription(RunContext& runContext, std::string_view description);

/// One string: on one line when it is shorter than the run's maximum line length, else wrapped beneath the
/// field name.
int ShowPcfStringValue(RunContext& runContext, ByteView text);

}  // namespace quillon
