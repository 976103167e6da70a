#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "field_table.h"
#include "report_capture.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

// clang-format off
const StructureTable kCno = {ShowParsedZkcno, 4, {12, 20, 148, 156, 188}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    // 08090A0B
    {1, 8, 4, Shown::Literal, "Options", "ZKCNO - Options",
     "FASTPATH_BINDING / ISOLATED_BINDING / CLIENT_BINDING / SERIALIZE_CONN_TAG_Q_MGR / "
     "RESTRICT_CONN_TAG_Q_MGR / NO_CONV_SHARING / CD_FOR_OUTPUT_ONLY / ACTIVITY_TRACE_ENABLED"},
    {2, 12, 4, Shown::Hidden, "offset of the channel definition"},
    {2, 16, 4, Shown::Hidden, "address of the channel definition"},
    {3, 20, 0, Shown::Marker, "|> --- CNO version 3---------"},
    {3, 20, 128, Shown::HexDump, "ConnTag"},
    {4, 148, 4, Shown::Hidden, "offset of the TLS configuration options"},
    {4, 152, 4, Shown::Hidden, "address of the TLS configuration options"},
    {5, 156, 0, Shown::Marker, "|> --- CNO version 5---------"},
    {5, 156, 24, Shown::HexLine, "ConnectionId"},
    {5, 180, 4, Shown::Hidden, "offset of the security parameters"},
    {5, 184, 4, Shown::Hidden, "address of the security parameters"},
}};

const StructureTable kSco = {ShowParsedZksco, 4, {532, 540, 556, 560}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    {1, 8, 256, Shown::Text, "KeyRepository"},
    {1, 264, 256, Shown::Text, "CryptoHardware"},
    {1, 520, 4, Shown::Decimal, "AuthInfoRecCount"},
    {1, 524, 4, Shown::Hidden, "offset of the authentication-information records"},
    {1, 528, 4, Shown::Hidden, "address of the authentication-information records"},
    {2, 532, 4, Shown::Decimal, "KeyResetCount"},
    {2, 536, 4, Shown::Unlisted, "FipsRequired", "ZKSCO - ZKSSL_FIPS_.."},
    {3, 540, 4, Shown::Decimal, "EncryptionPolicySuiteB[0]"},
    {3, 544, 4, Shown::Decimal, "EncryptionPolicySuiteB[1]"},
    {3, 548, 4, Shown::Decimal, "EncryptionPolicySuiteB[2]"},
    {3, 552, 4, Shown::Decimal, "EncryptionPolicySuiteB[3]"},
    {4, 556, 4, Shown::Literal, "CertificateValPolicy", "", "(Unknown value)"},
}};

const StructureTable kAir = {ShowParsedZkair, 4, {320, 576}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Decimal, "Version"},
    {1, 8, 4, Shown::Unlisted, "AuthInfoType", "ZKAIR - ZKAIT_..."},
    {1, 12, 264, Shown::Text, "AuthInfoConnName"},
    {1, 276, 4, Shown::Hidden, "address of the LDAP user name"},
    {1, 280, 4, Shown::Hidden, "offset of the LDAP user name"},
    {1, 284, 4, Shown::Hidden, "length of the LDAP user name"},
    {1, 288, 32, Shown::Text, "LDAPPassword"},
    {2, 320, 256, Shown::Text, "OCSPResponderURL"},
}};

// The offsets and lengths of both texts lie far beyond the dump: the addresses show.
const StructureTable kCsp = {ShowParsedZkcsp, 4, {48}, {
    {1, 0, 4, Shown::Hidden, "structure id"},
    {1, 4, 4, Shown::Hidden, "Version"},
    {1, 8, 4, Shown::Unlisted, "AuthenticationType", "ZKCSP - ZKCSP_AUTH_..."},
    {1, 12, 4, Shown::Hidden, "reserved"},
    {1, 16, 4, Shown::Address, "CSPUserId"},
    {1, 20, 4, Shown::Hidden, "offset of the user id"},
    {1, 24, 4, Shown::Hidden, "length of the user id"},
    {1, 28, 8, Shown::Hidden, "reserved"},
    {1, 36, 4, Shown::Address, "CSPPassword"},
    {1, 40, 4, Shown::Hidden, "offset of the password"},
    {1, 44, 4, Shown::Hidden, "length of the password"},
}};
// clang-format on

