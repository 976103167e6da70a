// Checks of the constant tables, evaluated while they are compiled: a lost or doubled row does not build.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <utility>

#include "display/attribute_tables.h"
#include "display/constants.h"

namespace quillon {

inline constexpr std::string_view kUnknownValueText = "(Unknown value)";

/// What a table must hold; the end row is not counted. Shadowed rows have a value that stood earlier.
struct TableShape {
  std::size_t rows;
  std::size_t shadowedRows = 0;
  std::string_view endText = kUnknownValueText;
};

// Never defined: a check that fails calls one of them, and the compiler's message names it.
void TableHoldsAnotherNumberOfRows();
void EndRowIsNotLastAndOnlyLast();
void EndRowHasAnotherText();
void RowHasNoName();
void RowHasAText();
void TableHasAnotherNumberOfShadowedRows();

template <typename Row, std::size_t N>
consteval bool EndRowIsOnlyLast(const Row (&table)[N]) {
  const auto isEnd = [](const Row& row) { return RowKey(row) == kEndOfTable; };
  return std::find_if(table, table + N, isEnd) == table + N - 1;
}

template <typename Row, std::size_t N>
consteval std::size_t CountShadowedRows(const Row (&table)[N]) {
  std::array<std::int32_t, N> keys{};
  std::transform(table, table + N, keys.begin(), [](const Row& row) { return RowKey(row); });
  std::sort(keys.begin(), keys.end());
  return static_cast<std::size_t>(keys.end() - std::unique(keys.begin(), keys.end()));
}

template <typename Row, std::size_t N>
consteval bool AllRowsHaveNames(const Row (&table)[N]) {
  const auto hasName = [](const Row& row) { return RowName(row) != nullptr && *RowName(row) != '\0'; };
  return std::all_of(table, table + N - 1, hasName) && RowName(table[N - 1]) != nullptr;
}

/// True, or the table does not compile.
template <typename Row, std::size_t N>
consteval bool CheckTable(const Row (&table)[N], const TableShape& shape) {
  if (N - 1 != shape.rows) TableHoldsAnotherNumberOfRows();
  if (!EndRowIsOnlyLast(table)) EndRowIsNotLastAndOnlyLast();
  if (!AllRowsHaveNames(table)) RowHasNoName();
  if (RowName(table[N - 1]) != shape.endText) EndRowHasAnotherText();
  if (CountShadowedRows(table) != shape.shadowedRows) TableHasAnotherNumberOfShadowedRows();
  return true;
}

/// The name that a search for this key finds.
template <typename Row>
consteval std::string_view NameOf(std::int32_t key, const Row* table) {
  return RowName(*FindRow(key, table));
}

template <typename Row, std::size_t N>
consteval std::int32_t SmallestKey(const Row (&table)[N]) {
  const auto less = [](const Row& left, const Row& right) { return RowKey(left) < RowKey(right); };
  return RowKey(*std::min_element(table, table + N - 1, less));
}

template <typename Row, std::size_t N>
consteval std::int32_t LargestKey(const Row (&table)[N]) {
  const auto less = [](const Row& left, const Row& right) { return RowKey(left) < RowKey(right); };
  return RowKey(*std::max_element(table, table + N - 1, less));
}

template <std::size_t N>
consteval std::size_t CountSelectorValueRows(const IntAttributeRow (&table)[N]) {
  std::size_t count = 0;
  for (const IntAttributeRow& row : table) count += row.values == kValueIsSelector ? 1 : 0;
  return count;
}

/// Whether a pointer of a row leads to a value table. Told by specialization: in builds that check for
/// undefined behaviour the compiler does not compare a table of another file with null.
template <const ConstantRow* values>
inline constexpr bool kLeadsToValueTable = true;
template <>
inline constexpr bool kLeadsToValueTable<nullptr> = false;
template <>
inline constexpr bool kLeadsToValueTable<ValueIsSelectorMarker> = false;

template <const auto& table, std::size_t... index>
consteval std::size_t CountValueTableRows(std::index_sequence<index...>) {
  constexpr bool leads[] = {kLeadsToValueTable<table[index].values>...};
  return static_cast<std::size_t>(std::count(std::begin(leads), std::end(leads), true));
}

/// The number of rows of an integer attribute table that point to a value table.
template <const auto& table>
consteval std::size_t CountValueTableRows() {
  return CountValueTableRows<table>(std::make_index_sequence<sizeof table / sizeof table[0]>());
}

/// Every one of the selectors is in the table and has these values.
consteval bool AllHaveValues(std::initializer_list<std::int32_t> selectors, const ConstantRow* values,
                             const IntAttributeRow* table) {
  return std::all_of(selectors.begin(), selectors.end(), [=](std::int32_t selector) {
    const IntAttributeRow* row = FindRow(selector, table);
    return row->selector == selector && row->values == values;
  });
}

template <std::size_t N>
consteval bool AllRowsHaveLengths(const CharAttributeRow (&table)[N]) {
  const auto hasLength = [](const CharAttributeRow& row) { return row.length > 0; };
  return std::all_of(table, table + N - 1, hasLength) && table[N - 1].length == 0;
}

/// Texts are empty in every row, and the last row has no positions.
template <std::size_t N>
consteval bool CheckIntListTable(const IntListRow (&table)[N], const TableShape& shape) {
  const auto isEmpty = [](const IntListRow& row) { return *row.text == '\0'; };
  if (N - 1 != shape.rows) TableHoldsAnotherNumberOfRows();
  if (!EndRowIsOnlyLast(table)) EndRowIsNotLastAndOnlyLast();
  if (!std::all_of(table, table + N, isEmpty)) RowHasAText();
  if (table[N - 1].text != shape.endText || table[N - 1].positions != nullptr) EndRowHasAnotherText();
  if (CountShadowedRows(table) != shape.shadowedRows) TableHasAnotherNumberOfShadowedRows();
  return true;
}

template <std::size_t N>
consteval std::string_view DescriptionOf(std::string_view format, const MsgFormatRow (&table)[N]) {
  const auto isFormat = [=](const MsgFormatRow& row) { return row.name == format; };
  return std::find_if(table, table + N - 1, isFormat)->description;
}

template <std::size_t N>
consteval std::size_t CountShadowedFormats(const MsgFormatRow (&table)[N]) {
  std::array<std::string_view, N - 1> names{};
  std::transform(table, table + N - 1, names.begin(), [](const MsgFormatRow& row) { return row.name; });
  std::sort(names.begin(), names.end());
  return static_cast<std::size_t>(names.end() - std::unique(names.begin(), names.end()));
}

/// Names are 8 bytes wide, and every row but the last has a name and a description.
template <std::size_t N>
consteval bool CheckFormatTable(const MsgFormatRow (&table)[N], const TableShape& shape) {
  const auto isEnd = [](const MsgFormatRow& row) { return row.name == nullptr; };
  const auto isWhole = [](const MsgFormatRow& row) {
    return std::string_view(row.name).size() == 8 && *row.description != '\0';
  };
  if (N - 1 != shape.rows) TableHoldsAnotherNumberOfRows();
  if (std::find_if(table, table + N, isEnd) != table + N - 1) EndRowIsNotLastAndOnlyLast();
  if (!std::all_of(table, table + N - 1, isWhole)) RowHasNoName();
  if (table[N - 1].description != shape.endText) EndRowHasAnotherText();
  if (CountShadowedFormats(table) != shape.shadowedRows) TableHasAnotherNumberOfShadowedRows();
  return true;
}

}  // namespace quillon
