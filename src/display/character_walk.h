// Characters of the run's CCSID: which bytes of a text are shown and which stand as ".".
#pragma once

#include <cstdint>
#include <string_view>

#include "base/run_context.h"

namespace quillon {

/// Assembles characters byte by byte by the run's character patterns. Between bytes it holds at most four
/// bytes of a character that is not complete yet.
struct CharacterWalk {
  enum class Step : std::uint8_t {
    Pending,   ///< the byte begins or continues a character
    Complete,  ///< `bytes` holds the whole character, `count` of them
    Rejected   ///< no pattern admits it: `count` bytes (the pending ones and this one) stand as "."
  };

  /// Takes the next byte. After Complete and Rejected the next byte begins a new character; `bytes` and
  /// `count` are valid until then.
  Step Feed(const CharacterPatternMap& patterns, std::uint8_t byte) {
    const char image = patterns.image[byte];
    if (pending > 0 || image == '\0') return FeedByPatterns(patterns, byte);
    bytes[0] = static_cast<char>(byte);
    count = 1;
    return image == bytes[0] ? Step::Complete : Step::Rejected;
  }
  /// Bytes of a character that was begun and is not complete.
  int PendingCount() const { return pending; }

  char bytes[CharacterPatternMap::kPositions];
  int count = 0;

 private:
  Step FeedByPatterns(const CharacterPatternMap& patterns, std::uint8_t byte);

  int pending = 0;
};

/// Fills the images of the single bytes; to be called when the patterns are complete.
void FillCharacterImages(CharacterPatternMap& patterns);

}  // namespace quillon
