// Message descriptor.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "field_table.h"
#include "report_capture.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

// What the words of the dump of distinct bytes mean; byte n is n, from 256 on n + 7.
const StructureTable kMessageDescriptor = {
    ShowParsedZkmd,
    4,
    {324, 364},
    {
        {1, 0, 4, Shown::Hidden, "(structure id)"},
        {1, 4, 4, Shown::Decimal, "Version"},
        // 0x08090A0B: of the confirm-on-arrival bits only the middle one is set, which names nothing.
        {1, 8, 4, Shown::Literal, "Report", "ZKMD - ZKRO_...", "COD / PAN / NAN / DISCARD_MSG"},
        {1, 12, 4, Shown::Decimal, "MsgType"},
        {1, 16, 4, Shown::Decimal, "Expiry"},
        {1, 20, 4, Shown::Literal, "Feedback", "", "336926231 ((Unknown VZK Reason code))"},
        {1, 24, 4, Shown::Literal, "Encoding", "",
         "404298267 INTEGER_UNDEFINED / DECIMAL_NORMAL / FLOAT_UNDEFINED"},
        {1, 28, 4, Shown::Literal, "CodedCharSetId", "", "471670303 ((Unknown value))"},
        {1, 32, 8, Shown::Text, "Format"},
        {1, 40, 4, Shown::Decimal, "Priority"},
        {1, 44, 4, Shown::Literal, "Persistence", "ZKMD - ZKPER_...", "741158447 (Unknown value)"},
        {1, 48, 24, Shown::HexLine, "MsgId"},
        {1, 72, 24, Shown::HexLine, "CorrelId"},
        {1, 96, 4, Shown::Decimal, "BackoutCount"},
        {1, 100, 48, Shown::Text, "ReplyToQ"},
        {1, 148, 48, Shown::Text, "ReplyToQMgr"},
        {1, 196, 12, Shown::Text, "UserIdentifier"},
        {1, 208, 32, Shown::HexLine, "AccountingToken"},
        {1, 240, 32, Shown::Text, "ApplIdentityData"},
        {1, 272, 4, Shown::Decimal, "PutApplType"},
        {1, 276, 28, Shown::Text, "PutApplName"},
        {1, 304, 8, Shown::Text, "PutDate"},
        {1, 312, 8, Shown::Text, "PutTime"},
        {1, 320, 4, Shown::Text, "ApplOriginData"},
        {2, 324, 0, Shown::Marker, "|> --- MD version 2----------"},
        {2, 324, 24, Shown::HexLine, "GroupId"},
        {2, 348, 4, Shown::Decimal, "MsgSeqNumber"},
        {2, 352, 4, Shown::Decimal, "Offset"},
        // 0x6B6C6D6E
        {2, 356, 4, Shown::Literal, "MsgFlags", "ZKMD - ZKMF_...", "MSG_IN_GROUP / SEGMENT / LAST_SEGMENT"},
        {2, 360, 4, Shown::Decimal, "OriginalLength"},
    },
};

constexpr int kIntegerOffsets[] = {4, 8, 12, 16, 20, 24, 28, 40, 44, 96, 272, 348, 352, 356, 360};

// The same structure as a host of the other byte order stores it.
Bytes Reversed(const Bytes& bytes) {
  Bytes reversed = bytes;
  for (const int offset : kIntegerOffsets) {
    for (int i = 0; i < 4; ++i)
      reversed.at(static_cast<std::size_t>(offset + i)) = bytes.at(static_cast<std::size_t>(offset + 3 - i));
  }
  return reversed;
}

std::string ReportOfMd(const Bytes& bytes) {
  return ReportOf(ShowParsedZkmd, bytes);
}

TEST(MessageDescriptor, RowsFillTheStructure) {
  ExpectRowsFillTheStructure(kMessageDescriptor);
}

TEST(MessageDescriptor, EveryVersionStandsAsPublished) {
  for (const std::int32_t version : {0, 1, 2, 3, 4, 255, 256, 0x00FFFFFF}) {
    const Bytes dump = DistinctDump(kMessageDescriptor, version);
    EXPECT_EQ(ReportOfMd(dump), PromisedReport(kMessageDescriptor, dump, version)) << "version " << version;
  }
}

TEST(MessageDescriptor, EveryVersionOfTheOtherByteOrder) {
  // A version whose lowest byte is zero shows a zero at the version's first place: such a structure counts as
  // one of the host's order.
  for (const std::int32_t version : {1, 2, 3, 4, 255, 257, 0x7FFFFFFF}) {
    const Bytes dump = DistinctDump(kMessageDescriptor, version);
    EXPECT_EQ(ReportOfMd(Reversed(dump)), PromisedReport(kMessageDescriptor, dump, version))
        << "version " << version;
  }
}