TEST(ConnectionOptions, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kCno);
}
TEST(TlsConfigurationOptions, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kSco);
}
TEST(AuthenticationInformationRecord, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kAir);
}
TEST(SecurityParameters, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kCsp);
}

std::string CnoReport(std::uint32_t version, std::uint32_t options) {
  Bytes cno(12);
  SetText(cno, 0, "CNO ");
  SetWord(cno, 4, version);
  SetWord(cno, 8, options);
  return ReportOf(ShowParsedZkcno, cno);
}

std::string CnoOptions(std::uint32_t options) {
  const std::string versionLine = "|> Version                  : 1\n";
  const std::string report = CnoReport(1, options);
  EXPECT_EQ(report.substr(0, versionLine.size()), versionLine);
  return report.substr(versionLine.size());
}

TEST(ConnectionOptions, NoOptionIsTheStandardBinding) {
  EXPECT_EQ(CnoOptions(0), "|> Options                  : STANDARD_BINDING\n");
}

TEST(ConnectionOptions, StandardBindingStandsBeforeOtherOptions) {
  EXPECT_EQ(CnoOptions(0x40), "|> Options                  : STANDARD_BINDING / HANDLE_SHARE_BLOCK\n");
}

TEST(ConnectionOptions, EveryBindingBitReplacesTheStandardBinding) {
  EXPECT_EQ(CnoOptions(0x1), "|> Options                  : FASTPATH_BINDING\n");
  EXPECT_EQ(CnoOptions(0x100), "|> Options                  : SHARED_BINDING\n");
  EXPECT_EQ(CnoOptions(0x200), "|> Options                  : ISOLATED_BINDING\n");
  EXPECT_EQ(CnoOptions(0x400), "|> Options                  : LOCAL_BINDING\n");
  EXPECT_EQ(CnoOptions(0x800), "|> Options                  : CLIENT_BINDING\n");
}

TEST(ConnectionOptions, SharingBitIsNamedAndReported) {
  EXPECT_EQ(CnoOptions(0x10000),
            "|> Options                  : STANDARD_BINDING / NO_CONV_SHARING\n"
            "|**********************************\n"
            "|* Unknown : ZKCNO - Options 0x00010000\n"
            "|**********************************\n");
}

TEST(ConnectionOptions, AllOptionsAreNamedInOrder) {
  EXPECT_EQ(CnoOptions(0xFFFFFFFF),
            "|> Options                  : FASTPATH_BINDING / SHARED_BINDING / ISOLATED_BINDING / "
            "LOCAL_BINDING / CLIENT_BINDING / SERIALIZE_CONN_TAG_Q_MGR / SERIALIZE_CONN_TAG_QSG / "
            "RESTRICT_CONN_TAG_Q_MGR / RESTRICT_CONN_TAG_QSG / HANDLE_SHARE_NONE / HANDLE_SHARE_BLOCK / "
            "HANDLE_SHARE_NO_BLOCK / ACCOUNTING_ZKI_ENABLED / ACCOUNTING_ZKI_DISABLED / "
            "ACCOUNTING_Q_ENABLED / ACCOUNTING_Q_DISABLED / NO_CONV_SHARING / ALL_CONVS_SHARE / "
            "CD_FOR_OUTPUT_ONLY / USE_CD_SELECTION / RECONNECT / RECONNECT_DISABLED / RECONNECT_Q_MGR / "
            "ACTIVITY_TRACE_ENABLED / ACTIVITY_TRACE_DISABLED\n" +
                Notice("ZKCNO - Options", 0xFFFFFFFF));
}

