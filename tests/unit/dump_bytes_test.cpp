#include "base/dump_bytes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "base/run_context.h"

namespace quillon {
namespace {

/// Rebuilds a dump twice: folded, and byte by byte.
struct Rebuilding {
  DumpBytes dump;
  std::vector<std::uint8_t> plain;

  explicit Rebuilding(std::int32_t declared) { dump.Start(declared); }
  void Append(std::uint8_t byte) {
    ASSERT_TRUE(dump.Append(byte));
    plain.push_back(byte);
  }
  void Append(const std::string& text) {
    for (const char byte : text) Append(static_cast<std::uint8_t>(byte));
  }
  void Repeat(std::int64_t copies) {
    ASSERT_TRUE(dump.AppendRepeat(copies));
    const auto declared = static_cast<std::size_t>(dump.DeclaredLength());
    for (std::int64_t i = 0; i < copies * 16 && plain.size() < declared; ++i)
      plain.push_back(plain.size() < 16 ? std::uint8_t{0} : plain[plain.size() - 16]);
  }
  void ExpectSame() const {
    ASSERT_EQ(dump.Count(), static_cast<std::int64_t>(plain.size()));
    for (std::size_t i = 0; i < plain.size(); ++i)
      ASSERT_EQ(dump.At(static_cast<std::int64_t>(i)), plain[i]) << i;
    EXPECT_EQ(dump.At(dump.Count()), 0);
    EXPECT_EQ(dump.At(-1), 0);
  }
};

TEST(DumpBytes, HoldsWhatWasAppended) {
  Rebuilding rebuilding(20);
  rebuilding.Append("0123456789ABCDEFGHIJ");
  rebuilding.ExpectSame();
  EXPECT_EQ(rebuilding.dump.DeclaredLength(), 20);
  EXPECT_EQ(rebuilding.dump.Declared().Size(), 20);
}

TEST(DumpBytes, BytesThatWereDeclaredButNotCarriedAreZero) {
  Rebuilding rebuilding(100);
  rebuilding.Append("0123456789ABCDEF");
  const ByteView declared = rebuilding.dump.Declared();
  EXPECT_EQ(declared.Size(), 100);
  EXPECT_EQ(declared.At(15), 'F');
  for (std::int64_t i = 16; i < 100; ++i) EXPECT_EQ(declared.At(i), 0);
}

TEST(DumpBytes, BytesBeyondTheDeclaredOnesAreInTheWholeOnly) {
  Rebuilding rebuilding(4);
  rebuilding.Append("ABCDEF");
  rebuilding.ExpectSame();
  EXPECT_EQ(rebuilding.dump.Declared().Size(), 4);
  EXPECT_EQ(rebuilding.dump.Declared().At(4), 0);
  EXPECT_EQ(rebuilding.dump.Whole().Size(), 6);
  EXPECT_EQ(rebuilding.dump.Whole().At(5), 'F');
}

TEST(DumpBytes, AStartForgetsTheDumpBefore) {
  Rebuilding rebuilding(2000000);
  rebuilding.Append("0123456789ABCDEF");
  rebuilding.Repeat(100000);
  rebuilding.dump.Start(64);
  EXPECT_EQ(rebuilding.dump.Count(), 0);
  for (std::int64_t i = 0; i < 64; ++i) EXPECT_EQ(rebuilding.dump.Declared().At(i), 0);
  ASSERT_TRUE(rebuilding.dump.Append('X'));
  EXPECT_EQ(rebuilding.dump.Declared().At(0), 'X');
  EXPECT_EQ(rebuilding.dump.Declared().At(1), 0);
  EXPECT_EQ(rebuilding.dump.EndOfRun(0), 0);
}

TEST(DumpBytes, ALengthOfZeroOrLessIsEmpty) {
  for (const std::int32_t declared : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
    DumpBytes dump;
    dump.Start(declared);
    EXPECT_TRUE(dump.Declared().Empty()) << declared;
    EXPECT_TRUE(dump.AppendRepeat(100)) << declared;
    EXPECT_EQ(dump.Count(), 0) << declared;
  }
}

TEST(DumpBytesRepeat, CopiesTheLastSixteenBytes) {
  Rebuilding rebuilding(200);
  rebuilding.Append("zz0123456789ABCDEF");
  rebuilding.Repeat(4);
  rebuilding.Append("end");
  rebuilding.ExpectSame();
  EXPECT_EQ(rebuilding.dump.Count(), 18 + 64 + 3);
}

TEST(DumpBytesRepeat, BytesBeforeTheStartAreZero) {
  DumpBytes dump;
  dump.Start(100);
  for (const char byte : {'A', 'B', 'C', 'D'}) ASSERT_TRUE(dump.Append(static_cast<std::uint8_t>(byte)));
  ASSERT_TRUE(dump.AppendRepeat(2));
  std::string text;
  for (std::int64_t i = 0; i < dump.Count(); ++i)
    text += dump.At(i) == 0 ? '0' : static_cast<char>(dump.At(i));
  EXPECT_EQ(text, "ABCD000000000000ABCD000000000000ABCD");
}

TEST(DumpBytesRepeat, OfNothingAtAllIsZeros) {
  Rebuilding rebuilding(200000);
  rebuilding.Repeat(12000);
  rebuilding.ExpectSame();
}

TEST(DumpBytesRepeat, IsCutAtTheDeclaredLength) {
  Rebuilding rebuilding(40);
  rebuilding.Append("0123456789ABCDEF");
  rebuilding.Repeat(1000);
  rebuilding.ExpectSame();
  EXPECT_EQ(rebuilding.dump.Count(), 40);
  rebuilding.Repeat(1000);
  EXPECT_EQ(rebuilding.dump.Count(), 40);
}

TEST(DumpBytesRepeat, OfNoOrLessThanNoCopiesIsNothing) {
  Rebuilding rebuilding(40);
  rebuilding.Append("A");
  ASSERT_TRUE(rebuilding.dump.AppendRepeat(0));
  ASSERT_TRUE(rebuilding.dump.AppendRepeat(-5));
  EXPECT_EQ(rebuilding.dump.Count(), 1);
}

TEST(DumpBytesRepeat, LongOnesReadAsIfTheyStoodInMemory) {
  // One byte below, at and above the length from which repeats are folded, and unequal ends.
  for (const std::int32_t more : {65535, 65536, 65537, 65551, 65552, 65553, 131072}) {
    Rebuilding rebuilding(16 + more);
    rebuilding.Append("0123456789ABCDEF");
    rebuilding.Repeat(100000);
    rebuilding.ExpectSame();
    EXPECT_EQ(rebuilding.dump.Count(), 16 + more);
  }
}

TEST(DumpBytesRepeat, MayFollowOneAnother) {
  Rebuilding rebuilding(1000000);
  rebuilding.Append("0123456789ABCDEF");
  rebuilding.Repeat(5000);
  rebuilding.Repeat(5000);
  rebuilding.Repeat(1);
  rebuilding.Append("x");
  rebuilding.Repeat(5001);
  rebuilding.Append("yz");
  rebuilding.Repeat(30000);
  rebuilding.ExpectSame();
}

TEST(DumpBytesRepeat, ManyOfAnyLengthReadAsIfTheyStoodInMemory) {
  std::mt19937 random(20);
  for (int round = 0; round < 6; ++round) {
    Rebuilding rebuilding(2000000);
    for (int piece = 0; piece < 40; ++piece) {
      for (auto i = random() % 40; i > 0; --i) rebuilding.Append(static_cast<std::uint8_t>(random()));
      rebuilding.Repeat(static_cast<std::int64_t>(random() % (piece % 2 == 0 ? 6000 : 20)));
    }
    rebuilding.ExpectSame();
  }
}

// Each one is short enough to stand in memory; all together would take 48 million bytes.
TEST(DumpBytesRepeat, ManyThatAreNotLongAreFoldedToo) {
  DumpBytes dump;
  dump.Start(std::numeric_limits<std::int32_t>::max());
  for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append(static_cast<std::uint8_t>('a' + i)));
  int folded = 0;
  for (int repeat = 0; repeat < 1000; ++repeat) {
    ASSERT_TRUE(dump.Append('x'));
    const std::int64_t start = dump.Count();
    ASSERT_TRUE(dump.AppendRepeat(3000));
    if (dump.EndOfRun(start + 16) == start + 48000) ++folded;
  }
  EXPECT_GE(folded, 990);
}

TEST(DumpBytesRepeat, TellsTheEndOfAFoldedRun) {
  DumpBytes dump;
  dump.Start(10000000);
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(dump.Append('A'));
  ASSERT_TRUE(dump.AppendRepeat(10000));
  ASSERT_TRUE(dump.Append('B'));
  EXPECT_EQ(dump.EndOfRun(0), 0);
  EXPECT_EQ(dump.EndOfRun(35), 35) << "the first copy stands in memory";
  EXPECT_EQ(dump.EndOfRun(36), 160020);
  EXPECT_EQ(dump.EndOfRun(160019), 160020);
  EXPECT_EQ(dump.EndOfRun(160020), 160020);
  EXPECT_EQ(dump.EndOfRun(9999999), 9999999);
}

TEST(DumpBytesRepeat, MakesARunBeforeItLonger) {
  DumpBytes dump;
  dump.Start(10000000);
  ASSERT_TRUE(dump.Append('A'));
  for (int i = 0; i < 500; ++i) ASSERT_TRUE(dump.AppendRepeat(100));
  // The first repeat leaves one copy in memory and folds 99.
  EXPECT_EQ(dump.EndOfRun(17), 1 + 500 * 100 * 16);
  EXPECT_EQ(dump.At(16 * 40000), 'A');
  EXPECT_EQ(dump.At(16 * 40000 + 1), 0);
}

TEST(DumpBytesRepeat, StandsInMemoryByWhatTheDumpCarries) {
  for (const int carried : {16, 100, 3000}) {
    DumpBytes dump;
    dump.Start(10000000);
    for (int i = 0; i < carried; ++i) ASSERT_TRUE(dump.Append('A'));
    // 128 bytes and sixteen for each carried one.
    const std::int64_t most = 128 + 16 * carried;
    ASSERT_TRUE(dump.AppendRepeat(most / 16));
    EXPECT_EQ(dump.EndOfRun(carried + 16), carried + 16) << carried;
    ASSERT_TRUE(dump.AppendRepeat(100));
    EXPECT_GT(dump.EndOfRun(dump.Count() - 1), dump.Count() - 1) << carried;
    EXPECT_EQ(dump.CarriedCount(), carried);
  }
}

TEST(DumpBytesMemory, EndsWhereItWasLimited) {
  DumpBytes dump;
  dump.Start(5000, 1000);
  const std::string line(100, 'A');
  for (int i = 0; i < 30; ++i)
    ASSERT_TRUE(dump.Append(reinterpret_cast<const std::uint8_t*>(line.data()), line.size()));
  EXPECT_EQ(dump.Count(), 3000) << "the bytes count all the same";
  EXPECT_EQ(dump.KeptCount(), 1000);
  EXPECT_EQ(dump.At(999), 'A');
  EXPECT_EQ(dump.At(1000), 0);
  EXPECT_EQ(dump.Declared().At(2999), 0);
  ASSERT_TRUE(dump.AppendRepeat(1000));
  EXPECT_EQ(dump.Count(), 5000);
  EXPECT_EQ(dump.Declared().EndOfRepeat(1016), 5000) << "what is not kept is known to be zeros";
  dump.Start(5000);
  ASSERT_TRUE(dump.Append('A'));
  EXPECT_EQ(dump.Count(), 1);
}

TEST(DumpBytesMemory, CountsTheRunsOfRepeatsToo) {
  DumpBytes dump;
  dump.Start(2000000000, 100000);
  for (int i = 0; i < 10000; ++i) {
    ASSERT_TRUE(dump.Append(static_cast<std::uint8_t>(i)));
    ASSERT_TRUE(dump.AppendRepeat(1000));
  }
  EXPECT_EQ(dump.Count(), 10000 + 10000 * 16000);
  // A run takes 12 bytes, its pattern 16 and the byte before it 1.
  EXPECT_LT(dump.KeptCount(), 100000 / 29 * 16001 + 2 * 16001);
  EXPECT_GT(dump.KeptCount(), 100000 / 29 * 16001 - 2 * 16001);
}

TEST(DumpBytesClaimedText, IsLimitedInAllPartsOfTheDump) {
  DumpBytes dump;
  dump.Start(1000000);
  for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append('A'));
  const ByteView declared = dump.Declared();
  EXPECT_EQ(declared.TextSize(kMostClaimedText), 1000000);
  EXPECT_EQ(declared.TextSize(100), 116);
  EXPECT_EQ(declared.ClaimedBefore(116), 100);
  EXPECT_EQ(declared.Sub(0, 16).TextSize(100), 16);
  EXPECT_EQ(declared.Sub(0, 16).ClaimedBefore(16), 0);
  EXPECT_EQ(declared.From(10).TextSize(100), 106);
  EXPECT_EQ(declared.From(5000).TextSize(100), 100);
  EXPECT_EQ(declared.Field(2000000, 5000).TextSize(100), 100);
  EXPECT_EQ(declared.From(2000000).Field(0, 5000).TextSize(100), 100);
}

