#include "display/constants.h"
#include "display/table_checks.h"

namespace quillon {

// Kept: "descrptor" is misspelled, and the second row of "ZKHRF   " is never found.
// clang-format off
constexpr MsgFormatRow Constant_MsgFormat[] = {
    {"ZKADMIN ", "PCF - Administration"},
    {"ZKDEAD  ", "Dead letter header"},
    {"ZKHDIST ", "Distribution header"},
    {"ZKHEPCF ", "Embedded programmable command format"},
    {"ZKEVENT ", "Event"},
    {"ZKHMDE  ", "Message descrptor extension"},
    {"ZKPCF   ", "Programmable command format"},
    {"ZKHREF  ", "Reference message header"},
    {"ZKHRF   ", "Rules and formatting header"},
    {"ZKHRF   ", "Rules and formatting header"},
    {"ZKHRF2  ", "Rules and formatting header 2"},
    {"ZKSTR   ", "String"},
    {"ZKTRIG  ", "Trigger message"},
    {"ZKXMIT  ", "Transmission queue header"},
    {nullptr, ""},
};
// clang-format on
static_assert(CheckFormatTable(Constant_MsgFormat, {.rows = 14, .shadowedRows = 1, .endText = ""}));
static_assert(DescriptionOf("ZKADMIN ", Constant_MsgFormat) == "PCF - Administration");
static_assert(DescriptionOf("ZKHMDE  ", Constant_MsgFormat) == "Message descrptor extension");
static_assert(DescriptionOf("ZKHRF   ", Constant_MsgFormat) == "Rules and formatting header");
static_assert(DescriptionOf("ZKXMIT  ", Constant_MsgFormat) == "Transmission queue header");

}  // namespace quillon