// One row for each bit: its name (empty when it has none) and whether it is reported.
TEST(ConnectionOptions, EachBitAlone) {
  struct Bit {
    const char* name;
    bool reported;
  };
  const Bit bits[32] = {
      {"FASTPATH_BINDING", false},
      {"SERIALIZE_CONN_TAG_Q_MGR", false},
      {"SERIALIZE_CONN_TAG_QSG", false},
      {"RESTRICT_CONN_TAG_Q_MGR", false},
      {"RESTRICT_CONN_TAG_QSG", false},
      {"HANDLE_SHARE_NONE", false},
      {"HANDLE_SHARE_BLOCK", false},
      {"HANDLE_SHARE_NO_BLOCK", false},
      {"SHARED_BINDING", false},
      {"ISOLATED_BINDING", false},
      {"LOCAL_BINDING", false},
      {"CLIENT_BINDING", false},
      {"ACCOUNTING_ZKI_ENABLED", false},
      {"ACCOUNTING_ZKI_DISABLED", false},
      {"ACCOUNTING_Q_ENABLED", false},
      {"ACCOUNTING_Q_DISABLED", false},
      {"NO_CONV_SHARING", true},
      {"", true},
      {"ALL_CONVS_SHARE", true},
      {"CD_FOR_OUTPUT_ONLY", true},
      {"USE_CD_SELECTION", true},
      {"", true},
      {"", true},
      {"", true},
      {"RECONNECT", false},
      {"RECONNECT_DISABLED", false},
      {"RECONNECT_Q_MGR", false},
      {"ACTIVITY_TRACE_ENABLED", false},
      {"ACTIVITY_TRACE_DISABLED", false},
      {"", true},
      {"", true},
      {"", true},
  };
  for (unsigned bit = 0; bit < 32; ++bit) {
    const std::uint32_t options = 1U << bit;
    const bool isBinding = (options & 0xF01) != 0;
    std::string names = isBinding ? "" : "STANDARD_BINDING";
    if (*bits[bit].name != '\0') names += (isBinding ? "" : " / ") + std::string(bits[bit].name);
    const std::string notice = bits[bit].reported ? Notice("ZKCNO - Options", options) : "";
    EXPECT_EQ(CnoOptions(options), Line("Options", names) + notice) << "bit " << bit;
  }
}

TEST(ConnectionOptions, NoticeMarksTheRunAndGoesToTheTerminal) {
  ReportCapture capture;
  const Bytes cno = BytesOfHex("434E4F20 00000001 80000000");
  ShowParsedZkcno(capture.Context(), ViewOf(cno));
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
  EXPECT_EQ(capture.Terminal(), "Unknown API attribute : ZKCNO - Options value 0x80000000\n");
}

TEST(ConnectionOptions, KnownOptionsGiveNoNotice) {
  ReportCapture capture;
  const Bytes cno = BytesOfHex("434E4F20 00000001 1F00FFFF");
  ShowParsedZkcno(capture.Context(), ViewOf(cno));
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
  EXPECT_EQ(capture.Terminal(), "");
}

TEST(ConnectionOptions, Version4EndsAfterConnTag) {
  Bytes cno(156);
  SetWord(cno, 4, 4);
  SetText(cno, 20, "tag of the first");
  EXPECT_EQ(ReportOf(ShowParsedZkcno, cno),
            "|> Version                  : 4\n"
            "|> Options                  : STANDARD_BINDING\n"
            "|> --- CNO version 3---------\n"
            "|> ConnTag                  : \n"
            "|>     00000000:74616720 6F662074 68652066 69727374  [tag of the first]\n"
            "|>     00000010:00000000 00000000 00000000 00000000  [................]\n"
            "|>     00000020-0000006F same as above\n"
            "|>     00000070:00000000 00000000 00000000 00000000  [................]\n");
}

TEST(ConnectionOptions, ConnTagAndConnectionIdOfZerosAreNull) {
  Bytes cno(188);
  SetWord(cno, 4, 5);
  EXPECT_EQ(ReportOf(ShowParsedZkcno, cno),
            "|> Version                  : 5\n"
            "|> Options                  : STANDARD_BINDING\n"
            "|> --- CNO version 3---------\n"
            "|> ConnTag                  : (null)\n"
            "|> --- CNO version 5---------\n"
            "|> ConnectionId             : (null)\n");
}

TEST(ConnectionOptions, DumpCutInsideConnectionIdShowsZeros) {
  Bytes cno(160);
  SetWord(cno, 4, 5);
  SetText(cno, 156, "CONN");
  EXPECT_EQ(LinesFrom(ReportOf(ShowParsedZkcno, cno), "ConnectionId", 9),
            "|> ConnectionId             : 434F4E4E 00000000 00000000 00000000 00000000 00000000  "
            "[CONN....................]\n");
}

