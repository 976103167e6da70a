// Attribute tables: what is known of each attribute selector and PCF identifier, and their lookup.
#pragma once

#include <cstdint>

#include "display/tables/constant_row.h"

namespace quillon {

struct RunContext;

/// In the place of a value table: the value is a selector itself and is shown by that selector's name.
extern const ConstantRow ValueIsSelectorMarker[1];
inline constexpr const ConstantRow* kValueIsSelector = ValueIsSelectorMarker;

/// An integer attribute. `values` names its values; null: plain number; kValueIsSelector: see there.
struct IntAttributeRow {
  std::int32_t selector;
  const char* name;
  const ConstantRow* values;
};

/// A character attribute; `length` is the width of its value in bytes.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which a row reads
struct CharAttributeRow {
  std::int32_t selector;
  const char* name;
  std::int32_t length;
};

/// A PCF list of integers; `positions` has a text for each position in the list, counted from 0. `text` is
/// empty.
struct IntListRow {
  std::int32_t identifier;
  const char* text;
  const ConstantRow* positions;
};

constexpr std::int32_t RowKey(const IntAttributeRow& row) {
  return row.selector;
}
constexpr std::int32_t RowKey(const CharAttributeRow& row) {
  return row.selector;
}
constexpr std::int32_t RowKey(const IntListRow& row) {
  return row.identifier;
}
constexpr const char* RowName(const IntAttributeRow& row) {
  return row.name;
}
constexpr const char* RowName(const CharAttributeRow& row) {
  return row.name;
}

extern const IntAttributeRow Constant_ZkAttrsZkia[815];      ///< the end row counted
extern const IntAttributeRow Constant_ZkAttrsZkiaUnknown[];  ///< one row, for a selector that is not found
extern const CharAttributeRow Constant_ZkAttrsZkca[];
extern const CharAttributeRow Constant_ZkAttrsZkcaUnknown[];  ///< one row, for a selector that is not found
extern const ConstantRow Constant_ZkAttrsZkbacf[];            ///< byte strings
extern const ConstantRow Constant_ZkAttrsZkgacf[];            ///< groups
extern const ConstantRow Constant_ZkAttrsZkcacfcachcamo[];    ///< characters: commands, channels, monitoring
extern const IntListRow Constant_SelectorsForIntList[];

/// Looks a selector or PCF identifier up. Returns 0 when found, else -1; each output may be null. Outputs
/// that do not apply hold the unknown rows and "(Unknown value)", so that a caller can use them either way.
int SearchZkAttributeTable(RunContext& runContext, std::int32_t identifier, const char** name,
                           const IntAttributeRow** intRow, const CharAttributeRow** charRow);

/// Text for a position (from 0) in the list of this PCF identifier; empty when there is none, never null.
const char* SearchIntListEntryDescrption(RunContext& runContext, std::int32_t parameter,
                                         std::int32_t position);

}  // namespace quillon
