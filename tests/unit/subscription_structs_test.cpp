#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "field_table.h"
#include "report_capture.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

int ShowSdWithoutTexts(RunContext& runContext, ByteView structure) {
  return ShowParsedZksd(runContext, structure, SubscriptionTexts{});
}

// clang-format off
const StructureTable kSd = {ShowSdWithoutTexts, 4, {312}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    // 08090A0B
    {1, 8, 4, Shown::Literal, "Options", "ZKSD - Options",
     "ALTER / CREATE / DURABLE / ANY_USERID / PUBLICATIONS_ON_REQUEST / NO_READ_AHEAD"},
    {1, 12, 48, Shown::Text, "ObjectName"},
    {1, 60, 12, Shown::Text, "AlternateUserId"},
    {1, 72, 40, Shown::HexLine, "AlternateSecurityId"},
    {1, 112, 4, Shown::Decimal, "SubExpiry"},
    {1, 116, 20, Shown::Charv, "ObjectString"},
    {1, 136, 20, Shown::Charv, "SubName"},
    {1, 156, 20, Shown::Charv, "SubUserData"},
    {1, 176, 24, Shown::HexLine, "SubCorrelId"},
    {1, 200, 4, Shown::Decimal, "PubPriority"},
    {1, 204, 32, Shown::HexLine, "PubAccountingToken"},
    {1, 236, 32, Shown::Text, "PubApplIdentityData"},
    {1, 268, 20, Shown::Charv, "SelectionString"},
    {1, 288, 4, Shown::Decimal, "SubLevel"},
    {1, 292, 20, Shown::Charv, "ResObjectString"},
}};

const StructureTable kSro = {ShowParsedZksro, 4, {16}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    {1, 8, 4, Shown::Literal, "Options", "ZKSRO - Options", "(none)"},  // 08090A0B
    {1, 12, 4, Shown::Decimal, "NumPubs"},
}};

const StructureTable kSts = {ShowParsedZksts, 4, {224, 272}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    {1, 8, 4, Shown::Decimal, "CompCode"},
    {1, 12, 4, Shown::Literal, "Reason", "", "202182159 ((Unknown VZK Reason code))"},  // 0C0D0E0F
    {1, 16, 4, Shown::Decimal, "PutSuccessCount"},
    {1, 20, 4, Shown::Decimal, "PutWarningCount"},
    {1, 24, 4, Shown::Decimal, "PutFailureCount"},
    {1, 28, 4, Shown::Literal, "ObjectType", "", "(Unknown value)"},
    {1, 32, 48, Shown::Text, "ObjectName"},
    {1, 80, 48, Shown::Text, "ObjectQMgrName"},
    {1, 128, 48, Shown::Text, "ResolvedObjectName"},
    {1, 176, 48, Shown::Text, "ResolvedQMgrName"},
    {2, 224, 0, Shown::Marker, "|> --- STS version 2---------"},
    {2, 224, 20, Shown::Charv, "ObjectString"},
    {2, 244, 20, Shown::Charv, "SubName"},
    {2, 264, 4, Shown::NoticeOnly, "OpenOptions", "ZKSTAT_TYPE_..."},
    {2, 268, 4, Shown::NoticeOnly, "SubOptions", "ZKSTAT_TYPE_..."},
}};

const StructureTable kCbd = {ShowParsedZkcbd, 4, {156}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    // 08090A0B
    {1, 8, 4, Shown::Literal, "CallbackType", "ZKCBD - CallbackType", "MESSAGE_CONSUMER / EVENT_HANDLER"},
    // 0C0D0E0F
    {1, 12, 4, Shown::Literal, "Options", "ZKCBD - Options", "START_CALL / STOP_CALL / DEREGISTER_CALL"},
    {1, 16, 4, Shown::Address, "CallbackArea"},
    {1, 20, 4, Shown::Address, "CallbackFunction"},
    {1, 24, 128, Shown::Text, "CallbackName"},
    {1, 152, 4, Shown::Decimal, "MaxMsgLength"},
}};

