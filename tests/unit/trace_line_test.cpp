#include "base/trace_line.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace quillon {
namespace {

/// The lines that the reader makes of a text.
std::vector<std::string> LinesOf(const std::string& text,
                                 ReturnBeforeLineFeed returns = ReturnBeforeLineFeed::Keep) {
  std::vector<std::string> lines;
  std::FILE* stream = std::tmpfile();
  std::fwrite(text.data(), 1, text.size(), stream);
  std::rewind(stream);
  const auto reader = std::make_unique<LineReader>(stream, returns);
  TraceLine line = {};
  while (reader->Read(line)) lines.emplace_back(line.View());
  std::fclose(stream);
  return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, GivesNoLineOfAnEmptyInput) {
  EXPECT_EQ(LinesOf(""), Lines{});
}

TEST(LineReader, KeepsTheLineFeed) {
  EXPECT_EQ(LinesOf("one\n\ntwo\n"), (Lines{"one\n", "\n", "two\n"}));
}

TEST(LineReader, GivesALastLineWithoutALineFeed) {
  EXPECT_EQ(LinesOf("one\ntwo"), (Lines{"one\n", "two"}));
}

TEST(LineReader, CutsALineAfter998Bytes) {
  const auto x = [](std::size_t count) { return std::string(count, 'x'); };
  EXPECT_EQ(LinesOf(x(996) + "\ny\n"), (Lines{x(996) + "\n", "y\n"}));
  EXPECT_EQ(LinesOf(x(997) + "\ny\n"), (Lines{x(997) + "\n", "y\n"}));
  EXPECT_EQ(LinesOf(x(998) + "\ny\n"), (Lines{x(998), "\n", "y\n"}));
  EXPECT_EQ(LinesOf(x(999) + "\ny\n"), (Lines{x(998), "x\n", "y\n"}));
  EXPECT_EQ(LinesOf(x(998)), (Lines{x(998)}));
  EXPECT_EQ(LinesOf(x(2 * 998 + 5)), (Lines{x(998), x(998), x(5)}));
}

TEST(LineReader, EndsTheTextOfAPieceAtItsNul) {
  using namespace std::string_literals;
  EXPECT_EQ(LinesOf("ab\0cd\nnext\n"s), (Lines{"ab", "next\n"}));
  EXPECT_EQ(LinesOf("\0ab\nnext\n"s), (Lines{"", "next\n"}));
  EXPECT_EQ(LinesOf("ab\n\0"s), (Lines{"ab\n", ""}));
  // The NUL is in the first piece; the second piece is whole.
  EXPECT_EQ(LinesOf("\0"s + std::string(997, 'x') + "yz\n"), (Lines{"", "yz\n"}));
}

TEST(LineReader, GivesTheSameLinesAcrossTheEndsOfItsBlocks) {
  for (const std::size_t length : {1U, 7U, 997U, 998U, 1000U}) {
    std::string text;
    Lines expected;
    while (text.size() < 300000) {
      const std::string line = std::string(length - 1, static_cast<char>('a' + text.size() % 26)) + "\n";
      text += line;
      expected.push_back(line.substr(0, 998));
      if (line.size() > 998) expected.push_back(line.substr(998));
    }
    EXPECT_EQ(LinesOf(text), expected) << length;
  }
}

std::vector<std::string> LinesWithoutReturns(const std::string& text) {
  return LinesOf(text, ReturnBeforeLineFeed::Drop);
}

TEST(LineReader, KeepsCarriageReturnsUnlessToldOtherwise) {
  EXPECT_EQ(LinesOf("one\r\n\r\n"), (Lines{"one\r\n", "\r\n"}));
}

TEST(LineReader, DropsTheCarriageReturnBeforeALineFeed) {
  EXPECT_EQ(LinesWithoutReturns("one\r\n\r\ntwo\n"), (Lines{"one\n", "\n", "two\n"}));
  EXPECT_EQ(LinesWithoutReturns("one\r\r\n"), (Lines{"one\r\n"}));
  EXPECT_EQ(LinesWithoutReturns("o\rne\n\rtwo\r"), (Lines{"o\rne\n", "\rtwo\r"}));
  EXPECT_EQ(LinesWithoutReturns("\r"), (Lines{"\r"}));
  EXPECT_EQ(LinesWithoutReturns(""), Lines{});
}

TEST(LineReader, DropsACarriageReturnAtTheEndOfAPiece) {
  const auto x = [](std::size_t count) { return std::string(count, 'x'); };
  EXPECT_EQ(LinesWithoutReturns(x(997) + "\r\ny\n"), (Lines{x(997) + "\n", "y\n"}));
  EXPECT_EQ(LinesWithoutReturns(x(998) + "\r\ny\n"), (Lines{x(998), "\n", "y\n"}));
  EXPECT_EQ(LinesWithoutReturns(x(997) + "\ry\n"), (Lines{x(997) + "\r", "y\n"}));
}

// The pair is moved over every place near the ends of the reader's first blocks.
TEST(LineReader, DropsACarriageReturnAtTheEndOfABlock) {
  for (const std::size_t block : {65536U, 131072U}) {
    for (std::size_t before = block - 4; before <= block + 4; ++before) {
      std::string text;
      while (text.size() + 101 < before) text += std::string(99, 'a') + "\n";
      text.append(before - text.size(), 'b');
      Lines expected = LinesOf(text + "\nnext\n\r!");
      EXPECT_EQ(LinesWithoutReturns(text + "\r\nnext\r\n\r!"), expected) << before;
    }
  }
}

// The reader looks at the byte behind a block that ends with a carriage return; it must not take it away.
TEST(LineReader, KeepsACarriageReturnAtTheEndOfABlockBeforeAnythingElse) {
  for (std::size_t before = 65536 - 4; before <= 65536 + 4; ++before) {
    std::string text;
    while (text.size() + 101 < before) text += std::string(99, 'a') + "\n";
    text.append(before - text.size(), 'b');
    EXPECT_EQ(LinesWithoutReturns(text + "\rc\n\rd"), LinesOf(text + "\rc\n\rd")) << before;
    EXPECT_EQ(LinesWithoutReturns(text + "\r"), LinesOf(text + "\r")) << before;
  }
}

TEST(LineReader, LooksAheadWithoutReading) {
  std::FILE* stream = std::tmpfile();
  std::fputs("one\r\ntwo", stream);
  std::rewind(stream);
  const auto reader = std::make_unique<LineReader>(stream, ReturnBeforeLineFeed::Drop);
  EXPECT_EQ(reader->Peek(), "one\ntwo");
  EXPECT_EQ(reader->Peek(), "one\ntwo");
  TraceLine line = {};
  ASSERT_TRUE(reader->Read(line));
  EXPECT_EQ(line.View(), "one\n");
  EXPECT_EQ(reader->Peek(), "two");
  ASSERT_TRUE(reader->Read(line));
  EXPECT_EQ(line.View(), "two");
  EXPECT_FALSE(reader->Read(line));
  EXPECT_EQ(reader->Peek(), "");
  std::fclose(stream);
}

TEST(LineReader, TakesAReadErrorForTheEnd) {
  // A directory can be opened but not read.
  std::FILE* stream = std::fopen("/", "r");
  ASSERT_NE(stream, nullptr);
  const auto reader = std::make_unique<LineReader>(stream);
  TraceLine line = {};
  EXPECT_FALSE(reader->Read(line));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_FALSE(reader->Read(line));
  std::fclose(stream);
}

TEST(LineReader, TellsNoOlderErrorAtTheEnd) {
  std::FILE* stream = std::tmpfile();
  const auto reader = std::make_unique<LineReader>(stream);
  TraceLine line = {};
  errno = ENOENT;
  EXPECT_FALSE(reader->Read(line));
  EXPECT_EQ(errno, 0);
  std::fclose(stream);
}

TEST(LineReader, CollectsALineThatArrivesInParts) {
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  for (const std::string part : {"on", "e\ntw", "o\n"})
    ASSERT_EQ(write(ends[1], part.data(), part.size()), static_cast<ssize_t>(part.size()));
  close(ends[1]);
  std::FILE* stream = fdopen(ends[0], "r");
  const auto reader = std::make_unique<LineReader>(stream);
  TraceLine line = {};
  ASSERT_TRUE(reader->Read(line));
  EXPECT_EQ(line.View(), "one\n");
  ASSERT_TRUE(reader->Read(line));
  EXPECT_EQ(line.View(), "two\n");
  EXPECT_FALSE(reader->Read(line));
  std::fclose(stream);
}

TEST(TraceLine, ReadsAsNulBeyondItsText) {
  TraceLine line = {};
  line.Set("abcdef");
  line.Set("xy");
  EXPECT_EQ(line.At(1), 'y');
  EXPECT_EQ(line.At(2), '\0');
  EXPECT_EQ(line.At(100000), '\0');
  EXPECT_EQ(line.From(1), "y");
  EXPECT_EQ(line.From(2), "");
  EXPECT_EQ(line.From(100000), "");
}

TEST(TraceLine, TellsHowItStarts) {
  TraceLine line = {};
  EXPECT_FALSE(line.StartsWith("a"));
  EXPECT_TRUE(line.StartsWith(""));
  line.Set("|> x");
  EXPECT_TRUE(line.StartsWith("|> "));
  EXPECT_FALSE(line.StartsWith("|> xy"));
  line.Set("|>");
  EXPECT_FALSE(line.StartsWith("|> "));
  line.Clear();
  EXPECT_FALSE(line.StartsWith("|"));
  EXPECT_EQ(line.View(), "");
}

TEST(TraceLine, TakesNoMoreThanItHolds) {
  using namespace std::string_literals;
  TraceLine line = {};
  line.Set(std::string(2000, 'x'));
  EXPECT_EQ(line.View(), std::string(998, 'x'));
  line.Set("ab\0cd"s);
  EXPECT_EQ(line.View(), "ab");
  line.Set("");
  EXPECT_EQ(line.View(), "");
}

}  // namespace
}  // namespace quillon
