// Field lines: the exact text of every decoded line and of the hex dumps. Formatters never write layout of
// their own.
//
// Every function returns the status of its last write (0 or -1), which callers ignore. With an empty `name`
// the integers and the one-line hex values write no name column and continue the current line; all other
// values write an empty column. Lengths are in bytes; one of 0 or less shows no value.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "base/struct_reader.h"

namespace quillon {

/// Every decoded line begins with it.
inline constexpr std::string_view kLineMarker = "|> ";

/// "|> ", the name padded to 25 columns, ": ". No line end.
int ShowFieldName(RunContext& runContext, std::string_view name);

/// How many bytes of a text a display shows: all of them, unless the trace only claims more than the run may
/// still show. What is claimed of them is taken from the stock of the run (RunContext::claimedTextLeft), so
/// it is to be called once for each text that is shown. What is left out is told, but for zeros behind all
/// else.
std::int64_t PayForText(RunContext& runContext, ByteView text);
/// Tells by message 1, once in a run, that text was left out: a report that lacks some must not look whole.
void ReportTextLeftOut(RunContext& runContext);

/// One more name of a list: " / " before all but the first. Counts in `counter`.
int ShowAttributeDescription(RunContext& runContext, std::int32_t& counter, std::string_view text);

/// Whether a primitive ends its line.
enum class LineEnd : std::uint8_t { None, Write };

/// The value as a decimal number.
int ShowFieldValueZklong(RunContext& runContext, std::string_view name, std::int32_t value,
                         LineEnd lineEnd = LineEnd::Write);
/// The same, right-aligned in 6 columns.
int ShowFieldValueZklongFixedLen(RunContext& runContext, std::string_view name, std::int32_t value,
                                 LineEnd lineEnd = LineEnd::Write);
/// A 64-bit value right-aligned in 6 columns, then the description in parentheses unless it is empty.
int ShowFieldValueZkInt64FixedLen(RunContext& runContext, std::string_view name, std::uint32_t high,
                                  std::uint32_t low, std::string_view description);

/// What ShowParsedHexValueSingleLine writes beside the characters.
struct HexLineStyle {
  bool nullCheck = true;  ///< all-zero or empty data shows "(null)" and the line end
  bool showHex = true;
  bool lineEnd = true;
};

/// The bytes in hex and as characters on one line.
int ShowParsedHexValueSingleLine(RunContext& runContext, std::string_view name, ByteView data,
                                 HexLineStyle style = {});
/// The bytes as a hex dump beneath the name.
int ShowParsedHexValueMultipleLines(RunContext& runContext, std::string_view name, ByteView data,
                                    bool nullCheck = true);
/// Several lines when there are more than 32 bytes, else one.
int ShowParsedHexValueFormatSelect(RunContext& runContext, std::string_view name, ByteView data);

/// An object handle as four bytes in hex, the most significant first.
int ShowZKHOBJ(RunContext& runContext, std::string_view name, std::uint32_t handle);
/// A message handle in hex.
int ShowZKHMSG(RunContext& runContext, std::string_view name, MessageHandle handle);

/// A fixed-length text without its trailing blanks and line ends; bytes outside 0x20 to 0x7E show as ".".
int ShowFieldValueStringFixed(RunContext& runContext, std::string_view name, ByteView data);
/// The same for a text of the program's own.
int ShowFieldValueStringFixed(RunContext& runContext, std::string_view name, std::string_view text);

/// The marker line before the fields that a later version of a structure added.
int ShowDataVersion(RunContext& runContext, std::string_view label, std::int32_t version);

/// The title line of a variable part: its offset and length in decimal and hex, and its label.
int ShowParsedValueOffset(RunContext& runContext, std::uint32_t offset, std::uint32_t length,
                          std::string_view label);

/// Message 3101 and the three-line notice of a value that the program does not know; marks the run.
int ShowUnknownAttribute(RunContext& runContext, std::string_view attributeName, std::int32_t value);
/// Message 3100 and the three-line notice of an unknown structure version; marks the run.
int ShowUnknownStructureVersion(RunContext& runContext, std::string_view structureName, std::int32_t version);

/// "0x" and eight hex digits; with `zeroIsNull`, "(null)" for 0. No line end.
int Show4ByteIntegerInHex(RunContext& runContext, std::uint32_t value, bool zeroIsNull);
/// An address of the traced program, in the same form; with 16 digits on a 64-bit platform.
int ShowPointerInHex(RunContext& runContext, std::uint64_t address, bool zeroIsNull);

/// The hex dump of the data's declared bytes: 16 to a line, repeated lines folded. With `prefixed` every line
/// carries the marker and an indent. A name gives a header line (without prefix only).
int PutHexData(RunContext& runContext, std::string_view name, ByteView data, bool prefixed);
/// The same with the length that the header line tells.
int PutHexDataLen(RunContext& runContext, std::string_view name, ByteView data, bool prefixed,
                  std::int64_t shownLength);

/// Bytes of `text` up to its first NUL or its end.
std::string_view TextBeforeNul(std::string_view text);

}  // namespace quillon