const StructureTable kCbc = {ShowParsedZkcbc, 4, {48, 52}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    {1, 8, 4, Shown::UnlistedTwice, "CallType", "ZKCBC - ZKCBCT_..."},
    {1, 12, 4, Shown::Handle, "Hobj"},
    {1, 16, 4, Shown::Hidden, "callback area"},
    {1, 20, 4, Shown::Hidden, "connection area"},
    {1, 24, 4, Shown::Decimal, "CompCode"},
    {1, 28, 4, Shown::Decimal, "Reason"},
    {1, 32, 4, Shown::UnlistedTwice, "State", "ZKCBC - ZKCS_..."},
    {1, 36, 4, Shown::Decimal, "DataLength"},
    {1, 40, 4, Shown::Decimal, "BufferLength"},
    {1, 44, 4, Shown::Literal, "Flags", "ZKCBC - ZKCBCF_...", "READA_BUFFER_EMPTY"},  // 2C2D2E2F
    {2, 48, 4, Shown::Decimal, "ReconnectDelay"},
}};

const StructureTable kCtlo = {ShowParsedZkctlo, 4, {20}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    {1, 8, 4, Shown::Literal, "Options", "ZKCB/ZKCTL - ZKOP_...", "THREAD_AFFINITY"},  // 08090A0B
    {1, 12, 4, Shown::Hidden, "reserved"},
    {1, 16, 4, Shown::Address, "ConnectionArea"},
}};
// clang-format on

TEST(SubscriptionDescriptor, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kSd);
}
TEST(SubscriptionRequestOptions, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kSro);
}
TEST(StatusStructure, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kSts);
}
TEST(CallbackDescriptor, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kCbd);
}
TEST(CallbackContext, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kCbc);
}
TEST(ControlOptions, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kCtlo);
}

/// The line of the word at `offset`, and the lines of its notice if it has one.
std::string WordLines(const StructureTable& table, const std::string& label, int offset,
                      std::uint32_t value) {
  Bytes bytes(static_cast<std::size_t>(table.Length()));
  SetWord(bytes, 4, static_cast<std::uint32_t>(table.LastVersion()));
  SetWord(bytes, offset, value);
  const std::string lines = LinesFrom(ReportOf(table.show, bytes), label, 4);
  const bool reported = lines.find("|* Unknown") != std::string::npos;
  return reported ? lines : lines.substr(0, lines.find('\n') + 1);
}

std::string SdOptions(std::uint32_t options) {
  return WordLines(kSd, "Options", 8, options);
}

TEST(SubscriptionDescriptor, UnnamedOptionIsReported) {
  EXPECT_EQ(SdOptions(0x400),
            "|> Options                  : (none)\n"
            "|**********************************\n"
            "|* Unknown : ZKSD - Options 0x00000400\n"
            "|**********************************\n");
}

TEST(SubscriptionDescriptor, NoOption) {
  EXPECT_EQ(SdOptions(0), "|> Options                  : (none)\n");
}

const std::string kAllSdOptions =
    "|> Options                  : ALTER / CREATE / RESUME / DURABLE / GROUP_SUB / MANAGED / "
    "SET_IDENTITY_CONTEXT / NO_MULTICAST / FIXED_USERID / ANY_USERID / PUBLICATIONS_ON_REQUEST / "
    "NEW_PUBLICATIONS_ONLY / FAIL_IF_QUIESCING / ALTERNATE_USER_AUTHORITY / WILDCARD_CHAR / "
    "WILDCARD_TOPIC / SET_CORREL_ID / SCOPE_QMGR / NO_READ_AHEAD / READ_AHEAD\n";

TEST(SubscriptionDescriptor, AllOptions) {
  EXPECT_EQ(SdOptions(0x1C743BFF), kAllSdOptions);
  EXPECT_EQ(SdOptions(0xFFFFFFFF), kAllSdOptions + Notice("ZKSD - Options", 0xFFFFFFFF));
}