TEST(MessageDescriptor, NegativeVersionsShowTheFirstFieldsOnly) {
  for (const std::int32_t version : {-1, -255, std::numeric_limits<std::int32_t>::min() + 1}) {
    // Stored reversed: the version's lowest byte comes first.
    const Bytes dump = DistinctDump(kMessageDescriptor, version);
    EXPECT_EQ(ReportOfMd(Reversed(dump)), PromisedReport(kMessageDescriptor, dump, 1))
        << "version " << version;
  }
}

TEST(MessageDescriptor, TheFirstByteOfTheVersionAloneDecidesTheOrder) {
  // 80 00 00 00 is no negative version but 128, and 00 00 01 00 is 256 although it could be 65536 reversed.
  Bytes dump = DistinctDump(kMessageDescriptor, 1);
  SetWord(dump, 4, 0x80000000);
  EXPECT_EQ(LinesFrom(ReportOfMd(dump), "Version", 1), Line("Version", "128"));
  SetWord(dump, 4, 0x00000100);
  EXPECT_EQ(LinesFrom(ReportOfMd(dump), "Version", 1), Line("Version", "256"));
}

TEST(MessageDescriptor, CutAnywhereReadsAsIfZerosFollowed) {
  ExpectShortAndLongDumpsAreShown(kMessageDescriptor);
  const Bytes whole = Reversed(DistinctDump(kMessageDescriptor, 2));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    Bytes padded = cut;
    padded.resize(whole.size());
    ASSERT_EQ(ReportOfMd(cut), ReportOfMd(padded)) << "cut to " << length;
  }
}

std::string FirstFieldsOfNothing() {
  return Line("Report", "(none)") + Line("MsgType", "0") + Line("Expiry", "0") + Line("Feedback", "0") +
         Line("Encoding", "0 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED") +
         Line("CodedCharSetId", "0 (default / queue_manager)") + Line("Format", "(blank)") +
         Line("Priority", "0") + Line("Persistence", "NOT_PERSISTENT") + Line("MsgId", "(null)") +
         Line("CorrelId", "(null)") + Line("BackoutCount", "0") + Line("ReplyToQ", "") +
         Line("ReplyToQMgr", "") + Line("UserIdentifier", "") + Line("AccountingToken", "(null)") +
         Line("ApplIdentityData", "") + Line("PutApplType", "no context") + Line("PutApplName", "") +
         Line("PutDate", "") + Line("PutTime", "") + Line("ApplOriginData", "");
}

TEST(MessageDescriptor, NothingAtAllShowsVersionZero) {
  EXPECT_EQ(ReportOfMd({}), Line("Version", "0") + FirstFieldsOfNothing());
}

TEST(MessageDescriptor, CutBehindTheVersionShowsAllFieldsOfTheVersion) {
  EXPECT_EQ(ReportOfMd(BytesOfHex("4D442020 00000002")),
            Line("Version", "2") + FirstFieldsOfNothing() + "|> --- MD version 2----------\n" +
                Line("GroupId", "(null)") + Line("MsgSeqNumber", "0") + Line("Offset", "0") +
                Line("MsgFlags", "(none)") + Line("OriginalLength", "0"));
}

TEST(MessageDescriptor, CutInsideAFieldShowsTheFieldsWholeWidth) {
  const Bytes whole = DistinctDump(kMessageDescriptor, 1);
  EXPECT_EQ(
      LinesFrom(ReportOfMd(Bytes(whole.begin(), whole.begin() + 51)), "MsgId", 2),
      Line("MsgId", "30313200 00000000 00000000 00000000 00000000 00000000  [012.....................]") +
          Line("CorrelId", "(null)"));
  EXPECT_EQ(LinesFrom(ReportOfMd(Bytes(whole.begin(), whole.begin() + 98)), "BackoutCount", 1),
            Line("BackoutCount", "1616969728"));  // 60 61 00 00
}

TEST(MessageDescriptor, StructureIdIsNotCompared) {
  Bytes dump = DistinctDump(kMessageDescriptor, 2);
  const std::string expected = PromisedReport(kMessageDescriptor, dump, 2);
  SetText(dump, 0, "OD  ");
  EXPECT_EQ(ReportOfMd(dump), expected);
}

// The lines of one field of a version 2 structure that is zero but for this word; both byte orders agree.
std::string ShownWord(const std::string& label, int offset, std::uint32_t value, int lines = 1) {
  Bytes bytes(364);
  SetWord(bytes, 4, 2);
  SetWord(bytes, offset, value);
  const std::string shown = LinesFrom(ReportOfMd(bytes), label, lines);
  EXPECT_EQ(LinesFrom(ReportOfMd(Reversed(bytes)), label, lines), shown) << label << " reversed";
  return shown;
}

