#include "display/fieldline.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "base/dump_bytes.h"
#include "driver/ccsid_choice.h"
#include "message_bytes.h"
#include "report_capture.h"

namespace quillon {
namespace {

/// What a primitive writes.
template <typename Show>
std::string Shown(Show show) {
  ReportCapture capture;
  show(capture.Context());
  return capture.Report();
}

/// The same with the characters of a CCSID.
template <typename Show>
std::string ShownInCcsid(std::int32_t ccsid, Show show) {
  ReportCapture capture;
  capture.Context().ccsid = ccsid;
  SetValueForCodeRangeCheck(capture.Context());
  show(capture.Context());
  return capture.Report();
}

std::string FixedString(std::string_view text) {
  return Shown([&](RunContext& c) { ShowFieldValueStringFixed(c, "Name", text); });
}

std::string HexLine(const std::string& hex, HexLineStyle style = {}) {
  const std::vector<std::uint8_t> bytes = BytesOfHex(hex);
  return Shown([&](RunContext& c) { ShowParsedHexValueSingleLine(c, "Id", ViewOf(bytes), style); });
}

std::string HexCharacters(std::int32_t ccsid, const std::string& hex) {
  const std::vector<std::uint8_t> bytes = BytesOfHex(hex);
  return ShownInCcsid(ccsid, [&](RunContext& c) {
    ShowParsedHexValueSingleLine(c, "", ViewOf(bytes), {.showHex = false, .lineEnd = false});
  });
}

const std::string kIdColumn = "|> Id                       : ";
const std::string kNoNameColumn = "|>                          : ";

TEST(FieldName, IsPaddedTo25Columns) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldName(c, "Version"); }), "|> Version                  : ");
}

TEST(FieldName, TheValueStartsInColumn31) {
  const std::string column = Shown([](RunContext& c) { ShowFieldName(c, "ABCDEFGHIJKLMNOPQRSTUVWXY"); });
  EXPECT_EQ(column, "|> ABCDEFGHIJKLMNOPQRSTUVWXY: ");
  EXPECT_EQ(column.size(), 30U);
}

TEST(FieldName, ALongNameIsWrittenWhole) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldName(c, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"); }),
            "|> ABCDEFGHIJKLMNOPQRSTUVWXYZ: ");
}

TEST(FieldName, AnEmptyNameIsAnEmptyColumn) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldName(c, ""); }), kNoNameColumn);
}

TEST(AttributeDescription, SeparatesAllButTheFirst) {
  std::int32_t counter = 0;
  EXPECT_EQ(Shown([&](RunContext& c) {
              ShowAttributeDescription(c, counter, "ONE");
              ShowAttributeDescription(c, counter, "TWO");
              ShowAttributeDescription(c, counter, "THREE");
            }),
            "ONE / TWO / THREE");
  EXPECT_EQ(counter, 3);
}

TEST(AttributeDescription, ContinuesACountThatWasBegun) {
  std::int32_t counter = 7;
  EXPECT_EQ(Shown([&](RunContext& c) { ShowAttributeDescription(c, counter, "MORE"); }), " / MORE");
  EXPECT_EQ(counter, 8);
}

TEST(DecimalField, IsTheNumberAndTheLineEnd) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldValueZklong(c, "Expiry", -1); }),
            "|> Expiry                   : -1\n");
}

TEST(DecimalField, ShowsTheSmallestAndTheLargestNumber) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldValueZklong(c, "Id", std::numeric_limits<std::int32_t>::min());
              ShowFieldValueZklong(c, "Id", std::numeric_limits<std::int32_t>::max());
            }),
            kIdColumn + "-2147483648\n" + kIdColumn + "2147483647\n");
}

TEST(DecimalField, LeavesTheLineOpenWhenAsked) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldValueZklong(c, "Id", 15, LineEnd::None); }), kIdColumn + "15");
}

TEST(DecimalField, WithoutANameContinuesTheLine) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldValueZklong(c, "", 15); }), "15\n");
}

TEST(FixedDecimalField, IsRightAlignedInSixColumns) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldValueZklongFixedLen(c, "Id", 42);
              ShowFieldValueZklongFixedLen(c, "Id", -1, LineEnd::None);
              ShowFieldValueZklongFixedLen(c, "", 123456);
              ShowFieldValueZklongFixedLen(c, "", -1234567);
            }),
            kIdColumn + "    42\n" + kIdColumn + "    -1" + "123456\n" + "-1234567\n");
}

