#include "display/encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "driver/ccsid_choice.h"
#include "message_bytes.h"
#include "report_capture.h"

namespace quillon {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

Bytes BytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

template <typename Show>
std::string Shown(Show show) {
  ReportCapture capture;
  show(capture.Context());
  return capture.Report();
}

std::string Encoding(std::uint32_t encoding) {
  return Shown([&](RunContext& c) { ShowParsedEncodingValue(c, encoding); });
}

std::string Ccsid(std::int32_t ccsid) {
  return Shown([&](RunContext& c) { ShowParsedCommonCcsid(c, "CodedCharSetId", ccsid, false); });
}

TEST(ByteOrderRule, ReversesForEveryEvenEncodingButZero) {
  for (const std::uint32_t encoding : {2U, 4U, 6U, 546U, 0x110U, 0x80000000U, 0xFFFFFFFEU})
    EXPECT_EQ(ZklongValueRegardingEncoding(0x01020304, encoding), 0x04030201U) << encoding;
  for (const std::uint32_t encoding : {0U, 1U, 3U, 273U, 785U, 0xFFFFFFFFU})
    EXPECT_EQ(ZklongValueRegardingEncoding(0x01020304, encoding), 0x01020304U) << encoding;
}

TEST(ByteOrderRule, ReversesAllEightBytes) {
  EXPECT_EQ(ZkInt64ValueRegardingEncoding(0x01020304, 0x05060708, 546), 0x0807060504030201U);
  EXPECT_EQ(ZkInt64ValueRegardingEncoding(0x01020304, 0x05060708, 273), 0x0102030405060708U);
  EXPECT_EQ(ZkInt64ValueRegardingEncoding(0x01020304, 0x05060708, 0), 0x0102030405060708U);
}

TEST(EncodingField, NativeSaysSo) {
  EXPECT_EQ(Encoding(273),
            "|> Encoding                 : 273 (Native encoding) INTEGER_NORMAL / DECIMAL_NORMAL / "
            "FLOAT_IEEE_NORMAL\n");
}

TEST(EncodingField, ReversedHasThreeNames) {
  EXPECT_EQ(Encoding(546),
            "|> Encoding                 : 546 INTEGER_REVERSED / DECIMAL_REVERSED / FLOAT_IEEE_REVERSED\n");
}

TEST(EncodingField, ZeroIsUndefined) {
  EXPECT_EQ(Encoding(0), Field("Encoding", "0 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED"));
}

TEST(EncodingField, NamesEveryPart) {
  const char* const integers[] = {"INTEGER_UNDEFINED", "INTEGER_NORMAL", "INTEGER_REVERSED",
                                  "INTEGER_UNDEFINED"};
  const char* const decimals[] = {"DECIMAL_UNDEFINED", "DECIMAL_NORMAL", "DECIMAL_REVERSED",
                                  "DECIMAL_UNDEFINED"};
  const char* const floats[] = {"FLOAT_UNDEFINED", "FLOAT_IEEE_NORMAL", "FLOAT_IEEE_REVERSED",
                                "FLOAT_S390",      "FLOAT_TNS",         "FLOAT_UNDEFINED"};
  for (std::uint32_t value = 0; value < 0x1000; ++value) {
    const std::string text = std::string(integers[std::min(value & 0xF, 3U)]) + " / " +
                             decimals[std::min(value >> 4 & 0xF, 3U)] + " / " +
                             floats[std::min(value >> 8 & 0xF, 5U)];
    const std::string native = value == 273 ? "(Native encoding) " : "";
    EXPECT_EQ(Encoding(value), Field("Encoding", std::to_string(value) + " " + native + text));
  }
}

TEST(EncodingField, IsUnsignedAndIgnoresHigherBits) {
  EXPECT_EQ(Encoding(0xFFFFF111),
            Field("Encoding", "4294963473 INTEGER_NORMAL / DECIMAL_NORMAL / FLOAT_IEEE_NORMAL"));
}

TEST(CcsidField, IsDescribed) {
  EXPECT_EQ(Ccsid(819), "|> CodedCharSetId           : 819 (ISO 8859-1 ASCII)\n");
  EXPECT_EQ(Ccsid(-1), "|> CodedCharSetId           : -1 (embedded)\n");
}

TEST(CcsidField, ZeroIsTheDefault) {
  EXPECT_EQ(Ccsid(0), Field("CodedCharSetId", "0 (default / queue_manager)"));
}

TEST(CcsidField, AnUnknownOneHasTheNotFoundTextInParentheses) {
  EXPECT_EQ(Ccsid(99999), Field("CodedCharSetId", "99999 ((Unknown value))"));
  EXPECT_EQ(Ccsid(-987), Field("CodedCharSetId", "-987 ((Unknown value))"));
}

TEST(CcsidField, MayBeOfFixedWidth) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedCommonCcsid(c, "(parm) - Value", 1208, true); }),
            "|> (parm) - Value           :   1208 (UTF-8 with ORX PUA)\n");
}