TEST(MessageDescriptor, MessageTypeShowsItsNameAlone) {
  const struct {
    std::uint32_t value;
    const char* shown;
  } types[] = {
      {1, "REQUEST"},      {2, "REPLY"}, {8, "DATAGRAM"},  {4, "REPORT"},      {112, "ZKE_FIELDS_FROM_ZKE"},
      {113, "ZKE_FIELDS"}, {3, "3"},     {12345, "12345"}, {0xFFFFFFFF, "-1"}, {0xFFFFFC25, "-987"}};
  for (const auto& type : types) EXPECT_EQ(ShownWord("MsgType", 12, type.value), Line("MsgType", type.shown));
}

TEST(MessageDescriptor, ApplicationTypeShowsItsNameAlone) {
  const struct {
    std::uint32_t value;
    const char* shown;
  } types[] = {{0xFFFFFFFF, "unknown"}, {0, "no context"}, {6, "UNIX"}, {7, "queue manager"},
               {26, "BROKER"},          {28, "JAVA"},      {27, "27"},  {65536, "65536"},
               {0xFFFFFFFE, "-2"},      {11, "Windows"},   {24, "24"}};
  for (const auto& type : types)
    EXPECT_EQ(ShownWord("PutApplType", 272, type.value), Line("PutApplType", type.shown));
}

TEST(MessageDescriptor, FeedbackShowsItsNumberAndItsName) {
  EXPECT_EQ(ShownWord("Feedback", 20, 0), Line("Feedback", "0"));
  EXPECT_EQ(ShownWord("Feedback", 20, 2085), Line("Feedback", "2085 (ZKRC_UNKNOWN_OBJECT_NAME)"));
  EXPECT_EQ(ShownWord("Feedback", 20, 258), Line("Feedback", "258 (ZKFB_EXPIRATION)"));
  EXPECT_EQ(ShownWord("Feedback", 20, 0xFFFFFFFF), Line("Feedback", "-1 ((Unknown VZK Reason code))"));
}

TEST(MessageDescriptor, PersistenceHasThreeNames) {
  EXPECT_EQ(ShownWord("Persistence", 44, 0), Line("Persistence", "NOT_PERSISTENT"));
  EXPECT_EQ(ShownWord("Persistence", 44, 1), Line("Persistence", "PERSISTENT"));
  EXPECT_EQ(ShownWord("Persistence", 44, 2), Line("Persistence", "PERSISTENCE_AS_Q_DEF"));
  EXPECT_EQ(ShownWord("Persistence", 44, 3, 4),
            Line("Persistence", "3 (Unknown value)") + Notice("ZKMD - ZKPER_...", 3));
  EXPECT_EQ(ShownWord("Persistence", 44, 0xFFFFFFFF, 4),
            Line("Persistence", "-1 (Unknown value)") + Notice("ZKMD - ZKPER_...", 0xFFFFFFFF));
  EXPECT_EQ(ShownWord("Persistence", 44, 0xFFFFFC25, 4),
            Line("Persistence", "-987 (Unknown value)") + Notice("ZKMD - ZKPER_...", 0xFFFFFC25));
}

TEST(MessageDescriptor, EncodingAndCharacterSetAreOnlyShown) {
  EXPECT_EQ(ShownWord("Encoding", 24, 273),
            Line("Encoding", "273 (Native encoding) INTEGER_NORMAL / DECIMAL_NORMAL / FLOAT_IEEE_NORMAL"));
  EXPECT_EQ(ShownWord("Encoding", 24, 546),
            Line("Encoding", "546 INTEGER_REVERSED / DECIMAL_REVERSED / FLOAT_IEEE_REVERSED"));
  EXPECT_EQ(ShownWord("CodedCharSetId", 28, 0xFFFFFFFE), Line("CodedCharSetId", "-2 (inherit)"));
  EXPECT_EQ(ShownWord("CodedCharSetId", 28, 819), Line("CodedCharSetId", "819 (ISO 8859-1 ASCII)"));
}

TEST(MessageDescriptor, FormatIsNamedWhenItIsKnown) {
  const struct {
    const char* name;
    const char* shown;
  } formats[] = {{"ZKSTR   ", "ZKSTR (String)"},
                 {"ZKADMIN ", "ZKADMIN (PCF - Administration)"},
                 {"        ", "(blank)"},
                 {"  MYFMT ", "MYFMT"},
                 {"zkstr   ", "zkstr"}};
  for (const auto& format : formats) {
    Bytes bytes(324);
    SetText(bytes, 32, format.name);
    EXPECT_EQ(LinesFrom(ReportOfMd(bytes), "Format", 1), Line("Format", format.shown));
  }
}

// Which calls suppress the notices of a descriptor's unknown values.

struct CallState {
  std::int32_t apiKind;
  std::int32_t apiPhase;
  std::int32_t compCode;
};

