// Encodings, CCSIDs and variable-length strings: the rules that all formatters share.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "base/struct_reader.h"

namespace quillon {

/// The encoding value that the program itself has.
inline constexpr std::uint32_t kNativeEncoding = 273;

/// The value as read from the dump (big-endian), with its bytes reversed when the encoding is non-zero and
/// even.
std::uint32_t ZklongValueRegardingEncoding(std::uint32_t value, std::uint32_t encoding);
/// The same for 64 bits, `high` and `low` being the two words in the order of the dump.
std::uint64_t ZkInt64ValueRegardingEncoding(std::uint32_t high, std::uint32_t low, std::uint32_t encoding);

/// The "Encoding" line.
int ShowParsedEncodingValue(RunContext& runContext, std::uint32_t encoding);
/// A CCSID and its description.
int ShowParsedCommonCcsid(RunContext& runContext, std::string_view name, std::int32_t ccsid, bool fixedWidth);

/// Where the text of a string descriptor is found.
struct CharvText {
  enum class Place : std::uint8_t {
    NotTraced,    ///< the trace does not hold the text: only the descriptor is shown
    InStructure,  ///< at VSOffset in the enclosing structure; an address in the traced program is never
                  ///< followed
    Rebuilt       ///< in `bytes`, a variable item of the trace
  };
  Place place = Place::NotTraced;
  ByteView bytes;
};

/// So many bytes of each string are shown that the trace only claims, if -v asks for them; descriptors often
/// tell a buffer that is longer than its text. More is taken from the stock of the run.
inline constexpr std::int64_t kFreeClaimedTextOfString = 32768;

/// The descriptor block of a variable-length string and its text. `structure` is the enclosing structure.
int ShowZKCHARV(RunContext& runContext, std::string_view name, const VariableString& descriptor,
                ByteView structure, const CharvText& text);
/// Length in bytes of a descriptor's text: VSBufSize wins over VSLength; a NUL-terminated text counts its
/// NUL.
std::int32_t CalculateZkcharvDataLength(const VariableString& descriptor, ByteView text);

/// Replaces every byte outside 0x20 to 0x7E by "." and returns the length.
std::size_t StringXlateToSevenBitAscii(char* text, std::size_t length);

/// The text as lines of at most the run's maximum line length, each behind the marker and `indent` blanks.
int ShowTextStringDataRegardingMaximumLrecl(RunContext& runContext, std::int32_t indent, ByteView text);

}  // namespace quillon
