// PCF parameters: one parameter as it stands in a message, and the display of its value by type.
#pragma once

#include <cstdint>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "display/attribute_tables.h"

namespace quillon {

/// Bytes that every parameter begins with: Type, StrucLength and Parameter.
inline constexpr std::int64_t kPcfParameterPrefixLength = 12;

/// The type that opens a group; its members are parameters of their own that follow it.
inline constexpr std::int32_t kPcfTypeGroup = 20;

/// A parameter, read from its first byte on.
struct PcfParameter {
  ByteView bytes;      ///< from the parameter's first byte to the end of the message, not of the parameter
  std::int64_t shown;  ///< so many of its first bytes are shown: all, unless the trace only claims them
  std::uint32_t encoding;
  ByteOrder order;  ///< of the integers
  std::int32_t type;
  std::int32_t length;  ///< StrucLength: the whole parameter in bytes
  std::int32_t identifier;
  const char* name;            ///< of the identifier
  const IntAttributeRow* row;  ///< of the identifier; the unknown row when it is no integer attribute
};

/// The parameter at the start of the bytes, its identifier looked up.
PcfParameter ReadPcfParameter(RunContext& runContext, std::uint32_t encoding, ByteView bytes);

/// The lines of the parameter's value, after those of its type, length and identifier. A value that reaches
/// beyond the parameter or the message is not shown; the counts and lengths before it are.
void ShowPcfParameterValue(RunContext& runContext, const PcfParameter& parameter);

/// Members that a group announces; 0 when the message ends before the count.
std::int32_t CalculatePcfGroupMembers(const PcfParameter& group);

}  // namespace quillon