TEST(FixedInt64Field, JoinsTheHighAndTheLowWord) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowFieldValueZkInt64FixedLen(c, "Id", 0, 5, "");
              ShowFieldValueZkInt64FixedLen(c, "Id", 1, 0, "");
              ShowFieldValueZkInt64FixedLen(c, "Id", 0xFFFFFFFF, 0xFFFFFFFF, "");
              ShowFieldValueZkInt64FixedLen(c, "Id", 0x7FFFFFFF, 0xFFFFFFFF, "");
              ShowFieldValueZkInt64FixedLen(c, "Id", 0x80000000, 0, "");
            }),
            kIdColumn + "     5\n" + kIdColumn + "4294967296\n" + kIdColumn + "    -1\n" + kIdColumn +
                "9223372036854775807\n" + kIdColumn + "-9223372036854775808\n");
}

TEST(FixedInt64Field, PutsADescriptionInParentheses) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldValueZkInt64FixedLen(c, "", 0, 7, "seven"); }),
            "     7 (seven)\n");
}

TEST(HexLine, GroupsFourBytes) {
  EXPECT_EQ(HexLine("0000000A0000000B"), kIdColumn + "0000000A 0000000B  [........]\n");
  EXPECT_EQ(HexLine("41"), kIdColumn + "41  [A]\n");
  EXPECT_EQ(HexLine("41424344"), kIdColumn + "41424344  [ABCD]\n");
  EXPECT_EQ(HexLine("4142434445"), kIdColumn + "41424344 45  [ABCDE]\n");
}

TEST(HexLine, ZeroAndEmptyDataAreNull) {
  EXPECT_EQ(HexLine("00000000"), kIdColumn + "(null)\n");
  EXPECT_EQ(HexLine(""), kIdColumn + "(null)\n");
}

TEST(HexLine, OneByteThatIsNotZeroIsEnough) {
  EXPECT_EQ(HexLine("00000001"), kIdColumn + "00000001  [....]\n");
  EXPECT_EQ(HexLine("01000000"), kIdColumn + "01000000  [....]\n");
}

TEST(HexLine, NullEndsTheLineEvenWhereNoLineEndWasAsked) {
  EXPECT_EQ(HexLine("0000", {.lineEnd = false}), kIdColumn + "(null)\n");
}

TEST(HexLine, WithoutTheNullCheckZerosAreShown) {
  EXPECT_EQ(HexLine("0000", {.nullCheck = false}), kIdColumn + "0000  [..]\n");
  EXPECT_EQ(HexLine("", {.nullCheck = false}), kIdColumn + "  []\n");
}

TEST(HexLine, MayShowTheCharactersAlone) {
  EXPECT_EQ(HexLine("414200", {.showHex = false}), kIdColumn + "[AB.]\n");
  EXPECT_EQ(HexLine("414200", {.showHex = false, .lineEnd = false}), kIdColumn + "[AB.]");
}

TEST(HexLine, WithoutANameContinuesTheLine) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("FF41");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueSingleLine(c, "", ViewOf(bytes)); }),
            "FF41  [.A]\n");
}

TEST(CharacterColumn, HoldsTheBytesOfASingleByteCcsid) {
  EXPECT_EQ(HexCharacters(819, "1F207E7F80A0FF"), "[. ~..\xA0\xFF]");
  EXPECT_EQ(HexCharacters(0, "80"), "[.]");
  EXPECT_EQ(HexCharacters(850, "7F80FEFF"), "[.\x80\xFE.]");
}

TEST(CharacterColumn, ShowsAMultiByteCharacterWhole) {
  EXPECT_EQ(HexCharacters(1208, "41C3A9E3818242"),
            "[A\xC3\xA9\xE3\x81\x82"
            "B]");
}

TEST(CharacterColumn, DotsEveryByteOfARejectedCharacter) {
  // The byte that ends the attempt is itself a dot, although it is a character on its own.
  EXPECT_EQ(HexCharacters(1208, "E3814142"), "[...B]");
  EXPECT_EQ(HexCharacters(1208, "C342"), "[..]");
}

TEST(CharacterColumn, DotsWhatIsIncompleteAtTheEnd) {
  EXPECT_EQ(HexCharacters(1208, "41E381"), "[A..]");
  EXPECT_EQ(HexCharacters(5488, "813081"), "[...]");
}

TEST(CharacterColumn, WithoutPatternsIsAllDots) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("414220");
  EXPECT_EQ(Shown([&](RunContext& c) {
              c.characterPatterns.entry[0][0][0] = CharacterPatternMap::kEnd;
              FillCharacterImages(c.characterPatterns);
              ShowParsedHexValueSingleLine(c, "", ViewOf(bytes));
            }),
            "414220  [...]\n");
}

