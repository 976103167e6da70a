#include "display/character_walk.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "driver/ccsid_choice.h"

namespace quillon {
namespace {

using Step = CharacterWalk::Step;

std::unique_ptr<RunContext> ContextOf(std::int32_t ccsid) {
  auto context = std::make_unique<RunContext>();
  context->ccsid = ccsid;
  SetValueForCodeRangeCheck(*context);
  return context;
}

/// What becomes of a text: a character as it stands between bars, one dot for every byte of a rejected one,
/// and "+" for every byte that is pending at the end.
std::string WalkOf(const CharacterPatternMap& patterns, std::string_view text) {
  CharacterWalk walk;
  std::string result;
  for (const char byte : text) {
    const Step step = walk.Feed(patterns, static_cast<std::uint8_t>(byte));
    if (step == Step::Complete)
      result += "|" + std::string(walk.bytes, static_cast<std::size_t>(walk.count)) + "|";
    if (step == Step::Rejected) result += std::string(static_cast<std::size_t>(walk.count), '.');
  }
  return result + std::string(static_cast<std::size_t>(walk.PendingCount()), '+');
}

std::string WalkIn(std::int32_t ccsid, std::string_view text) {
  return WalkOf(ContextOf(ccsid)->characterPatterns, text);
}

/// The bytes that are characters of their own.
std::string SingleBytesOf(std::int32_t ccsid) {
  const auto context = ContextOf(ccsid);
  std::string single;
  for (int byte = 0; byte < 256; ++byte) {
    CharacterWalk walk;
    if (walk.Feed(context->characterPatterns, static_cast<std::uint8_t>(byte)) == Step::Complete)
      single += static_cast<char>(byte);
  }
  return single;
}

std::string Range(int low, int high) {
  std::string bytes;
  for (int byte = low; byte <= high; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST(CharacterWalk, KnowsTheSingleByteCharactersOfACcsid) {
  EXPECT_EQ(SingleBytesOf(0), Range(0x20, 0x7E));
  EXPECT_EQ(SingleBytesOf(819), Range(0x20, 0x7E) + Range(0xA0, 0xFF));
  EXPECT_EQ(SingleBytesOf(437), Range(0x20, 0x7E) + Range(0x80, 0xFE));
  EXPECT_EQ(SingleBytesOf(850), Range(0x20, 0x7E) + Range(0x80, 0xFE));
  EXPECT_EQ(SingleBytesOf(932), Range(0x20, 0x7E) + Range(0xA1, 0xDF));
  EXPECT_EQ(SingleBytesOf(943), Range(0x20, 0x7E) + Range(0xA1, 0xDF));
  EXPECT_EQ(SingleBytesOf(942),
            Range(0x20, 0x7E) + Range(0x80, 0x80) + Range(0xA0, 0xDF) + Range(0xFD, 0xFF));
  EXPECT_EQ(SingleBytesOf(1208), Range(0x20, 0x7F));
  EXPECT_EQ(SingleBytesOf(5488), Range(0x20, 0x80));
}

TEST(CharacterWalk, ReportsEveryStepOfACharacter) {
  const auto context = ContextOf(5488);
  CharacterWalk walk;
  EXPECT_EQ(walk.PendingCount(), 0);
  EXPECT_EQ(walk.Feed(context->characterPatterns, 0x81), Step::Pending);
  EXPECT_EQ(walk.PendingCount(), 1);
  EXPECT_EQ(walk.Feed(context->characterPatterns, 0x30), Step::Pending);
  EXPECT_EQ(walk.Feed(context->characterPatterns, 0xFE), Step::Pending);
  EXPECT_EQ(walk.PendingCount(), 3);
  EXPECT_EQ(walk.Feed(context->characterPatterns, 0x39), Step::Complete);
  EXPECT_EQ(walk.PendingCount(), 0);
  EXPECT_EQ(walk.count, 4);
  EXPECT_EQ(std::string_view(walk.bytes, 4), "\x81\x30\xFE\x39");
}

TEST(CharacterWalk, TakesTheFirstPatternThatAdmitsAllBytes) {
  // In 5488 the first byte is the same for two and for four bytes; the second one decides.
  EXPECT_EQ(WalkIn(5488,
                   "\x81\x40\x81\x30\x81\x30"
                   "A"),
            "|\x81\x40||\x81\x30\x81\x30||A|");
  // In 932 the same lead byte stands in two patterns.
  EXPECT_EQ(WalkIn(932, "\x81\x40\x81\x7E\x81\x80\x81\xFC"), "|\x81\x40||\x81\x7E||\x81\x80||\x81\xFC|");
}

TEST(CharacterWalk, TheBytesAroundTheRangesAreRejected) {
  EXPECT_EQ(WalkIn(932, "\x81\x3F\x81\x7F\x81\xFD\x80\xA0\xFD"), ".........");
  EXPECT_EQ(WalkIn(1208, "\xC1\xC2\x7F\xC2\xC0\xE0\x7F\xF0"), "........");
}

TEST(CharacterWalk, TheByteThatIsRejectedBeginsNothing) {
  EXPECT_EQ(WalkIn(1208, "\xE3\xE3\x81\x82"), "....");
  EXPECT_EQ(WalkIn(932, "\x82\x82\xA0"), "|\x82\x82|.");
}

TEST(CharacterWalk, KeepsWhatIsIncomplete) {
  EXPECT_EQ(WalkIn(1208, "A\xE3\x81"), "|A|++");
  EXPECT_EQ(WalkIn(943, "\xFC"), "+");
}

TEST(CharacterWalk, ANulIsNoCharacterInAnyCcsid) {
  for (const std::int32_t ccsid : {0,    437,  819,  932,  942,  943,  949,  950,  954,   964,  970,
                                   1208, 1363, 1370, 1381, 1383, 1386, 5050, 5488, 17338, 33722}) {
    EXPECT_EQ(WalkIn(ccsid, std::string(1, '\0')), ".") << ccsid;
    for (int lead = 0x20; lead < 0x100; ++lead) {
      const std::string walk = WalkIn(ccsid, std::string(1, static_cast<char>(lead)) + '\0');
      EXPECT_EQ(walk.find('\0'), std::string::npos) << ccsid << " " << lead;
    }
  }
}

TEST(CharacterWalk, TellsWhereLowBytesShowAsInAscii) {
  EXPECT_EQ(ContextOf(819)->characterPatterns.lastAscii, 0x7E);
  EXPECT_EQ(ContextOf(943)->characterPatterns.lastAscii, 0x7E);
  EXPECT_EQ(ContextOf(1208)->characterPatterns.lastAscii, 0x7F);
  EXPECT_EQ(ContextOf(5488)->characterPatterns.lastAscii, 0x7F);
  // One hole, one too many, one that begins a longer character: the flag would hide it.
  const std::vector<std::vector<CcsidRangeRow>> others = {
      {{1, {{0x20, 0x60}}}, {1, {{0x62, 0x7E}}}, {}},
      {{1, {{0x1F, 0x7E}}}, {}},
      {{1, {{0x20, 0x7E}}}, {1, {{0x0A, 0x0A}, {0x41, 0x41}}}, {}},
      {{1, {{0x41, 0x41}}}, {}}};
  for (const std::vector<CcsidRangeRow>& rows : others) {
    CharacterPatternMap patterns = {};
    FillCharacterPatterns(patterns, 1, rows);
    EXPECT_EQ(patterns.lastAscii, 0);
  }
}

TEST(CharacterWalk, WithoutPatternsEveryByteIsRejected) {
  CharacterPatternMap patterns = {};
  patterns.entry[0][0][0] = CharacterPatternMap::kEnd;
  EXPECT_EQ(WalkOf(patterns, "AB"), "..");
}

TEST(CharacterWalk, ReadsNoFurtherThanTheLastSlot) {
  // No slot is marked as the end; all admit "A" alone.
  CharacterPatternMap patterns = {};
  for (auto& slot : patterns.entry) {
    slot[0][0x41] = CharacterPatternMap::kAllowed;
    slot[1][0] = CharacterPatternMap::kEnd;
  }
  FillCharacterImages(patterns);
  EXPECT_EQ(WalkOf(patterns, "ABA"), "|A|.|A|");
}

TEST(CharacterWalk, UsesAllSlotsAndAllPositions) {
  // Nine patterns of five bytes that differ in the last one only.
  std::vector<CcsidRangeRow> rows(10);
  for (std::size_t row = 0; row < 9; ++row) {
    rows[row].ccsid = 1;
    for (int position = 0; position < 4; ++position) rows[row].pairs[position] = {'a', 'a'};
    const auto last = static_cast<std::uint8_t>('1' + row);
    rows[row].pairs[4] = {last, last};
  }
  CharacterPatternMap patterns = {};
  FillCharacterPatterns(patterns, 1, rows);
  EXPECT_EQ(WalkOf(patterns, "aaaa1aaaa9"), "|aaaa1||aaaa9|");
  EXPECT_EQ(WalkOf(patterns, "aaaa0aaaaaaaaa"), "..........++++");
}

}  // namespace
}  // namespace quillon
