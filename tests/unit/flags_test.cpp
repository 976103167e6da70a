#include "display/flags.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "message_bytes.h"
#include "report_capture.h"

namespace quillon {
namespace {

using Show = int (*)(RunContext& runContext, std::uint32_t value);

struct Name {
  std::uint32_t bit;
  const char* text;
};

/// A flag word as it is published: its names in test order, the bits that are reported, the notice's label.
struct Word {
  const char* title;
  Show show;
  const char* field;
  std::vector<Name> names;
  std::uint32_t unknown;
  const char* label;
  const char* empty = "(none)";
};

// clang-format off
const std::vector<Word> kWords = {
    {"open options", ShowParsedZkoo, "Options",
     {{0x1, "INPUT_AS_Q_DEF"}, {0x2, "INPUT_SHARED"}, {0x4, "INPUT_EXCLUSIVE"}, {0x8, "BROWSE"}, {0x10, "OUTPUT"},
      {0x20, "INQUIRE"}, {0x40, "SET"}, {0x4000, "BIND_ON_OPEN"}, {0x8000, "BIND_NOT_FIXED"},
      {0x80, "SAVE_ALL_CONTEXT"}, {0x100, "PASS_IDENTITY_CONTEXT"}, {0x200, "PASS_ALL_CONTEXT"},
      {0x400, "SET_IDENTITY_CONTEXT"}, {0x800, "SET_ALL_CONTEXT"}, {0x1000, "ALTERNATE_USER_AUTHORITY"},
      {0x2000, "FAIL_IF_QUIESCING"}, {0x10000, "RESOLVE_NAMES"}, {0x40000, "RESOLVE_LOCAL_Q"},
      {0x80000, "NO_READ_AHEAD"}, {0x100000, "READ_AHEAD"}, {0x20000, "CO_OP"}},
     0xFFE00000, "ZKOPEN - ZKOO_..."},
    {"close options", ShowParsedZkco, "Options",
     {{0x1, "DELETE"}, {0x2, "DELETE_PURGE"}, {0x4, "KEEP_SUB"}, {0x8, "REMOVE_SUB"}, {0x20, "QUIESCE"}},
     0xFFFFFFD0, "ZKCLOSE - ZKCO_..."},
    {"message flags", [](RunContext& c, std::uint32_t v) { return ShowParsedMsgFlags(c, v, NameMode::WriteName); }, "MsgFlags",
     {{0x1, "SEGMENTATION_ALLOWED"}, {0x8, "MSG_IN_GROUP"}, {0x10, "LAST_MSG_IN_GROUP"}, {0x2, "SEGMENT"},
      {0x4, "LAST_SEGMENT"}},
     0xFFFFFFE0, "ZKMD - ZKMF_..."},
    {"reference header flags", [](RunContext& c, std::uint32_t v) { return ShowParsedZkrmhFlags(c, v, NameMode::WriteName); }, "Flags",
     {{0x1, "LAST"}}, 0xFFFFFFFE, "ZKRMH - ZKRMHF_..."},
    {"distribution header flags", [](RunContext& c, std::uint32_t v) { return ShowParsedZkdhFlags(c, v, NameMode::WriteName); }, "Flags",
     {{0x1, "NEW_MSG_IDS"}}, 0xFFFFFFFE, "ZKDH - ZKDHF_..."},
    {"put message record fields", ShowParsedZkpmrf, "PutMsgRecFields",
     {{0x1, "MSG_ID"}, {0x2, "CORREL_ID"}, {0x4, "GROUP_ID"}, {0x8, "FEEDBACK"}, {0x10, "ACCOUNTING_TOKEN"}},
     0xFFFFFFE0, "PutMsgRecFields"},
    {"operation", ShowParsedZkop, "Operation",
     {{0x1, "START"}, {0x2, "START_WAIT"}, {0x4, "STOP"}, {0x100, "REGISTER"}, {0x200, "DEREGISTER"},
      {0x10000, "SUSPEND"}, {0x20000, "RESUME"}},
     0xFFFCFCF8, "ZKCB/ZKCTL - ZKOP_..."},
    {"subscription request action", ShowParsedZksr, "Action", {{0x1, "PUBLICATION"}}, 0xFFFFFFFE, "ZKSR_..."},
    {"xa flags", ShowParsedXaFlags, "flags",
     {{0x80000000, "TMASYNC"}, {0x40000000, "TMONEPHASE"}, {0x20000000, "TMFAIL"}, {0x10000000, "TMNOWAIT"},
      {0x8000000, "TMRESUME"}, {0x4000000, "TMSUCCESS"}, {0x2000000, "TMSUSPEND"}, {0x1000000, "TMSTARTRSCAN"},
      {0x800000, "TMENDRSCAN"}, {0x400000, "TMMULTIPLE"}, {0x200000, "TMJOIN"}, {0x100000, "TMMIGRATE"}},
     0, "", "TMNOFLAGS"},
};
// clang-format on

constexpr std::uint32_t kAllBits = 0xFFFFFFFF;

std::string Hex8(std::uint32_t value) {
  std::string digits;
  for (int shift = 28; shift >= 0; shift -= 4) digits += "0123456789ABCDEF"[value >> shift & 0xF];
  return digits;
}

/// The line and the notice that a published word promises for a value.
std::string Promised(const Word& word, std::uint32_t value) {
  std::string names;
  for (const Name& name : word.names)
    if ((value & name.bit) != 0) names += (names.empty() ? "" : " / ") + std::string(name.text);
  const std::string line = Field(word.field, names.empty() ? word.empty : names);
  const bool reported = (value & word.unknown) != 0;
  return line + (reported ? Notice(word.label + std::string(" 0x") + Hex8(value)) : "");
}

template <typename ShowWord>
std::string Shown(ShowWord show) {
  ReportCapture capture;
  show(capture.Context());
  return capture.Report();
}

std::string ReportOptions(std::uint32_t options) {
  return Shown([&](RunContext& c) { ShowParsedReportOptions(c, options, NameMode::WriteName); });
}

TEST(FlagWords, NoBit) {
  for (const Word& word : kWords)
    EXPECT_EQ(Shown([&](RunContext& c) { word.show(c, 0); }), Field(word.field, word.empty)) << word.title;
}

TEST(FlagWords, EverySingleBit) {
  for (const Word& word : kWords) {
    for (int bit = 0; bit < 32; ++bit) {
      const std::uint32_t value = std::uint32_t{1} << bit;
      EXPECT_EQ(Shown([&](RunContext& c) { word.show(c, value); }), Promised(word, value))
          << word.title << " " << Hex8(value);
    }
  }
}

TEST(FlagWords, AllBits) {
  for (const Word& word : kWords)
    EXPECT_EQ(Shown([&](RunContext& c) { word.show(c, kAllBits); }), Promised(word, kAllBits)) << word.title;
}

TEST(FlagWords, AllNamesWithoutANotice) {
  for (const Word& word : kWords) {
    std::uint32_t named = 0;
    for (const Name& name : word.names) named |= name.bit;
    const std::string text = Shown([&](RunContext& c) { word.show(c, named); });
    EXPECT_EQ(text, Promised(word, named)) << word.title;
    EXPECT_EQ(text.find("Unknown"), std::string::npos) << word.title;
  }
}

TEST(FlagWords, OneUnknownBitBesideAKnownOne) {
  for (const Word& word : kWords) {
    if (word.unknown == 0) continue;
    for (int bit = 0; bit < 32; ++bit) {
      const std::uint32_t value = word.names.front().bit | (word.unknown & std::uint32_t{1} << bit);
      EXPECT_EQ(Shown([&](RunContext& c) { word.show(c, value); }), Promised(word, value))
          << word.title << " " << Hex8(value);
    }
  }
}

TEST(OpenOptions, AreJoinedInTheirOrder) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedZkoo(c, 0x2011); }),
            "|> Options                  : INPUT_AS_Q_DEF / OUTPUT / FAIL_IF_QUIESCING\n");
}