TEST(SubscriptionDescriptor, EachOptionAlone) {
  const char* const names[32] = {
      "ALTER",
      "CREATE",
      "RESUME",
      "DURABLE",
      "GROUP_SUB",
      "MANAGED",
      "SET_IDENTITY_CONTEXT",
      "NO_MULTICAST",
      "FIXED_USERID",
      "ANY_USERID",
      nullptr,
      "PUBLICATIONS_ON_REQUEST",
      "NEW_PUBLICATIONS_ONLY",
      "FAIL_IF_QUIESCING",
      nullptr,
      nullptr,
      nullptr,
      nullptr,
      "ALTERNATE_USER_AUTHORITY",
      nullptr,
      "WILDCARD_CHAR",
      "WILDCARD_TOPIC",
      "SET_CORREL_ID",
      nullptr,
      nullptr,
      nullptr,
      "SCOPE_QMGR",
      "NO_READ_AHEAD",
      "READ_AHEAD",
      nullptr,
      nullptr,
      nullptr,
  };
  for (unsigned bit = 0; bit < 32; ++bit) {
    const std::uint32_t options = 1U << bit;
    const std::string expected = names[bit] != nullptr
                                     ? Line("Options", names[bit])
                                     : Line("Options", "(none)") + Notice("ZKSD - Options", options);
    EXPECT_EQ(SdOptions(options), expected) << "bit " << bit;
  }
}

TEST(SubscriptionDescriptor, PubPriority) {
  const auto line = [](std::uint32_t value) { return WordLines(kSd, "PubPriority", 200, value); };
  EXPECT_EQ(line(0xFFFFFFFF), "|> PubPriority              : as queue definition\n");
  EXPECT_EQ(line(0xFFFFFFFE), "|> PubPriority              : as parent\n");
  EXPECT_EQ(line(0xFFFFFFFD), "|> PubPriority              : as published\n");
  EXPECT_EQ(line(0xFFFFFFFC), "|> PubPriority              : -4\n");
  EXPECT_EQ(line(0), "|> PubPriority              : 0\n");
  EXPECT_EQ(line(9), "|> PubPriority              : 9\n");
  // -987, the key that ends a table.
  EXPECT_EQ(line(0xFFFFFC25), "|> PubPriority              : -987\n");
}

CharvText Rebuilt(const std::string& text) {
  return {CharvText::Place::Rebuilt, ByteView(std::string_view(text))};
}

TEST(SubscriptionDescriptor, EachTextStandsBeneathItsOwnDescriptor) {
  Bytes sd(312);
  SetWord(sd, 4, 1);
  for (const int descriptor : {116, 136, 156, 268, 292}) SetWord(sd, descriptor + 12, 5);
  const std::string texts[] = {"text1", "text2", "text3", "text4", "text5"};
  ReportCapture capture;
  ShowParsedZksd(
      capture.Context(), ViewOf(sd),
      {Rebuilt(texts[0]), Rebuilt(texts[1]), Rebuilt(texts[2]), Rebuilt(texts[3]), Rebuilt(texts[4])});
  const std::string descriptor =
      "|>   VSPtr                  : (null)\n"
      "|>   VSOffset               : 0\n"
      "|>   VSBufSize              : (use VSLength)\n"
      "|>   VSLength               : 5\n"
      "|>   VSCCSID                : 0 (default / queue_manager)\n";
  EXPECT_EQ(capture.Report(),
            "|> Version                  : 1\n"
            "|> Options                  : (none)\n"
            "|> ObjectName               : \n"
            "|> AlternateUserId          : \n"
            "|> AlternateSecurityId      : (null)\n"
            "|> SubExpiry                : 0\n"
            "|> ObjectString             : \n" +
                descriptor +
                "|>   Value (in string)      : text1\n"
                "|> SubName                  : \n" +
                descriptor +
                "|>   Value (in string)      : text2\n"
                "|> SubUserData              : \n" +
                descriptor +
                "|>   Value (in string)      : text3\n"
                "|> SubCorrelId              : (null)\n"
                "|> PubPriority              : 0\n"
                "|> PubAccountingToken       : (null)\n"
                "|> PubApplIdentityData      : \n"
                "|> SelectionString          : \n" +
                descriptor +
                "|>   Value (in string)      : text4\n"
                "|> SubLevel                 : 0\n"
                "|> ResObjectString          : \n" +
                descriptor + "|>   Value (in string)      : text5\n");
}

