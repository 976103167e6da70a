#include "display/attribute_tables.h"

#include "display/constants.h"
#include "display/table_index.h"

namespace quillon {
namespace {

constexpr bool IsBetween(std::int32_t value, std::int32_t first, std::int32_t last) {
  return value >= first && value <= last;
}

const ConstantRow* NameOnlyTable(std::int32_t identifier) {
  if (IsBetween(identifier, 7001, 7035)) return Constant_ZkAttrsZkbacf;
  if (IsBetween(identifier, 8001, 8014)) return Constant_ZkAttrsZkgacf;
  return Constant_ZkAttrsZkcacfcachcamo;
}

/// The row, or null for the end row.
template <typename Row>
const Row* NullForEndRow(const Row* row) {
  return RowKey(*row) == kEndOfTable ? nullptr : row;
}

template <typename Target>
void SetOutput(Target* output, Target value) {
  if (output != nullptr) *output = value;
}

/// The row's name and the row itself to the outputs that are wanted; 0, or -1 when there is no row.
template <typename Row>
int HandOut(const Row* row, const char** name, const Row** rowOutput) {
  if (row == nullptr) return -1;
  SetOutput(name, RowName(*row));
  SetOutput(rowOutput, row);
  return 0;
}

}  // namespace

int SearchZkAttributeTable(RunContext& /*runContext*/, std::int32_t identifier, const char** name,
                           const IntAttributeRow** intRow, const CharAttributeRow** charRow) {
  SetOutput(name, Constant_ZkAttrsZkcaUnknown->name);
  SetOutput(charRow, &Constant_ZkAttrsZkcaUnknown[0]);
  SetOutput(intRow, &Constant_ZkAttrsZkiaUnknown[0]);

  if (IsBetween(identifier, 1, 2000)) {
    return HandOut(NullForEndRow(FindRow(identifier, Constant_ZkAttrsZkia, Index_ZkAttrsZkia)), name, intRow);
  }
  if (IsBetween(identifier, 2001, 2124)) {
    return HandOut(NullForEndRow(FindRow(identifier, Constant_ZkAttrsZkca)), name, charRow);
  }
  const ConstantRow** const noRowOutput = nullptr;
  return HandOut(NullForEndRow(FindRow(identifier, NameOnlyTable(identifier))), name, noRowOutput);
}

const char* SearchIntListEntryDescrption(RunContext& /*runContext*/, std::int32_t parameter,
                                         std::int32_t position) {
  const IntListRow* row = FindRow(parameter, Constant_SelectorsForIntList);
  return row->positions == nullptr ? "" : SearchConstantInt(position, row->positions);
}

}  // namespace quillon