TEST(OpenOptions, AnUnknownBitIsReportedOnReportAndTerminal) {
  ReportCapture capture;
  ShowParsedZkoo(capture.Context(), 0x200000);
  EXPECT_EQ(capture.Report(),
            "|> Options                  : (none)\n"
            "|**********************************\n"
            "|* Unknown : ZKOPEN - ZKOO_... 0x00200000\n"
            "|**********************************\n");
  EXPECT_EQ(capture.Terminal(), "Unknown API attribute : ZKOPEN - ZKOO_... value 0x00200000\n");
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(OpenOptions, AKnownValueMarksNothing) {
  ReportCapture capture;
  ShowParsedZkoo(capture.Context(), 0x1FFFFF);
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
  EXPECT_EQ(capture.Terminal(), "");
}

TEST(OpenOptions, TheHighestBitIsUnknownToo) {
  // "0x200000 or more" is unsigned: a negative number is large.
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedZkoo(c, 0x80000001); }),
            Field("Options", "INPUT_AS_Q_DEF") + Notice("ZKOPEN - ZKOO_... 0x80000001"));
}

TEST(CloseOptions, TheFifthBitIsUnknown) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedZkco(c, 0x10); }),
            Field("Options", "(none)") + Notice("ZKCLOSE - ZKCO_... 0x00000010"));
}

