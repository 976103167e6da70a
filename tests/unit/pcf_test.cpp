#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

#include "base/dump_bytes.h"
#include "display/attribute_tables.h"
#include "display/constants.h"
#include "msgdata/formatters.h"
#include "msgdata/pcf_values.h"
#include "report_capture.h"

namespace quillon {
namespace {

constexpr std::uint32_t kNormal = 273;
constexpr std::uint32_t kReversed = 546;
constexpr std::int32_t kHugeCount = 2147483647;
constexpr std::int32_t kLowest = -2147483647 - 1;

/// A message under construction, in the byte order of its encoding.
struct Message {
  explicit Message(std::uint32_t messageEncoding = kNormal) : encoding(messageEncoding) {}

  Message& Word(std::int32_t value) {
    const auto word = static_cast<std::uint32_t>(value);
    for (int i = 0; i < 4; ++i) {
      const int shift = encoding == kNormal ? 24 - 8 * i : 8 * i;
      bytes.push_back(static_cast<std::uint8_t>(word >> shift));
    }
    return *this;
  }
  Message& Word64(std::int64_t value) {
    const auto word = static_cast<std::uint64_t>(value);
    for (int i = 0; i < 8; ++i) {
      const int shift = encoding == kNormal ? 56 - 8 * i : 8 * i;
      bytes.push_back(static_cast<std::uint8_t>(word >> shift));
    }
    return *this;
  }
  Message& Text(const std::string& text) {
    bytes.insert(bytes.end(), text.begin(), text.end());
    return *this;
  }
  Message& Header(std::int32_t parameterCount) {
    return Word(1).Word(36).Word(1).Word(8).Word(1).Word(1).Word(0).Word(0).Word(parameterCount);
  }
  /// What every parameter begins with.
  Message& Parameter(std::int32_t type, std::int32_t length, std::int32_t identifier) {
    return Word(type).Word(length).Word(identifier);
  }
  Message& Integer(std::int32_t identifier, std::int32_t value) {
    return Parameter(3, 16, identifier).Word(value);
  }
  Message& String(const std::string& text) {
    const auto length = static_cast<std::int32_t>(text.size());
    return Parameter(4, 20 + length, 2016).Word(819).Word(length).Text(text);
  }
  Message& Group(std::int32_t members) { return Parameter(20, 16, 8001).Word(members); }

