#include "base/byte_view.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "base/dump_bytes.h"
#include "base/run_context.h"
#include "report_capture.h"

namespace quillon {
namespace {

// Offsets that the compiler cannot know: it would warn of them.
std::int64_t AtRunTime(std::int64_t offset) {
  volatile std::int64_t hidden = offset;
  return hidden;
}

const std::int64_t kLeast = AtRunTime(std::numeric_limits<std::int64_t>::min());
const std::int64_t kMost = AtRunTime(std::numeric_limits<std::int64_t>::max());

/// The bytes 1 to 8 in a block of exactly their size.
const std::vector<std::uint8_t>& Eight() {
  static const std::vector<std::uint8_t> bytes = {1, 2, 3, 4, 5, 6, 7, 8};
  return bytes;
}

/// The bytes of a view as decimal numbers.
std::string BytesOf(ByteView view) {
  std::string text;
  for (std::int64_t i = 0; i < view.Size(); ++i) text += (i > 0 ? " " : "") + std::to_string(view.At(i));
  return text;
}

TEST(ByteView, OfNothingIsEmptyAndReadsAsZero) {
  const ByteView nothing;
  EXPECT_TRUE(nothing.Empty());
  EXPECT_EQ(nothing.Size(), 0);
  EXPECT_EQ(nothing.TextSize(kMostClaimedText), 0);
  EXPECT_EQ(nothing.At(0), 0);
  EXPECT_EQ(nothing.Word(0, ByteOrder::Big), 0U);
  EXPECT_EQ(nothing.From(0).Size(), 0);
  EXPECT_EQ(nothing.Address(), 0U);
}

TEST(ByteView, BytesOutsideReadAsZero) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(view.At(0), 1);
  EXPECT_EQ(view.At(7), 8);
  for (const std::int64_t offset : {std::int64_t{8}, std::int64_t{9}, std::int64_t{-1}, kLeast, kMost})
    EXPECT_EQ(view.At(offset), 0) << offset;
}

TEST(ByteView, WordsAreReadInEitherOrder) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(view.Word(0, ByteOrder::Big), 0x01020304U);
  EXPECT_EQ(view.Word(0, ByteOrder::Little), 0x04030201U);
  EXPECT_EQ(view.Word(3, ByteOrder::Big), 0x04050607U);
  const std::vector<std::uint8_t> negative = {0xFF, 0xFF, 0xFF, 0xFE};
  EXPECT_EQ(ViewOf(negative).Int32(0, ByteOrder::Big), -2);
  EXPECT_EQ(ViewOf(negative).Int32(0, ByteOrder::Little), -16777217);
}

TEST(ByteView, AWordAcrossTheEndReadsZerosThere) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(view.Word(6, ByteOrder::Big), 0x07080000U);
  EXPECT_EQ(view.Word(6, ByteOrder::Little), 0x00000807U);
  EXPECT_EQ(view.Word(-2, ByteOrder::Big), 0x00000102U);
  EXPECT_EQ(view.Word(8, ByteOrder::Big), 0U);
}

TEST(ByteView, AWordAtTheEndsOfTheOffsetsIsZero) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(view.Word(kLeast, ByteOrder::Big), 0U);
  for (std::int64_t back = 0; back < 5; ++back)
    EXPECT_EQ(view.Word(kMost - back, ByteOrder::Big), 0U) << back;
}

TEST(ByteViewField, HasItsWidthWhateverIsThere) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(BytesOf(view.Field(2, 3)), "3 4 5");
  EXPECT_EQ(BytesOf(view.Field(6, 4)), "7 8 0 0");
  EXPECT_EQ(BytesOf(view.Field(8, 2)), "0 0");
  EXPECT_EQ(BytesOf(view.Field(1000, 2)), "0 0");
}

TEST(ByteViewField, OutsideTheViewIsZero) {
  const ByteView view = ViewOf(Eight());
  for (const std::int64_t offset : {std::int64_t{-1}, kLeast, kMost, kMost - 1})
    EXPECT_EQ(BytesOf(view.Field(offset, 3)), "0 0 0") << offset;
}

TEST(ByteViewField, OfNoLengthIsEmpty) {
  const ByteView view = ViewOf(Eight());
  for (const std::int64_t length : {std::int64_t{0}, std::int64_t{-1}, kLeast}) {
    EXPECT_EQ(view.Field(2, length).Size(), 0) << length;
    EXPECT_EQ(view.Field(2, length).At(0), 0) << length;
  }
}