TEST(HexLines, StandBeneathTheName) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("4142434445464748 0102030405060708 5A");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueMultipleLines(c, "Id", ViewOf(bytes)); }),
            kIdColumn +
                "\n"
                "|>     00000000:41424344 45464748 01020304 05060708  [ABCDEFGH........]\n"
                "|>     00000010:5A                                   [Z]\n");
}

TEST(HexLines, WriteTheColumnOfAnEmptyName) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("5A");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueMultipleLines(c, "", ViewOf(bytes)); }),
            kNoNameColumn + "\n|>     00000000:5A                                   [Z]\n");
}

TEST(HexLines, ZeroAndEmptyDataAreNull) {
  const std::vector<std::uint8_t> zeros(40);
  EXPECT_EQ(Shown([&](RunContext& c) {
              ShowParsedHexValueMultipleLines(c, "Id", ViewOf(zeros));
              ShowParsedHexValueMultipleLines(c, "Id", ByteView());
            }),
            kIdColumn + "(null)\n" + kIdColumn + "(null)\n");
}

TEST(HexLines, WithoutTheNullCheckZerosAreShown) {
  const std::vector<std::uint8_t> zeros(2);
  EXPECT_EQ(Shown([&](RunContext& c) {
              ShowParsedHexValueMultipleLines(c, "Id", ViewOf(zeros), false);
              ShowParsedHexValueMultipleLines(c, "Id", ByteView(), false);
            }),
            kIdColumn + "\n|>     00000000:0000                                 [..]\n" + kIdColumn + "\n");
}

TEST(HexFormatSelect, ThirtyTwoBytesGoOnOneLine) {
  const std::vector<std::uint8_t> bytes(32, 0x41);
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueFormatSelect(c, "Id", ViewOf(bytes)); }),
            kIdColumn +
                "41414141 41414141 41414141 41414141 41414141 41414141 41414141 41414141"
                "  [AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA]\n");
}

TEST(HexFormatSelect, ThirtyThreeBytesGoToADump) {
  const std::vector<std::uint8_t> bytes(33, 0x41);
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueFormatSelect(c, "Id", ViewOf(bytes)); }),
            kIdColumn +
                "\n"
                "|>     00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
                "|>     00000010-0000001F same as above\n"
                "|>     00000020:41                                   [A]\n");
}

TEST(HexFormatSelect, ZerosAreNullOnOneLineAndOnSeveral) {
  const std::vector<std::uint8_t> zeros(33);
  EXPECT_EQ(Shown([&](RunContext& c) {
              ShowParsedHexValueFormatSelect(c, "Id", ViewOf(zeros).Sub(0, 32));
              ShowParsedHexValueFormatSelect(c, "Id", ViewOf(zeros));
              ShowParsedHexValueFormatSelect(c, "Id", ByteView());
            }),
            kIdColumn + "(null)\n" + kIdColumn + "(null)\n" + kIdColumn + "(null)\n");
}

TEST(MessageHandleField, ShowsTheHighWordFirst) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowZKHMSG(c, "Id", {0x01024142, 0x43440304});
            }),
            kIdColumn + "01024142 43440304  [..ABCD..]\n");
  EXPECT_EQ(Shown([](RunContext& c) { ShowZKHMSG(c, "Id", {0, 0}); }), kIdColumn + "(null)\n");
}

TEST(FixedStringField, FortyBlanksAreAnEmptyValue) {
  EXPECT_EQ(FixedString(std::string(40, ' ')), Field("Name", ""));
  EXPECT_EQ(FixedString(""), Field("Name", ""));
}

TEST(FixedStringField, WritesTheColumnOfAnEmptyName) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowFieldValueStringFixed(c, "", "A"); }), kNoNameColumn + "A\n");
}

TEST(FixedStringField, DotsStandForUnprintableBytes) {
  EXPECT_EQ(FixedString("ABC\x01"
                        "DEF"),
            Field("Name", "ABC.DEF"));
  EXPECT_EQ(FixedString("\x1F\x20\x7E\x7F\x80\xFF"), Field("Name", ". ~..."));
  EXPECT_EQ(FixedString("A\nB"), Field("Name", "A.B"));
}

TEST(FixedStringField, ShowsNoMultiByteCharactersInAnyCcsid) {
  EXPECT_EQ(ShownInCcsid(1208,
                         [](RunContext& c) {
                           ShowFieldValueStringFixed(c, "Name",
                                                     "A\xC3\xA9"
                                                     "B");
                         }),
            Field("Name", "A..B"));
}