TEST(SevenBitAscii, ReplacesEverythingElse) {
  std::string text =
      "\x1F ~\x7F\x80\xFF\n\x01"
      "A";
  EXPECT_EQ(StringXlateToSevenBitAscii(text.data(), text.size()), 9U);
  EXPECT_EQ(text, ". ~.....A");
  EXPECT_EQ(StringXlateToSevenBitAscii(text.data(), 0), 0U);
}

// String descriptors.

/// How a descriptor is shown in a test, with the limits of the run.
struct CharvCase {
  VariableString descriptor = {0, 0, 0, 0, 819};
  CharvText text = {};
  Bytes structure = {};
  std::int32_t maxCharvLength = 400;
  std::int32_t maxLineLength = 100;
  std::int32_t ccsid = 819;
};

std::string CharvReport(const CharvCase& charv) {
  ReportCapture capture;
  RunContext& context = capture.Context();
  context.maxCharvLength = charv.maxCharvLength;
  context.maxXmlLineLength = charv.maxLineLength;
  context.ccsid = charv.ccsid;
  SetValueForCodeRangeCheck(context);
  ShowZKCHARV(context, "ObjectString", charv.descriptor, ViewOf(charv.structure), charv.text);
  return capture.Report();
}

CharvText Rebuilt(const Bytes& bytes) {
  return {CharvText::Place::Rebuilt, ViewOf(bytes)};
}

const CharvText kInStructure = {CharvText::Place::InStructure, {}};

/// What stands below the descriptor's lines.
std::string ValuePart(const std::string& report) {
  const std::string ccsidLine = Field("  VSCCSID", "819 (ISO 8859-1 ASCII)");
  const std::size_t at = report.find(ccsidLine);
  return at == std::string::npos ? "(no VSCCSID line)" : report.substr(at + ccsidLine.size());
}

/// The value part of a rebuilt text of `length` bytes.
std::string ValueOf(const Bytes& bytes, std::int32_t length, CharvCase charv = {}) {
  charv.descriptor.length = length;
  charv.text = Rebuilt(bytes);
  return ValuePart(CharvReport(charv));
}

const std::string kOpenValue = "|>   Value (in string)      : \n";
const std::string kTextPrefix = "|>     ";

std::string OneLine(const std::string& text) {
  return "|>   Value (in string)      : " + text + "\n";
}

TEST(CharvDescriptor, ShowsItsFields) {
  EXPECT_EQ(CharvReport({.descriptor = {0x20001000, -4, 48, 12, 1208}}),
            "|> ObjectString             : \n"
            "|>   VSPtr                  : 0x20001000\n"
            "|>   VSOffset               : -4\n"
            "|>   VSBufSize              : 48\n"
            "|>   VSLength               : 12\n"
            "|>   VSCCSID                : 1208 (UTF-8 with ORX PUA)\n");
}

TEST(CharvDescriptor, SaysWhichLengthIsUsed) {
  // "VSLength" stands two columns to the left of its neighbours.
  EXPECT_EQ(CharvReport({.descriptor = {0, 0, 0, -1, -3}}),
            "|> ObjectString             : \n"
            "|>   VSPtr                  : (null)\n"
            "|>   VSOffset               : 0\n"
            "|>   VSBufSize              : (use VSLength)\n"
            "|> VSLength                 : (null terminate)\n"
            "|>   VSCCSID                : -3 (appl)\n");
}

TEST(CharvDescriptor, NegativeSizesAreNumbers) {
  EXPECT_EQ(CharvReport({.descriptor = {0, 0, -1, -2, 0}}),
            "|> ObjectString             : \n"
            "|>   VSPtr                  : (null)\n"
            "|>   VSOffset               : 0\n"
            "|>   VSBufSize              : -1\n"
            "|>   VSLength               : -2\n"
            "|>   VSCCSID                : 0 (default / queue_manager)\n");
}