TEST(SingleFlagWords, ShowNoNameWhenBitZeroIsClear) {
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedZkrmhFlags(c, 6, NameMode::WriteName); }),
            Field("Flags", "(none)") + Notice("ZKRMH - ZKRMHF_... 0x00000006"));
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedZkdhFlags(c, 2, NameMode::WriteName); }),
            Field("Flags", "(none)") + Notice("ZKDH - ZKDHF_... 0x00000002"));
  EXPECT_EQ(Shown([](RunContext& c) { ShowParsedZksr(c, 2); }),
            Field("Action", "(none)") + Notice("ZKSR_... 0x00000002"));
}

TEST(XaFlags, BitsWithoutANameAreSilent) {
  ReportCapture capture;
  ShowParsedXaFlags(capture.Context(), 0x000FFFFF);
  ShowParsedXaFlags(capture.Context(), 0x04000001);
  EXPECT_EQ(capture.Report(), Field("flags", "TMNOFLAGS") + Field("flags", "TMSUCCESS"));
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
}

TEST(ReportOptions, OfAGroupTheWidestNameIsShown) {
  EXPECT_EQ(ReportOptions(0x7000000), Field("Report", "EXCEPTION_WITH_FULL_DATA"));
  EXPECT_EQ(ReportOptions(0x3000000), Field("Report", "EXCEPTION_WITH_DATA"));
  EXPECT_EQ(ReportOptions(0x1000000), Field("Report", "EXCEPTION"));
  EXPECT_EQ(ReportOptions(0xE00000), Field("Report", "EXPIRATION_WITH_FULL_DATA"));
  EXPECT_EQ(ReportOptions(0x600000), Field("Report", "EXPIRATION_WITH_DATA"));
  EXPECT_EQ(ReportOptions(0x200000), Field("Report", "EXPIRATION"));
  EXPECT_EQ(ReportOptions(0x700), Field("Report", "COA_WITH_FULL_DATA"));
  EXPECT_EQ(ReportOptions(0x300), Field("Report", "COA_WITH_DATA"));
  EXPECT_EQ(ReportOptions(0x100), Field("Report", "COA"));
  EXPECT_EQ(ReportOptions(0x3800), Field("Report", "COD_WITH_FULL_DATA"));
  EXPECT_EQ(ReportOptions(0x1800), Field("Report", "COD_WITH_DATA"));
  EXPECT_EQ(ReportOptions(0x800), Field("Report", "COD"));
}