/// The text size of the part of a dump, found byte by byte: the limit may be used up, not passed.
std::int64_t TextSizeByWalking(const DumpBytes& dump, std::int64_t start, std::int64_t size,
                               std::int64_t most, std::int64_t& claimed) {
  claimed = 0;
  for (std::int64_t offset = 0; offset < size; ++offset) {
    const std::int64_t at = start + offset;
    const bool carried = at < dump.KeptCount() && dump.EndOfRun(at) == at;
    if (!carried && claimed == most) return offset;
    claimed += carried ? 0 : 1;
  }
  return size;
}

TEST(DumpBytesClaimedText, EndsWhereMoreWouldBeClaimedThanTheLimit) {
  std::mt19937 random(11);
  for (int round = 0; round < 200; ++round) {
    DumpBytes dump;
    dump.Start(20000);
    for (int piece = 0; piece < 6; ++piece) {
      for (std::size_t i = random() % 40; i > 0; --i) ASSERT_TRUE(dump.Append(static_cast<std::uint8_t>(i)));
      ASSERT_TRUE(dump.AppendRepeat(static_cast<std::int64_t>(random() % 200)));
    }
    for (const std::int64_t most : {0, 1, 100, 3000, 100000}) {
      for (int view = 0; view < 20; ++view) {
        const auto start = static_cast<std::int64_t>(random() % 20000);
        const auto size = static_cast<std::int64_t>(random() % (20000 - static_cast<unsigned>(start)) + 1);
        const ByteView part = dump.Declared().Sub(start, size);
        std::int64_t claimed = 0;
        ASSERT_EQ(part.TextSize(most), TextSizeByWalking(dump, start, size, most, claimed))
            << round << " " << start << " " << size << " " << most;
        ASSERT_EQ(part.ClaimedBefore(part.TextSize(most)), claimed)
            << round << " " << start << " " << size << " " << most;
      }
    }
  }
}

TEST(DumpBytesRepeat, OfTwoThousandMillionBytesCostsNothing) {
  DumpBytes dump;
  dump.Start(std::numeric_limits<std::int32_t>::max());
  for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append(static_cast<std::uint8_t>('a' + i)));
  ASSERT_TRUE(dump.AppendRepeat(std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(dump.Count(), 2147483647);
  EXPECT_EQ(dump.At(2147483646), 'a' + 2147483646 % 16);
  EXPECT_EQ(dump.At(2147483647), 0);
}

TEST(DumpBytes, SwapExchangesEverything) {
  Rebuilding one(200000);
  one.Append("0123456789ABCDEF");
  one.Repeat(10000);
  Rebuilding other(3);
  other.Append("xyz");
  one.dump.Swap(other.dump);
  one.plain.swap(other.plain);
  one.ExpectSame();
  other.ExpectSame();
  EXPECT_EQ(one.dump.DeclaredLength(), 3);
  EXPECT_EQ(other.dump.DeclaredLength(), 200000);
}

}  // namespace
}  // namespace quillon
