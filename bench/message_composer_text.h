// Words of several languages in the bytes of several coded character sets, for message text.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace quillon::compose {

/// The words that text of one coded character set is made of.
struct Vocabulary {
  std::int32_t ccsid;
  char blank;  ///< the byte that stands between words
  std::span<const std::string_view> words;
};

/// Single-byte, UTF-8, multi-byte and EBCDIC sets.
std::span<const Vocabulary> Vocabularies();
/// The vocabulary of a CCSID; that of the first set when there is none.
const Vocabulary& VocabularyOf(std::int32_t ccsid);

}  // namespace quillon::compose