TEST(ConnectionOptions, IntegersAreReadAsStored) {
  // Version 3 with its bytes reversed: 03000000 is above every known version.
  Bytes cno(188);
  SetWord(cno, 4, 0x03000000);
  SetWord(cno, 8, 0x00010000);
  EXPECT_EQ(ReportOf(ShowParsedZkcno, cno),
            "|> Version                  : 50331648\n"
            "|> Options                  : STANDARD_BINDING / NO_CONV_SHARING\n" +
                Notice("ZKCNO - Options", 0x00010000) +
                "|> --- CNO version 3---------\n"
                "|> ConnTag                  : (null)\n"
                "|> --- CNO version 5---------\n"
                "|> ConnectionId             : (null)\n");
}

TEST(ConnectionOptions, EmptyDump) {
  EXPECT_EQ(ReportOf(ShowParsedZkcno, {}),
            "|> Version                  : 0\n"
            "|> Options                  : STANDARD_BINDING\n");
}

std::string ScoLine(const std::string& label, int offset, std::uint32_t value, int lines) {
  Bytes sco(560);
  SetWord(sco, 4, 4);
  SetWord(sco, offset, value);
  return LinesFrom(ReportOf(ShowParsedZksco, sco), label, lines);
}

TEST(TlsConfigurationOptions, FipsRequired) {
  EXPECT_EQ(ScoLine("FipsRequired", 536, 0, 1), "|> FipsRequired             : NO\n");
  EXPECT_EQ(ScoLine("FipsRequired", 536, 1, 1), "|> FipsRequired             : YES\n");
  EXPECT_EQ(ScoLine("FipsRequired", 536, 2, 4),
            "|> FipsRequired             : 2\n"
            "|**********************************\n"
            "|* Unknown : ZKSCO - ZKSSL_FIPS_.. 0x00000002\n"
            "|**********************************\n");
  EXPECT_EQ(ScoLine("FipsRequired", 536, 0xFFFFFFFF, 1), "|> FipsRequired             : -1\n");
}

TEST(TlsConfigurationOptions, CertificateValPolicyIsNamedAndNeverReported) {
  EXPECT_EQ(ScoLine("CertificateValPolicy", 556, 0, 9), "|> CertificateValPolicy     : any\n");
  EXPECT_EQ(ScoLine("CertificateValPolicy", 556, 1, 9), "|> CertificateValPolicy     : RFC 5280\n");
  EXPECT_EQ(ScoLine("CertificateValPolicy", 556, 2, 9), "|> CertificateValPolicy     : (Unknown value)\n");
}

TEST(TlsConfigurationOptions, Version3HasFourSuiteBLinesAndNoMarker) {
  Bytes sco(556);
  SetWord(sco, 4, 3);
  SetText(sco, 8, "/keys/client   ");
  SetWord(sco, 520, 2);
  SetWord(sco, 532, 40000);
  SetWord(sco, 536, 1);
  for (int i = 0; i < 4; ++i) SetWord(sco, 540 + 4 * i, static_cast<std::uint32_t>(i + 1));
  EXPECT_EQ(ReportOf(ShowParsedZksco, sco),
            "|> Version                  : 3\n"
            "|> KeyRepository            : /keys/client   \n"
            "|> CryptoHardware           : \n"
            "|> AuthInfoRecCount         : 2\n"
            "|> KeyResetCount            : 40000\n"
            "|> FipsRequired             : YES\n"
            "|> EncryptionPolicySuiteB[0]: 1\n"
            "|> EncryptionPolicySuiteB[1]: 2\n"
            "|> EncryptionPolicySuiteB[2]: 3\n"
            "|> EncryptionPolicySuiteB[3]: 4\n");
}

TEST(AuthenticationInformationRecord, AuthInfoType) {
  Bytes air(320);
  SetWord(air, 4, 1);
  SetWord(air, 8, 1);
  EXPECT_EQ(LinesFrom(ReportOf(ShowParsedZkair, air), "AuthInfoType", 1),
            "|> AuthInfoType             : CRL_LDAP\n");
  SetWord(air, 8, 2);
  EXPECT_EQ(ReportOf(ShowParsedZkair, air),
            "|> Version                  : 1\n"
            "|> AuthInfoType             : 2\n"
            "|**********************************\n"
            "|* Unknown : ZKAIR - ZKAIT_... 0x00000002\n"
            "|**********************************\n"
            "|> AuthInfoConnName         : \n"
            "|> LDAPPassword             : \n");
}