TEST(SubscriptionRequestOptions, Options) {
  const auto lines = [](std::uint32_t options) { return WordLines(kSro, "Options", 8, options); };
  EXPECT_EQ(lines(0), "|> Options                  : (none)\n");
  EXPECT_EQ(lines(0x2000), "|> Options                  : FAIL_IF_QUIESCING\n");
  EXPECT_EQ(lines(0x1),
            "|> Options                  : (none)\n"
            "|**********************************\n"
            "|* Unknown : ZKSRO - Options 0x00000001\n"
            "|**********************************\n");
  EXPECT_EQ(lines(0xFFFFFFFF),
            "|> Options                  : FAIL_IF_QUIESCING\n" + Notice("ZKSRO - Options", 0xFFFFFFFF));
}

TEST(SubscriptionRequestOptions, WholeStructure) {
  EXPECT_EQ(ReportOf(ShowParsedZksro, BytesOfHex("53524F20 00000001 00002000 00000003")),
            "|> Version                  : 1\n"
            "|> Options                  : FAIL_IF_QUIESCING\n"
            "|> NumPubs                  : 3\n");
}

Bytes StsDump(std::uint32_t version) {
  Bytes sts(300, 0x20);
  for (int offset = 4; offset < 32; offset += 4) SetWord(sts, offset, 0);
  for (int offset = 224; offset < 272; offset += 4) SetWord(sts, offset, 0);
  SetWord(sts, 4, version);
  return sts;
}

const std::string kStsVersion1 =
    "|> CompCode                 : 0\n"
    "|> Reason                   : 0\n"
    "|> PutSuccessCount          : 0\n"
    "|> PutWarningCount          : 0\n"
    "|> PutFailureCount          : 0\n"
    "|> ObjectType               : none\n"
    "|> ObjectName               : \n"
    "|> ObjectQMgrName           : \n"
    "|> ResolvedObjectName       : \n"
    "|> ResolvedQMgrName         : \n";

TEST(StatusStructure, Version1EndsAfterResolvedQMgrName) {
  EXPECT_EQ(ReportOf(ShowParsedZksts, StsDump(1)), "|> Version                  : 1\n" + kStsVersion1);
}

TEST(StatusStructure, Version2AddsTheMarkerAndFourFields) {
  Bytes sts = StsDump(2);
  SetWord(sts, 264, 1);
  SetWord(sts, 268, 2);
  EXPECT_EQ(ReportOf(ShowParsedZksts, sts), "|> Version                  : 2\n" + kStsVersion1 +
                                                "|> --- STS version 2---------\n"
                                                "|> ObjectString             : \n"
                                                "|>   VSPtr                  : (null)\n"
                                                "|>   VSOffset               : 0\n"
                                                "|>   VSBufSize              : (use VSLength)\n"
                                                "|>   VSLength               : 0\n"
                                                "|>   VSCCSID                : 0 (default / queue_manager)\n"
                                                "|> SubName                  : \n"
                                                "|>   VSPtr                  : (null)\n"
                                                "|>   VSOffset               : 0\n"
                                                "|>   VSBufSize              : (use VSLength)\n"
                                                "|>   VSLength               : 0\n"
                                                "|>   VSCCSID                : 0 (default / queue_manager)\n"
                                                "|> OpenOptions              : RECONNECTION\n"
                                                "|> SubOptions               : RECONNECTION_ERROR\n");
}

TEST(StatusStructure, TextsStandInTheStructureItself) {
  Bytes sts = StsDump(2);
  SetText(sts, 272, "/prices/metalsubscription");
  SetWord(sts, 224 + 4, 272);
  SetWord(sts, 224 + 12, 13);
  SetWord(sts, 244 + 4, 285);
  SetWord(sts, 244 + 12, 12);
  const std::string report = ReportOf(ShowParsedZksts, sts);
  EXPECT_EQ(LinesFrom(report, "ObjectString", 7),
            "|> ObjectString             : \n"
            "|>   VSPtr                  : (null)\n"
            "|>   VSOffset               : 272\n"
            "|>   VSBufSize              : (use VSLength)\n"
            "|>   VSLength               : 13\n"
            "|>   VSCCSID                : 0 (default / queue_manager)\n"
            "|>   Value (in string)      : /prices/metal\n");
  EXPECT_EQ(LinesFrom(report, "SubName", 7),
            "|> SubName                  : \n"
            "|>   VSPtr                  : (null)\n"
            "|>   VSOffset               : 285\n"
            "|>   VSBufSize              : (use VSLength)\n"
            "|>   VSLength               : 12\n"
            "|>   VSCCSID                : 0 (default / queue_manager)\n"
            "|>   Value (in string)      : subscription\n");
}

