// The hex dump of PutHexData: its lines, its characters and its folded repeats.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "base/dump_bytes.h"
#include "display/fieldline.h"
#include "driver/ccsid_choice.h"
#include "report_capture.h"

namespace quillon {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes BytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

std::string DumpOfView(ByteView view, std::int32_t ccsid = 819, bool prefixed = false) {
  ReportCapture capture;
  capture.Context().ccsid = ccsid;
  SetValueForCodeRangeCheck(capture.Context());
  PutHexData(capture.Context(), "", view, prefixed);
  return capture.Report();
}

std::string DumpOf(const Bytes& bytes, std::int32_t ccsid = 819, bool prefixed = false) {
  return DumpOfView(ViewOf(bytes), ccsid, prefixed);
}

std::string DumpInCcsid(std::int32_t ccsid, std::string_view text) {
  return DumpOf(BytesOf(text), ccsid);
}

/// A dump line: offset and digits in 45 columns, then the characters up to their closing mark.
std::string Line(std::string digits, const std::string& characters) {
  digits.resize(45, ' ');
  return digits + " [" + characters + "\n";
}

Bytes Ascending(int count) {
  Bytes bytes;
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(i));
  return bytes;
}

TEST(HexDump, OfNoBytesIsEmpty) {
  EXPECT_EQ(DumpOf({}), "");
  EXPECT_EQ(DumpOfView(ByteView(nullptr, 0)), "");
  EXPECT_EQ(DumpOfView(ByteView(nullptr, 0), 819, true), "");
}

TEST(HexDump, OneByteStandsInAFullWidthLine) {
  EXPECT_EQ(DumpOf(BytesOf("A")), "00000000:41                                   [A]\n");
}

TEST(HexDump, FifteenBytesLackOneColumn) {
  EXPECT_EQ(DumpOf(Ascending(15)), "00000000:00010203 04050607 08090A0B 0C0D0E    [...............]\n");
}

TEST(HexDump, SixteenBytesFillALine) {
  EXPECT_EQ(DumpOf(Ascending(16)), "00000000:00010203 04050607 08090A0B 0C0D0E0F  [................]\n");
}

TEST(HexDump, TheSeventeenthByteBeginsALine) {
  EXPECT_EQ(DumpOf(Ascending(17)),
            "00000000:00010203 04050607 08090A0B 0C0D0E0F  [................]\n"
            "00000010:10                                   [.]\n");
}

TEST(HexDump, ThirtyTwoBytesFillTwoLines) {
  EXPECT_EQ(DumpOf(Ascending(32)),
            "00000000:00010203 04050607 08090A0B 0C0D0E0F  [................]\n"
            "00000010:10111213 14151617 18191A1B 1C1D1E1F  [................]\n");
}

TEST(HexDump, EveryByteHasItsDigits) {
  std::string expected;
  for (int line = 0; line < 16; ++line) {
    const char* const digits = "0123456789ABCDEF";
    std::string text = std::string("000000") + digits[line] + "0:";
    std::string characters;
    for (int i = 0; i < 16; ++i) {
      text += std::string(1, digits[line]) + digits[i] + (i % 4 == 3 ? " " : "");
      const int byte = line * 16 + i;
      const bool shown = (byte >= 0x20 && byte <= 0x7E) || byte >= 0xA0;
      characters += shown ? static_cast<char>(byte) : '.';
    }
    expected += Line(text, characters + "]");
  }
  EXPECT_EQ(DumpOf(Ascending(256)), expected);
}

TEST(HexDump, APrefixMarksEveryLine) {
  EXPECT_EQ(DumpOf(Bytes(50, 0x41), 819, true),
            "|>     00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "|>     00000010-0000002F same as above\n"
            "|>     00000030:4141                                 [AA]\n");
}

