#include "display/character_walk.h"

#include <cstring>

namespace quillon {
namespace {

bool PatternEndsAt(const CharacterPatternMap& patterns, int slot, int position) {
  return position == CharacterPatternMap::kPositions ||
         patterns.entry[slot][position][0] == CharacterPatternMap::kEnd;
}

void FillSlots(CharacterPatternMap& patterns) {
  std::memset(patterns.slotsAllowing, 0, sizeof patterns.slotsAllowing);
  std::memset(patterns.slotsOfLength, 0, sizeof patterns.slotsOfLength);
  for (int slot = 0; slot < CharacterPatternMap::kSlots; ++slot) {
    if (PatternEndsAt(patterns, slot, 0)) return;
    const auto bit = static_cast<std::uint16_t>(1U << slot);
    for (int position = 0; position < CharacterPatternMap::kPositions; ++position) {
      for (int byte = 0; byte < 256; ++byte) {
        if (patterns.entry[slot][position][byte] == CharacterPatternMap::kAllowed)
          patterns.slotsAllowing[position][byte] |= bit;
      }
      if (PatternEndsAt(patterns, slot, position + 1)) patterns.slotsOfLength[position + 1] |= bit;
    }
  }
}

std::uint8_t LastAscii(const CharacterPatternMap& patterns) {
  const std::uint8_t last = patterns.image[0x7F] == '.' ? 0x7E : 0x7F;
  for (std::uint8_t byte = 0; byte < 0x80; ++byte) {
    if (patterns.image[byte] != AsciiImage(byte, last)) return 0;
  }
  return last;
}

}  // namespace

void FillCharacterImages(CharacterPatternMap& patterns) {
  FillSlots(patterns);
  for (int byte = 0; byte < 256; ++byte) {
    patterns.image[byte] = '\0';
    CharacterWalk walk;
    const CharacterWalk::Step step = walk.Feed(patterns, static_cast<std::uint8_t>(byte));
    if (step == CharacterWalk::Step::Complete) patterns.image[byte] = static_cast<char>(byte);
    if (step == CharacterWalk::Step::Rejected) patterns.image[byte] = '.';
  }
  patterns.lastAscii = LastAscii(patterns);
}

}  // namespace quillon