TEST(FixedStringField, DropsBlanksAndLineEndsFromTheEnd) {
  EXPECT_EQ(FixedString("AB \r\n \n"), Field("Name", "AB"));
  EXPECT_EQ(FixedString(" \r\n"), Field("Name", ""));
  EXPECT_EQ(FixedString("  AB\t "), Field("Name", "  AB."));
}

TEST(FixedStringField, ALongTextStaysOnItsLine) {
  const std::string text(150, 'x');
  EXPECT_EQ(FixedString(text), Field("Name", text));
}

TEST(FixedStringField, ANulHidesTheRestOfItsPieceOnly) {
  std::string text(250, 'x');
  for (std::size_t i = 0; i < 3; ++i) text[99 * i] = static_cast<char>('A' + i);
  text[10] = '\0';       // of bytes 0 to 98 the first 10 are shown
  text[198 + 4] = '\0';  // of bytes 198 to 249 the first 4
  EXPECT_EQ(FixedString(text),
            Field("Name", "A" + std::string(9, 'x') + "B" + std::string(98, 'x') + "Cxxx"));
}

TEST(FixedStringField, ANulAtTheEdgeOfAPieceHidesNothingOfTheNext) {
  std::string text(100, 'x');
  text[98] = '\0';
  EXPECT_EQ(FixedString(text), Field("Name", std::string(99, 'x')));
  text[98] = 'x';
  text[99] = '\0';
  EXPECT_EQ(FixedString(text), Field("Name", std::string(99, 'x')));
}

TEST(FixedStringField, BlanksBeforeATrailingNulStay) {
  EXPECT_EQ(FixedString(std::string_view("AB  \0  ", 7)), Field("Name", "AB  "));
}

TEST(FixedStringField, BytesBeyondTheDumpAreZeros) {
  const std::vector<std::uint8_t> bytes = BytesOfHex("4142");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowFieldValueStringFixed(c, "Name", ViewOf(bytes).Field(0, 48)); }),
            Field("Name", "AB"));
}

TEST(DataVersion, IsFilledToTwentyNineCharacters) {
  const std::string line = Shown([](RunContext& c) { ShowDataVersion(c, "MD", 2); });
  EXPECT_EQ(line, "|> --- MD version 2----------\n");
  EXPECT_EQ(line.size(), 30U);
}

TEST(DataVersion, ALongLabelGetsNoDashes) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowDataVersion(c, "ABCDEFGHIJK", 2);
              ShowDataVersion(c, "ABCDEFGHIJKL", 2);
              ShowDataVersion(c, "ABCDEFGHIJKLM", 2);
            }),
            "|> --- ABCDEFGHIJK version 2-\n"
            "|> --- ABCDEFGHIJKL version 2\n"
            "|> --- ABCDEFGHIJKLM version 2\n");
}

TEST(DataVersion, CountsTheDigitsOfTheVersion) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowDataVersion(c, "OD", -12); }), "|> --- OD version -12--------\n");
}

TEST(ValueOffset, TellsTheRangeInDecimalAndHex) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedValueOffset(c, 364, 100, "Header"); }),
            "|> ----- offset 364-463 (=x16C-x1CF) length 100 (=x64) - Header\n");
}

TEST(ValueOffset, IsUnsigned) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowParsedValueOffset(c, 0, 0, "Nothing");
              ShowParsedValueOffset(c, 0xFFFFFFF0, 16, "End");
            }),
            "|> ----- offset 0-4294967295 (=x0-xFFFFFFFF) length 0 (=x0) - Nothing\n"
            "|> ----- offset 4294967280-4294967295 (=xFFFFFFF0-xFFFFFFFF) length 16 (=x10) - End\n");
}