TEST(HexDump, ANameGivesAHeaderLine) {
  ReportCapture capture;
  const Bytes bytes = BytesOf("A");
  capture.Context().hexHeaderNoAddress = true;
  PutHexDataLen(capture.Context(), "Data", ViewOf(bytes), false, 26);
  EXPECT_EQ(capture.Report(), "Data:(26=x1A bytes)\n00000000:41                                   [A]\n");
}

TEST(HexDump, AHeaderLineTellsTheAddress) {
  ReportCapture capture;
  PutHexData(capture.Context(), "Data", ByteView(), false);
  EXPECT_EQ(capture.Report(), "Data:(0=x0 bytes, Address 0x00000000)\n");
}

TEST(HexDump, APrefixLeavesTheHeaderLineOut) {
  ReportCapture capture;
  const Bytes bytes = BytesOf("A");
  PutHexData(capture.Context(), "Data", ViewOf(bytes), true);
  EXPECT_EQ(capture.Report(), "|>     00000000:41                                   [A]\n");
}

TEST(HexDump, WithoutCharactersEndsBehindTheDigits) {
  ReportCapture capture;
  const Bytes bytes = BytesOf("A");
  capture.Context().showHexCharImage = false;
  PutHexData(capture.Context(), "", ViewOf(bytes), false);
  PutHexData(capture.Context(), "", ViewOf(bytes), true);
  EXPECT_EQ(capture.Report(), "00000000:41" + std::string(34, ' ') +
                                  "\n"
                                  "|>     00000000:41                                   [A]\n");
}

// Folded repeats. The last line of a dump is always shown.

