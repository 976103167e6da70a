// Indexes of the long constant tables, made by the compiler. A search by index has the same answers as one
// from the first row on; the tables themselves keep their published order.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "display/tables/constant_row.h"

namespace quillon {

/// A row's key and its place in the table.
struct IndexedRow {
  std::int32_t key;
  std::uint32_t row;
};

/// The rows of a table by key, rows of the same key in the table's order; the end row is left out.
struct TableIndex {
  const IndexedRow* rows;
  std::size_t count;
};

template <typename Row, std::size_t N>
consteval std::array<IndexedRow, N - 1> SortRows(const Row (&table)[N]) {
  std::array<IndexedRow, N - 1> rows{};
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = {RowKey(table[i]), static_cast<std::uint32_t>(i)};
  std::sort(rows.begin(), rows.end(), [](const IndexedRow& left, const IndexedRow& right) {
    return left.key != right.key ? left.key < right.key : left.row < right.row;
  });
  return rows;
}

/// The first row with this key, else the end row; see FindRow without an index.
template <typename Row>
const Row* FindRow(std::int32_t key, const Row* table, const TableIndex& index) {
  const IndexedRow* const end = index.rows + index.count;
  const IndexedRow* const found = std::lower_bound(
      index.rows, end, key, [](const IndexedRow& row, std::int32_t wanted) { return row.key < wanted; });
  return table + (found != end && found->key == key ? found->row : index.count);
}

extern const TableIndex Index_Ccsid_description;
extern const TableIndex Index_Zkrc;
extern const TableIndex Index_ZkAttrsZkia;

}  // namespace quillon