TEST(CharvText, ThatIsNotTracedIsNotShown) {
  CharvCase charv;
  charv.structure = BytesOf("0123456789");
  charv.descriptor = {0, 4, 0, 4, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), "");
}

TEST(CharvText, StandsAtItsOffsetInTheStructure) {
  CharvCase charv;
  charv.structure = BytesOf("0123456789");
  charv.text = kInStructure;
  charv.descriptor = {0, 4, 0, 3, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), OneLine("456"));
}

TEST(CharvText, AnAddressOfTheTracedProgramIsNotFollowed) {
  CharvCase charv;
  charv.structure = BytesOf("0123456789");
  charv.text = kInStructure;
  charv.descriptor = {0x1000, 4, 0, 3, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), "");
}

TEST(CharvText, WithoutAddressAndOffsetThereIsNone) {
  CharvCase charv;
  charv.structure = BytesOf("0123456789");
  charv.text = kInStructure;
  charv.descriptor = {0, 0, 0, 3, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), "");
}

TEST(CharvText, OutsideTheDumpIsZeros) {
  CharvCase charv;
  charv.structure = BytesOf("0123456789");
  charv.text = kInStructure;
  for (const std::int32_t offset : {-4, 10, 1000, kLargest, std::numeric_limits<std::int32_t>::min()}) {
    charv.descriptor = {0, offset, 0, 3, 819};
    EXPECT_EQ(ValuePart(CharvReport(charv)), OneLine("")) << offset;
    charv.descriptor = {0, offset, 0, -1, 819};
    EXPECT_EQ(ValuePart(CharvReport(charv)), OneLine("")) << offset;
  }
  charv.descriptor = {0, 8, 0, 75, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), kOpenValue + kTextPrefix + "89" + std::string(73, '.') + "\n");
}

TEST(CharvText, OfTheTraceIsShownWhateverTheDescriptorPointsTo) {
  const Bytes bytes = BytesOf("REBUILT");
  CharvCase charv;
  charv.text = Rebuilt(bytes);
  charv.descriptor = {0x1000, 99, 0, 7, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), OneLine("REBUILT"));
}

TEST(CharvText, TheBufferSizeWinsOverTheLength) {
  const Bytes bytes = BytesOf("0123456789");
  CharvCase charv;
  charv.text = Rebuilt(bytes);
  charv.descriptor = {0, 0, 3, 8, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), OneLine("012"));
  charv.descriptor = {0, 0, 3, -1, 819};
  EXPECT_EQ(ValuePart(CharvReport(charv)), OneLine("012"));
}

TEST(CharvText, OfNoLengthIsNotShown) {
  const Bytes bytes = BytesOf("0123456789");
  CharvCase charv;
  charv.text = Rebuilt(bytes);
  for (const auto& [bufferSize, length] : {std::pair{0, 0}, {0, -2}, {-1, 8}, {-1, -1}}) {
    charv.descriptor = {0, 0, bufferSize, length, 819};
    EXPECT_EQ(ValuePart(CharvReport(charv)), "") << bufferSize << " " << length;
  }
}

TEST(CharvText, ANulTerminatedOneCountsItsNul) {
  const Bytes bytes = BytesOf(std::string("abc\0def", 7));
  EXPECT_EQ(ValueOf(bytes, -1), OneLine("abc"));
  // 69 characters and the NUL fit on the line; of 70 and the NUL the NUL shows as a dot of the wrapped text.
  EXPECT_EQ(ValueOf(Bytes(69, 'x'), -1), OneLine(std::string(69, 'x')));
  EXPECT_EQ(ValueOf(Bytes(70, 'x'), -1), kOpenValue + kTextPrefix + std::string(70, 'x') + ".\n");
}

TEST(CharvText, SeventyBytesGoOnOneLine) {
  EXPECT_EQ(ValueOf(Bytes(70, 'x'), 70), OneLine(std::string(70, 'x')));
}

TEST(CharvText, SeventyOneBytesAreWrapped) {
  EXPECT_EQ(ValueOf(Bytes(71, 'x'), 71), kOpenValue + kTextPrefix + std::string(71, 'x') + "\n");
}