constexpr CallState kSuppressing[] = {
    {10, 1, 0}, {10, 1, 1}, {10, 1, 2}, {11, 1, 0}, {11, 1, 1}, {11, 1, 2}, {10, 2, 2},
};

bool IsSuppressing(const CallState& state) {
  for (const CallState& row : kSuppressing) {
    if (row.apiKind == state.apiKind && row.apiPhase == state.apiPhase && row.compCode == state.compCode)
      return true;
  }
  return false;
}

void ExpectNotice(const CallState& state, int offset, std::uint32_t value, const std::string& line,
                  const std::string& label) {
  const std::string about = label + " kind " + std::to_string(state.apiKind) + " phase " +
                            std::to_string(state.apiPhase) + " code " + std::to_string(state.compCode);
  Bytes bytes(364);
  SetWord(bytes, 4, 2);
  SetWord(bytes, offset, value);
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  runContext.apiKind = state.apiKind;
  runContext.apiPhase = state.apiPhase;
  runContext.compCode = state.compCode;
  ShowParsedZkmd(runContext, ViewOf(bytes));

  const bool suppressed = IsSuppressing(state);
  const std::string report = capture.Report();
  const std::size_t place = report.find(line);
  ASSERT_NE(place, std::string::npos) << about;
  const std::string behind = report.substr(place + line.size());
  EXPECT_EQ(behind.compare(0, Notice(label, value).size(), Notice(label, value)) == 0, !suppressed) << about;
  EXPECT_EQ(report.find("|* Unknown") == std::string::npos, suppressed) << about;
  EXPECT_EQ(runContext.unknownAttributeSeen, !suppressed) << about;
  EXPECT_EQ(
      capture.Terminal(),
      suppressed ? "" : "Unknown API attribute : " + label + " value 0x" + Formatted("%08X", value) + "\n")
      << about;
}

TEST(MessageDescriptor, NoticesAreSuppressedWhileTheApplicationHasNotSetTheFields) {
  for (const std::int32_t apiKind : {0, 10, 11}) {
    for (const std::int32_t apiPhase : {0, 1, 2}) {
      for (const std::int32_t compCode : {0, 1, 2}) {
        const CallState state = {apiKind, apiPhase, compCode};
        for (const std::uint32_t persistence : {5U, 0xFFFFFFFFU})
          ExpectNotice(state, 44, persistence, Line("Persistence", Number(persistence) + " (Unknown value)"),
                       "ZKMD - ZKPER_...");
        ExpectNotice(state, 8, 0x8, Line("Report", "(none)"), "ZKMD - ZKRO_...");
        ExpectNotice(state, 8, 0x80000100, Line("Report", "COA"), "ZKMD - ZKRO_...");
        ExpectNotice(state, 356, 0x20, Line("MsgFlags", "(none)"), "ZKMD - ZKMF_...");
        ExpectNotice(state, 356, 0x40000001, Line("MsgFlags", "SEGMENTATION_ALLOWED"), "ZKMD - ZKMF_...");
      }
    }
  }
}

TEST(MessageDescriptor, KnownValuesGiveNoNoticeInAnyCall) {
  for (const std::int32_t apiKind : {0, 10, 11}) {
    for (const std::int32_t apiPhase : {0, 1, 2}) {
      for (const std::uint32_t persistence : {0U, 1U, 2U}) {
        Bytes bytes(364);
        SetWord(bytes, 4, 2);
        SetWord(bytes, 8, 0x0FE07FC7);  // every report option that has a name
        SetWord(bytes, 44, persistence);
        SetWord(bytes, 356, 0x1F);
        ReportCapture capture;
        capture.Context().apiKind = apiKind;
        capture.Context().apiPhase = apiPhase;
        ShowParsedZkmd(capture.Context(), ViewOf(bytes));
        EXPECT_FALSE(capture.Context().unknownAttributeSeen);
        EXPECT_EQ(capture.Terminal(), "");
        EXPECT_EQ(LinesFrom(capture.Report(), "MsgFlags", 1),
                  Line("MsgFlags",
                       "SEGMENTATION_ALLOWED / MSG_IN_GROUP / LAST_MSG_IN_GROUP / SEGMENT / LAST_SEGMENT"));
      }
    }
  }
}

TEST(MessageDescriptor, MessageTypesAndApplicationTypesAreNeverReported) {
  Bytes bytes(364);
  SetWord(bytes, 4, 7);  // nor is a version beyond the known ones
  SetWord(bytes, 12, 12345);
  SetWord(bytes, 20, 99999);
  SetWord(bytes, 28, 99999);
  SetWord(bytes, 272, 12345);
  ReportCapture capture;
  ShowParsedZkmd(capture.Context(), ViewOf(bytes));
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
  EXPECT_EQ(capture.Terminal(), "");
}

}  // namespace
}  // namespace quillon