TEST(ReportOptions, AGroupWithAGapShowsItsLowestName) {
  EXPECT_EQ(ReportOptions(0x5000000), Field("Report", "EXCEPTION"));
  EXPECT_EQ(ReportOptions(0xA00000), Field("Report", "EXPIRATION"));
  EXPECT_EQ(ReportOptions(0x500), Field("Report", "COA"));
  EXPECT_EQ(ReportOptions(0x2800), Field("Report", "COD"));
}

TEST(ReportOptions, AGroupWithoutItsLowestBitShowsNothing) {
  for (const std::uint32_t bits : {0x2000000U, 0x4000000U, 0x6000000U, 0x400000U, 0x800000U, 0xC00000U,
                                   0x200U, 0x400U, 0x600U, 0x1000U, 0x2000U, 0x3000U})
    EXPECT_EQ(ReportOptions(bits), Field("Report", "(none)")) << Hex8(bits);
}

TEST(ReportOptions, SingleBits) {
  EXPECT_EQ(ReportOptions(0x1), Field("Report", "PAN"));
  EXPECT_EQ(ReportOptions(0x2), Field("Report", "NAN"));
  EXPECT_EQ(ReportOptions(0x4), Field("Report", "ACTIVITY"));
  EXPECT_EQ(ReportOptions(0x80), Field("Report", "PASS_MSG_ID"));
  EXPECT_EQ(ReportOptions(0x40), Field("Report", "PASS_CORREL_ID"));
  EXPECT_EQ(ReportOptions(0x8000000), Field("Report", "DISCARD_MSG"));
  EXPECT_EQ(ReportOptions(0x4000), Field("Report", "PASS_DISCARD_AND_EXPIRY"));
  EXPECT_EQ(ReportOptions(0), Field("Report", "(none)"));
}

TEST(ReportOptions, EveryOtherBitIsUnknown) {
  for (const std::uint32_t bit : {0x80000000U, 0x40000000U, 0x20000000U, 0x10000000U, 0x100000U, 0x80000U,
                                  0x40000U, 0x20000U, 0x10000U, 0x8000U, 0x20U, 0x10U, 0x8U})
    EXPECT_EQ(ReportOptions(bit), Field("Report", "(none)") + Notice("ZKMD - ZKRO_... 0x" + Hex8(bit)));
}

TEST(ReportOptions, AllBits) {
  EXPECT_EQ(ReportOptions(kAllBits),
            Field("Report",
                  "EXCEPTION_WITH_FULL_DATA / EXPIRATION_WITH_FULL_DATA / COA_WITH_FULL_DATA / "
                  "COD_WITH_FULL_DATA / PAN / NAN / ACTIVITY / PASS_MSG_ID / PASS_CORREL_ID / DISCARD_MSG / "
                  "PASS_DISCARD_AND_EXPIRY") +
                Notice("ZKMD - ZKRO_... 0xFFFFFFFF"));
}

// The words of a message descriptor report nothing while the descriptor holds what the application never set.

struct Moment {
  std::int32_t apiKind;
  std::int32_t apiPhase;
  std::int32_t compCode;
  bool reported;
};

constexpr std::int32_t kGet = 10;
constexpr std::int32_t kConversion = 11;
constexpr std::int32_t kBefore = 1;
constexpr std::int32_t kAfter = 2;

constexpr Moment kMoments[] = {
    {kGet, kBefore, 0, false},
    {kGet, kBefore, 2, false},
    {kGet, kAfter, 0, true},
    {kGet, kAfter, 1, true},
    {kGet, kAfter, 2, false},
    {kGet, 0, 2, true},
    {kConversion, kBefore, 0, false},
    {kConversion, kAfter, 0, true},
    {kConversion, kAfter, 2, true},
    {0, kBefore, 0, true},
    {0, kAfter, 0, true},
    {0, kAfter, 2, true},
};