TEST(CharvText, IsWrappedAtTheLineLength) {
  EXPECT_EQ(ValueOf(Bytes(93, 'x'), 93), kOpenValue + kTextPrefix + std::string(93, 'x') + "\n");
  EXPECT_EQ(ValueOf(Bytes(94, 'x'), 94),
            kOpenValue + kTextPrefix + std::string(93, 'x') + "\n" + kTextPrefix + "x\n");
}

TEST(CharvText, FiveHundredBytesShowFourHundred) {
  EXPECT_EQ(ValueOf(Bytes(500, 'x'), 500),
            kOpenValue + kTextPrefix + std::string(93, 'x') + "\n" + kTextPrefix + std::string(93, 'x') +
                "\n" + kTextPrefix + std::string(93, 'x') + "\n" + kTextPrefix + std::string(93, 'x') + "\n" +
                kTextPrefix + std::string(28, 'x') + "\n" + "|>      (Shown only leading 400 byte(s) ...)\n");
}

TEST(CharvText, OfTheLimitExactlyIsShownWhole) {
  const std::string value = ValueOf(Bytes(400, 'x'), 400);
  EXPECT_EQ(value.find("Shown only"), std::string::npos);
  EXPECT_EQ(std::count(value.begin(), value.end(), 'x'), 400);
  EXPECT_NE(ValueOf(Bytes(401, 'x'), 401).find("Shown only leading 400 byte"), std::string::npos);
}

TEST(CharvText, ThatFitsOnALineIsNeverCut) {
  EXPECT_EQ(ValueOf(Bytes(70, 'x'), 70, {.maxCharvLength = 10}), OneLine(std::string(70, 'x')));
}

TEST(CharvText, ALimitOfZeroShowsTheNoteOnly) {
  EXPECT_EQ(ValueOf(Bytes(71, 'x'), 71, {.maxCharvLength = 0}),
            kOpenValue + "|>      (Shown only leading 0 byte(s) ...)\n");
}

TEST(CharvText, ANegativeLimitIsNone) {
  const std::string value = ValueOf(Bytes(500, 'x'), 500, {.maxCharvLength = -1});
  EXPECT_EQ(std::count(value.begin(), value.end(), 'x'), 500);
  EXPECT_EQ(value.find("Shown only"), std::string::npos);
}

TEST(CharvText, LinesOfFortyCharacters) {
  EXPECT_EQ(ValueOf(Bytes(10, 'x'), 10, {.maxLineLength = 40}), OneLine(std::string(10, 'x')));
  EXPECT_EQ(ValueOf(Bytes(11, 'x'), 11, {.maxLineLength = 40}),
            kOpenValue + kTextPrefix + std::string(11, 'x') + "\n");
  EXPECT_EQ(ValueOf(Bytes(70, 'x'), 70, {.maxLineLength = 40}),
            kOpenValue + kTextPrefix + std::string(33, 'x') + "\n" + kTextPrefix + std::string(33, 'x') +
                "\n" + kTextPrefix + "xxxx\n");
}

TEST(CharvText, TheCutMayLeaveACharacterIncomplete) {
  const Bytes bytes = BytesOf("xx\xE3\x81\x82" + std::string(90, 'x'));
  EXPECT_EQ(ValueOf(bytes, 95, {.maxCharvLength = 4, .ccsid = 1208}),
            kOpenValue + kTextPrefix + "xx..\n" + "|>      (Shown only leading 4 byte(s) ...)\n");
}

TEST(CharvText, ThatIsOnlyClaimedEndsAtOnce) {
  const Bytes bytes = BytesOf("abcde");
  const std::string cut = ValueOf(bytes, kLargest);
  EXPECT_TRUE(cut.starts_with(kOpenValue + kTextPrefix + "abcde" + std::string(88, '.') + "\n")) << cut;
  EXPECT_TRUE(cut.ends_with("|>      (Shown only leading 400 byte(s) ...)\n"));
  const std::string whole = ValueOf(bytes, kLargest, {.maxCharvLength = -1});
  EXPECT_EQ(std::count(whole.begin() + static_cast<std::ptrdiff_t>(kOpenValue.size()), whole.end(), '.'),
            1048576);
}

