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
  /// The same, always by the patterns.
  Step FeedByPatterns(const CharacterPatternMap& patterns, std::uint8_t byte) {
    if (pending == 0) slots = ~0U;
    slots &= patterns.slotsAllowing[pending][byte];
    bytes[pending] = static_cast<char>(byte);
    count = pending + 1;
    if (slots == 0) {
      pending = 0;
      return Step::Rejected;
    }
    // The first pattern that admits the bytes decides, also where a later one would be complete.
    const std::uint32_t first = slots & (0U - slots);
    const bool complete = (patterns.slotsOfLength[count] & first) != 0;
    pending = complete ? 0 : count;
    return complete ? Step::Complete : Step::Pending;
  }
  /// Bytes of a character that was begun and is not complete.
  int PendingCount() const { return pending; }

  char bytes[CharacterPatternMap::kPositions] = {};
  int count = 0;

 private:
  int pending = 0;
  std::uint32_t slots = 0;  ///< those that admit the pending bytes
};

/// How nearly every CCSID shows a byte below 0x80 (CharacterPatternMap::lastAscii).
constexpr char AsciiImage(std::uint8_t byte, std::uint8_t last) {
  return byte >= 0x20 && byte <= last ? static_cast<char>(byte) : '.';
}

/// Fills what follows from the patterns' entries; to be called when they are complete.
void FillCharacterImages(CharacterPatternMap& patterns);

}  // namespace quillon
