// Values of integer attributes: named by the attribute's value table or by a display of their own.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/run_context.h"
#include "display/attribute_tables.h"

namespace quillon {

/// Writes the value part of a line whose field name the caller has written, and ends the line. `fixedWidth`
/// shows the number beside its name. The description follows in parentheses unless it is empty or the
/// attribute has a display of its own.
int SearchIntZkAttrValueAndSetString(RunContext& runContext, std::int32_t value, const IntAttributeRow& row,
                                     bool fixedWidth, std::string_view description);

}  // namespace quillon