TEST(DescriptorWords, AreReportedWhenTheDescriptorIsFilled) {
  for (const Moment& moment : kMoments) {
    ReportCapture capture;
    RunContext& context = capture.Context();
    context.apiKind = moment.apiKind;
    context.apiPhase = moment.apiPhase;
    context.compCode = moment.compCode;
    ShowParsedMsgFlags(context, 0x40, NameMode::WriteName);
    ShowParsedReportOptions(context, 0x8, NameMode::WriteName);
    const std::string notice = Notice("ZKMD - ZKMF_... 0x00000040");
    EXPECT_EQ(capture.Report(), Field("MsgFlags", "(none)") + (moment.reported ? notice : "") +
                                    Field("Report", "(none)") +
                                    (moment.reported ? Notice("ZKMD - ZKRO_... 0x00000008") : ""))
        << moment.apiKind << " " << moment.apiPhase << " " << moment.compCode;
    EXPECT_EQ(context.unknownAttributeSeen, moment.reported);
  }
}

TEST(DescriptorWords, OtherWordsAreReportedAtEveryMoment) {
  for (const Word& word : kWords) {
    if (word.unknown == 0 || std::string_view(word.field) == "MsgFlags") continue;
    ReportCapture capture;
    capture.Context().apiKind = kGet;
    capture.Context().apiPhase = kBefore;
    word.show(capture.Context(), kAllBits);
    EXPECT_EQ(capture.Report(), Promised(word, kAllBits)) << word.title;
  }
}

TEST(NoNameMode, LeavesOnlyTheNameColumnOut) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowParsedMsgFlags(c, 0x3, NameMode::NoName);
              ShowParsedReportOptions(c, 0x3, NameMode::NoName);
              ShowParsedZkrmhFlags(c, 0x1, NameMode::NoName);
              ShowParsedZkdhFlags(c, 0, NameMode::NoName);
            }),
            "SEGMENTATION_ALLOWED / SEGMENT\nPAN / NAN\nLAST\n(none)\n");
}

TEST(NoNameMode, TheWordsOfADescriptorAreNotReported) {
  ReportCapture capture;
  ShowParsedMsgFlags(capture.Context(), kAllBits, NameMode::NoName);
  ShowParsedReportOptions(capture.Context(), 0x8, NameMode::NoName);
  EXPECT_EQ(capture.Report(),
            "SEGMENTATION_ALLOWED / MSG_IN_GROUP / LAST_MSG_IN_GROUP / SEGMENT / LAST_SEGMENT\n(none)\n");
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
}

TEST(NoNameMode, TheWordsOfAHeaderAreReported) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowParsedZkrmhFlags(c, 3, NameMode::NoName);
              ShowParsedZkdhFlags(c, 4, NameMode::NoName);
            }),
            "LAST\n" + Notice("ZKRMH - ZKRMHF_... 0x00000003") + "(none)\n" +
                Notice("ZKDH - ZKDHF_... 0x00000004"));
}

// Response and object records.

std::string ResponseRecords(const MessageBytes& records, std::int32_t count, std::int32_t phase = kAfter) {
  const std::vector<std::uint8_t> bytes = records.bytes;
  return Shown([&](RunContext& c) {
    c.apiPhase = phase;
    ShowParsedZkrr(c, ViewOf(bytes), count);
  });
}

TEST(ResponseRecords, NameTheirReasons) {
  EXPECT_EQ(ResponseRecords(MessageBytes().Int(2).Int(2035).Int(0).Int(0), 2),
            Field("CompCode", "2") + Field("Reason", "2035 (ZKRC_NOT_AUTHORIZED)") + Field("CompCode", "0") +
                Field("Reason", "0"));
}

TEST(ResponseRecords, AnUnknownReasonShowsItsTextInParentheses) {
  EXPECT_EQ(ResponseRecords(MessageBytes().Int(-1).Int(-5), 1),
            Field("CompCode", "-1") + Field("Reason", "-5 ((Unknown VZK Reason code))"));
}