TEST(CharvLength, FollowsTheDescriptor) {
  const Bytes bytes = BytesOf(std::string("abc\0def", 7));
  const ByteView text = ViewOf(bytes);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 5, 9, 0}, text), 5);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, -5, 9, 0}, text), -5);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 0, 9, 0}, text), 9);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 0, 0, 0}, text), 0);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 0, -2, 0}, text), -2);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 0, -1, 0}, text), 4);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 0, -1, 0}, text.From(4)), 4);
  EXPECT_EQ(CalculateZkcharvDataLength({0, 0, 0, -1, 0}, ByteView()), 1);
}

// Wrapped text.

std::string Wrapped(std::int32_t maxLineLength, std::int32_t indent, std::string_view text,
                    std::int32_t ccsid = 819) {
  ReportCapture capture;
  capture.Context().maxXmlLineLength = maxLineLength;
  capture.Context().ccsid = ccsid;
  SetValueForCodeRangeCheck(capture.Context());
  const Bytes bytes = BytesOf(text);
  ShowTextStringDataRegardingMaximumLrecl(capture.Context(), indent, ViewOf(bytes));
  return capture.Report();
}

TEST(WrappedText, OfNothingHasNoLine) {
  EXPECT_EQ(Wrapped(40, 4, ""), "");
}

TEST(WrappedText, FillsItsLines) {
  EXPECT_EQ(Wrapped(40, 0, std::string(37, 'x')), "|> " + std::string(37, 'x') + "\n");
  EXPECT_EQ(Wrapped(40, 0, std::string(38, 'x')), "|> " + std::string(37, 'x') + "\n|> x\n");
  EXPECT_EQ(Wrapped(999, 4, std::string(993, 'x')),
            kTextPrefix + std::string(992, 'x') + "\n" + kTextPrefix + "x\n");
}

TEST(WrappedText, ADeepIndentIsLimited) {
  EXPECT_EQ(Wrapped(40, 20, "x"), "|> " + std::string(20, ' ') + "x\n");
  EXPECT_EQ(Wrapped(40, 21, "x"), "|> " + std::string(20, ' ') + "x\n");
  EXPECT_EQ(Wrapped(40, 1000, std::string(18, 'x')),
            "|> " + std::string(20, ' ') + std::string(17, 'x') + "\n|> " + std::string(20, ' ') + "x\n");
  EXPECT_EQ(Wrapped(100, 80, "x"), "|> " + std::string(80, ' ') + "x\n");
  EXPECT_EQ(Wrapped(100, 81, "x"), "|> " + std::string(80, ' ') + "x\n");
}

TEST(WrappedText, BlanksAndLineEndsOfTheTextStay) {
  EXPECT_EQ(Wrapped(40, 4, " a\nb "), kTextPrefix + " a.b \n");
}

TEST(WrappedText, AMultiByteCharacterIsNeverSplit) {
  std::string kana;
  for (int i = 0; i < 11; ++i) kana += "\xE3\x81\x82";
  EXPECT_EQ(Wrapped(40, 4, kana + "\xE3\x81\x83", 1208),
            kTextPrefix + kana + "\n" + kTextPrefix + "\xE3\x81\x83\n");
  const std::string text(32, 'x');
  EXPECT_EQ(Wrapped(40, 4, text + "\xC3\xA9", 1208), kTextPrefix + text + "\n" + kTextPrefix + "\xC3\xA9\n");
}

TEST(WrappedText, TheDotsOfARejectedCharacterStayTogether) {
  const std::string text(31, 'x');
  EXPECT_EQ(Wrapped(40, 4,
                    text + "\xE3\x81"
                           "Bz",
                    1208),
            kTextPrefix + text + "\n" + kTextPrefix + "...z\n");
  EXPECT_EQ(Wrapped(40, 4,
                    text + "\xE3"
                           "Bz",
                    1208),
            kTextPrefix + text + "..\n" + kTextPrefix + "z\n");
}

TEST(WrappedText, WhatIsIncompleteAtTheEndIsDots) {
  const std::string text(32, 'x');
  EXPECT_EQ(Wrapped(40, 4, "x\xE3\x81", 1208), kTextPrefix + "x..\n");
  EXPECT_EQ(Wrapped(40, 4, text + "\xE3", 1208), kTextPrefix + text + ".\n");
}

TEST(WrappedText, ANulIsADot) {
  EXPECT_EQ(Wrapped(40, 4, std::string_view("a\0b", 3)), kTextPrefix + "a.b\n");
}

}  // namespace
}  // namespace quillon