TEST(LdapUserName, IsTheWholeDump) {
  Bytes name(34);
  SetText(name, 0, "cn=appreader,ou=services,o=example");
  EXPECT_EQ(ReportOf(ShowParsedLDAPUserName, name),
            "|> LDAPUserName             : cn=appreader,ou=services,o=example\n");
  EXPECT_EQ(ReportOf(ShowParsedLDAPUserName, {}), "|> LDAPUserName             : \n");
}

/// Where a text of the security parameters is said to be.
struct TextPlace {
  std::uint32_t address;
  std::uint32_t offset;
  std::uint32_t length;
};

/// 48 bytes of structure and 24 behind them: "appuser" at 48, "pass-word" at 55, then blanks.
Bytes CspDump(const TextPlace& userId, const TextPlace& password) {
  Bytes csp(72, 0x20);
  for (std::size_t i = 0; i < 48; ++i) csp[i] = 0;
  SetWord(csp, 4, 1);
  SetWord(csp, 8, 1);
  SetWord(csp, 16, userId.address);
  SetWord(csp, 20, userId.offset);
  SetWord(csp, 24, userId.length);
  SetWord(csp, 36, password.address);
  SetWord(csp, 40, password.offset);
  SetWord(csp, 44, password.length);
  SetText(csp, 48, "appuserpass-word");
  return csp;
}

const std::string kCspStart = "|> AuthenticationType       : USER_ID_AND_PWD\n";
const TextPlace kNowhere = {0, 0, 0};

std::string CspUserId(const TextPlace& userId) {
  const std::string report = ReportOf(ShowParsedZkcsp, CspDump(userId, kNowhere));
  EXPECT_EQ(report.substr(0, kCspStart.size()), kCspStart);
  return report.substr(kCspStart.size());
}

TEST(SecurityParameters, AuthenticationType) {
  Bytes csp(48);
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, csp), "|> AuthenticationType       : NONE\n");
  SetWord(csp, 8, 1);
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, csp), "|> AuthenticationType       : USER_ID_AND_PWD\n");
  SetWord(csp, 8, 2);
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, csp),
            "|> AuthenticationType       : 2\n"
            "|**********************************\n"
            "|* Unknown : ZKCSP - ZKCSP_AUTH_... 0x00000002\n"
            "|**********************************\n");
}

TEST(SecurityParameters, TextsAtTheirOffsets) {
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, CspDump({0, 48, 7}, {0, 55, 9})),
            "|> AuthenticationType       : USER_ID_AND_PWD\n"
            "|> CSPUserId                : 61707075 736572  [appuser]\n"
            "|> CSPPassword              : 70617373 2D776F72 64  [pass-word]\n");
}

TEST(SecurityParameters, NoLengthShowsNoText) {
  EXPECT_EQ(CspUserId({0, 48, 0}), "");
  EXPECT_EQ(CspUserId({0x20001000, 48, 0}), "");
  EXPECT_EQ(CspUserId({0x20001000, 0, 0}), "");
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, CspDump(kNowhere, {0x20001000, 48, 0})), kCspStart);
}

TEST(SecurityParameters, NegativeLengthShowsNoText) {
  EXPECT_EQ(CspUserId({0, 48, 0xFFFFFFFF}), "");
  EXPECT_EQ(CspUserId({0x20001000, 48, 0x80000000}), "");
}

TEST(SecurityParameters, NeitherAddressNorOffsetShowsNoText) {
  EXPECT_EQ(CspUserId({0, 0, 7}), "");
}