TEST(StatusStructure, AddressOfATextIsNotFollowed) {
  Bytes sts = StsDump(2);
  SetWord(sts, 224, 0x20001000);
  SetWord(sts, 224 + 12, 13);
  EXPECT_EQ(LinesFrom(ReportOf(ShowParsedZksts, sts), "ObjectString", 7),
            "|> ObjectString             : \n"
            "|>   VSPtr                  : 0x20001000\n"
            "|>   VSOffset               : 0\n"
            "|>   VSBufSize              : (use VSLength)\n"
            "|>   VSLength               : 13\n"
            "|>   VSCCSID                : 0 (default / queue_manager)\n"
            "|> SubName                  : \n");
}

TEST(StatusStructure, ReasonIsNamedUnlessZero) {
  EXPECT_EQ(WordLines(kSts, "Reason", 12, 0), "|> Reason                   : 0\n");
  EXPECT_EQ(WordLines(kSts, "Reason", 12, 2035),
            "|> Reason                   : 2035 (ZKRC_NOT_AUTHORIZED)\n");
}

TEST(StatusStructure, ObjectTypeIsNamedAndNeverReported) {
  EXPECT_EQ(WordLines(kSts, "ObjectType", 28, 1), "|> ObjectType               : queue\n");
  EXPECT_EQ(WordLines(kSts, "ObjectType", 28, 8), "|> ObjectType               : topic\n");
  EXPECT_EQ(WordLines(kSts, "ObjectType", 28, 9), "|> ObjectType               : (Unknown value)\n");
}

TEST(StatusStructure, OptionWordsAreStatusTypes) {
  EXPECT_EQ(WordLines(kSts, "OpenOptions", 264, 0), "|> OpenOptions              : ASYNC_ERROR\n");
  EXPECT_EQ(WordLines(kSts, "OpenOptions", 264, 1), "|> OpenOptions              : RECONNECTION\n");
  EXPECT_EQ(WordLines(kSts, "SubOptions", 268, 2), "|> SubOptions               : RECONNECTION_ERROR\n");
  // No line for a value of no name, only the notice, which then follows the line before.
  Bytes sts = StsDump(2);
  SetWord(sts, 268, 3);
  const std::string report = ReportOf(ShowParsedZksts, sts);
  EXPECT_EQ(LinesFrom(report, "SubOptions", 1), "(no line SubOptions)");
  EXPECT_EQ(LinesFrom(report, "OpenOptions", 9),
            "|> OpenOptions              : ASYNC_ERROR\n"
            "|**********************************\n"
            "|* Unknown : ZKSTAT_TYPE_... 0x00000003\n"
            "|**********************************\n");
}

TEST(CallbackDescriptor, CallbackType) {
  const auto lines = [](std::uint32_t value) { return WordLines(kCbd, "CallbackType", 8, value); };
  EXPECT_EQ(lines(0), "|> CallbackType             : (none)\n");
  EXPECT_EQ(lines(1), "|> CallbackType             : MESSAGE_CONSUMER\n");
  EXPECT_EQ(lines(2), "|> CallbackType             : EVENT_HANDLER\n");
  EXPECT_EQ(lines(3), "|> CallbackType             : MESSAGE_CONSUMER / EVENT_HANDLER\n");
  EXPECT_EQ(lines(4),
            "|> CallbackType             : (none)\n"
            "|**********************************\n"
            "|* Unknown : ZKCBD - CallbackType 0x00000004\n"
            "|**********************************\n");
  EXPECT_EQ(lines(0xFFFFFFFF), "|> CallbackType             : MESSAGE_CONSUMER / EVENT_HANDLER\n" +
                                   Notice("ZKCBD - CallbackType", 0xFFFFFFFF));
}

