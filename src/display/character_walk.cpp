#include "display/character_walk.h"

namespace quillon {
namespace {

bool PatternAdmits(const CharacterPatternMap& patterns, int slot, const char* bytes, int count) {
  for (int position = 0; position < count; ++position) {
    const auto byte = static_cast<std::uint8_t>(bytes[position]);
    if (patterns.entry[slot][position][byte] != CharacterPatternMap::kAllowed) return false;
  }
  return true;
}

bool PatternEndsAt(const CharacterPatternMap& patterns, int slot, int position) {
  return position == CharacterPatternMap::kPositions ||
         patterns.entry[slot][position][0] == CharacterPatternMap::kEnd;
}

}  // namespace

CharacterWalk::Step CharacterWalk::FeedByPatterns(const CharacterPatternMap& patterns, std::uint8_t byte) {
  bytes[pending] = static_cast<char>(byte);
  count = pending + 1;
  for (int slot = 0; slot < CharacterPatternMap::kSlots; ++slot) {
    if (PatternEndsAt(patterns, slot, 0)) break;
    if (!PatternAdmits(patterns, slot, bytes, count)) continue;
    const bool complete = PatternEndsAt(patterns, slot, count);
    pending = complete ? 0 : count;
    return complete ? Step::Complete : Step::Pending;
  }
  pending = 0;
  return Step::Rejected;
}

void FillCharacterImages(CharacterPatternMap& patterns) {
  for (int byte = 0; byte < 256; ++byte) {
    patterns.image[byte] = '\0';
    CharacterWalk walk;
    const CharacterWalk::Step step = walk.Feed(patterns, static_cast<std::uint8_t>(byte));
    if (step == CharacterWalk::Step::Complete) patterns.image[byte] = static_cast<char>(byte);
    if (step == CharacterWalk::Step::Rejected) patterns.image[byte] = '.';
  }
}

}  // namespace quillon
