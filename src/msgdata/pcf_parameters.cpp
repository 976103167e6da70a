#include "msgdata/pcf_parameters.h"

#include <algorithm>
#include <string_view>

#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/named_values.h"
#include "msgdata/pcf_values.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::string_view kValueName = "(parm) - Value";
constexpr std::string_view kLengthName = "(parm) - Length";
constexpr std::string_view kCountName = "(parm) - Count";
constexpr std::string_view kValueLengthName = "(parm) - ValueLength";
constexpr std::string_view kCcsidName = "(parm) - CodedCharSetId";

constexpr std::int64_t kIntegerWidth = 4;
constexpr std::int64_t kInteger64Width = 8;

constexpr std::int32_t kCodedCharSetId = 2;
constexpr std::int32_t kHeaderCompression = 1575;
constexpr std::int32_t kMessageCompression = 1576;

/// A cursor over the fields that follow the common ones. Its byte order is the message encoding's.
StructReader ReaderBehindPrefix(const RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderByEncoding(runContext, parameter.bytes, parameter.encoding);
  fields.Skip(kPcfParameterPrefixLength);
  return fields;
}

/// Whether the first `end` bytes of a parameter lie inside it and inside the message.
bool LiesInside(const PcfParameter& parameter, std::int64_t end) {
  return end <= parameter.bytes.Size() && end <= parameter.length;
}

/// The value of `length` bytes at `offset`; a negative length stands for no bytes. Only for a value that lies
/// inside.
ByteView ValueBytes(const PcfParameter& parameter, std::int64_t offset, std::int64_t length) {
  return parameter.bytes.Sub(offset, std::max<std::int64_t>(length, 0));
}
/// The same for a text: what is shown of it.
ByteView ValueText(const PcfParameter& parameter, std::int64_t offset, std::int64_t length) {
  return ValueBytes(parameter, offset, std::min(length, parameter.shown - offset));
}

/// How many of a list's `count` entries of `width` bytes are shown, once the list is known to lie inside.
/// Entries without bytes need no room: no more of them are shown than the parameter has bytes.
std::int64_t CalculateShownEntries(RunContext& runContext, const PcfParameter& parameter, std::int64_t start,
                                   std::int64_t count, std::int64_t width) {
  if (width < 1) return std::min({count, parameter.shown, std::int64_t{parameter.length}});
  const std::int64_t most = std::max<std::int64_t>(parameter.shown - start + width - 1, 0) / width;
  if (count > most) ReportTextLeftOut(runContext);
  return std::min(count, most);
}

void ShowCcsid(RunContext& runContext, std::int32_t ccsid) {
  ShowParsedCommonCcsid(runContext, kCcsidName, ccsid, true);
}

void ShowOperator(RunContext& runContext, std::int32_t filterOperator) {
  ShowFieldConstant(runContext, "(parm) - Operator", filterOperator, Constant_ZkAttrsZkcfop);
}

void ShowInteger(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  const std::int32_t value = fields.Int32();
  if (parameter.identifier == kCodedCharSetId)
    ShowParsedCommonCcsid(runContext, kValueName, value, true);
  else
    ShowPcfIntegerValue(runContext, value, parameter.row, "");
}

void ShowString(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  ShowCcsid(runContext, fields.Int32());
  const std::int64_t length = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kLengthName, static_cast<std::int32_t>(length));
  if (LiesInside(parameter, fields.Offset() + length))
    ShowPcfStringValue(runContext, ValueText(parameter, fields.Offset(), length));
}

bool IsCompressionList(std::int32_t identifier) {
  return identifier == kHeaderCompression || identifier == kMessageCompression;
}

void ShowCompressionEntry(RunContext& runContext, std::int32_t value, std::string_view description) {
  ShowParsedCompressInfo(runContext, kValueName, value, true, false);
  ShowPcfDescription(runContext, description);
  WriteTraceData(runContext, "\n");
}

void ShowIntegerList(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  const std::int32_t count = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kCountName, count);
  const std::int64_t start = fields.Offset();
  if (!LiesInside(parameter, start + kIntegerWidth * count)) return;
  const std::int64_t shown = CalculateShownEntries(runContext, parameter, start, count, kIntegerWidth);
  for (std::int32_t i = 0; i < shown; ++i) {
    const std::string_view description = SearchIntListEntryDescrption(runContext, parameter.identifier, i);
    if (IsCompressionList(parameter.identifier))
      ShowCompressionEntry(runContext, fields.Int32(), description);
    else
      ShowPcfIntegerValue(runContext, fields.Int32(), parameter.row, description);
  }
}

void ShowStringList(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  ShowCcsid(runContext, fields.Int32());
  const std::int64_t count = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kCountName, static_cast<std::int32_t>(count));
  const std::int64_t length = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kLengthName, static_cast<std::int32_t>(length));
  const std::int64_t start = fields.Offset();
  if (!LiesInside(parameter, start + length * count)) return;
  const std::int64_t shown = CalculateShownEntries(runContext, parameter, start, count, length);
  for (std::int64_t i = 0; i < shown; ++i)
    ShowPcfStringValue(runContext, ValueText(parameter, start + i * length, length));
}

void ShowByteString(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  const std::int64_t length = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, "(parm) - StringLength", static_cast<std::int32_t>(length));
  if (LiesInside(parameter, fields.Offset() + length))
    ShowParsedHexValueFormatSelect(runContext, "(parm) - String (hex)",
                                   ValueBytes(parameter, fields.Offset(), length));
}

