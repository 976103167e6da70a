// Flag and option words: the one algorithm behind every list of flag names, and the decoders built on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/byte_view.h"
#include "base/run_context.h"

namespace quillon {

/// How a row's mask is compared with the word.
enum class FlagTest : std::uint8_t {
  All,  ///< every bit of the mask is set
  Any,  ///< some bit of the mask is set
  None  ///< no bit of the mask is set
};

/// One name. Rows stand in test order; of the rows of one group (above 0) at most the first that holds is
/// written.
struct FlagRow {
  std::uint32_t mask;
  const char* name;
  int group = 0;
  FlagTest test = FlagTest::All;
};

/// A flag word: its rows, what stands when no name was written, and which bits are reported as unknown.
struct FlagWord {
  const FlagRow* rows;
  std::size_t rowCount;
  std::uint32_t unknownBits;
  const char* unknownLabel;
  const char* emptyText = "(none)";
};

/// Bits that stand outside the rule that a bit is either named or reported; the word tells why.
struct BitExceptions {
  std::uint32_t silent = 0;            ///< neither named nor reported
  std::uint32_t namedAndReported = 0;  ///< named, and reported all the same
};

/// The bits that a word's rows name. A row that holds when its bits are clear names none of them.
consteval std::uint32_t NamedBits(const FlagWord& word) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < word.rowCount; ++i)
    if (word.rows[i].test != FlagTest::None) bits |= word.rows[i].mask;
  return bits;
}

/// Whether every one of the 32 bits is in one class (named, silent, unknown) but for those declared to be in
/// two. Asserted beside every word.
consteval bool EveryBitHasOneClass(const FlagWord& word, const BitExceptions& declared = {}) {
  const std::uint32_t named = NamedBits(word);
  return (named | declared.silent | word.unknownBits) == 0xFFFFFFFF &&
         (named & word.unknownBits) == declared.namedAndReported &&
         (declared.silent & (named | word.unknownBits)) == 0;
}

/// Whether the rows of each group follow one another: only then at most one name of it is written.
consteval bool GroupsStandTogether(const FlagWord& word) {
  for (std::size_t i = 1; i < word.rowCount; ++i) {
    const int group = word.rows[i].group;
    if (group == 0 || group == word.rows[i - 1].group) continue;
    for (std::size_t before = 0; before < i; ++before)
      if (word.rows[before].group == group) return false;
  }
  return true;
}

/// Whether the unknown bits of a message descriptor's word are reported. They are not while the descriptor
/// holds what the application never set: before a get, and after one that failed.
bool UnknownValuesAreReported(const RunContext& runContext);

/// The names of the set flags joined by " / " (or the empty text) and a line end, without a name column and
/// without the notice.
int ShowFlagNames(RunContext& runContext, const FlagWord& word, std::uint32_t value);
/// The name column, the names, the line end, then the notice when unknown bits are set.
int ShowFlagField(RunContext& runContext, std::string_view fieldName, const FlagWord& word,
                  std::uint32_t value);

/// Whether a decoder writes its field's name column, or continues the caller's line.
enum class NameMode : std::uint8_t { WriteName, NoName };

int ShowParsedZkoo(RunContext& runContext, std::uint32_t options);
int ShowParsedZkco(RunContext& runContext, std::uint32_t options);
/// In NoName mode neither of these two gives a notice.
int ShowParsedMsgFlags(RunContext& runContext, std::uint32_t flags, NameMode mode);
int ShowParsedReportOptions(RunContext& runContext, std::uint32_t options, NameMode mode);
int ShowParsedZkrmhFlags(RunContext& runContext, std::uint32_t flags, NameMode mode);
int ShowParsedZkdhFlags(RunContext& runContext, std::uint32_t flags, NameMode mode);
int ShowParsedZkpmrf(RunContext& runContext, std::uint32_t fields);
int ShowParsedZkop(RunContext& runContext, std::uint32_t operation);
int ShowParsedZksr(RunContext& runContext, std::uint32_t action);
int ShowParsedXaFlags(RunContext& runContext, std::uint32_t flags);

/// The response records (two words each: completion code, reason) that lie wholly inside the dump, `count` at
/// most.
int ShowParsedZkrr(RunContext& runContext, ByteView records, std::int32_t count);
/// The object records (48 + 48 characters each) that lie wholly inside the dump, `count` at most.
int ShowParsedZkor(RunContext& runContext, ByteView records, std::int32_t count);

/// A compression list's value and the names of its techniques in parentheses.
int ShowParsedCompressInfo(RunContext& runContext, std::string_view name, std::int32_t value, bool fixedWidth,
                           bool lineEnd);
/// The "Format" line of an 8-byte format name.
int ShowParsedMsgFormat(RunContext& runContext, ByteView format);
/// A status type's name; an unknown value gives only the notice, no line.
int ShowParsedZkstatType(RunContext& runContext, std::string_view name, std::int32_t value);

/// How many of `count` records of `recordSize` bytes lie wholly inside the data; never negative. Of bytes
/// that the trace only claims, those that are paid for count (PayForText).
std::int64_t RecordsInside(RunContext& runContext, ByteView data, std::int64_t count,
                           std::int64_t recordSize);

}  // namespace quillon
