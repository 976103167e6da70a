// Put-message records (ZKPMR).
#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

/// A field that a record holds when the put options name it. Feedback is the one that is an integer.
struct RecordField {
  std::uint32_t bit;
  const char* name;
  std::int32_t width;
  bool isInteger;
};

/// In the order of the record, which is packed.
constexpr RecordField kRecordFields[] = {
    {0x01, "MsgId", 24, false},  {0x02, "CorrelId", 24, false},        {0x04, "GroupId", 24, false},
    {0x08, "Feedback", 4, true}, {0x10, "AccountingToken", 32, false},
};
constexpr std::uint32_t kUnknownFields = ~std::uint32_t{0x1F};

int ShowRecord(RunContext& runContext, StructReader& records, std::uint32_t fields) {
  int result = 0;
  for (const RecordField& field : kRecordFields) {
    if ((fields & field.bit) == 0) continue;
    result = field.isInteger
                 ? ShowFieldValueZklong(runContext, field.name, records.Int32())
                 : ShowParsedHexValueSingleLine(runContext, field.name, records.Bytes(field.width));
  }
  return result;
}

}  // namespace

std::int32_t CalculateZkpmrUnitLength(std::uint32_t fields) {
  std::int32_t length = 0;
  for (const RecordField& field : kRecordFields) {
    if ((fields & field.bit) != 0) length += field.width;
  }
  return length;
}

int ShowParsedZkpmr(RunContext& runContext, ByteView records, std::int32_t count, std::uint32_t fields) {
  StructReader reader = ReaderOfRecords(runContext, records);
  const std::int32_t unitLength = CalculateZkpmrUnitLength(fields);
  const std::int64_t present = unitLength > 0 ? RecordsInside(runContext, records, count, unitLength) : 0;
  int result = 0;
  for (std::int64_t i = 0; i < present; ++i) result = ShowRecord(runContext, reader, fields);
  if ((fields & kUnknownFields) != 0)
    result = ShowUnknownAttribute(runContext, "ZKPMRF_...", static_cast<std::int32_t>(fields));
  return result;
}

}  // namespace quillon