TEST(HexDumpRepeat, ThirtyTwoEqualBytesShowBothLines) {
  EXPECT_EQ(DumpOf(Bytes(32, 0x41)),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n");
}

TEST(HexDumpRepeat, ThirtySixEqualBytesFoldTheMiddleLine) {
  EXPECT_EQ(DumpOf(Bytes(36, 0x41)),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000001F same as above\n"
            "00000020:41414141                             [AAAA]\n");
}

TEST(HexDumpRepeat, FortyEightEqualBytesFoldTheMiddleLine) {
  EXPECT_EQ(DumpOf(Bytes(48, 0x41)),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000001F same as above\n"
            "00000020:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n");
}

TEST(HexDumpRepeat, SixtyFourEqualBytesFoldTwoLines) {
  EXPECT_EQ(DumpOf(Bytes(64, 0x41)),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000002F same as above\n"
            "00000030:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n");
}

TEST(HexDumpRepeat, EndsAtADifferingLine) {
  Bytes bytes(48, 0x41);
  bytes.resize(64, 0x42);
  EXPECT_EQ(DumpOf(bytes),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000002F same as above\n"
            "00000030:42424242 42424242 42424242 42424242  [BBBBBBBBBBBBBBBB]\n");
}

TEST(HexDumpRepeat, EndsAtAShortLine) {
  Bytes bytes(48, 0x41);
  bytes.push_back(0x42);
  EXPECT_EQ(DumpOf(bytes),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000002F same as above\n"
            "00000030:42                                   [B]\n");
}

TEST(HexDumpRepeat, BeginsAnywhere) {
  Bytes bytes(16, 0x41);
  bytes.resize(64, 0x42);
  bytes.resize(112, 0x43);
  EXPECT_EQ(DumpOf(bytes),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010:42424242 42424242 42424242 42424242  [BBBBBBBBBBBBBBBB]\n"
            "00000020-0000003F same as above\n"
            "00000040:43434343 43434343 43434343 43434343  [CCCCCCCCCCCCCCCC]\n"
            "00000050-0000005F same as above\n"
            "00000060:43434343 43434343 43434343 43434343  [CCCCCCCCCCCCCCCC]\n");
}

TEST(HexDumpRepeat, ComparesWithTheLineBeforeOnly) {
  Bytes bytes;
  for (int i = 0; i < 4; ++i)
    bytes.insert(bytes.end(), 16, static_cast<std::uint8_t>(i % 2 == 0 ? 'A' : 'B'));
  EXPECT_EQ(DumpOf(bytes),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010:42424242 42424242 42424242 42424242  [BBBBBBBBBBBBBBBB]\n"
            "00000020:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000030:42424242 42424242 42424242 42424242  [BBBBBBBBBBBBBBBB]\n");
}

TEST(HexDumpRepeat, TheFirstLineIsNeverFolded) {
  EXPECT_EQ(DumpOf(Bytes(33, 0)),
            "00000000:00000000 00000000 00000000 00000000  [................]\n"
            "00000010-0000001F same as above\n"
            "00000020:00                                   [.]\n");
}

TEST(HexDumpRepeat, MayBeSwitchedOff) {
  ReportCapture capture;
  capture.Context().noRepeatCompression = true;
  const Bytes bytes(48, 0x41);
  PutHexData(capture.Context(), "", ViewOf(bytes), false);
  EXPECT_EQ(capture.Report(),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000020:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n");
}

// Characters of several bytes across the end of a line.

// Full lines of ASCII are written in another way than the others; every low byte at every place of a line.
TEST(HexDumpCharacters, OfLowBytesAreThoseOfTheCcsid) {
  for (const std::int32_t ccsid : {819, 1208}) {
    const int last = ccsid == 1208 ? 0x7F : 0x7E;
    for (int byte = 0; byte < 0x80; ++byte) {
      const std::string image(1, byte >= 0x20 && byte <= last ? static_cast<char>(byte) : '.');
      for (std::size_t place = 0; place < 16; ++place) {
        Bytes bytes = BytesOf("0123456789:;<=>?");
        std::string images = "0123456789:;<=>?";
        bytes[place] = static_cast<std::uint8_t>(byte);
        images.replace(place, 1, image);
        const std::string dump = DumpOf(bytes, ccsid);
        ASSERT_EQ(dump.substr(dump.find('[')), "[" + images + "]\n") << ccsid << " " << byte << " " << place;
      }
    }
  }
}

TEST(HexDumpCharacters, OfAFullLineMayBeginWithWhatIsPending) {
  // "A" completes nothing: the line before ends with two bytes of three, and the next is all ASCII.
  EXPECT_EQ(DumpInCcsid(1208,
                        "0123456789abcd\xE2\x82"
                        "A123456789abcdef"),
            Line("00000000:30313233 34353637 38396162 6364E282 ", "0123456789abcd>") +
                Line("00000010:41313233 34353637 38396162 63646566 ", ".123456789abcdef]"));
}

TEST(HexDumpCharacters, ACharacterAcrossALineEndStandsOnTheNextLine) {
  for (const std::int32_t ccsid : {932, 943}) {
    EXPECT_EQ(
        DumpInCcsid(ccsid,
                    "AAAAAAAAAAAAAAA\x82\xA0"
                    "B"),
        Line("00000000:41414141 41414141 41414141 41414182 ", "AAAAAAAAAAAAAAA>") + Line("00000010:A042",
                                                                                         "\x82\xA0"
                                                                                         "B]"))
        << ccsid;
  }
}

TEST(HexDumpCharacters, AThreeByteCharacterMayBeCutInTwoPlaces) {
  EXPECT_EQ(
      DumpInCcsid(1208,
                  "AAAAAAAAAAAAAAA\xE3\x81\x82"
                  "B"),
      Line("00000000:41414141 41414141 41414141 414141E3 ", "AAAAAAAAAAAAAAA>") + Line("00000010:818242",
                                                                                       "\xE3\x81\x82"
                                                                                       "B]"));
  EXPECT_EQ(DumpInCcsid(1208,
                        "AAAAAAAAAAAAAA\xE3\x81\x82"
                        "B"),
            Line("00000000:41414141 41414141 41414141 4141E381 ", "AAAAAAAAAAAAAA>") + Line("00000010:8242",
                                                                                            "\xE3\x81\x82"
                                                                                            "B]"));
}

TEST(HexDumpCharacters, AFourByteCharacterMayLackOneByte) {
  EXPECT_EQ(DumpInCcsid(5488,
                        "AAAAAAAAAAAAA\x81\x30\x81\x30"
                        "B"),
            Line("00000000:41414141 41414141 41414141 41813081 ", "AAAAAAAAAAAAA>") + Line("00000010:3042",
                                                                                           "\x81\x30\x81\x30"
                                                                                           "B]"));
}

TEST(HexDumpCharacters, ACharacterThatEndsWithTheLineIsNotPending) {
  EXPECT_EQ(DumpInCcsid(1208,
                        "AAAAAAAAAAAAA\xE3\x81\x82"
                        "B"),
            Line("00000000:41414141 41414141 41414141 41E38182 ", "AAAAAAAAAAAAA\xE3\x81\x82]") +
                Line("00000010:42", "B]"));
}

TEST(HexDumpCharacters, DotsOfARejectedByteDoNotRepeatTheLineBefore) {
  // One byte of the character stands on the first line and has no mark there but ">".
  EXPECT_EQ(DumpInCcsid(1208,
                        "AAAAAAAAAAAAAAA\xE3"
                        "BC"),
            Line("00000000:41414141 41414141 41414141 414141E3 ", "AAAAAAAAAAAAAAA>") +
                Line("00000010:4243", ".C]"));
  EXPECT_EQ(DumpInCcsid(1208,
                        "AAAAAAAAAAAAAA\xE3\x81"
                        "BC"),
            Line("00000000:41414141 41414141 41414141 4141E381 ", "AAAAAAAAAAAAAA>") +
                Line("00000010:4243", ".C]"));
  EXPECT_EQ(DumpInCcsid(1208,
                        "AAAAAAAAAAAAAAA\xE3\x81"
                        "BC"),
            Line("00000000:41414141 41414141 41414141 414141E3 ", "AAAAAAAAAAAAAAA>") +
                Line("00000010:814243", "..C]"));
  EXPECT_EQ(DumpInCcsid(5488,
                        "AAAAAAAAAAAAAAA\x81\x30\x81\x41"
                        "C"),
            Line("00000000:41414141 41414141 41414141 41414181 ", "AAAAAAAAAAAAAAA>") +
                Line("00000010:30814143", "...C]"));
}

TEST(HexDumpCharacters, ARejectedByteWithinALineHasAllItsDots) {
  EXPECT_EQ(DumpInCcsid(1208,
                        "A\xE3\x81"
                        "BCD"),
            Line("00000000:41E38142 4344", "A...CD]"));
}

TEST(HexDumpCharacters, WhatIsPendingAtTheEndOfAShortLineIsDots) {
  EXPECT_EQ(DumpInCcsid(1208, "AB\xE3\x81"), Line("00000000:4142E381 ", "AB..]"));
  EXPECT_EQ(DumpInCcsid(1208, "AAAAAAAAAAAAAAAAB\xE3"),
            Line("00000000:41414141 41414141 41414141 41414141 ", "AAAAAAAAAAAAAAAA]") +
                Line("00000010:42E3", "B.]"));
}

TEST(HexDumpCharacters, DotsOfAShortLineAreLimitedToItsBytes) {
  EXPECT_EQ(
      DumpInCcsid(1208, "AAAAAAAAAAAAAAA\xE3\x81"),
      Line("00000000:41414141 41414141 41414141 414141E3 ", "AAAAAAAAAAAAAAA>") + Line("00000010:81", ".]"));
  EXPECT_EQ(DumpInCcsid(5488, "AAAAAAAAAAAAAAA\x81\x30\x81"),
            Line("00000000:41414141 41414141 41414141 41414181 ", "AAAAAAAAAAAAAAA>") +
                Line("00000010:3081", "..]"));
}

TEST(HexDumpCharacters, NothingFollowsALastFullLineWithAPendingCharacter) {
  EXPECT_EQ(DumpInCcsid(1208, "AAAAAAAAAAAAAAA\xE3"),
            Line("00000000:41414141 41414141 41414141 414141E3 ", "AAAAAAAAAAAAAAA>"));
}

TEST(HexDumpCharacters, OfTheLinesAreWalkedAsOneText) {
  // 20 characters of three bytes: every line ends in another place of a character.
  std::string text;
  for (int i = 0; i < 20; ++i) text += "\xE3\x81" + std::string(1, static_cast<char>(0x80 + i));
  const std::string dump = DumpInCcsid(1208, text);
  std::string characters;
  for (std::size_t at = 0; (at = dump.find(" [", at)) != std::string::npos;) {
    const std::size_t end = dump.find('\n', at);
    characters += dump.substr(at + 2, end - at - 3);
    at = end;
  }
  EXPECT_EQ(characters, text);
}

// Folded lines count for a pending character as if they were shown.

/// Dumps in a made-up character set.
std::string DumpInSetOf(const std::vector<std::string>& characters, ByteView view) {
  std::vector<CcsidRangeRow> rows(characters.size() + 1);
  for (std::size_t row = 0; row < characters.size(); ++row) {
    rows[row].ccsid = 1;
    for (std::size_t i = 0; i < characters[row].size(); ++i) {
      const auto byte = static_cast<std::uint8_t>(characters[row][i]);
      rows[row].pairs[i] = {byte, byte};
    }
  }
  ReportCapture capture;
  FillCharacterPatterns(capture.Context().characterPatterns, 1, rows);
  PutHexData(capture.Context(), "", view, false);
  return capture.Report();
}

/// The same; the only character is `width` times "A".
std::string DumpInSetOf(int width, ByteView view) {
  return DumpInSetOf(std::vector<std::string>{std::string(static_cast<std::size_t>(width), 'A')}, view);
}

const std::string kDigitsOfA = "41414141 41414141 41414141 41414141 ";

TEST(HexDumpFoldedCharacters, AFoldedLineMovesThePendingCharacterOn) {
  // After the first line 1 byte is pending, after the folded one 2; the last line begins with the third.
  EXPECT_EQ(DumpInSetOf(3, ViewOf(Bytes(48, 'A'))),
            Line("00000000:" + kDigitsOfA, std::string(15, 'A') + ">") + "00000010-0000001F same as above\n" +
                Line("00000020:" + kDigitsOfA, std::string(18, 'A') + "]"));
}

TEST(HexDumpFoldedCharacters, AFoldedLineMayCompleteThePendingCharacter) {
  // Pending bytes after the lines: 1, 2, none, 1.
  EXPECT_EQ(DumpInSetOf(3, ViewOf(Bytes(64, 'A'))),
            Line("00000000:" + kDigitsOfA, std::string(15, 'A') + ">") + "00000010-0000002F same as above\n" +
                Line("00000030:" + kDigitsOfA, std::string(15, 'A') + ">"));
}

TEST(HexDumpFoldedCharacters, OneThatTheFoldBeganIsCompletedBehindIt) {
  // Each line ends with the first byte of a character; 0xA0 completes it, and so does "B".
  const std::string line =
      "\xA0"
      "AAAAAAAAAAAAAA\x82";
  EXPECT_EQ(DumpInCcsid(932, line + line + line + "B"),
            Line("00000000:A0414141 41414141 41414141 41414182 ", ".AAAAAAAAAAAAAA>") +
                "00000010-0000002F same as above\n" +
                Line("00000030:42",
                     "\x82"
                     "B]"));
}

TEST(HexDumpFoldedCharacters, AShortLineCompletesWhatTheFoldLeft) {
  // Pending bytes after the lines: 1, 2; the short line completes the character and begins another.
  EXPECT_EQ(DumpInSetOf(3, ViewOf(Bytes(34, 'A'))),
            Line("00000000:" + kDigitsOfA, std::string(15, 'A') + ">") + "00000010-0000001F same as above\n" +
                Line("00000020:4141", "AAA.]"));
}

/// What a run of `lines` equal lines leaves pending in a character set of `width` bytes, by arithmetic.
std::string LastLineOfA(int width, std::int64_t lines) {
  const int before = static_cast<int>((lines - 1) * 16 % width);
  const int shown = before + 16 - (before + 16) % width;
  return std::string(static_cast<std::size_t>(shown), 'A') + ((before + 16) % width > 0 ? ">" : "]");
}

TEST(HexDumpFoldedCharacters, AreRightBehindFoldsOfEveryLength) {
  DumpBytes dump;
  for (const int width : {1, 2, 3, 4, 5}) {
    for (std::int64_t lines = 2; lines < 400; ++lines) {
      const Bytes plain(static_cast<std::size_t>(lines * 16), 'A');
      const std::string text = DumpInSetOf(width, ViewOf(plain));
      ASSERT_TRUE(text.ends_with(" [" + LastLineOfA(width, lines) + "\n")) << width << " x " << lines;
    }
    for (std::int64_t lines = 5000; lines < 5130; ++lines) {
      dump.Start(static_cast<std::int32_t>(lines * 16));
      for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append('A'));
      ASSERT_TRUE(dump.AppendRepeat(lines - 1));
      const std::string text = DumpInSetOf(width, dump.Declared());
      ASSERT_TRUE(text.ends_with(" [" + LastLineOfA(width, lines) + "\n")) << width << " x " << lines;
    }
  }
}

TEST(HexDumpFoldedCharacters, AreRightWhereEqualLinesDoNotLeaveTheSamePendingAtOnce) {
  // Behind these lines 3, 2, 1, 1, 1, ... bytes are pending.
  const std::vector<std::string> characters = {"BAABB", "ABA", "BBBA"};
  const std::string line = "BABBABBBBBABABBB";
  DumpBytes dump;
  for (int lines = 4100; lines < 4240; ++lines) {
    Bytes plain;
    for (int i = 0; i < lines; ++i) plain.insert(plain.end(), line.begin(), line.end());
    dump.Start(lines * 16);
    for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append(plain[static_cast<std::size_t>(i)]));
    ASSERT_TRUE(dump.AppendRepeat(lines - 1));
    ASSERT_EQ(DumpInSetOf(characters, dump.Declared()), DumpInSetOf(characters, ViewOf(plain))) << lines;
  }
}