TEST(ByteViewField, OfHugeLengthReadsWhatIsThere) {
  const ByteView field = ViewOf(Eight()).Field(6, kMost);
  EXPECT_EQ(field.Size(), kMost);
  EXPECT_EQ(field.At(1), 8);
  EXPECT_EQ(field.At(2), 0);
  EXPECT_EQ(field.At(kMost - 1), 0);
  EXPECT_EQ(field.Field(kMost - 1, kMost).At(0), 0);
  EXPECT_EQ(field.Sub(kMost - 1, kMost).Size(), 1);
}

TEST(ByteViewField, OfAFieldNeverSeesBehindItsParent) {
  const ByteView field = ViewOf(Eight()).Field(2, 3);
  EXPECT_EQ(BytesOf(field.Field(1, 4)), "4 5 0 0");
  EXPECT_EQ(field.At(3), 0);
  EXPECT_EQ(field.At(-1), 0);
  EXPECT_EQ(field.Word(0, ByteOrder::Big), 0x03040500U);
}

TEST(ByteViewSub, IsCutAtItsParent) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(BytesOf(view.Sub(2, 3)), "3 4 5");
  EXPECT_EQ(BytesOf(view.Sub(6, 100)), "7 8");
  EXPECT_EQ(BytesOf(view.Sub(7, kMost)), "8");
  EXPECT_EQ(BytesOf(view.Sub(2, 4).Sub(1, 100)), "4 5 6");
}

TEST(ByteViewSub, OutsideTheViewIsEmpty) {
  const ByteView view = ViewOf(Eight());
  for (const std::int64_t offset : {std::int64_t{-1}, std::int64_t{8}, std::int64_t{9}, kLeast, kMost})
    EXPECT_TRUE(view.Sub(offset, 4).Empty()) << offset;
  for (const std::int64_t length : {std::int64_t{0}, std::int64_t{-1}, kLeast})
    EXPECT_TRUE(view.Sub(2, length).Empty()) << length;
}

TEST(ByteViewFrom, IsTheRest) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(BytesOf(view.From(0)), "1 2 3 4 5 6 7 8");
  EXPECT_EQ(BytesOf(view.From(5)), "6 7 8");
  for (const std::int64_t offset : {std::int64_t{-1}, std::int64_t{8}, kLeast, kMost})
    EXPECT_TRUE(view.From(offset).Empty()) << offset;
}

TEST(ByteViewFrom, OfAFieldKeepsTheDeclaredBytes) {
  EXPECT_EQ(BytesOf(ViewOf(Eight()).Field(6, 4).From(1)), "8 0 0");
  EXPECT_EQ(BytesOf(ViewOf(Eight()).Field(6, 4).From(3)), "0");
}

TEST(ByteViewCopy, FillsWhatLiesOutsideWithZeros) {
  const ByteView view = ViewOf(Eight());
  for (const auto& [offset, expected] : std::vector<std::pair<std::int64_t, std::string>>{
           {0, "1 2 3 4"}, {6, "7 8 0 0"}, {8, "0 0 0 0"}, {-2, "0 0 1 2"}, {-9, "0 0 0 0"}}) {
    std::vector<std::uint8_t> target(4, 99);
    view.CopyTo(target.data(), offset, target.size());
    EXPECT_EQ(BytesOf(ViewOf(target)), expected) << offset;
  }
  view.CopyTo(nullptr, 0, 0);
}

TEST(ByteViewText, IsCutOnlyWhereTheTraceClaimsBytes) {
  const ByteView view = ViewOf(Eight());
  EXPECT_EQ(view.TextSize(kMostClaimedText), 8);
  EXPECT_EQ(view.Field(0, 1000).TextSize(kMostClaimedText), 1000);
  EXPECT_EQ(view.Field(0, 8 + 1048576).TextSize(kMostClaimedText), 8 + 1048576);
  EXPECT_EQ(view.Field(0, 8 + 1048577).TextSize(kMostClaimedText), 8 + 1048576);
  EXPECT_EQ(view.Field(0, kMost).TextSize(kMostClaimedText), 8 + 1048576);
  EXPECT_EQ(view.Field(100, 2147483647).TextSize(kMostClaimedText), 1048576);
}

