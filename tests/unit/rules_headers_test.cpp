#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "base/dump_bytes.h"
#include "message_bytes.h"
#include "msgdata/formatters.h"
#include "report_capture.h"

namespace quillon {
namespace {

constexpr char kReversed[] = "546 INTEGER_REVERSED / DECIMAL_REVERSED / FLOAT_IEEE_REVERSED";

MessageBytes Rules1(std::int64_t strucLength, ByteOrder order = ByteOrder::Big) {
  MessageBytes header(order);
  return header.Text("RFH ").Int(1).Int(strucLength).Int(546).Int(819).Text("ZKSTR   ").Int(7);
}

std::string Rules1Fields(std::string_view strucLength) {
  return Field("Version", "1") + Field("StrucLength", strucLength) + Field("Encoding", kReversed) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", "ZKSTR (String)") +
         Field("Flags ", "7");
}

std::string ShowRules1(const MessageBytes& data, std::int64_t offset = 0, std::uint32_t encoding = 273) {
  ReportCapture capture;
  ShowParsedZKHRF1(capture.Context(), encoding, ViewOf(data.First(data.bytes.size())), offset);
  EXPECT_EQ(capture.Terminal(), "");
  return capture.Report();
}

// What is shown of a name/value string behind the two titles.
std::string ShowNameValueString(std::string_view text) {
  MessageBytes data = Rules1(32 + static_cast<std::int64_t>(text.size()));
  const std::string report = ShowRules1(data.Text(text));
  const std::string end = " - NameValueString\n";
  return report.substr(report.find(end) + end.size());
}

TEST(RulesHeader1, ShowsPairsOfTokens) {
  EXPECT_EQ(ShowRules1(Rules1(44).Text("a 1 b \"x y\" ")),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("44") +
                "|> ----- offset 32-75 (=x20-x4B) length 44 (=x2C) - NameValueString\n"
                "|> a - 1\n"
                "|> b - \"x y\"\n");
}

TEST(RulesHeader1, ReversedAtAnOffset) {
  MessageBytes data = Rules1(36, ByteOrder::Little);
  EXPECT_EQ(ShowRules1(data.Text("k v "), 100, 2),
            "|> ----- offset 100-131 (=x64-x83) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("36") +
                "|> ----- offset 132-167 (=x84-xA7) length 36 (=x24) - NameValueString\n"
                "|> k - v\n");
}

TEST(RulesHeader1, FieldsStandAtTheirOffsets) {
  EXPECT_EQ(ShowRules1(MessageBytes().Ascending(0x21, 36)),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Field("Version", "623257384") + Field("StrucLength", "690629420") +
                Field("Encoding", "758001456 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED") +
                Field("CodedCharSetId", "825373492 ((Unknown value))") + Field("Format", "56789:;<") +
                Field("Flags ", "1027489600") +
                "|> ----- offset 32-690629451 (=x20-x292A2B4B) length 690629420 (=x292A2B2C) - "
                "NameValueString\n"
                "|> ABCD");
}

TEST(RulesHeader1, OddTokenLeavesItsLineOpen) {
  EXPECT_EQ(ShowNameValueString("a 1 b"), "|> a - 1\n|> b");
  EXPECT_EQ(ShowNameValueString("a 1 b   "), "|> a - 1\n|> b");
  EXPECT_EQ(ShowNameValueString("a"), "|> a");
}

TEST(RulesHeader1, BytesBelow33SeparateTokens) {
  EXPECT_EQ(ShowNameValueString(std::string_view("\n\0 a\0\x1F"
                                                 "1!\tb\r2 ",
                                                 13)),
            "|> a - 1!\n|> b - 2\n");
  EXPECT_EQ(ShowNameValueString(""), "");
  EXPECT_EQ(ShowNameValueString("   "), "");
}

TEST(RulesHeader1, HighBytesBelongToTokens) {
  EXPECT_EQ(ShowNameValueString("a \xC4\x80\xFF"), "|> a - \xC4\x80\xFF\n");
}

TEST(RulesHeader1, QuotesMayStandAnywhereInAToken) {
  EXPECT_EQ(ShowNameValueString("n a\" \"b\" c \"d e"), "|> n - a\" \"b\" c \"d\n|> e");
  EXPECT_EQ(ShowNameValueString("n \"a\"\"b c\" d e"), "|> n - \"a\"\"b c\"\n|> d - e\n");
  EXPECT_EQ(ShowNameValueString("n \"never closed "), "|> n - \"never closed \n");
}

TEST(RulesHeader1, NulHidesTheRestOfItsPiece) {
  // The quoted token has 212 bytes: a piece of 199 and one of 13.
  const std::string value = "\"AAAAAAAAA" + std::string(1, '\0') + std::string(200, 'B') + "\"";
  EXPECT_EQ(ShowNameValueString("n " + value), "|> n - \"AAAAAAAAA" + std::string(12, 'B') + "\"\n");
}

TEST(RulesHeader1, LongTokenIsShownWhole) {
  for (const std::size_t length : {198U, 199U, 200U, 398U, 399U}) {
    const std::string token(length, 'x');
    EXPECT_EQ(ShowNameValueString("n " + token), "|> n - " + token + "\n");
  }
}

TEST(RulesHeader1, StringEndsWithTheData) {
  EXPECT_EQ(ShowRules1(Rules1(100).Text("ab cd   ")),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("100") +
                "|> ----- offset 32-131 (=x20-x83) length 100 (=x64) - NameValueString\n"
                "|> ab - cd\n");
}

TEST(RulesHeader1, StringEndsWithTheStructure) {
  EXPECT_EQ(ShowRules1(Rules1(36).Text("a b c d ")),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("36") +
                "|> ----- offset 32-67 (=x20-x43) length 36 (=x24) - NameValueString\n"
                "|> a - b\n");
}

TEST(RulesHeader1, StructureLengthOf32OrLessHasNoString) {
  EXPECT_EQ(ShowRules1(Rules1(32).Text("a b ")),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("32") + "|> ----- offset 32-63 (=x20-x3F) length 32 (=x20) - NameValueString\n");
  EXPECT_EQ(ShowRules1(Rules1(-1).Text("a b ")),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("-1") +
                "|> ----- offset 32-30 (=x20-x1E) length 4294967295 (=xFFFFFFFF) - NameValueString\n");
}

TEST(RulesHeader1, ShortDataShowsNothing) {
  const MessageBytes data = Rules1(32);
  for (const std::size_t size : {0U, 1U, 31U}) {
    ReportCapture capture;
    ShowParsedZKHRF1(capture.Context(), 273, ViewOf(data.First(size)), 0);
    EXPECT_EQ(capture.Report(), "");
  }
}

TEST(RulesHeader1, LimitOnParsedDataCutsTheString) {
  const MessageBytes data = Rules1(40).Text("ab cd ef");
  for (const std::int32_t limit : {0, 31}) {
    ReportCapture capture;
    capture.Context().maxParsedLength = limit;
    ShowParsedZKHRF1(capture.Context(), 273, data.View(), 0);
    EXPECT_EQ(capture.Report(), "");
  }
  ReportCapture capture;
  capture.Context().maxParsedLength = 36;
  ShowParsedZKHRF1(capture.Context(), 273, data.View(), 0);
  EXPECT_EQ(capture.Report(),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Rules1Fields("40") +
                "|> ----- offset 32-71 (=x20-x47) length 40 (=x28) - NameValueString\n"
                "|> ab - c\n");
}

TEST(RulesHeader1, StringThatTheTraceOnlyClaimsIsCut) {
  for (const char* repeated :
       {"                ", "aaaaaaaaaaaaaaaa", "\"\"aaaaaaaaaaaaaa", "a b c d e f g h "}) {
    DumpBytes dump;
    dump.Start(0x7FFFFFF0);
    const MessageBytes start = Rules1(0x7FFFFFF0).Text(repeated);
    for (const std::uint8_t byte : start.bytes) dump.Append(byte);
    dump.AppendRepeat(0x7FFFFFF0 / 16);
    ReportCapture capture;
    const auto begin = std::chrono::steady_clock::now();
    ShowParsedZKHRF1(capture.Context(), 273, dump.Declared(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    EXPECT_LT(capture.Report().size(), 4U * kMostClaimedText);
  }
}

MessageBytes Rules2(std::int64_t strucLength, ByteOrder order = ByteOrder::Big,
                    std::string_view format = "ZKSTR   ") {
  MessageBytes header(order);
  return header.Text("RFH ").Int(2).Int(strucLength).Int(546).Int(-2).Text(format).Int(0).Int(1208);
}

std::string Rules2Fields(std::string_view strucLength) {
  return Field("Version", "2") + Field("StrucLength", strucLength) + Field("Encoding", kReversed) +
         Field("CodedCharSetId", "-2 (inherit)") + Field("Format", "ZKSTR (String)") + Field("Flags ", "0") +
         Field("NameValueCCSID", "1208 (UTF-8 with ORX PUA)");
}

// One call with what it hands back.
struct Rules2Result {
  std::string report;
  std::int64_t advance;
  FormatName nextFormat = {};
  std::uint32_t encoding;
  bool HandedOn() const { return nextFormat == "ZKSTR   " && encoding == 546; }
  bool HandedNothingOn(std::uint32_t encodingBefore) const {
    return nextFormat == FormatName{} && encoding == encodingBefore;
  }
};

Rules2Result ShowRules2(const MessageBytes& data, std::int64_t offset = 0, std::uint32_t encoding = 273,
                        std::int32_t limit = -1) {
  ReportCapture capture;
  capture.Context().maxParsedLength = limit;
  Rules2Result result;
  result.encoding = encoding;
  const std::vector<std::uint8_t> exact = data.First(data.bytes.size());
  result.advance =
      ShowParsedZKHRF2(capture.Context(), result.nextFormat, result.encoding, ViewOf(exact), offset);
  EXPECT_EQ(capture.Terminal(), "");
  result.report = capture.Report();
  return result;
}

constexpr char kRefer[] = "|>  (refer to data shown in hexadecimal format)\n";

TEST(RulesHeader2, HeaderAloneHas36Bytes) {
  const Rules2Result result = ShowRules2(Rules2(36).Text("behind"));
  EXPECT_EQ(result.report,
            "|> ----- offset 0-35 (=x0-x23) length 36 (=x24) - ZKHRF2 (Rules and formatting header 2)\n" +
                Rules2Fields("36"));
  EXPECT_EQ(result.advance, 36);
  EXPECT_TRUE(result.HandedOn());
}

TEST(RulesHeader2, ShowsFoldersInEitherOrder) {
  for (const ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
    // 36 + 4 + 8 + 4 + 4 = 56 bytes; the header stands at offset 200.
    MessageBytes data = Rules2(56, order);
    data.Int(8).Text("<a>b</a>").Int(4).Text("text");
    const Rules2Result result = ShowRules2(data, 200, order == ByteOrder::Big ? 1U : 2U);
    EXPECT_EQ(
        result.report,
        "|> ----- offset 200-255 (=xC8-xFF) length 56 (=x38) - ZKHRF2 (Rules and formatting header 2)\n" +
            Rules2Fields("56") +
            "|> ----- offset 240-247 (=xF0-xF7) length 8 (=x8) - XML data in ZKHRF2\n"
            "|> <a>\n"
            "|>   b\n"
            "|> </a>\n"
            "|> ----- offset 252-255 (=xFC-xFF) length 4 (=x4) - Data\n" +
            kRefer);
    EXPECT_EQ(result.advance, 56);
    EXPECT_TRUE(result.HandedOn());
  }
}

TEST(RulesHeader2, FieldsStandAtTheirOffsets) {
  const Rules2Result result = ShowRules2(MessageBytes().Ascending(0x21, 40));
  EXPECT_EQ(result.report,
            "|> ----- offset 0-690629419 (=x0-x292A2B2B) length 690629420 (=x292A2B2C) - "
            "ZKHRF2 (Rules and formatting header 2)\n" +
                Field("Version", "623257384") + Field("StrucLength", "690629420") +
                Field("Encoding", "758001456 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED") +
                Field("CodedCharSetId", "825373492 ((Unknown value))") + Field("Format", "56789:;<") +
                Field("Flags ", "1027489600") + Field("NameValueCCSID", "1094861636 ((Unknown value))"));
  // The structure is longer than the data: the walk goes to the end of the data and learns nothing.
  EXPECT_EQ(result.advance, 40);
  EXPECT_TRUE(result.HandedNothingOn(273));
}

TEST(RulesHeader2, FolderLongerThanTheHeaderShowsItsRestAsData) {
  for (const std::int64_t length : {13LL, 0x7FFFFFFFLL, -1LL, -0x80000000LL}) {
    const Rules2Result result = ShowRules2(Rules2(52).Int(length).Text("<a>twelve</a>"));
    EXPECT_EQ(result.report,
              "|> ----- offset 0-51 (=x0-x33) length 52 (=x34) - ZKHRF2 (Rules and formatting header 2)\n" +
                  Rules2Fields("52") + "|> ----- offset 40-51 (=x28-x33) length 12 (=xC) - Data\n" + kRefer);
    EXPECT_EQ(result.advance, 52);
    EXPECT_TRUE(result.HandedOn());
  }
}

TEST(RulesHeader2, FolderLongerThanNothingShowsNothing) {
  const Rules2Result result = ShowRules2(Rules2(40).Int(1).Text("behind"));
  EXPECT_EQ(result.report,
            "|> ----- offset 0-39 (=x0-x27) length 40 (=x28) - ZKHRF2 (Rules and formatting header 2)\n" +
                Rules2Fields("40"));
  EXPECT_TRUE(result.HandedOn());
}

TEST(RulesHeader2, FewerThanFourBytesBehindTheFoldersAreIgnored) {
  const Rules2Result result = ShowRules2(Rules2(51).Int(4).Text("<a/>").Int(0).Text("xyz"));
  EXPECT_EQ(result.report,
            "|> ----- offset 0-50 (=x0-x32) length 51 (=x33) - ZKHRF2 (Rules and formatting header 2)\n" +
                Rules2Fields("51") +
                "|> ----- offset 40-43 (=x28-x2B) length 4 (=x4) - XML data in ZKHRF2\n"
                "|> <a/>\n");
  EXPECT_EQ(result.advance, 51);
}

TEST(RulesHeader2, TooShortIsSilent) {
  for (const std::int64_t strucLength : {35LL, 0LL, -1LL, -0x80000000LL}) {
    const Rules2Result result = ShowRules2(Rules2(strucLength).Text("behind"));
    EXPECT_EQ(result.report, "");
    EXPECT_EQ(result.advance, 0);
    EXPECT_TRUE(result.HandedNothingOn(273));
  }
  MessageBytes cut = Rules2(36);
  cut.bytes.pop_back();
  const Rules2Result result = ShowRules2(cut);
  EXPECT_EQ(result.report, "");
  EXPECT_EQ(result.advance, 0);
  EXPECT_TRUE(result.HandedNothingOn(273));
}

TEST(RulesHeader2, LimitOnParsedData) {
  const MessageBytes data = Rules2(44).Int(4).Text("<a/>");
  const std::string header =
      "|> ----- offset 10-53 (=xA-x35) length 44 (=x2C) - ZKHRF2 (Rules and formatting header 2)\n" +
      Rules2Fields("44");
  const std::string folder = "|> ----- offset 50-53 (=x32-x35) length 4 (=x4) - ";
  for (const std::int32_t limit : {0, 10}) {
    const Rules2Result result = ShowRules2(data, 10, 273, limit);
    EXPECT_EQ(result.report, "");
    EXPECT_EQ(result.advance, 44);
    EXPECT_TRUE(result.HandedNothingOn(273));
  }
  for (const std::int32_t limit : {11, 45}) {
    const Rules2Result result = ShowRules2(data, 10, 273, limit);
    EXPECT_EQ(result.report, header);
    EXPECT_EQ(result.advance, 44);
    EXPECT_TRUE(result.HandedNothingOn(273));
  }
  for (const std::int32_t limit : {46, 50, 51}) {
    const Rules2Result result = ShowRules2(data, 10, 273, limit);
    EXPECT_EQ(result.report, header + folder + "Data\n" + kRefer);
    EXPECT_TRUE(result.HandedOn());
  }
  EXPECT_EQ(ShowRules2(data, 10, 273, 54).report, header + folder + "XML data in ZKHRF2\n|> <a/>\n");
}

TEST(RulesHeader2, EmptyFoldersThatTheTraceOnlyClaimsAreNotWalked) {
  DumpBytes dump;
  dump.Start(0x7FFFFFF0);
  for (const std::uint8_t byte : Rules2(0x7FFFFFF0).bytes) dump.Append(byte);
  ReportCapture capture;
  FormatName nextFormat = {};
  std::uint32_t encoding = 273;
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(ShowParsedZKHRF2(capture.Context(), nextFormat, encoding, dump.Declared(), 0), 0x7FFFFFF0);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
  EXPECT_EQ(capture.Report(),
            "|> ----- offset 0-2147483631 (=x0-x7FFFFFEF) length 2147483632 (=x7FFFFFF0) - "
            "ZKHRF2 (Rules and formatting header 2)\n" +
                Rules2Fields("2147483632"));
}

TEST(RulesHeader2, FoldersThatTheTraceOnlyClaimsAreCut) {
  DumpBytes dump;
  dump.Start(0x7FFFFFF0);
  // A line of the dump is a folder: its length and twelve bytes.
  const MessageBytes start = Rules2(0x7FFFFFF0).Int(12).Text("<a></a><b/> ");
  for (const std::uint8_t byte : start.bytes) dump.Append(byte);
  dump.AppendRepeat(0x7FFFFFF0 / 16);
  ReportCapture capture;
  FormatName nextFormat = {};
  std::uint32_t encoding = 273;
  EXPECT_EQ(ShowParsedZKHRF2(capture.Context(), nextFormat, encoding, dump.Declared(), 0), 0x7FFFFFF0);
  EXPECT_LT(capture.Report().size(), 10U * kMostClaimedText);
}

TEST(RulesHeader2, EveryTruncationStaysInsideTheData) {
  const MessageBytes data = Rules2(56).Int(8).Text("<a>b</a>").Int(4).Text("text");
  for (std::size_t size = 0; size <= data.bytes.size(); ++size) {
    const std::vector<std::uint8_t> exact = data.First(size);
    ReportCapture capture;
    FormatName nextFormat = {};
    std::uint32_t encoding = 273;
    const std::int64_t advance = ShowParsedZKHRF2(capture.Context(), nextFormat, encoding, ViewOf(exact), 0);
    EXPECT_EQ(advance, size < 36 ? 0 : static_cast<std::int64_t>(size));
    EXPECT_EQ(capture.Report().find("XML") != std::string::npos, size == 56);
  }
}

}  // namespace
}  // namespace quillon