// Bytes that are kept folded give the same dump as bytes that stand in memory.

/// A dump of several long repeats with unlike bytes between them, and its plain bytes.
struct FoldedDump {
  DumpBytes dump;
  Bytes plain;

  void Append(std::string_view text) {
    for (const char byte : text) {
      ASSERT_TRUE(dump.Append(static_cast<std::uint8_t>(byte)));
      plain.push_back(static_cast<std::uint8_t>(byte));
    }
  }
  void Repeat(std::int64_t copies) {
    ASSERT_TRUE(dump.AppendRepeat(copies));
    const auto limit = static_cast<std::size_t>(dump.DeclaredLength());
    for (std::int64_t i = 0; i < copies * 16 && plain.size() < limit; ++i)
      plain.push_back(plain[plain.size() - 16]);
  }
};

void FillFoldedDump(FoldedDump& folded) {
  folded.dump.Start(700003);
  folded.Append("0123456789ABCDEF");
  folded.Repeat(5000);
  folded.Append(
      "\x82\xA0\xE3\x81\x82"
      "abc");
  folded.Append("\xE3\x81\x82\xE3\x81\x82\xE3\x81\x82\xE3\x81\x82\xE3\x81\x82\xE3");
  folded.Repeat(6000);
  folded.Append(std::string(16, 'Z'));
  folded.Repeat(10);
  folded.Repeat(7001);
  folded.Append("end of this");
  folded.Repeat(100000);
}

