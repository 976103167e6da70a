// The formats that inputs of fuzz_message_chain choose from, shared with the maker of its seeds. The order is
// part of every saved input: append, never sort.
#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>

namespace quillon::fuzz {

/// The formats that select a header or a body; the last two stand for everything else.
inline constexpr std::string_view kMessageFormats[] = {
    "ZKXMIT  ", "ZKHDIST ", "ZKHREF  ", "ZKDEAD  ", "ZKHMDE  ", "ZKHRF2  ", "ZKHRF   ",
    "ZKADMIN ", "ZKPCF   ", "ZKEVENT ", "ZKTRIG  ", "ZKHEPCF ", "ZKSTR   ", "        ",
};
inline constexpr std::size_t kMessageFormatCount = std::size(kMessageFormats);

}  // namespace quillon::fuzz
