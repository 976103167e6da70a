#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "base/dump_bytes.h"
#include "message_bytes.h"
#include "msgdata/formatters.h"
#include "report_capture.h"

namespace quillon {
namespace {

// The report of a body at offset 0, or "not XML".
std::string ShowXml(std::string_view text) {
  ReportCapture capture;
  const MessageBytes data = MessageBytes().Text(text);
  const bool shown = ShowParsedXml(capture.Context(), ViewOf(data.First(text.size())), 0, "XML data");
  if (!shown) {
    EXPECT_EQ(capture.Report(), "");
    return "not XML";
  }
  return capture.Report();
}

TEST(Xml, TagsIndentAndTextStandsBetween) {
  EXPECT_EQ(ShowXml("<a><b>x</b></a>"),
            "|> ----- offset 0-14 (=x0-xE) length 15 (=xF) - XML data\n"
            "|> <a>\n"
            "|>   <b>\n"
            "|>     x\n"
            "|>   </b>\n"
            "|> </a>\n");
}

TEST(Xml, SelfClosingTagDoesNotIndent) {
  EXPECT_EQ(ShowXml("<a/><c>"),
            "|> ----- offset 0-6 (=x0-x6) length 7 (=x7) - XML data\n"
            "|> <a/>\n"
            "|> <c>\n");
}

TEST(Xml, TrailingBlanksAndZeroBytesAreNotShown) {
  EXPECT_EQ(ShowXml(std::string_view("<a>  \0 \0", 8)),
            "|> ----- offset 0-7 (=x0-x7) length 8 (=x8) - XML data\n"
            "|> <a>\n");
}

TEST(Xml, NothingButBlanksAndZeroBytesMayFollow) {
  EXPECT_EQ(ShowXml("<a>\n"), "not XML");
  EXPECT_EQ(ShowXml("<a>x"), "not XML");
}

TEST(Xml, BracketsMustComeInTurn) {
  EXPECT_EQ(ShowXml("<a<b>>"), "not XML");
  EXPECT_EQ(ShowXml("<a>>"), "not XML");
  EXPECT_EQ(ShowXml("<a><b"), "not XML");
  EXPECT_EQ(ShowXml("<"), "not XML");
  EXPECT_EQ(ShowXml("<<"), "not XML");
  EXPECT_EQ(ShowXml("<    "), "not XML");
  EXPECT_EQ(ShowXml(""), "not XML");
}

TEST(Xml, MustBeginWithABracket) {
  EXPECT_EQ(ShowXml("x<a></a>"), "not XML");
  EXPECT_EQ(ShowXml(" <a></a>"), "not XML");
}

TEST(Xml, ShortestDocumentIsAnEmptyTag) {
  EXPECT_EQ(ShowXml("<>"),
            "|> ----- offset 0-1 (=x0-x1) length 2 (=x2) - XML data\n"
            "|> <>\n");
}

TEST(Xml, DeclarationsAndCommentsIndentWhatFollows) {
  EXPECT_EQ(ShowXml("<?xml?><!--c--><a>"),
            "|> ----- offset 0-17 (=x0-x11) length 18 (=x12) - XML data\n"
            "|> <?xml?>\n"
            "|>   <!--c-->\n"
            "|>     <a>\n");
}

TEST(Xml, ClosingTagAtTheLeftEdgeStaysThere) {
  EXPECT_EQ(ShowXml("</a></b><c>"),
            "|> ----- offset 0-10 (=x0-xA) length 11 (=xB) - XML data\n"
            "|> </a>\n"
            "|> </b>\n"
            "|> <c>\n");
}

TEST(Xml, TagWithBothSlashesCloses) {
  EXPECT_EQ(ShowXml("<a></b/><c>"),
            "|> ----- offset 0-10 (=x0-xA) length 11 (=xB) - XML data\n"
            "|> <a>\n"
            "|> </b/>\n"
            "|> <c>\n");
}

TEST(Xml, LongTextIsFoldedAtTheLineLength) {
  ReportCapture capture;
  capture.Context().maxXmlLineLength = 40;
  const MessageBytes data = MessageBytes().Text("<a>" + std::string(40, 'x') + "</a>");
  ASSERT_TRUE(ShowParsedXml(capture.Context(), data.View(), 100, "XML data in ZKHRF2"));
  // 40 columns less the marker and the indent of 2: 35 characters on the first line.
  EXPECT_EQ(capture.Report(),
            "|> ----- offset 100-146 (=x64-x92) length 47 (=x2F) - XML data in ZKHRF2\n"
            "|> <a>\n"
            "|>   xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\n"
            "|>   xxxxx\n"
            "|> </a>\n");
}

TEST(Xml, LimitOnParsedDataCutsTheDocument) {
  const MessageBytes data = MessageBytes().Text("<a><b></b></a>");
  {
    ReportCapture capture;
    capture.Context().maxParsedLength = 14;
    // The limit counts from the start of the message: 4 bytes of a document at offset 10.
    ASSERT_TRUE(ShowParsedXml(capture.Context(), data.View(), 10, "XML data"));
    EXPECT_EQ(capture.Report(),
              "|> ----- offset 10-23 (=xA-x17) length 14 (=xE) - XML data\n"
              "|> <a>\n"
              "|>   <\n");
  }
  for (const std::int32_t limit : {0, 10, 11}) {
    ReportCapture capture;
    capture.Context().maxParsedLength = limit;
    EXPECT_FALSE(ShowParsedXml(capture.Context(), data.View(), 10, "XML data"));
    EXPECT_EQ(capture.Report(), "");
  }
}

TEST(Xml, UnprintableTextStandsAsDots) {
  EXPECT_EQ(ShowXml("<a>\x01\x80z</a>"),
            "|> ----- offset 0-9 (=x0-x9) length 10 (=xA) - XML data\n"
            "|> <a>\n"
            "|>   ..z\n"
            "|> </a>\n");
}

// A dump of the lines given, the last but one of them repeated up to `declared` bytes less the last line.
void FillWithRepeat(DumpBytes& dump, std::string_view first, std::string_view repeated, std::string_view last,
                    std::int32_t declared) {
  dump.Start(declared);
  for (const char c : first) dump.Append(static_cast<std::uint8_t>(c));
  for (const char c : repeated) dump.Append(static_cast<std::uint8_t>(c));
  dump.AppendRepeat((declared - 48) / 16);
  for (const char c : last) dump.Append(static_cast<std::uint8_t>(c));
}

TEST(Xml, LongRepeatsAreRecognisedWithoutWalkingThem) {
  constexpr std::int32_t declared = 0x7FFFFFF0;
  struct Case {
    const char* first;
    const char* repeated;
    const char* last;
    bool isXml;
  };
  const Case cases[] = {
      {"<a>0123456789abc", "0123456789abcdef", "0123456789ab</a>", true},
      {"<a>0123456789abc", "<b>0123456789ab>", "0123456789ab</a>", false},
      {"<a>0123456789abc", "0123456789abc<b>", "0123456789ab</a>", true},
      {"<a>0123456789abc", "0123456789abc<bc", ">             </a>", false},  // opened again by the repeat
      {"<a>0123456789abc", "0123456789abcdef", "0123456789ab</a>>", false},
      {"<a>             ", "                ", "                ", true},
      {"<a             >", "                ", "               x", false},
      {"<a              ", "                ", "               >", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.first) + c.repeated + c.last);
    DumpBytes dump;
    FillWithRepeat(dump, c.first, c.repeated, c.last, declared);
    ReportCapture capture;
    capture.Context().maxParsedLength = 16;  // the document itself is too long for a test's report
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ShowParsedXml(capture.Context(), dump.Whole(), 0, "XML data"), c.isXml);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  }
}

TEST(Xml, BodyThatBeginsInsideARepeatIsCheckedFromItsFirstLine) {
  DumpBytes dump;
  FillWithRepeat(dump, "<aaaaaaaaaaaaaaa", "<aaaaaaaaaaaaaaa", ">               ", 0x7FFFFFF0);
  ReportCapture capture;
  capture.Context().maxParsedLength = 32;
  // Every line opens a tag again, so the bracket at the very end helps nothing.
  EXPECT_FALSE(ShowParsedXml(capture.Context(), dump.Whole().From(64), 8, "XML data"));
}

TEST(Xml, DocumentThatTheTraceOnlyClaimsIsCut) {
  DumpBytes dump;
  FillWithRepeat(dump, "<a></a><b></b>  ", "<c></c><d></d>  ", "<e></e><f></f>  ", 0x7FFFFFF0);
  ReportCapture capture;
  EXPECT_TRUE(ShowParsedXml(capture.Context(), dump.Whole(), 0, "XML data"));
  EXPECT_LT(capture.Report().size(), 20U * kMostClaimedText);
}

}  // namespace
}  // namespace quillon