TEST(HexDumpOfFoldedBytes, IsTheDumpOfTheSameBytesUnfolded) {
  FoldedDump folded;
  FillFoldedDump(folded);
  ASSERT_EQ(folded.dump.Count(), 700003);
  ASSERT_EQ(folded.plain.size(), 700003U);
  for (const std::int32_t ccsid : {0, 819, 932, 943, 1208, 5488})
    EXPECT_EQ(DumpOfView(folded.dump.Declared(), ccsid), DumpOf(folded.plain, ccsid)) << ccsid;
}

TEST(HexDumpOfFoldedBytes, IsTheSameFromAnyOffsetToAnyEnd) {
  FoldedDump folded;
  FillFoldedDump(folded);
  const ByteView plain = ViewOf(folded.plain);
  for (const std::int64_t offset :
       {0, 1, 5, 15, 16, 17, 31, 33, 80015, 80016, 80025, 80040, 176050, 600000}) {
    for (const std::int64_t length : {1, 16, 100, 70000, 90001, 200000, 700003}) {
      EXPECT_EQ(DumpOfView(folded.dump.Declared().Sub(offset, length), 1208),
                DumpOfView(plain.Sub(offset, length), 1208))
          << offset << " " << length;
    }
  }
}

TEST(HexDumpOfFoldedBytes, AFieldBeyondItsParentIsZeroThere) {
  FoldedDump folded;
  FillFoldedDump(folded);
  const ByteView plain = ViewOf(folded.plain);
  // The parent ends within a repeat: its bytes go on in the dump, but the field must not show them.
  for (const std::int64_t offset : {49990, 49900, 30000, 17}) {
    EXPECT_EQ(DumpOfView(folded.dump.Declared().Sub(0, 50000).Field(offset, 20400)),
              DumpOfView(plain.Sub(0, 50000).Field(offset, 20400)))
        << offset;
  }
}

