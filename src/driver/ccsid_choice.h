// The choice of the CCSID of character data, and the character patterns that are valid in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/run_context.h"

namespace quillon {

struct LocaleCcsidRow {
  const char* locale;  ///< empty in the end row
  std::int32_t ccsid;
};

/// Inclusive; a high byte of 0 ends the character pattern.
struct ByteRange {
  std::uint8_t low;
  std::uint8_t high;
};

/// One valid character: byte k lies in pair k.
struct CcsidRangeRow {
  std::int32_t ccsid;  ///< 0 in the end row, whose pattern is the default
  ByteRange pairs[CharacterPatternMap::kPositions];
};

/// Rows of the tables, each with its end row.
inline constexpr std::size_t kLocaleCcsidRows = 55;
inline constexpr std::size_t kCcsidRangeRows = 71;

extern const LocaleCcsidRow LocaleCcsidTable[kLocaleCcsidRows];
extern const CcsidRangeRow CcsidRangeTable[kCcsidRangeRows];

/// The value of an environment variable; empty when it is not set.
std::string GetEnvValue(const char* name);

/// The name of the user's locale as the C library knows it: that of the messages category, else that of all
/// categories; empty when the locale is not installed. The program itself stays in the locale "C".
std::string GetEnvLocale();

/// The CCSID of a locale name; 0 when it is not known. A name that ends with ".UTF-8" or ".utf8" is always
/// 1208.
std::int32_t SearchCcsidOfLocale(std::string_view localeName);

/// The CCSID of the user's locale, 0 when none can be chosen. `localeName` receives the name that decided
/// (from the C library, else "LC_ALL", else "LANG"); empty when there is none.
std::int32_t SelectCcsidByLocale(std::string& localeName);

/// Fills `patterns` from the rows of `ccsid` in a table that ends with an end row; without such rows from the
/// end row. Takes at most nine rows.
void FillCharacterPatterns(CharacterPatternMap& patterns, std::int32_t ccsid,
                           std::span<const CcsidRangeRow> table);

/// Builds the character-pattern map of the run for its `ccsid`.
void SetValueForCodeRangeCheck(RunContext& runContext);

}  // namespace quillon
