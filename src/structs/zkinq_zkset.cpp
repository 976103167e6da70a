// Inquire and set selectors: every selector of a call by name, with its value where the trace holds one.
#include <algorithm>
#include <cstddef>
#include <optional>

#include "display/attribute_tables.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "output/report_writer.h"
#include "structs/attribute_values.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr std::int32_t kFirstIntegerSelector = 1;
constexpr std::int32_t kLastIntegerSelector = 2000;
constexpr std::int32_t kFirstCharacterSelector = 2001;
constexpr std::int32_t kLastCharacterSelector = 2124;

constexpr std::int32_t kCodedCharSetId = 2;
constexpr std::int32_t kNameCount = 19;
constexpr std::int32_t kNames = 2020;

// Kept: the search for the name count pairs integer values with the selectors up to 252 only, while the
// integer display takes selectors up to 2000. An integer selector above 252 before NAME_COUNT therefore gives
// NAMES the value of another attribute as its count.
constexpr std::int32_t kLastPairedSelector = 252;

constexpr std::string_view kUnknownSelectorLabel = "ZKINQ/ZKSET - Attribute Selector";

/// An array of 32-bit integers as stored, of as many entries as the call's count line says.
struct IntegerArray {
  ByteView bytes;
  std::int32_t count;
  ByteOrder order;

  std::int32_t At(std::int64_t index) const { return bytes.Int32(index * 4, order); }
  /// Entries of which the data holds at least one byte, `count` at most. Those behind them are zero.
  std::int64_t HeldCount() const { return std::min<std::int64_t>(count, (bytes.Size() + 3) / 4); }
};

int ShowNameAlone(RunContext& runContext, std::string_view name) {
  ShowFieldName(runContext, name);
  return WriteTraceData(runContext, "\n");
}

int ShowIntegerAttribute(RunContext& runContext, std::string_view name, const IntAttributeRow& row,
                         std::int32_t selector, std::int32_t value) {
  if (selector == kCodedCharSetId) return ShowParsedCommonCcsid(runContext, name, value, false);
  if (row.values == nullptr) return ShowFieldValueZklong(runContext, name, value);
  ShowFieldName(runContext, name);
  return SearchIntZkAttrValueAndSetString(runContext, value, row, false, "");
}

/// The number of names that an inquired namelist has, or 0 when the values do not tell it.
std::int32_t SearchNameCount(const IntegerArray& selectors, const IntegerArray& integers) {
  std::int64_t used = 0;
  for (std::int64_t i = 0; i < selectors.HeldCount(); ++i) {
    const std::int32_t selector = selectors.At(i);
    if (selector < kFirstIntegerSelector || selector > kLastPairedSelector) continue;
    if (used >= integers.count) return 0;
    if (selector == kNameCount) return integers.At(used);
    ++used;
  }
  return 0;
}

/// The character buffer, cut from its start on.
struct CharacterBuffer {
  ByteView bytes;
  std::int64_t position;
  std::int64_t left;
  /// No more names are shown than the buffer has bytes, whatever the count says; unset before the first ones.
  std::optional<std::int64_t> nameLinesLeft;

  /// The next field, shortened by what is left; bytes that the data does not hold are NULs.
  ByteView Take(std::int64_t width) {
    const std::int64_t taken = std::min(width, left);
    const ByteView field = bytes.Field(position, taken);
    position += taken;
    left -= taken;
    return field;
  }
};

int ShowNames(RunContext& runContext, const CharAttributeRow& row, std::int64_t count,
              CharacterBuffer& characters) {
  if (!characters.nameLinesLeft) characters.nameLinesLeft = PayForText(runContext, characters.bytes);
  int result = 0;
  for (std::int64_t& left = *characters.nameLinesLeft; count > 0 && left > 0; --count, --left)
    result = ShowFieldValueStringFixed(runContext, "NAMES", characters.Take(row.length));
  return result;
}

}  // namespace

int ShowParsedZkinqZksetOptionsInt(RunContext& runContext, std::int32_t selectorCount, ByteView selectors,
                                   std::int32_t integerCount, ByteView integers) {
  const IntegerArray selectorArray = {selectors, selectorCount, runContext.storedOrder};
  const IntegerArray integerArray = {integers, integerCount, runContext.storedOrder};
  std::int64_t used = 0;
  int result = 0;
  for (std::int64_t i = 0; i < selectorArray.HeldCount(); ++i) {
    const std::int32_t selector = selectorArray.At(i);
    if (selector < kFirstIntegerSelector || selector > kLastIntegerSelector) continue;
    const char* name = nullptr;
    const IntAttributeRow* row = nullptr;
    const bool known = SearchZkAttributeTable(runContext, selector, &name, &row, nullptr) == 0;
    if (used < integerCount)
      result = ShowIntegerAttribute(runContext, name, *row, selector, integerArray.At(used++));
    else
      result = ShowNameAlone(runContext, name);
    if (!known) result = ShowUnknownAttribute(runContext, kUnknownSelectorLabel, selector);
  }
  return result;
}

int ShowParsedZkinqZksetOptionsChar(RunContext& runContext, std::int32_t selectorCount, ByteView selectors,
                                    std::int32_t integerCount, ByteView integers,
                                    std::int32_t characterLength, ByteView characters) {
  const IntegerArray selectorArray = {selectors, selectorCount, runContext.storedOrder};
  const std::int32_t nameCount =
      SearchNameCount(selectorArray, {integers, integerCount, runContext.storedOrder});
  CharacterBuffer buffer = {characters, 0, characterLength, {}};
  int result = 0;
  for (std::int64_t i = 0; i < selectorArray.HeldCount(); ++i) {
    const std::int32_t selector = selectorArray.At(i);
    if (selector < kFirstCharacterSelector) continue;
    const char* name = nullptr;
    const CharAttributeRow* row = nullptr;
    const bool known = SearchZkAttributeTable(runContext, selector, &name, nullptr, &row) == 0;
    // Kept: an unknown character selector ends the display, because the length of its value is not known and
    // every later value would be cut at a wrong position. An unknown integer selector does not.
    if (!known || selector > kLastCharacterSelector)
      return ShowUnknownAttribute(runContext, kUnknownSelectorLabel, selector);
    if (buffer.left < 1)
      result = ShowNameAlone(runContext, name);
    else if (selector == kNames)
      result = ShowNames(runContext, *row, nameCount, buffer);
    else
      result = ShowFieldValueStringFixed(runContext, name, buffer.Take(row->length));
  }
  return result;
}

}  // namespace quillon