  std::uint32_t encoding;
  std::vector<std::uint8_t> bytes = {};
};

void Show(ReportCapture& capture, const Message& message, std::int64_t offset = 0) {
  ShowParsedPCF(capture.Context(), message.encoding, ViewOf(message.bytes), offset);
}

std::string Report(const Message& message) {
  ReportCapture capture;
  Show(capture, message);
  return capture.Report();
}

std::string Format(const char* format, auto... values) {
  char text[300];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

/// What Message::Header shows.
std::string HeaderText(std::size_t length, std::int32_t parameterCount) {
  return Format("|> ----- offset 0-%zu (=x0-x%zX) length %zu (=x%zX) - ZKCFH (PCF header and parameters)\n",
                length - 1, length - 1, length, length) +
         "|> Type                     : COMMAND\n"
         "|> StrucLength              :     36\n"
         "|> Version                  :      1\n"
         "|> Command                  :      8 (CHANGE_Q)\n"
         "|> MsgSeqNumber             :      1\n"
         "|> Control                  : LAST\n"
         "|> CompCode                 :      0\n"
         "|> Reason                   :      0\n" +
         Format("|> ParameterCount           : %6d\n", parameterCount);
}

/// The first line of a parameter and the three behind it.
std::string ParameterText(const std::string& number, std::uint32_t offset, std::int32_t length,
                          const std::string& type, std::int32_t identifier, const std::string& name) {
  const std::uint32_t last = offset + static_cast<std::uint32_t>(length) - 1;
  return "|> ------------------------ : --- " + number +
         Format(" --- offset %u-%u (=x%X-x%X) length %u (=x%X)\n", offset, last, offset, last, length,
                length) +
         "|> (parm) - Type            : " + type + "\n" +
         Format("|> (parm) - Length          : %6d\n", length) +
         Format("|> (parm) - Parameter       : %6d (%s)\n", identifier, name.c_str());
}

std::string IntegerText(const std::string& number, std::uint32_t offset, std::int32_t value) {
  return ParameterText(number, offset, 16, "INTEGER", 3, "CURRENT_Q_DEPTH") +
         Format("|> (parm) - Value           : %6d\n", value);
}

std::string GroupText(const std::string& number, std::uint32_t offset, std::int32_t members) {
  return ParameterText(number, offset, 16, "GROUP", 8001, "GACF_COMMAND_CONTEXT") +
         Format("|> (parm) - parm count      : %6d\n", members);
}

/// The report of a message of one parameter, less the header: what the parameter shows.
std::string ParameterReport(const Message& parameter) {
  Message message(parameter.encoding);
  message.Header(1);
  message.bytes.insert(message.bytes.end(), parameter.bytes.begin(), parameter.bytes.end());
  const std::string report = Report(message);
  const std::string header = HeaderText(message.bytes.size(), 1);
  EXPECT_EQ(report.substr(0, header.size()), header);
  return report.substr(header.size());
}

std::size_t Occurrences(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(Pcf, ShowsNothingBelowTheHeadersLength) {
  Message message;
  message.Header(1);
  message.bytes.pop_back();
  ASSERT_EQ(message.bytes.size(), 35U);
  EXPECT_EQ(Report(message), "");
  message.bytes.clear();
  EXPECT_EQ(Report(message), "");
}

TEST(Pcf, ShowsTheHeaderAloneBelowTheParametersLength) {
  for (std::size_t length = 36; length <= 47; ++length) {
    Message message;
    message.Header(1).Parameter(3, 0, 1);
    message.bytes.resize(length);
    EXPECT_EQ(Report(message), HeaderText(length, 1)) << length;
  }
}

TEST(Pcf, ParametersBeyondTheCountAreNotShown) {
  EXPECT_EQ(Report(Message().Header(0).Integer(3, 7)), HeaderText(52, 0));
  EXPECT_EQ(Report(Message().Header(-1).Integer(3, 7)), HeaderText(52, -1));
  EXPECT_EQ(Report(Message().Header(1).Integer(3, 7).Integer(3, 8)),
            HeaderText(68, 1) + IntegerText("1", 36, 7));
}

TEST(Pcf, HeaderFields) {
  Message message(kReversed);
  message.Word(2).Word(37).Word(3).Word(13).Word(4).Word(0).Word(2).Word(2035).Word(5);
  ReportCapture capture;
  Show(capture, message, 100);
  EXPECT_EQ(capture.Report(),
            "|> ----- offset 100-135 (=x64-x87) length 36 (=x24) - ZKCFH (PCF header and parameters)\n"
            "|> Type                     : RESPONSE\n"
            "|> StrucLength              :     37\n"
            "|> Version                  :      3\n"
            "|> Command                  :     13 (INQUIRE_Q)\n"
            "|> MsgSeqNumber             :      4\n"
            "|> Control                  : NOT_LAST\n"
            "|> CompCode                 :      2\n"
            "|> Reason                   :   2035 (ZKRC_NOT_AUTHORIZED)\n"
            "|> ParameterCount           :      5\n");
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
}

TEST(Pcf, UnknownHeaderValues) {
  Message message;
  message.Word(11).Word(-1).Word(4).Word(-2).Word(0).Word(2).Word(0).Word(-3).Word(0);
  ReportCapture capture;
  Show(capture, message);
  EXPECT_EQ(capture.Report(),
            "|**********************************\n"
            "|* Unknown : ZKCFH version 4\n"
            "|**********************************\n"
            "|> ----- offset 0-35 (=x0-x23) length 36 (=x24) - ZKCFH (PCF header and parameters)\n"
            "|> Type                     : (Unknown PCF type)\n"
            "|> StrucLength              :     -1\n"
            "|> Version                  :      4\n"
            "|> Command                  : 4294967294 ((Unknown value))\n"
            "|> MsgSeqNumber             :      0\n"
            "|> Control                  : (Unknown PCF control options)\n"
            "|> CompCode                 :      0\n"
            "|> Reason                   :     -3 ((Unknown VZK Reason code))\n"
            "|> ParameterCount           :      0\n");
  EXPECT_EQ(capture.Terminal(), "Unknown API structure : ZKCFH version 4\n");
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(Pcf, ParsedLengthLimitCutsTheMessage) {
  const Message message = Message().Header(2).Integer(3, 7).Integer(3, 8);
  ReportCapture capture;
  capture.Context().maxParsedLength = 67;
  Show(capture, message);
  EXPECT_EQ(capture.Report(), HeaderText(67, 2) + IntegerText("1", 36, 7));
  ReportCapture shortCapture;
  shortCapture.Context().maxParsedLength = 35;
  Show(shortCapture, message);
  EXPECT_EQ(shortCapture.Report(), "");
}

/// One parameter of every type, the INTEGER64 in a group.
Message AllTypes(std::uint32_t encoding) {
  Message message(encoding);
  message.Header(11);
  message.Integer(20, 1);
  message.String("ORDERS  ");
  message.Parameter(5, 24, 735).Word(2).Word(5).Word(6);
  message.Parameter(6, 32, 2020).Word(1208).Word(2).Word(4).Text("ABCDEF  ");
  message.Parameter(9, 20, 7006)
      .Word(4)
      .Text(
          "\x01\x02\x03"
          "A");
  message.Parameter(13, 20, 3).Word(4).Word(10);
  message.Parameter(14, 28, 2016).Word(18).Word(819).Word(4).Text("DEV*");
  message.Parameter(15, 24, 7006).Word(2).Word(4).Text("\xC1\xC2\xC3\xC4");
  message.Group(1);
  message.Parameter(23, 24, 748).Word(0).Word64(-2);
  message.Parameter(25, 32, 748).Word(2).Word64(4294967296).Word64(7);
  message.Parameter(99, 16, 0).Text("what");
  return message;
}

/// What each parameter of AllTypes() shows, and the offset behind it.
struct ShownParameter {
  std::string text;
  std::size_t end;
};

std::vector<ShownParameter> AllTypesText() {
  return {
      {"|> ------------------------ : --- 1 --- offset 36-51 (=x24-x33) length 16 (=x10)\n"
       "|> (parm) - Type            : INTEGER\n"
       "|> (parm) - Length          :     16\n"
       "|> (parm) - Parameter       :     20 (Q_TYPE)\n"
       "|> (parm) - Value           :      1 (local queue)\n",
       52},
      {"|> ------------------------ : --- 2 --- offset 52-79 (=x34-x4F) length 28 (=x1C)\n"
       "|> (parm) - Type            : STRING\n"
       "|> (parm) - Length          :     28\n"
       "|> (parm) - Parameter       :   2016 (Q_NAME)\n"
       "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n"
       "|> (parm) - Length          :      8\n"
       "|> (parm) - Value           : ORDERS\n",
       80},
      {"|> ------------------------ : --- 3 --- offset 80-103 (=x50-x67) length 24 (=x18)\n"
       "|> (parm) - Type            : INTEGER_LIST\n"
       "|> (parm) - Length          :     24\n"
       "|> (parm) - Parameter       :    735 (IAMO_PUTS)\n"
       "|> (parm) - Count           :      2\n"
       "|> (parm) - Value           :      5 (for nonpersistent messages)\n"
       "|> (parm) - Value           :      6 (for persistent messages)\n",
       104},
      {"|> ------------------------ : --- 4 --- offset 104-135 (=x68-x87) length 32 (=x20)\n"
       "|> (parm) - Type            : STRING_LIST\n"
       "|> (parm) - Length          :     32\n"
       "|> (parm) - Parameter       :   2020 (NAMES)\n"
       "|> (parm) - CodedCharSetId  :   1208 (UTF-8 with ORX PUA)\n"
       "|> (parm) - Count           :      2\n"
       "|> (parm) - Length          :      4\n"
       "|> (parm) - Value           : ABCD\n"
       "|> (parm) - Value           : EF\n",
       136},
      {"|> ------------------------ : --- 5 --- offset 136-155 (=x88-x9B) length 20 (=x14)\n"
       "|> (parm) - Type            : BYTE_STRING\n"
       "|> (parm) - Length          :     20\n"
       "|> (parm) - Parameter       :   7006 (BACF_CONNECTION_ID)\n"
       "|> (parm) - StringLength    :      4\n"
       "|> (parm) - String (hex)    : 01020341  [...A]\n",
       156},
      {"|> ------------------------ : --- 6 --- offset 156-175 (=x9C-xAF) length 20 (=x14)\n"
       "|> (parm) - Type            : INTEGER_FILTER\n"
       "|> (parm) - Length          :     20\n"
       "|> (parm) - Parameter       :      3 (CURRENT_Q_DEPTH)\n"
       "|> (parm) - Operator        : GREATER\n"
       "|> (parm) - FilterValue     :     10\n",
       176},
      {"|> ------------------------ : --- 7 --- offset 176-203 (=xB0-xCB) length 28 (=x1C)\n"
       "|> (parm) - Type            : STRING_FILTER\n"
       "|> (parm) - Length          :     28\n"
       "|> (parm) - Parameter       :   2016 (Q_NAME)\n"
       "|> (parm) - Operator        : LIKE\n"
       "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n"
       "|> (parm) - ValueLength     :      4\n"
       "|> (parm) - Value           : DEV*\n",
       204},
      {"|> ------------------------ : --- 8 --- offset 204-227 (=xCC-xE3) length 24 (=x18)\n"
       "|> (parm) - Type            : BYTE_STRING_FILTER\n"
       "|> (parm) - Length          :     24\n"
       "|> (parm) - Parameter       :   7006 (BACF_CONNECTION_ID)\n"
       "|> (parm) - Operator        : EQUAL\n"
       "|> (parm) - ValueLength     :      4\n"
       "|> (parm) - FilterValue     : C1C2C3C4  [....]\n",
       228},
      {"|> ------------------------ : --- 9 --- offset 228-243 (=xE4-xF3) length 16 (=x10)\n"
       "|> (parm) - Type            : GROUP\n"
       "|> (parm) - Length          :     16\n"
       "|> (parm) - Parameter       :   8001 (GACF_COMMAND_CONTEXT)\n"
       "|> (parm) - parm count      :      1\n",
       244},
      {"|> ------------------------ : --- 9.1 --- offset 244-267 (=xF4-x10B) length 24 (=x18)\n"
       "|> (parm) - Type            : INTEGER64\n"
       "|> (parm) - Length          :     24\n"
       "|> (parm) - Parameter       :    748 (IAMO64_PUT_BYTES)\n"
       "|> (parm) - Value           :     -2\n",
       268},
      {"|> ------------------------ : --- 10 --- offset 268-299 (=x10C-x12B) length 32 (=x20)\n"
       "|> (parm) - Type            : INTEGER64_LIST\n"
       "|> (parm) - Length          :     32\n"
       "|> (parm) - Parameter       :    748 (IAMO64_PUT_BYTES)\n"
       "|> (parm) - Count           :      2\n"
       "|> (parm) - Value           : 4294967296 (for nonpersistent messages)\n"
       "|> (parm) - Value           :      7 (for persistent messages)\n",
       300},
      {"|> ------------------------ : --- 11 --- offset 300-315 (=x12C-x13B) length 16 (=x10)\n"
       "|> (parm) - Type            : (Unknown PCF type)\n"
       "|> (parm) - Length          :     16\n"
       "|> (parm) - Parameter       :      0 ((Unknown value))\n"
       "|> (parm) - unknown (hex)   : 77686174  [what]\n",
       316},
  };
}

TEST(Pcf, EveryParameterTypeInBothByteOrdersCutAnywhere) {
  const std::vector<ShownParameter> parameters = AllTypesText();
  for (const std::uint32_t encoding : {kNormal, kReversed}) {
    const Message whole = AllTypes(encoding);
    ASSERT_EQ(whole.bytes.size(), 316U);
    for (std::size_t length = 36; length <= whole.bytes.size(); ++length) {
      // A copy of exactly this size, so that a read behind it is found out.
      Message cut(encoding);
      cut.bytes.assign(whole.bytes.begin(), whole.bytes.begin() + static_cast<std::ptrdiff_t>(length));
      std::string expected = HeaderText(length, 11);
      for (const ShownParameter& parameter : parameters)
        if (parameter.end <= length) expected += parameter.text;
      ASSERT_EQ(Report(cut), expected) << encoding << " " << length;
    }
  }
}

TEST(Pcf, OffsetsCountFromTheStartOfTheMessageData) {
  ReportCapture capture;
  Show(capture, Message().Header(1).Integer(3, 7), 464);
  EXPECT_NE(capture.Report().find("|> ----- offset 464-515 (=x1D0-x203) length 52 (=x34) - ZKCFH"),
            std::string::npos);
  EXPECT_NE(capture.Report().find("--- 1 --- offset 500-515 (=x1F4-x203) length 16 (=x10)\n"),
            std::string::npos);
}

TEST(Pcf, IntegerOfTheCharacterSetShowsItsDescription) {
  EXPECT_EQ(ParameterReport(Message().Integer(2, 1208)),
            ParameterText("1", 36, 16, "INTEGER", 2, "CODED_CHAR_SET_ID") +
                "|> (parm) - Value           :   1208 (UTF-8 with ORX PUA)\n");
  // A list of character sets shows plain numbers.
  EXPECT_EQ(ParameterReport(Message().Parameter(5, 20, 2).Word(1).Word(1208)),
            ParameterText("1", 36, 20, "INTEGER_LIST", 2, "CODED_CHAR_SET_ID") +
                "|> (parm) - Count           :      1\n"
                "|> (parm) - Value           :   1208\n");
}

TEST(Pcf, IntegersWithADisplayOfTheirOwn) {
  EXPECT_EQ(ParameterReport(Message().Integer(1243, 273)),
            ParameterText("1", 36, 16, "INTEGER", 1243, "IACF_ENCODING") +
                "|> (parm) - Value           :    273 |> Encoding                 : 273 (Native encoding) "
                "INTEGER_NORMAL / DECIMAL_NORMAL / FLOAT_IEEE_NORMAL\n");
  EXPECT_EQ(ParameterReport(Message().Integer(1092, 5)),
            ParameterText("1", 36, 16, "INTEGER", 1092, "IACF_DELETE_OPTIONS") +
                "|> (parm) - Value           : LOCAL\n"
                "|**********************************\n"
                "|* Unknown : ZKIACF_DELETE_OPTIONS 0x00000005\n"
                "|**********************************\n");
  EXPECT_EQ(ParameterReport(Message().Parameter(5, 24, 1014).Word(2).Word(2016).Word(-5)),
            ParameterText("1", 36, 24, "INTEGER_LIST", 1014, "IACF_SELECTOR") +
                "|> (parm) - Count           :      2\n"
                "|> (parm) - Value           :   2016 (Q_NAME)\n"
                "|> (parm) - Value           :     -5 (Unknown value)\n");
}

TEST(Pcf, CompressionLists) {
  EXPECT_EQ(ParameterReport(Message().Parameter(5, 28, 1576).Word(3).Word(0).Word(3).Word(-1)),
            ParameterText("1", 36, 28, "INTEGER_LIST", 1576, "IACH_MSG_COMPRESSION") +
                "|> (parm) - Count           :      3\n"
                "|> (parm) - Value           :      0 (none) (default header data compression value "
                "negotiated for this channel)\n"
                "|> (parm) - Value           :      3 (RLE / ZLIBFAST) (header data compression value used "
                "for the last message sent)\n"
                "|> (parm) - Value           :     -1 (not available)\n");
  EXPECT_EQ(ParameterReport(Message().Parameter(5, 20, 1575).Word(1).Word(0x0FFFFFFF)),
            ParameterText("1", 36, 20, "INTEGER_LIST", 1575, "IACH_HDR_COMPRESSION") +
                "|> (parm) - Count           :      1\n"
                "|> (parm) - Value           : 268435455 (any) (default header data compression value "
                "negotiated for this channel)\n");
}

std::string StringParameterText(std::int32_t length, std::int32_t stringLength) {
  return ParameterText("1", 36, length, "STRING", 2016, "Q_NAME") +
         "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n" +
         Format("|> (parm) - Length          : %6d\n", stringLength);
}

TEST(Pcf, StringThatEndsWithParameterAndDataIsShown) {
  EXPECT_EQ(ParameterReport(Message().String("ABC")),
            StringParameterText(23, 3) + "|> (parm) - Value           : ABC\n");
}

TEST(Pcf, StringBeyondParameterOrDataIsNotShown) {
  EXPECT_EQ(ParameterReport(Message().Parameter(4, 23, 2016).Word(819).Word(4).Text("ABCD")),
            StringParameterText(23, 4));
  EXPECT_EQ(ParameterReport(Message().Parameter(4, 23, 2016).Word(819).Word(4).Text("ABC")),
            StringParameterText(23, 4));
  EXPECT_EQ(ParameterReport(Message().Parameter(4, 23, 2016).Word(819).Word(kHugeCount).Text("ABC")),
            StringParameterText(23, kHugeCount));
}

TEST(Pcf, StringsWithoutText) {
  const std::string null = "|> (parm) - Value           : (null)\n";
  EXPECT_EQ(ParameterReport(Message().String("")), StringParameterText(20, 0) + null);
  EXPECT_EQ(ParameterReport(Message().String(std::string("\0AB", 3))), StringParameterText(23, 3) + null);
  EXPECT_EQ(ParameterReport(Message().Parameter(4, 20, 2016).Word(819).Word(-1)),
            StringParameterText(20, -1) + null);
  EXPECT_EQ(ParameterReport(Message().Parameter(4, 20, 2016).Word(819).Word(kLowest)),
            StringParameterText(20, kLowest) + null);
  EXPECT_EQ(ParameterReport(Message().String("   ")),
            StringParameterText(23, 3) + "|> (parm) - Value           : (blank)\n");
}

TEST(Pcf, LongStringIsFolded) {
  const std::string text = std::string(95, 'a') + std::string(25, 'b');
  const Message message = Message().Header(1).String(text);
  ReportCapture capture;
  Show(capture, message);
  // A line of 100 bytes begins with the marker and two blanks.
  EXPECT_EQ(capture.Report(), HeaderText(176, 1) + StringParameterText(140, 120) +
                                  "|> (parm) - Value           : \n|>   " + std::string(95, 'a') + "\n|>   " +
                                  std::string(25, 'b') + "\n");
  ReportCapture wide;
  wide.Context().maxXmlLineLength = 200;
  Show(wide, message);
  EXPECT_EQ(wide.Report(), HeaderText(176, 1) + StringParameterText(140, 120) +
                               "|> (parm) - Value           : " + text + "\n");
}

TEST(Pcf, StringIsFoldedFromTheLineLengthOn) {
  // Trailing blanks do not count.
  EXPECT_EQ(ParameterReport(Message().String(std::string(99, 'a') + "  ")),
            StringParameterText(121, 101) + "|> (parm) - Value           : " + std::string(99, 'a') + "\n");
  EXPECT_EQ(ParameterReport(Message().String(std::string(100, 'a'))),
            StringParameterText(120, 100) + "|> (parm) - Value           : \n|>   " + std::string(95, 'a') +
                "\n|>   aaaaa\n");
}

TEST(Pcf, NestedGroups) {
  const Message message =
      Message().Header(2).Group(1).Group(2).Integer(3, 11).Integer(3, 12).Integer(3, 13).Integer(3, 14);
  EXPECT_EQ(Report(message), HeaderText(132, 2) + GroupText("1", 36, 1) + GroupText("1.1", 52, 2) +
                                 IntegerText("1.1.1", 68, 11) + IntegerText("1.1.2", 84, 12) +
                                 IntegerText("2", 100, 13));
}

TEST(Pcf, GroupAtPositionTwoWithTwoMembers) {
  const Message message =
      Message().Header(3).Integer(3, 1).Group(2).Integer(3, 2).Integer(3, 3).Integer(3, 4);
  EXPECT_EQ(Report(message), HeaderText(116, 3) + IntegerText("1", 36, 1) + GroupText("2", 52, 2) +
                                 IntegerText("2.1", 68, 2) + IntegerText("2.2", 84, 3) +
                                 IntegerText("3", 100, 4));
}

TEST(Pcf, GroupWithoutMembersTakesTheNextParameter) {
  for (const std::int32_t members : {0, -7}) {
    const Message message = Message().Header(2).Group(members).Integer(3, 1).Integer(3, 2);
    EXPECT_EQ(Report(message), HeaderText(84, 2) + GroupText("1", 36, members) + IntegerText("1.1", 52, 1) +
                                   IntegerText("2", 68, 2));
  }
}

TEST(Pcf, ParametersOfAnOpenGroupAreShownWhateverTheTopLevelCountSays) {
  const Message message = Message().Header(1).Group(kHugeCount).Integer(3, 1).Integer(3, 2);
  EXPECT_EQ(Report(message), HeaderText(84, 1) + GroupText("1", 36, kHugeCount) + IntegerText("1.1", 52, 1) +
                                 IntegerText("1.2", 68, 2));
}

TEST(Pcf, GroupAtTheEndOfTheMessage) {
  EXPECT_EQ(Report(Message().Header(2).Group(2)), HeaderText(52, 2) + GroupText("1", 36, 2));
}

TEST(Pcf, GroupsNestNinetyNineLevelsDeep) {
  Message message;
  message.Header(2);
  for (int group = 0; group < 100; ++group) message.Group(1);
  message.Integer(3, 5);
  std::string expected = HeaderText(message.bytes.size(), 2);
  std::string number = "1";
  for (std::uint32_t group = 0; group < 100; ++group, number += ".1")
    expected += GroupText(number, 36 + 16 * group, 1);
  // The last of them opens no level: it is the member that completes all the others.
  EXPECT_EQ(Report(message), expected + IntegerText("2", 36 + 1600, 5));
}

TEST(Pcf, ParameterOfLengthZeroIsShownAgain) {
  const Message message = Message().Header(3).Parameter(3, 0, 3).Word(7);
  ReportCapture capture;
  Show(capture, message);
  std::string expected = HeaderText(52, 3);
  for (const char* number : {"1", "2", "3"})
    expected += ParameterText(number, 36, 0, "INTEGER", 3, "CURRENT_Q_DEPTH") +
                "|> (parm) - Value           :      7\n";
  EXPECT_EQ(capture.Report(), expected);
  EXPECT_EQ(capture.Terminal(), "");
}

TEST(Pcf, FloodOfLengthZeroEndsAfterAThousand) {
  ReportCapture full;
  Show(full, Message().Header(1000).Parameter(3, 0, 3));
  EXPECT_EQ(Occurrences(full.Report(), " --- offset 36-35 (=x24-x23) length 0 (=x0)\n"), 1000U);
  EXPECT_EQ(full.Terminal(), "");

  ReportCapture capture;
  Show(capture, Message().Header(kHugeCount).Parameter(3, 0, 3));
  EXPECT_EQ(Occurrences(capture.Report(), " --- offset 36-35 (=x24-x23) length 0 (=x0)\n"), 1000U);
  EXPECT_EQ(capture.Terminal(),
            "PCF parameters of length 0 were shown 1000 times; the rest of the message is not shown.\n");
}

TEST(Pcf, GroupOfLengthZeroOpensEveryLevelAndLeavesThemAll) {
  // 15 bytes are left: the member count is not there and counts as 0.
  Message message = Message().Header(1).Parameter(20, 0, 8001).Text("abc");
  std::string expected = HeaderText(51, 1);
  std::string number = "1";
  for (int level = 0; level <= 99; ++level, number += ".1")
    expected += ParameterText(number, 36, 0, "GROUP", 8001, "GACF_COMMAND_CONTEXT");
  EXPECT_EQ(Report(message), expected);
}

TEST(Pcf, ParameterLongerThanTheRestEndsTheDisplay) {
  for (const std::int32_t length : {17, kHugeCount, -1, kLowest}) {
    const Message message = Message().Header(2).Integer(3, 1).Parameter(3, length, 3).Word(2);
    EXPECT_EQ(Report(message), HeaderText(68, 2) + IntegerText("1", 36, 1)) << length;
  }
}

TEST(Pcf, FixedValuesAreReadWhenTheMessageHasThem) {
  // The parameter claims 12 bytes; the four behind it are read as its value and as the next parameter's
  // start.
  const Message message = Message().Header(1).Parameter(3, 12, 3).Word(77);
  EXPECT_EQ(Report(message), HeaderText(52, 1) + ParameterText("1", 36, 12, "INTEGER", 3, "CURRENT_Q_DEPTH") +
                                 "|> (parm) - Value           :     77\n");
  Message cut = message;
  cut.bytes.pop_back();
  EXPECT_EQ(Report(cut), HeaderText(51, 1) + ParameterText("1", 36, 12, "INTEGER", 3, "CURRENT_Q_DEPTH"));
}

TEST(Pcf, CountsAndLengthsBeyondTheDataSuppressTheValues) {
  for (const std::int32_t count : {3, 0x20000000, 0x40000000, kHugeCount, 0, -1, kLowest}) {
    const std::string countLine = Format("|> (parm) - Count           : %6d\n", count);
    EXPECT_EQ(ParameterReport(Message().Parameter(5, 24, 3).Word(count).Word(1).Word(2)),
              ParameterText("1", 36, 24, "INTEGER_LIST", 3, "CURRENT_Q_DEPTH") + countLine);
    EXPECT_EQ(ParameterReport(Message().Parameter(25, 32, 3).Word(count).Word64(1).Word64(2)),
              ParameterText("1", 36, 32, "INTEGER64_LIST", 3, "CURRENT_Q_DEPTH") + countLine);
    EXPECT_EQ(
        ParameterReport(Message().Parameter(6, 32, 2020).Word(819).Word(count).Word(4).Text("ABCDEFGH")),
        ParameterText("1", 36, 32, "STRING_LIST", 2020, "NAMES") +
            "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n" + countLine +
            "|> (parm) - Length          :      4\n");
  }
  for (const std::int32_t length : {5, 0x20000000, kHugeCount}) {
    EXPECT_EQ(ParameterReport(Message().Parameter(9, 20, 7006).Word(length).Word(1)),
              ParameterText("1", 36, 20, "BYTE_STRING", 7006, "BACF_CONNECTION_ID") +
                  Format("|> (parm) - StringLength    : %6d\n", length));
    EXPECT_EQ(ParameterReport(Message().Parameter(14, 28, 2016).Word(1).Word(819).Word(length).Word(1)),
              ParameterText("1", 36, 28, "STRING_FILTER", 2016, "Q_NAME") +
                  "|> (parm) - Operator        : LESS\n"
                  "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n" +
                  Format("|> (parm) - ValueLength     : %6d\n", length));
    EXPECT_EQ(ParameterReport(Message().Parameter(15, 24, 7006).Word(1).Word(length).Word(1)),
              ParameterText("1", 36, 24, "BYTE_STRING_FILTER", 7006, "BACF_CONNECTION_ID") +
                  "|> (parm) - Operator        : LESS\n" +
                  Format("|> (parm) - ValueLength     : %6d\n", length));
  }
}

TEST(Pcf, NegativeLengthsShowNull) {
  for (const std::int32_t length : {-1, kLowest}) {
    EXPECT_EQ(ParameterReport(Message().Parameter(9, 20, 7006).Word(length).Word(1)),
              ParameterText("1", 36, 20, "BYTE_STRING", 7006, "BACF_CONNECTION_ID") +
                  Format("|> (parm) - StringLength    : %6d\n", length) +
                  "|> (parm) - String (hex)    : (null)\n");
    EXPECT_EQ(ParameterReport(Message().Parameter(14, 28, 2016).Word(1).Word(819).Word(length).Word(1)),
              ParameterText("1", 36, 28, "STRING_FILTER", 2016, "Q_NAME") +
                  "|> (parm) - Operator        : LESS\n"
                  "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n" +
                  Format("|> (parm) - ValueLength     : %6d\n", length) +
                  "|> (parm) - Value           : (null)\n");
    EXPECT_EQ(ParameterReport(Message().Parameter(15, 24, 7006).Word(1).Word(length).Word(1)),
              ParameterText("1", 36, 24, "BYTE_STRING_FILTER", 7006, "BACF_CONNECTION_ID") +
                  "|> (parm) - Operator        : LESS\n" +
                  Format("|> (parm) - ValueLength     : %6d\n", length) +
                  "|> (parm) - FilterValue     : (null)\n");
  }
}

TEST(Pcf, StringsWithoutBytesAreBoundedByTheParameter) {
  for (const std::int32_t length : {0, -1, kLowest}) {
    std::string expected = ParameterText("1", 36, 24, "STRING_LIST", 2020, "NAMES") +
                           "|> (parm) - CodedCharSetId  :    819 (ISO 8859-1 ASCII)\n"
                           "|> (parm) - Count           : 2147483647\n" +
                           Format("|> (parm) - Length          : %6d\n", length);
    for (int line = 0; line < 24; ++line) expected += "|> (parm) - Value           : (null)\n";
    EXPECT_EQ(ParameterReport(Message().Parameter(6, 24, 2020).Word(819).Word(kHugeCount).Word(length)),
              expected);
  }
  EXPECT_EQ(
      Occurrences(ParameterReport(Message().Parameter(6, 24, 2020).Word(819).Word(2).Word(0)), "(null)"), 2U);
}

TEST(Pcf, ByteStringsGoOnSeveralLinesAbove32Bytes) {
  EXPECT_EQ(
      ParameterReport(Message().Parameter(9, 48, 7006).Word(32).Text(std::string(32, 'h'))),
      ParameterText("1", 36, 48, "BYTE_STRING", 7006, "BACF_CONNECTION_ID") +
          "|> (parm) - StringLength    :     32\n"
          "|> (parm) - String (hex)    : 68686868 68686868 68686868 68686868 68686868 68686868 68686868 "
          "68686868  [hhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhh]\n");
  EXPECT_EQ(
      ParameterReport(Message().Parameter(9, 49, 7006).Word(33).Text("0123456789ABCDEF0123456789ABCDEFx")),
      ParameterText("1", 36, 49, "BYTE_STRING", 7006, "BACF_CONNECTION_ID") +
          "|> (parm) - StringLength    :     33\n"
          "|> (parm) - String (hex)    : \n"
          "|>     00000000:30313233 34353637 38394142 43444546  [0123456789ABCDEF]\n"
          "|>     00000010-0000001F same as above\n"
          "|>     00000020:78                                   [x]\n");
  EXPECT_EQ(ParameterReport(Message().Parameter(9, 20, 7006).Word(4).Word(0)),
            ParameterText("1", 36, 20, "BYTE_STRING", 7006, "BACF_CONNECTION_ID") +
                "|> (parm) - StringLength    :      4\n"
                "|> (parm) - String (hex)    : (null)\n");
}

TEST(Pcf, UnknownTypes) {
  EXPECT_EQ(ParameterReport(Message().Parameter(1, 12, 3)),
            ParameterText("1", 36, 12, "COMMAND", 3, "CURRENT_Q_DEPTH"));
  EXPECT_EQ(ParameterReport(Message().Parameter(-5, 13, 3).Text("Z")),
            ParameterText("1", 36, 13, "(Unknown PCF type)", 3, "CURRENT_Q_DEPTH") +
                "|> (parm) - unknown (hex)   : 5A  [Z]\n");
  EXPECT_EQ(ParameterReport(Message().Parameter(24, 45, 3).Text("0123456789ABCDEFfedcba9876543210x")),
            ParameterText("1", 36, 45, "(Unknown PCF type)", 3, "CURRENT_Q_DEPTH") +
                "|> (parm) - unknown (hex)   : \n"
                "|>     00000000:30313233 34353637 38394142 43444546  [0123456789ABCDEF]\n"
                "|>     00000010:66656463 62613938 37363534 33323130  [fedcba9876543210]\n"
                "|>     00000020:78                                   [x]\n");
}

TEST(Pcf, EveryCommandIsNamed) {
  std::set<std::int32_t> seen;
  for (const ConstantRow* row = Constant_ZkAttrsPcfCommand; row->value != kEndOfTable; ++row) {
    ASSERT_TRUE(seen.insert(row->value).second) << row->value;
    Message message;
    message.Word(1).Word(36).Word(1).Word(row->value).Word(1).Word(1).Word(0).Word(0).Word(0);
    EXPECT_NE(Report(message).find(Format("|> Command                  : %6d (%s)\n", row->value, row->name)),
              std::string::npos);
    EXPECT_EQ(ParameterReport(Message().Integer(1021, row->value)),
              ParameterText("1", 36, 16, "INTEGER", 1021, "IACF_COMMAND") +
                  Format("|> (parm) - Value           : %6d (%s)\n", row->value, row->name));
  }
  EXPECT_EQ(seen.size(), 190U);
}

TEST(Pcf, EveryTypeIsNamedInHeaderAndParameter) {
  int rows = 0;
  for (const ConstantRow* row = Constant_ZkAttrsPcfType; row->value != kEndOfTable; ++row, ++rows) {
    Message message;
    message.Word(row->value).Word(36).Word(1).Word(8).Word(1).Word(1).Word(0).Word(0).Word(1);
    message.Parameter(row->value, 12, 3);
    const std::string report = Report(message);
    EXPECT_NE(report.find(Format("|> Type                     : %s\n", row->name)), std::string::npos);
    EXPECT_NE(report.find(ParameterText("1", 36, 12, row->name, 3, "CURRENT_Q_DEPTH")), std::string::npos);
  }
  EXPECT_EQ(rows, 25);
}

TEST(Pcf, EveryFilterOperatorIsNamed) {
  int rows = 0;
  for (const ConstantRow* row = Constant_ZkAttrsZkcfop; row->value != kEndOfTable; ++row, ++rows)
    EXPECT_EQ(ParameterReport(Message().Parameter(13, 20, 3).Word(row->value).Word(1)),
              ParameterText("1", 36, 20, "INTEGER_FILTER", 3, "CURRENT_Q_DEPTH") +
                  Format("|> (parm) - Operator        : %s\n", row->name) +
                  "|> (parm) - FilterValue     :      1\n");
  EXPECT_EQ(rows, 12);
  EXPECT_EQ(ParameterReport(Message().Parameter(13, 20, 3).Word(99).Word(-1)),
            ParameterText("1", 36, 20, "INTEGER_FILTER", 3, "CURRENT_Q_DEPTH") +
                "|> (parm) - Operator        : (Unknown PCF Operator)\n"
                "|> (parm) - FilterValue     :     -1\n");
}

/// The text that a list position has in a table of positions, in parentheses; empty when it has none.
std::string PositionText(const ConstantRow* positions, std::int32_t position) {
  for (; positions->value != kEndOfTable; ++positions)
    if (positions->value == position) return std::string(" (") + positions->name + ")";
  return "";
}

TEST(Pcf, EveryPositionTextOfEveryListIsShown) {
  constexpr std::int32_t kCount = 1021;  // one above the highest position that has a text
  int rows = 0;
  for (const IntListRow* row = Constant_SelectorsForIntList; row->identifier != kEndOfTable; ++row, ++rows) {
    Message message;
    message.Parameter(25, 16 + 8 * kCount, row->identifier).Word(kCount);
    std::string expected;
    for (std::int32_t i = 0; i < kCount; ++i) {
      message.Word64(i);
      expected += Format("|> (parm) - Value           : %6d%s\n", i, PositionText(row->positions, i).c_str());
    }
    const std::string report = ParameterReport(message);
    const std::size_t start = report.find("|> (parm) - Value");
    ASSERT_NE(start, std::string::npos);
    EXPECT_EQ(report.substr(start), expected) << row->identifier;
  }
  EXPECT_EQ(rows, 37);
}

TEST(Pcf, EveryIdentifierIsNamed) {
  std::set<std::int32_t> seen;
  const auto expectNamed = [&seen](std::int32_t identifier, const char* name) {
    if (!seen.insert(identifier).second) return;
    EXPECT_EQ(ParameterReport(Message().Parameter(1, 12, identifier)),
              ParameterText("1", 36, 12, "COMMAND", identifier, name));
  };
  for (const auto* row = Constant_ZkAttrsZkia; row->selector != kEndOfTable; ++row)
    expectNamed(row->selector, row->name);
  for (const auto* row = Constant_ZkAttrsZkca; row->selector != kEndOfTable; ++row)
    expectNamed(row->selector, row->name);
  for (const ConstantRow* table :
       {Constant_ZkAttrsZkbacf, Constant_ZkAttrsZkgacf, Constant_ZkAttrsZkcacfcachcamo})
    for (; table->value != kEndOfTable; ++table) expectNamed(table->value, table->name);
  EXPECT_GT(seen.size(), 1200U);
}

TEST(Pcf, HostileWordsEverywhere) {
  constexpr std::int32_t kHostile[] = {
      0, 1, 11, 12, 13, 20, kHugeCount, -1, kLowest, 0x20000000, 0x40000000, -2147483640, 0x1FFFFFFE};
  const Message whole = AllTypes(kNormal);
  for (std::size_t at = 0; at + 4 <= whole.bytes.size(); at += 4) {
    for (const std::int32_t value : kHostile) {
      Message message = whole;
      for (std::size_t i = 0; i < 4; ++i)
        message.bytes[at + i] = static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) >> (24 - 8 * i));
      const std::string report = Report(message);
      // 1000 parameters of length 0 are the most that a message of this size can show.
      EXPECT_LT(report.size(), 600000U) << at << " " << value;
      EXPECT_EQ(report.substr(report.find("|> ----- offset"), 19), "|> ----- offset 0-3");
    }
  }
}

TEST(Pcf, ClaimedListEndsSoon) {
  DumpBytes dump;
  dump.Start(kHugeCount);
  Message message = Message().Header(1).Parameter(5, kHugeCount - 36, 3).Word(0x1FFFFFF0);
  for (const std::uint8_t byte : message.bytes) ASSERT_TRUE(dump.Append(byte));
  ReportCapture capture;
  ShowParsedPCF(capture.Context(), kNormal, dump.Declared(), 0);
  EXPECT_LT(Occurrences(capture.Report(), "(parm) - Value"), 300000U);
}

// Some times what is shown of it, but not so much that a walk over all of it could not be waited for.
constexpr std::int32_t kClaimed = 4 * static_cast<std::int32_t>(kMostClaimedText);

/// Shows a message that claims `kClaimed` bytes: its own bytes, then `copies` repeats of its last 16.
std::string ClaimedReport(const Message& message, std::int64_t copies) {
  DumpBytes dump;
  dump.Start(kClaimed);
  for (const std::uint8_t byte : message.bytes) EXPECT_TRUE(dump.Append(byte));
  EXPECT_TRUE(dump.AppendRepeat(copies));
  ReportCapture capture;
  ShowParsedPCF(capture.Context(), kNormal, dump.Declared(), 0);
  return capture.Report();
}

TEST(Pcf, FoldedParametersEndWhereTheirTextWould) {
  // The first parameter and the first copy of it stand in memory, the other copies are folded.
  constexpr std::int64_t kCarried = 36 + 2 * 16;
  constexpr std::size_t kShown = (kCarried + kMostClaimedText - 36) / 16;
  for (const Message& message :
       {Message().Header(kHugeCount).Integer(3, 7), Message().Header(1).Group(kHugeCount)}) {
    const std::string report = ClaimedReport(message, kClaimed / 16);
    EXPECT_EQ(Occurrences(report, "|> ------------------------ : --- "), kShown);
    EXPECT_EQ(Occurrences(report, " length 16 (=x10)\n"), kShown);
  }
}

TEST(Pcf, ParametersOfAMessageThatIsCarriedAreAllShown) {
  // Longer than the limit for what is only claimed.
  constexpr std::int32_t kParameters = 70000;
  Message message;
  message.Header(kParameters + 1);
  for (std::int32_t i = 0; i < kParameters; ++i) message.Integer(3, i);
  EXPECT_EQ(Occurrences(Report(message), "|> ------------------------ : --- "), 70000U);
}

TEST(Pcf, ParametersOfAClaimedMessageThatAreNotThereHaveLengthZero) {
  const std::string report = ClaimedReport(Message().Header(kHugeCount).Integer(3, 7), 0);
  EXPECT_EQ(Occurrences(report, "--- offset 36-51 "), 1U);
  EXPECT_EQ(Occurrences(report, "--- offset 52-51 (=x34-x33) length 0 (=x0)\n"), 1000U);
}

TEST(PcfValues, IntegerWithoutRow) {
  ReportCapture capture;
  ShowPcfIntegerValue(capture.Context(), 5, nullptr, "");
  ShowPcfIntegerValue(capture.Context(), -1234567, nullptr, "text");
  EXPECT_EQ(capture.Report(),
            "|> (parm) - Value           :      5\n"
            "|> (parm) - Value           : -1234567 (text)\n");
}

TEST(PcfValues, BytesThatAreNoCharacters) {
  ReportCapture capture;
  ShowPcfStringValue(capture.Context(), ByteView(std::string_view("A\x01\x80Z")));
  EXPECT_EQ(capture.Report(), "|> (parm) - Value           : A..Z\n");
}

}  // namespace
}  // namespace quillon