TEST(ResponseRecords, BeforeTheCallReasonsArePlainNumbers) {
  EXPECT_EQ(ResponseRecords(MessageBytes().Int(2).Int(2035), 1, kBefore),
            Field("CompCode", "2") + Field("Reason", "2035"));
}

TEST(ResponseRecords, AreShownAsFarAsTheyLieWhollyInsideTheDump) {
  const std::string one = Field("CompCode", "1") + Field("Reason", "0");
  const MessageBytes records = MessageBytes().Int(1).Int(0).Int(1).Int(0).Int(1);
  EXPECT_EQ(ResponseRecords(records, 1), one);
  EXPECT_EQ(ResponseRecords(records, 2), one + one);
  EXPECT_EQ(ResponseRecords(records, 3), one + one);
  EXPECT_EQ(ResponseRecords(records, std::numeric_limits<std::int32_t>::max()), one + one);
  EXPECT_EQ(ResponseRecords(records, 0), "");
  EXPECT_EQ(ResponseRecords(records, -1), "");
  EXPECT_EQ(ResponseRecords(MessageBytes().Int(1), 1), "");
}

TEST(ObjectRecords, ShowBothNames) {
  const MessageBytes records =
      MessageBytes().Text("QUEUE.ONE", 48).Text("QM1", 48).Text("QUEUE.TWO", 48).Zeros(48);
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedZkor(c, records.View(), 2); }),
            Field("ObjectName", "QUEUE.ONE") + Field("ObjectQMgrName", "QM1") +
                Field("ObjectName", "QUEUE.TWO") + Field("ObjectQMgrName", ""));
}

TEST(ObjectRecords, AreShownAsFarAsTheyLieWhollyInsideTheDump) {
  const MessageBytes records = MessageBytes().Text("Q", 48).Text("M", 48).Text("R", 95);
  const std::string one = Field("ObjectName", "Q") + Field("ObjectQMgrName", "M");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedZkor(c, records.View(), 2); }), one);
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedZkor(c, records.View(), 0); }), "");
  EXPECT_EQ(Shown([&](RunContext& c) { ShowParsedZkor(c, records.View(), -3); }), "");
}

TEST(RecordsInside, IsTheSmallerOfCountAndRoom) {
  ReportCapture capture;
  RunContext& runContext = capture.Context();
  const std::vector<std::uint8_t> bytes(20);
  const ByteView view = ViewOf(bytes);
  EXPECT_EQ(RecordsInside(runContext, view, 2, 8), 2);
  EXPECT_EQ(RecordsInside(runContext, view, 3, 8), 2);
  EXPECT_EQ(RecordsInside(runContext, view, std::numeric_limits<std::int64_t>::max(), 20), 1);
  EXPECT_EQ(RecordsInside(runContext, view, 1, 21), 0);
  EXPECT_EQ(RecordsInside(runContext, view, -1, 8), 0);
  EXPECT_EQ(RecordsInside(runContext, view, 5, 0), 0);
  EXPECT_EQ(RecordsInside(runContext, ByteView(), 5, 8), 0);
  const std::int64_t most = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(capture.Terminal(), "");
  EXPECT_EQ(RecordsInside(runContext, view.Field(0, most), most, 8), (20 + 1048576) / 8)
      << "bytes that are only claimed";
}

// Compression, formats, status types.

std::string Compression(std::int32_t value) {
  return Shown([&](RunContext& c) { ShowParsedCompressInfo(c, "List", value, false, true); });
}

TEST(CompressInfo, NamesWholeValues) {
  EXPECT_EQ(Compression(-1), Field("List", "-1 (not available)"));
  EXPECT_EQ(Compression(0), Field("List", "0 (none)"));
  EXPECT_EQ(Compression(0x0FFFFFFF), Field("List", "268435455 (any)"));
}

