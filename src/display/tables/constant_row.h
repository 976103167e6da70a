// The shape that the constant tables share: a value and its name, rows in published order, an end row last.
#pragma once

#include <cstdint>

namespace quillon {

/// Key of the row that ends a table. A search for this value finds the end row like any value without a row.
inline constexpr std::int32_t kEndOfTable = -987;

/// One row. In the end row the name is the text for a value without a row; it is never null, and it is empty
/// in the tables of list positions only. Rows are not sorted and values may repeat: the first row wins.
struct ConstantRow {
  std::int32_t value;
  const char* name;
};

constexpr std::int32_t RowKey(const ConstantRow& row) {
  return row.value;
}
constexpr const char* RowName(const ConstantRow& row) {
  return row.name;
}

/// The first row with this key, else the end row. Never null; `table` must have an end row.
template <typename Row>
constexpr const Row* FindRow(std::int32_t key, const Row* table) {
  while (RowKey(*table) != kEndOfTable && RowKey(*table) != key) ++table;
  return table;
}

}  // namespace quillon