TEST(UnknownAttribute, IsReportedInTheReportAndOnTheTerminal) {
  ReportCapture capture;
  ASSERT_FALSE(capture.Context().unknownAttributeSeen);
  ShowUnknownAttribute(capture.Context(), "ZKMD - ZKPER_...", 5);
  EXPECT_EQ(capture.Report(),
            "|**********************************\n"
            "|* Unknown : ZKMD - ZKPER_... 0x00000005\n"
            "|**********************************\n");
  EXPECT_EQ(capture.Terminal(), "Unknown API attribute : ZKMD - ZKPER_... value 0x00000005\n");
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(UnknownAttribute, ShowsANegativeValueAsItsBits) {
  ReportCapture capture;
  ShowUnknownAttribute(capture.Context(), "X", -2);
  EXPECT_EQ(capture.Report(), Notice("X 0xFFFFFFFE"));
  EXPECT_EQ(capture.Terminal(), "Unknown API attribute : X value 0xFFFFFFFE\n");
}

TEST(UnknownVersion, IsReportedInTheReportAndOnTheTerminal) {
  ReportCapture capture;
  ShowUnknownStructureVersion(capture.Context(), "ZKCD", 12);
  EXPECT_EQ(capture.Report(),
            "|**********************************\n"
            "|* Unknown : ZKCD version 12\n"
            "|**********************************\n");
  EXPECT_EQ(capture.Terminal(), "Unknown API structure : ZKCD version 12\n");
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(UnknownVersion, IsSignedInTheReportAndUnsignedOnTheTerminal) {
  ReportCapture capture;
  ShowUnknownStructureVersion(capture.Context(), "ZKCD", -1);
  EXPECT_EQ(capture.Report(), Notice("ZKCD version -1"));
  EXPECT_EQ(capture.Terminal(), "Unknown API structure : ZKCD version 4294967295\n");
}

TEST(IntegerInHex, HasEightDigitsAndNoLineEnd) {
  EXPECT_EQ(Shown([](RunContext& c) {
              Show4ByteIntegerInHex(c, 0xAB, true);
              Show4ByteIntegerInHex(c, 0, true);
              Show4ByteIntegerInHex(c, 0, false);
              Show4ByteIntegerInHex(c, 0xFFFFFFFF, false);
            }),
            "0x000000AB(null)0x000000000xFFFFFFFF");
}

TEST(PointerInHex, IsAnIntegerInHex) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowPointerInHex(c, 0x20001000, true);
              ShowPointerInHex(c, 0, true);
              ShowPointerInHex(c, 0, false);
            }),
            "0x20001000(null)0x00000000");
}

TEST(PointerInHex, HasSixteenDigitsOnA64BitPlatform) {
  EXPECT_EQ(Shown([](RunContext& c) {
              c.platform.wide = true;
              ShowPointerInHex(c, 0x20001000, true);
              ShowPointerInHex(c, 0xFEDCBA9876543210, true);
              ShowPointerInHex(c, 0x100000000, true);
              ShowPointerInHex(c, 0, true);
              ShowPointerInHex(c, 0, false);
            }),
            "0x00000000200010000xFEDCBA98765432100x0000000100000000(null)0x0000000000000000");
}

TEST(ObjectHandle, StandsMostSignificantByteFirst) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowZKHOBJ(c, "Context", 0x41420003);
              ShowZKHOBJ(c, "Context", 0);
            }),
            "|> Context                  : 41420003  [AB..]\n"
            "|> Context                  : (null)\n");
}

// A trace of a few lines may claim any length: what it does not carry costs neither time nor memory.

TEST(ClaimedBytes, AreNullWhenTheTraceCarriesZeros) {
  DumpBytes dump;
  dump.Start(std::numeric_limits<std::int32_t>::max());
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(dump.Append(0));
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueSingleLine(c, "Id", dump.Declared()); }),
            kIdColumn + "(null)\n");
}

TEST(ClaimedBytes, AreNotNullWhenOneByteBehindALongRepeatIsNotZero) {
  DumpBytes dump;
  dump.Start(2000000001);
  for (int i = 0; i < 16; ++i) ASSERT_TRUE(dump.Append(0));
  ASSERT_TRUE(dump.AppendRepeat(125000000 - 1));
  ASSERT_EQ(dump.Count(), 2000000000);
  ASSERT_TRUE(dump.Append(7));
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedHexValueMultipleLines(c, "Id", dump.Declared()); }),
            kIdColumn +
                "\n"
                "|>     00000000:00000000 00000000 00000000 00000000  [................]\n"
                "|>     00000010-773593FF same as above\n"
                "|>     77359400:07                                   [.]\n");
}

TEST(ClaimedBytes, OfATextAreShownAsFarAsOneMebibyte) {
  const std::vector<std::uint8_t> bytes(20, 0x41);
  const ByteView claimed = ViewOf(bytes).Field(0, std::numeric_limits<std::int32_t>::max());
  const std::string line =
      Shown([&](RunContext& c) { ShowParsedHexValueSingleLine(c, "", claimed, {.showHex = false}); });
  EXPECT_EQ(line, "[" + std::string(20, 'A') + std::string(1048576, '.') + "]\n");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowFieldValueStringFixed(c, "Name", claimed); }),
            Field("Name", std::string(20, 'A')));
}

}  // namespace
}  // namespace quillon