TEST(CompressInfo, NamesItsBits) {
  EXPECT_EQ(Compression(1), Field("List", "1 (RLE)"));
  EXPECT_EQ(Compression(2), Field("List", "2 (ZLIBFAST)"));
  EXPECT_EQ(Compression(4), Field("List", "4 (ZLIBHIGH)"));
  EXPECT_EQ(Compression(8), Field("List", "8 (SYSTEM)"));
  EXPECT_EQ(Compression(15), Field("List", "15 (RLE / ZLIBFAST / ZLIBHIGH / SYSTEM)"));
}

TEST(CompressInfo, IgnoresOtherBits) {
  EXPECT_EQ(Compression(16), Field("List", "16 ()"));
  EXPECT_EQ(Compression(18), Field("List", "18 (ZLIBFAST)"));
  EXPECT_EQ(Compression(-16), Field("List", "-16 ()"));
  EXPECT_EQ(Compression(0x1FFFFFFF), Field("List", "536870911 (RLE / ZLIBFAST / ZLIBHIGH / SYSTEM)"));
  ReportCapture capture;
  ShowParsedCompressInfo(capture.Context(), "List", 16, false, true);
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
}

TEST(CompressInfo, MayBeOfFixedWidthAndLeaveTheLineOpen) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowParsedCompressInfo(c, "List", 3, true, false);
              ShowParsedCompressInfo(c, "", -1, true, true);
            }),
            "|> List                     :      3 (RLE / ZLIBFAST)    -1 (not available)\n");
}

std::string Format(std::string_view name) {
  const std::vector<std::uint8_t> bytes(name.begin(), name.end());
  return Shown([&](RunContext& c) { ShowParsedMsgFormat(c, ViewOf(bytes)); });
}

TEST(MsgFormat, KnownFormatsAreDescribed) {
  const std::pair<const char*, const char*> formats[] = {
      {"ZKADMIN ", "ZKADMIN (PCF - Administration)"},
      {"ZKDEAD  ", "ZKDEAD (Dead letter header)"},
      {"ZKHDIST ", "ZKHDIST (Distribution header)"},
      {"ZKHEPCF ", "ZKHEPCF (Embedded programmable command format)"},
      {"ZKEVENT ", "ZKEVENT (Event)"},
      {"ZKHMDE  ", "ZKHMDE (Message descrptor extension)"},
      {"ZKPCF   ", "ZKPCF (Programmable command format)"},
      {"ZKHREF  ", "ZKHREF (Reference message header)"},
      {"ZKHRF   ", "ZKHRF (Rules and formatting header)"},
      {"ZKHRF2  ", "ZKHRF2 (Rules and formatting header 2)"},
      {"ZKSTR   ", "ZKSTR (String)"},
      {"ZKTRIG  ", "ZKTRIG (Trigger message)"},
      {"ZKXMIT  ", "ZKXMIT (Transmission queue header)"},
  };
  for (const auto& [name, shown] : formats) EXPECT_EQ(Format(name), Field("Format", shown));
}

TEST(MsgFormat, OtherNamesStandAlone) {
  EXPECT_EQ(Format("MYFORMAT"), Field("Format", "MYFORMAT"));
  EXPECT_EQ(Format("zkstr   "), Field("Format", "zkstr"));
  EXPECT_EQ(Format("ZKSTRX  "), Field("Format", "ZKSTRX"));
}

TEST(MsgFormat, AllBlankIsBlank) {
  EXPECT_EQ(Format("        "), Field("Format", "(blank)"));
  EXPECT_EQ(Format(std::string(8, '\0')), Field("Format", "(blank)"));
  EXPECT_EQ(Format(""), Field("Format", "(blank)"));
}

TEST(MsgFormat, ANulEndsTheName) {
  EXPECT_EQ(Format(std::string_view("ZKSTR\0\0\0", 8)), Field("Format", "ZKSTR (String)"));
  EXPECT_EQ(Format(std::string_view("ZKSTR\0XY", 8)), Field("Format", "ZKSTR (String)"));
  EXPECT_EQ(Format(std::string_view("\0ZKSTR  ", 8)), Field("Format", "(blank)"));
}