TEST(CallbackDescriptor, Options) {
  const auto lines = [](std::uint32_t value) { return WordLines(kCbd, "Options", 12, value); };
  const std::string all =
      "|> Options                  : START_CALL / STOP_CALL / REGISTER_CALL / DEREGISTER_CALL / "
      "FAIL_IF_QUIESCING\n";
  EXPECT_EQ(lines(0), "|> Options                  : (none)\n");
  EXPECT_EQ(lines(0x1), "|> Options                  : START_CALL\n");
  EXPECT_EQ(lines(0x4), "|> Options                  : STOP_CALL\n");
  EXPECT_EQ(lines(0x100), "|> Options                  : REGISTER_CALL\n");
  EXPECT_EQ(lines(0x200), "|> Options                  : DEREGISTER_CALL\n");
  EXPECT_EQ(lines(0x2000), "|> Options                  : FAIL_IF_QUIESCING\n");
  EXPECT_EQ(lines(0x2305), all);
  EXPECT_EQ(lines(0x2), "|> Options                  : (none)\n" + Notice("ZKCBD - Options", 0x2));
  EXPECT_EQ(lines(0xFFFFFFFF), all + Notice("ZKCBD - Options", 0xFFFFFFFF));
}

TEST(CallbackDescriptor, AddressesOfZeroAreNull) {
  Bytes cbd(156);
  SetText(cbd, 0, "CBD ");
  SetWord(cbd, 4, 1);
  SetWord(cbd, 8, 1);
  SetWord(cbd, 152, 0xFFFFFFFF);
  EXPECT_EQ(ReportOf(ShowParsedZkcbd, cbd),
            "|> Version                  : 1\n"
            "|> CallbackType             : MESSAGE_CONSUMER\n"
            "|> Options                  : (none)\n"
            "|> CallbackArea             : (null)\n"
            "|> CallbackFunction         : (null)\n"
            "|> CallbackName             : \n"
            "|> MaxMsgLength             : -1\n");
}

TEST(CallbackContext, CallTypes) {
  const char* const names[] = {"START_CALL", "STOP_CALL",   "REGISTER_CALL",  "DEREGISTER_CALL",
                               "EVENT_CALL", "MSG_REMOVED", "MSG_NOT_REMOVED"};
  for (std::uint32_t value = 1; value <= 7; ++value)
    EXPECT_EQ(WordLines(kCbc, "CallType", 8, value), Line("CallType", names[value - 1]));
  EXPECT_EQ(WordLines(kCbc, "CallType", 8, 8),
            "|> CallType                 : |> CallType                 : 8\n"
            "|**********************************\n"
            "|* Unknown : ZKCBC - ZKCBCT_... 0x00000008\n"
            "|**********************************\n");
  EXPECT_EQ(
      WordLines(kCbc, "CallType", 8, 0),
      "|> CallType                 : |> CallType                 : 0\n" + Notice("ZKCBC - ZKCBCT_...", 0));
}

TEST(CallbackContext, States) {
  const char* const names[] = {"NONE", "SUSPENDED_TEMPORARY", "SUSPENDED_USER_ACTION", "SUSPENDED",
                               "STOPPED"};
  for (std::uint32_t value = 0; value <= 4; ++value)
    EXPECT_EQ(WordLines(kCbc, "State", 32, value), Line("State", names[value]));
  EXPECT_EQ(WordLines(kCbc, "State", 32, 5),
            "|> State                    : |> State                    : 5\n"
            "|**********************************\n"
            "|* Unknown : ZKCBC - ZKCS_... 0x00000005\n"
            "|**********************************\n");
  EXPECT_EQ(WordLines(kCbc, "State", 32, 0xFFFFFFFF),
            "|> State                    : |> State                    : -1\n" +
                Notice("ZKCBC - ZKCS_...", 0xFFFFFFFF));
}