TEST(ByteViewText, OfCarriedBytesHasNoLimit) {
  const std::vector<std::uint8_t> many(3000000, 'A');
  EXPECT_EQ(ViewOf(many).TextSize(kMostClaimedText), 3000000);
}

/// A dump of 16 bytes "0" to "?", 70000 times repeated, then 1 to 8; 16 more bytes are declared.
struct FoldedView {
  DumpBytes dump;
  FoldedView() {
    dump.Start(16 + 70000 * 16 + 8 + 16);
    for (int i = 0; i < 16; ++i) EXPECT_TRUE(dump.Append(static_cast<std::uint8_t>('0' + i)));
    EXPECT_TRUE(dump.AppendRepeat(70000));
    for (int i = 1; i <= 8; ++i) EXPECT_TRUE(dump.Append(static_cast<std::uint8_t>(i)));
  }
};

constexpr std::int64_t kEndOfFold = 16 + 70000 * 16;

TEST(ByteViewOfFold, ReadsEveryByte) {
  const FoldedView folded;
  const ByteView view = folded.dump.Declared();
  for (std::int64_t i = 0; i < kEndOfFold; ++i) ASSERT_EQ(view.At(i), '0' + i % 16) << i;
  EXPECT_EQ(BytesOf(view.From(kEndOfFold)), "1 2 3 4 5 6 7 8 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0");
  EXPECT_EQ(view.At(-1), 0);
  EXPECT_EQ(view.At(view.Size()), 0);
  EXPECT_EQ(view.Word(kEndOfFold - 2, ByteOrder::Big), 0x3E3F0102U);
}

TEST(ByteViewOfFold, HasFieldsThatReadTheSameBytes) {
  const FoldedView folded;
  const ByteView view = folded.dump.Declared();
  EXPECT_EQ(BytesOf(view.Field(500001, 4)), "49 50 51 52");
  EXPECT_EQ(BytesOf(view.Sub(500001, 4).Field(2, 4)), "51 52 0 0");
  EXPECT_EQ(BytesOf(view.Field(kEndOfFold + 6, 2).From(1)), "8");
  std::vector<std::uint8_t> target(4);
  view.CopyTo(target.data(), kEndOfFold - 1, 4);
  EXPECT_EQ(BytesOf(ViewOf(target)), "63 1 2 3");
}

TEST(ByteViewOfFold, TellsHowFarARepeatGoes) {
  const FoldedView folded;
  const ByteView view = folded.dump.Declared();
  EXPECT_EQ(view.EndOfRepeat(16), 16) << "the first copy stands in memory";
  EXPECT_EQ(view.EndOfRepeat(32), kEndOfFold);
  EXPECT_EQ(view.EndOfRepeat(kEndOfFold - 1), kEndOfFold);
  EXPECT_EQ(view.EndOfRepeat(kEndOfFold), kEndOfFold);
  EXPECT_EQ(view.From(1000).EndOfRepeat(16), kEndOfFold - 1000);
  EXPECT_EQ(view.Sub(1000, 500).EndOfRepeat(16), 500);
}

TEST(ByteViewOfFold, ARepeatEndsWhereAFieldLeavesItsParent) {
  const FoldedView folded;
  const ByteView parent = folded.dump.Declared().Sub(0, 50000);
  const ByteView field = parent.Field(49900, 1000);
  EXPECT_EQ(field.At(99), '0' + 49999 % 16);
  EXPECT_EQ(field.At(100), 0);
  EXPECT_EQ(field.EndOfRepeat(16), 100) << "from there on the bytes are zero";
  EXPECT_EQ(field.EndOfRepeat(100), 100);
  EXPECT_EQ(field.EndOfRepeat(116), 1000);
}

TEST(ByteViewRepeat, ZerosBehindTheCarriedBytesRepeat) {
  const ByteView claimed = ViewOf(Eight()).Field(0, 2147483647);
  EXPECT_EQ(claimed.EndOfRepeat(0), 0);
  EXPECT_EQ(claimed.EndOfRepeat(16), 16) << "the line before still holds carried bytes";
  EXPECT_EQ(claimed.EndOfRepeat(23), 23) << "so does one byte";
  EXPECT_EQ(claimed.EndOfRepeat(24), 2147483647);
  EXPECT_EQ(claimed.EndOfRepeat(32), 2147483647);
}

}  // namespace
}  // namespace quillon