TEST(MsgFormat, AShortDumpIsPadded) {
  EXPECT_EQ(Format("ZKSTR"), Field("Format", "ZKSTR (String)"));
}

TEST(MsgFormat, LeadingBlanksAreTrimmedAndNotFound) {
  EXPECT_EQ(Format(" ZKSTR  "), Field("Format", "ZKSTR"));
}

TEST(MsgFormat, UnprintableBytesAreDots) {
  EXPECT_EQ(Format("A\x01\x80"
                   "B    "),
            Field("Format", "A..B"));
}

TEST(StatusType, KnownTypes) {
  EXPECT_EQ(
      Shown([](RunContext& c) {
        ShowParsedZkstatType(c, "Type", 0);
        ShowParsedZkstatType(c, "Type", 1);
        ShowParsedZkstatType(c, "Type", 2);
      }),
      Field("Type", "ASYNC_ERROR") + Field("Type", "RECONNECTION") + Field("Type", "RECONNECTION_ERROR"));
}

TEST(StatusType, AnUnknownTypeIsOnlyANotice) {
  EXPECT_EQ(Shown([](RunContext& c) {
              ShowParsedZkstatType(c, "Type", 3);
              ShowParsedZkstatType(c, "Type", -987);
            }),
            Notice("ZKSTAT_TYPE_... 0x00000003") + Notice("ZKSTAT_TYPE_... 0xFFFFFC25"));
}

// Accounting of bits, as the compiler does it for every word of the program.

constexpr FlagRow kSample[] = {
    {0x3, "WIDE", 1}, {0x1, "LOW", 1}, {0x8, "ONE"}, {0x4, "CLEAR", 0, FlagTest::None}};
constexpr FlagWord kSampleWord = {kSample, 4, 0xFFFFFFF4, "SAMPLE"};

static_assert(NamedBits(kSampleWord) == 0xB);
static_assert(EveryBitHasOneClass(kSampleWord));
static_assert(!EveryBitHasOneClass({kSample, 4, 0xFFFFFFF0, ""}), "a bit is in no class");
static_assert(!EveryBitHasOneClass({kSample, 4, 0xFFFFFFF5, ""}), "a bit is named and reported");
static_assert(EveryBitHasOneClass({kSample, 4, 0xFFFFFFF5, ""}, {.namedAndReported = 0x1}));
static_assert(!EveryBitHasOneClass(kSampleWord, {.namedAndReported = 0x1}), "a bit is not in two classes");
static_assert(EveryBitHasOneClass({kSample, 4, 0, ""}, {.silent = 0xFFFFFFF4}));
static_assert(!EveryBitHasOneClass(kSampleWord, {.silent = 0x10}), "a bit is silent and reported");
static_assert(!EveryBitHasOneClass(kSampleWord, {.silent = 0x8}), "a bit is silent and named");

constexpr FlagRow kTornGroup[] = {{0x3, "WIDE", 1}, {0x4, "BETWEEN", 2}, {0x1, "LOW", 1}};
static_assert(!GroupsStandTogether({kTornGroup, 3, 0xFFFFFFF8, ""}), "two names of a group would be shown");
static_assert(GroupsStandTogether(kSampleWord));

TEST(FlagTests, RowsMayTestForAllForAnyAndForNoBit) {
  static constexpr FlagRow rows[] = {
      {0x3, "ALL"}, {0x3, "ANY", 0, FlagTest::Any}, {0x3, "NONE", 0, FlagTest::None}};
  static constexpr FlagWord word = {rows, 3, 0, "", "(empty)"};
  const auto names = [](std::uint32_t value) {
    return Shown([&](RunContext& c) { ShowFlagNames(c, word, value); });
  };
  EXPECT_EQ(names(0), "NONE\n");
  EXPECT_EQ(names(1), "ANY\n");
  EXPECT_EQ(names(3), "ALL / ANY\n");
  EXPECT_EQ(names(4), "NONE\n");
}

}  // namespace
}  // namespace quillon