void ShowIntegerFilter(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  ShowOperator(runContext, fields.Int32());
  ShowFieldValueZklongFixedLen(runContext, "(parm) - FilterValue", fields.Int32());
}

void ShowStringFilter(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  ShowOperator(runContext, fields.Int32());
  ShowCcsid(runContext, fields.Int32());
  const std::int64_t length = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kValueLengthName, static_cast<std::int32_t>(length));
  if (LiesInside(parameter, fields.Offset() + length))
    ShowPcfStringValue(runContext, ValueText(parameter, fields.Offset(), length));
}

void ShowByteStringFilter(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  ShowOperator(runContext, fields.Int32());
  const std::int64_t length = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kValueLengthName, static_cast<std::int32_t>(length));
  if (LiesInside(parameter, fields.Offset() + length))
    ShowParsedHexValueFormatSelect(runContext, "(parm) - FilterValue",
                                   ValueBytes(parameter, fields.Offset(), length));
}

void ShowGroup(RunContext& runContext, const PcfParameter& parameter) {
  ShowFieldValueZklongFixedLen(runContext, "(parm) - parm count", CalculatePcfGroupMembers(parameter));
}

void ShowInteger64At(RunContext& runContext, const PcfParameter& parameter, std::int64_t offset,
                     std::string_view description) {
  const std::uint64_t value =
      ZkInt64ValueRegardingEncoding(parameter.bytes.Word(offset, ByteOrder::Big),
                                    parameter.bytes.Word(offset + 4, ByteOrder::Big), parameter.encoding);
  ShowFieldValueZkInt64FixedLen(runContext, kValueName, static_cast<std::uint32_t>(value >> 32),
                                static_cast<std::uint32_t>(value), description);
}

void ShowInteger64(RunContext& runContext, const PcfParameter& parameter) {
  constexpr std::int64_t kValueOffset = 16;  // behind a reserved word
  ShowInteger64At(runContext, parameter, kValueOffset, "");
}

void ShowInteger64List(RunContext& runContext, const PcfParameter& parameter) {
  StructReader fields = ReaderBehindPrefix(runContext, parameter);
  const std::int32_t count = fields.Int32();
  ShowFieldValueZklongFixedLen(runContext, kCountName, count);
  const std::int64_t start = fields.Offset();
  if (!LiesInside(parameter, start + kInteger64Width * count)) return;
  const std::int64_t shown = CalculateShownEntries(runContext, parameter, start, count, kInteger64Width);
  for (std::int32_t i = 0; i < shown; ++i)
    ShowInteger64At(runContext, parameter, start + kInteger64Width * i,
                    SearchIntListEntryDescrption(runContext, parameter.identifier, i));
}

void ShowUnknownType(RunContext& runContext, const PcfParameter& parameter) {
  if (parameter.length <= kPcfParameterPrefixLength) return;
  ShowParsedHexValueFormatSelect(
      runContext, "(parm) - unknown (hex)",
      ValueBytes(parameter, kPcfParameterPrefixLength, parameter.length - kPcfParameterPrefixLength));
}

/// A parameter type. Its value is shown when the message holds `needed` bytes from the parameter's start on.
struct ParameterType {
  std::int32_t type;
  std::int64_t needed;
  void (*show)(RunContext& runContext, const PcfParameter& parameter);
};

// Kept: the bytes that the fixed values need are asked of the message, not of the parameter. A parameter that
// claims fewer bytes than its type has shows fixed values that belong to the next one.
constexpr ParameterType kParameterTypes[] = {
    {3, 16, ShowInteger},            // INTEGER
    {4, 20, ShowString},             // STRING
    {5, 16, ShowIntegerList},        // INTEGER_LIST
    {6, 24, ShowStringList},         // STRING_LIST
    {9, 16, ShowByteString},         // BYTE_STRING
    {13, 20, ShowIntegerFilter},     // INTEGER_FILTER
    {14, 24, ShowStringFilter},      // STRING_FILTER
    {15, 20, ShowByteStringFilter},  // BYTE_STRING_FILTER
    {kPcfTypeGroup, 16, ShowGroup},  // GROUP
    {23, 24, ShowInteger64},         // INTEGER64
    {25, 16, ShowInteger64List},     // INTEGER64_LIST
};

}  // namespace

PcfParameter ReadPcfParameter(RunContext& runContext, std::uint32_t encoding, ByteView bytes) {
  StructReader fields = ReaderByEncoding(runContext, bytes, encoding);
  PcfParameter parameter = {};
  parameter.bytes = bytes;
  parameter.shown = bytes.Size();
  parameter.encoding = encoding;
  parameter.order = fields.Order();
  parameter.type = fields.Int32();
  parameter.length = fields.Int32();
  parameter.identifier = fields.Int32();
  SearchZkAttributeTable(runContext, parameter.identifier, &parameter.name, &parameter.row, nullptr);
  return parameter;
}

void ShowPcfParameterValue(RunContext& runContext, const PcfParameter& parameter) {
  for (const ParameterType& type : kParameterTypes) {
    if (type.type != parameter.type) continue;
    if (parameter.bytes.Size() >= type.needed) type.show(runContext, parameter);
    return;
  }
  ShowUnknownType(runContext, parameter);
}

std::int32_t CalculatePcfGroupMembers(const PcfParameter& group) {
  constexpr std::int64_t kMembersOffset = kPcfParameterPrefixLength;
  if (group.bytes.Size() < kMembersOffset + 4) return 0;
  return group.bytes.Int32(kMembersOffset, group.order);
}

}  // namespace quillon