TEST(HexDumpOfClaimedBytes, EndsAtOnce) {
  DumpBytes dump;
  dump.Start(std::numeric_limits<std::int32_t>::max());
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(dump.Append('A'));
  EXPECT_EQ(DumpOfView(dump.Declared()),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010:41414141 00000000 00000000 00000000  [AAAA............]\n"
            "00000020:00000000 00000000 00000000 00000000  [................]\n"
            "00000030-7FFFFFEF same as above\n"
            "7FFFFFF0:00000000 00000000 00000000 000000    [...............]\n");
}

TEST(HexDumpOfClaimedBytes, ARepeatLineMayClaimThemToo) {
  DumpBytes dump;
  dump.Start(std::numeric_limits<std::int32_t>::max());
  for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append('A'));
  ASSERT_TRUE(dump.AppendRepeat(0x7FFFFFF));
  EXPECT_EQ(DumpOfView(dump.Declared()),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-7FFFFFEF same as above\n"
            "7FFFFFF0:41414141 41414141 41414141 414141    [AAAAAAAAAAAAAAA]\n");
}

TEST(HexDumpWrites, TellWhetherTheLastOneFailed) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  const Bytes bytes = BytesOf("A");
  EXPECT_EQ(PutHexData(runContext, "", ViewOf(bytes), false), 0);
  // A failure of the past is none of this dump's.
  runContext.fatalIoError = true;
  EXPECT_EQ(PutHexData(runContext, "", ViewOf(bytes), false), 0);

  FlushReport(runContext);
  WriteTraceData(runContext, std::string(ReportBuffer::kSize, 'x'));  // the next line finds no room
  std::FILE* const report = runContext.outputFile;
  runContext.outputFile = std::fopen("/dev/null", "r");
  ASSERT_NE(runContext.outputFile, nullptr);
  EXPECT_EQ(PutHexData(runContext, "", ViewOf(bytes), false), -1);
  std::fclose(runContext.outputFile);
  runContext.outputFile = report;
}

}  // namespace
}  // namespace quillon