TEST(SecurityParameters, AddressIsShownUnlessTheDumpHoldsTheText) {
  EXPECT_EQ(CspUserId({0x20001ABC, 0, 7}), "|> CSPUserId                : 0x20001ABC\n");
  EXPECT_EQ(CspUserId({0x20001ABC, 48, 7}), "|> CSPUserId                : 61707075 736572  [appuser]\n");
  // "pass-word" and blanks: the last byte of the dump still belongs to the text; one more does not.
  EXPECT_EQ(CspUserId({0x20001ABC, 55, 17}),
            "|> CSPUserId                : 70617373 2D776F72 64202020 20202020 20  [pass-word        ]\n");
  EXPECT_EQ(CspUserId({0x20001ABC, 55, 18}), "|> CSPUserId                : 0x20001ABC\n");
  // Any offset but zero counts: these are the last bytes of the structure id and the version.
  EXPECT_EQ(CspUserId({0x20001ABC, 1, 7}), "|> CSPUserId                : 00000000 000001  [.......]\n");
  EXPECT_EQ(CspUserId({0x20001ABC, 72, 1}), "|> CSPUserId                : 0x20001ABC\n");
  EXPECT_EQ(CspUserId({0x20001ABC, 0xFFFFFFF0, 20}), "|> CSPUserId                : 0x20001ABC\n");
  EXPECT_EQ(CspUserId({0x20001ABC, 0x7FFFFFFF, 0x7FFFFFFF}), "|> CSPUserId                : 0x20001ABC\n");
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, CspDump(kNowhere, {0x20001ABC, 0, 9})),
            kCspStart + "|> CSPPassword              : 0x20001ABC\n");
}

TEST(SecurityParameters, TextThatReachesBeyondTheDumpEndsInZeros) {
  EXPECT_EQ(CspUserId({0, 70, 5}), "|> CSPUserId                : 20200000 00  [  ...]\n");
  EXPECT_EQ(CspUserId({0, 48, 1000}),
            "|> CSPUserId                : \n"
            "|>     00000000:61707075 73657270 6173732D 776F7264  [appuserpass-word]\n"
            "|>     00000010:20202020 20202020 00000000 00000000  [        ........]\n"
            "|>     00000020:00000000 00000000 00000000 00000000  [................]\n"
            "|>     00000030-000003DF same as above\n"
            "|>     000003E0:00000000 00000000                    [........]\n");
}

TEST(SecurityParameters, TextOfAnyClaimedLengthIsAShortDump) {
  EXPECT_EQ(CspUserId({0, 71, 0x7FFFFFFF}),
            "|> CSPUserId                : \n"
            "|>     00000000:20000000 00000000 00000000 00000000  [ ...............]\n"
            "|>     00000010:00000000 00000000 00000000 00000000  [................]\n"
            "|>     00000020-7FFFFFEF same as above\n"
            "|>     7FFFFFF0:00000000 00000000 00000000 000000    [...............]\n");
}

TEST(SecurityParameters, TextOutsideTheDumpIsNull) {
  EXPECT_EQ(CspUserId({0, 72, 7}), "|> CSPUserId                : (null)\n");
  EXPECT_EQ(CspUserId({0, 0x7FFFFFFF, 0x7FFFFFFF}), "|> CSPUserId                : (null)\n");
  EXPECT_EQ(CspUserId({0, 0xFFFFFFFF, 7}), "|> CSPUserId                : (null)\n");
  EXPECT_EQ(CspUserId({0, 0x80000000, 0x7FFFFFFF}), "|> CSPUserId                : (null)\n");
}

TEST(SecurityParameters, TextOfMoreThan32BytesStandsOnSeveralLines) {
  Bytes csp = CspDump({0, 48, 33}, kNowhere);
  csp.resize(81);
  SetText(csp, 48, "abcdefghijklmnopqrstuvwxyz0123456");
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, csp),
            kCspStart +
                "|> CSPUserId                : \n"
                "|>     00000000:61626364 65666768 696A6B6C 6D6E6F70  [abcdefghijklmnop]\n"
                "|>     00000010:71727374 75767778 797A3031 32333435  [qrstuvwxyz012345]\n"
                "|>     00000020:36                                   [6]\n");
  SetWord(csp, 24, 32);
  EXPECT_EQ(ReportOf(ShowParsedZkcsp, csp),
            kCspStart +
                "|> CSPUserId                : 61626364 65666768 696A6B6C 6D6E6F70 71727374 75767778 "
                "797A3031 32333435  [abcdefghijklmnopqrstuvwxyz012345]\n");
}

}  // namespace
}  // namespace quillon