TEST(CallbackContext, Flags) {
  const auto lines = [](std::uint32_t value) { return WordLines(kCbc, "Flags", 44, value); };
  EXPECT_EQ(lines(0), "|> Flags                    : (none)\n");
  EXPECT_EQ(lines(1), "|> Flags                    : READA_BUFFER_EMPTY\n");
  EXPECT_EQ(lines(2), "|> Flags                    : (none)\n" + Notice("ZKCBC - ZKCBCF_...", 2));
  EXPECT_EQ(lines(3),
            "|> Flags                    : READA_BUFFER_EMPTY\n"
            "|**********************************\n"
            "|* Unknown : ZKCBC - ZKCBCF_... 0x00000003\n"
            "|**********************************\n");
  EXPECT_EQ(lines(0xFFFFFFFF),
            "|> Flags                    : READA_BUFFER_EMPTY\n" + Notice("ZKCBC - ZKCBCF_...", 0xFFFFFFFF));
}

TEST(CallbackContext, WholeStructure) {
  EXPECT_EQ(ReportOf(ShowParsedZkcbc, BytesOfHex("43424320 00000002 00000006 0000ABCD 20001000 20002000"
                                                 "00000002 000007F1 00000001 00000040 00000080 00000001"
                                                 "FFFFFFFF")),
            "|> Version                  : 2\n"
            "|> CallType                 : MSG_REMOVED\n"
            "|> Hobj                     : 0000ABCD\n"
            "|> CompCode                 : 2\n"
            "|> Reason                   : 2033\n"
            "|> State                    : SUSPENDED_TEMPORARY\n"
            "|> DataLength               : 64\n"
            "|> BufferLength             : 128\n"
            "|> Flags                    : READA_BUFFER_EMPTY\n"
            "|> ReconnectDelay           : -1\n");
}

TEST(ControlOptions, Options) {
  const auto lines = [](std::uint32_t value) { return WordLines(kCtlo, "Options", 8, value); };
  EXPECT_EQ(lines(0), "|> Options                  : (none)\n");
  EXPECT_EQ(lines(0x1), "|> Options                  : THREAD_AFFINITY\n");
  EXPECT_EQ(lines(0x2000), "|> Options                  : FAIL_IF_QUIESCING\n");
  EXPECT_EQ(lines(0x2001), "|> Options                  : THREAD_AFFINITY / FAIL_IF_QUIESCING\n");
  EXPECT_EQ(lines(0x2),
            "|> Options                  : (none)\n"
            "|**********************************\n"
            "|* Unknown : ZKCB/ZKCTL - ZKOP_... 0x00000002\n"
            "|**********************************\n");
  EXPECT_EQ(lines(0xFFFFFFFF), "|> Options                  : THREAD_AFFINITY / FAIL_IF_QUIESCING\n" +
                                   Notice("ZKCB/ZKCTL - ZKOP_...", 0xFFFFFFFF));
}

TEST(ControlOptions, AddressOfZeroIsNull) {
  EXPECT_EQ(ReportOf(ShowParsedZkctlo, BytesOfHex("43544C4F 00000001 00000000 00000000 00000000")),
            "|> Version                  : 1\n"
            "|> Options                  : (none)\n"
            "|> ConnectionArea           : (null)\n");
}

TEST(SubscriptionAndCallbackStructures, IntegersAreReadAsStored) {
  // Version 1 with its bytes reversed stays as it stands, and so does every other integer.
  EXPECT_EQ(ReportOf(ShowParsedZksro, BytesOfHex("53524F20 01000000 00002000 03000000")),
            "|> Version                  : 16777216\n"
            "|> Options                  : FAIL_IF_QUIESCING\n"
            "|> NumPubs                  : 50331648\n");
}

TEST(SubscriptionAndCallbackStructures, NoticesAreNeverSuppressed) {
  ReportCapture capture;
  capture.Context().apiKind = kApiKindGet;
  capture.Context().apiPhase = kApiPhaseBefore;
  const Bytes ctlo = BytesOfHex("43544C4F 00000001 00000002 00000000 00000000");
  ShowParsedZkctlo(capture.Context(), ViewOf(ctlo));
  EXPECT_NE(capture.Report().find("|* Unknown : ZKCB/ZKCTL - ZKOP_... 0x00000002\n"), std::string::npos);
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

}  // namespace
}  // namespace quillon
