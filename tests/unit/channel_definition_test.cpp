#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "field_table.h"
#include "report_capture.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

// clang-format off
const StructureTable kCd = {ShowParsedZkcd, 20, {984, 1312, 1480, 1540, 1552, 1648, 1748, 1840, 1864, 1876}, {
    {1, 0, 20, Shown::Text, "ChannelName"},
    {1, 20, 4, Shown::Decimal, "Version"},
    {1, 24, 4, Shown::Unlisted, "ChannelType", "ZKCD - ZKCHT_..."},
    {1, 28, 4, Shown::Unlisted, "TransportType", "ZKCD - ZKXPT_..."},
    {1, 32, 64, Shown::Text, "Channel description"},
    {1, 96, 48, Shown::Text, "QMgrName"},
    {1, 144, 48, Shown::Text, "XmitQName"},
    {1, 192, 20, Shown::Text, "ShortConnectionName"},
    {1, 212, 20, Shown::Text, "MCAName"},
    {1, 232, 8, Shown::Text, "LU 6.2 ModeName"},
    {1, 240, 64, Shown::Text, "LU 6.2 TpName"},
    {1, 304, 4, Shown::Decimal, "BatchSize"},
    {1, 308, 4, Shown::Decimal, "DiscInterval"},
    {1, 312, 4, Shown::Decimal, "ShortRetryCount"},
    {1, 316, 4, Shown::Decimal, "ShortRetryInterval"},
    {1, 320, 4, Shown::Decimal, "LongRetryCount"},
    {1, 324, 4, Shown::Decimal, "LongRetryInterval"},
    {1, 328, 128, Shown::Text, "SecurityExit"},
    {1, 456, 128, Shown::Text, "MsgExit"},
    {1, 584, 128, Shown::Text, "SendExit"},
    {1, 712, 128, Shown::Text, "ReceiveExit"},
    {1, 840, 4, Shown::Decimal, "SeqNumberWrap"},
    {1, 844, 4, Shown::Decimal, "MaxMsgLength"},
    {1, 848, 4, Shown::Unlisted, "PutAuthority", "ZKCD - ZKPA_..."},
    {1, 852, 4, Shown::Unlisted, "DataConversion", "ZKCD - ZKCDC_..."},
    {1, 856, 32, Shown::Text, "SecurityUserData"},
    {1, 888, 32, Shown::Text, "MsgUserData"},
    {1, 920, 32, Shown::Text, "SendUserData"},
    {1, 952, 32, Shown::Text, "ReceiveUserData"},
    {2, 984, 0, Shown::Marker, "|> --- CD version 2----------"},
    {2, 984, 12, Shown::Text, "UserIdentifier"},
    {2, 996, 12, Shown::Text, "Password"},
    {2, 1008, 12, Shown::Text, "MCAUserIdentifier"},
    {2, 1020, 4, Shown::Unlisted, "MCAType", "ZKCD - ZKMCAT_..."},
    {2, 1024, 264, Shown::Text, "ConnectionName"},
    {2, 1288, 12, Shown::Text, "RemoteUserIdentifier"},
    {2, 1300, 12, Shown::Text, "RemotePassword"},
    {3, 1312, 0, Shown::Marker, "|> --- CD version 3----------"},
    {3, 1312, 128, Shown::Text, "MsgRetryExit"},
    {3, 1440, 32, Shown::Text, "MsgRetryUserData"},
    {3, 1472, 4, Shown::Decimal, "MsgRetryCount"},
    {3, 1476, 4, Shown::Decimal, "MsgRetryInterval"},
    {4, 1480, 0, Shown::Marker, "|> --- CD version 4----------"},
    {4, 1480, 4, Shown::Decimal, "HeartbeatInterval"},
    {4, 1484, 4, Shown::Decimal, "BatchInterval"},
    {4, 1488, 4, Shown::Unlisted, "NonPersistentMsgSpeed", "ZKCD - ZKNPMS_..."},
    {4, 1492, 4, Shown::Decimal, "StrucLength"},
    {4, 1496, 4, Shown::Decimal, "ExitNameLength"},
    {4, 1500, 4, Shown::Decimal, "ExitDataLength"},
    {4, 1504, 4, Shown::Decimal, "MsgExitsDefined"},
    {4, 1508, 4, Shown::Decimal, "SendExitsDefined"},
    {4, 1512, 4, Shown::Decimal, "ReceiveExitsDefined"},
    {4, 1516, 24, Shown::Hidden, "six addresses of exit names and exit user data"},
    {5, 1540, 4, Shown::Hidden, "address of the cluster names"},
    {5, 1544, 0, Shown::Marker, "|> --- CD version 5----------"},
    {5, 1544, 4, Shown::Decimal, "ClustersDefined"},
    {5, 1548, 4, Shown::Decimal, "NetworkPriority"},
    {6, 1552, 0, Shown::Marker, "|> --- CD version 6----------"},
    {6, 1552, 4, Shown::Decimal, "LongMCAUserIdLength"},
    {6, 1556, 4, Shown::Decimal, "LongRemoteUserIdLength"},
    {6, 1560, 8, Shown::Hidden, "addresses of the two long user ids"},
    {6, 1568, 40, Shown::HexLine, "MCASecurityId"},
    {6, 1608, 40, Shown::HexLine, "RemoteSecurityId"},
    {7, 1648, 0, Shown::Marker, "|> --- CD version 7----------"},
    {7, 1648, 32, Shown::Text, "SSLCipherSpec"},
    {7, 1680, 4, Shown::Hidden, "address of the TLS peer name"},
    {7, 1684, 4, Shown::Decimal, "SSLPeerNameLength"},
    {7, 1688, 4, Shown::Unlisted, "SSLClientAuth", "ZKCD - ZKSCA_..."},
    {7, 1692, 4, Shown::Decimal, "KeepAliveInterval"},
    {7, 1696, 48, Shown::Text, "LocalAddress"},
    {7, 1744, 4, Shown::Decimal, "BatchHeartbeat"},
    {8, 1748, 0, Shown::Marker, "|> --- CD version 8----------"},
    {8, 1748, 4, Shown::Compression, "HdrCompList[1]"},
    {8, 1752, 4, Shown::Compression, "HdrCompList[2]"},
    {8, 1756, 4, Shown::Compression, "MsgCompList[1]"},
    {8, 1760, 4, Shown::Compression, "MsgCompList[2]"},
    {8, 1764, 4, Shown::Compression, "MsgCompList[3]"},
    {8, 1768, 4, Shown::Compression, "MsgCompList[4]"},
    {8, 1772, 4, Shown::Compression, "MsgCompList[5]"},
    {8, 1776, 4, Shown::Compression, "MsgCompList[6]"},
    {8, 1780, 4, Shown::Compression, "MsgCompList[7]"},
    {8, 1784, 4, Shown::Compression, "MsgCompList[8]"},
    {8, 1788, 4, Shown::Compression, "MsgCompList[9]"},
    {8, 1792, 4, Shown::Compression, "MsgCompList[10]"},
    {8, 1796, 4, Shown::Compression, "MsgCompList[11]"},
    {8, 1800, 4, Shown::Compression, "MsgCompList[12]"},
    {8, 1804, 4, Shown::Compression, "MsgCompList[13]"},
    {8, 1808, 4, Shown::Compression, "MsgCompList[14]"},
    {8, 1812, 4, Shown::Compression, "MsgCompList[15]"},
    {8, 1816, 4, Shown::Compression, "MsgCompList[16]"},
    {8, 1820, 4, Shown::Decimal, "CLWLChannelRank"},
    {8, 1824, 4, Shown::Decimal, "CLWLChannelPriority"},
    {8, 1828, 4, Shown::Decimal, "CLWLChannelWeight"},
    {8, 1832, 4, Shown::Literal, "ChannelMonitoring", "", "(Unknown value)"},
    {8, 1836, 4, Shown::Literal, "ChannelStatistics", "", "(Unknown value)"},
    {9, 1840, 0, Shown::Marker, "|> --- CD version 9----------"},
    {9, 1840, 4, Shown::Decimal, "SharingConversations"},
    {9, 1844, 4, Shown::Literal, "PropertyControl", "", "(Unknown value)"},
    {9, 1848, 4, Shown::Decimal, "MaxInstances"},
    {9, 1852, 4, Shown::Decimal, "MaxInstancesPerClient"},
    {9, 1856, 4, Shown::Decimal, "ClientChannelWeight"},
    {9, 1860, 4, Shown::Decimal, "ConnectionAffinity"},
    {9, 1864, 0, Shown::Literal, "ConnectionAffinity", "", "(Unknown value)"},  // the same word once more
    {10, 1864, 0, Shown::Marker, "|> --- CD version 10---------"},
    {10, 1864, 4, Shown::Decimal, "BatchDataLimit"},
    {10, 1868, 4, Shown::Literal, "UseDLQ", "", "(Unknown value)"},
    {10, 1872, 4, Shown::Literal, "DefReconnect", "", "(Unknown value)"},
}};
// clang-format on

TEST(ChannelDefinition, EveryFieldStandsAtItsOffset) {
  ExpectStructureAsPromised(kCd);
}

/// A definition of blanks and zeros: texts are blank, numbers and byte fields are zero.
Bytes BlankDefinition(std::uint32_t version) {
  Bytes cd(1876);
  for (const FieldRow& row : kCd.rows)
    if (row.shown == Shown::Text)
      SetText(cd, row.offset, std::string(static_cast<std::size_t>(row.width), ' '));
  SetWord(cd, 20, version);
  return cd;
}

/// `count` lines from the label on, for a definition of version 10 whose word at `offset` is `value`.
std::string CdLines(const std::string& label, int offset, std::uint32_t value, int count) {
  Bytes cd = BlankDefinition(10);
  SetWord(cd, offset, value);
  return LinesFrom(ReportOf(ShowParsedZkcd, cd), label, count);
}

// The zeros of the two lists that have no name for 0 give the notices.
const std::string kVersion1 =
    "|> ChannelName              : \n"
    "|> Version                  : 1\n"
    "|> ChannelType              : 0\n"
    "|**********************************\n"
    "|* Unknown : ZKCD - ZKCHT_... 0x00000000\n"
    "|**********************************\n"
    "|> TransportType            : LOCAL\n"
    "|> Channel description      : \n"
    "|> QMgrName                 : \n"
    "|> XmitQName                : \n"
    "|> ShortConnectionName      : \n"
    "|> MCAName                  : \n"
    "|> LU 6.2 ModeName          : \n"
    "|> LU 6.2 TpName            : \n"
    "|> BatchSize                : 0\n"
    "|> DiscInterval             : 0\n"
    "|> ShortRetryCount          : 0\n"
    "|> ShortRetryInterval       : 0\n"
    "|> LongRetryCount           : 0\n"
    "|> LongRetryInterval        : 0\n"
    "|> SecurityExit             : \n"
    "|> MsgExit                  : \n"
    "|> SendExit                 : \n"
    "|> ReceiveExit              : \n"
    "|> SeqNumberWrap            : 0\n"
    "|> MaxMsgLength             : 0\n"
    "|> PutAuthority             : 0\n"
    "|**********************************\n"
    "|* Unknown : ZKCD - ZKPA_... 0x00000000\n"
    "|**********************************\n"
    "|> DataConversion           : NO_SENDER_CONVERSION\n"
    "|> SecurityUserData         : \n"
    "|> MsgUserData              : \n"
    "|> SendUserData             : \n"
    "|> ReceiveUserData          : \n";

TEST(ChannelDefinition, Version1EndsAfterReceiveUserDataWithoutMarker) {
  EXPECT_EQ(ReportOf(ShowParsedZkcd, BlankDefinition(1)), kVersion1);
}

TEST(ChannelDefinition, EveryVersionEndsWithItsLastField) {
  const char* const lastLines[] = {
      "|> ReceiveUserData          : \n",     "|> RemotePassword           : \n",
      "|> MsgRetryInterval         : 0\n",    "|> ReceiveExitsDefined      : 0\n",
      "|> NetworkPriority          : 0\n",    "|> RemoteSecurityId         : (null)\n",
      "|> BatchHeartbeat           : 0\n",    "|> ChannelStatistics        : off / disabled\n",
      "|> ConnectionAffinity       : none\n", "|> DefReconnect             : no\n",
  };
  for (std::uint32_t version = 1; version <= 10; ++version) {
    const std::string report = ReportOf(ShowParsedZkcd, BlankDefinition(version));
    const std::string last = lastLines[version - 1];
    ASSERT_GE(report.size(), last.size());
    EXPECT_EQ(report.substr(report.size() - last.size()), last) << "version " << version;
  }
}

TEST(ChannelDefinition, Version12ShowsAllGroupsAndNoNotice) {
  ReportCapture capture;
  Bytes cd = BlankDefinition(12);
  SetWord(cd, 24, 6);
  SetWord(cd, 28, 2);
  SetWord(cd, 848, 1);
  SetWord(cd, 1020, 1);
  SetWord(cd, 1488, 2);
  ShowParsedZkcd(capture.Context(), ViewOf(cd));
  const std::string report = capture.Report();
  for (int version = 2; version <= 10; ++version)
    EXPECT_NE(report.find("|> --- CD version " + std::to_string(version) + "-"), std::string::npos)
        << version;
  EXPECT_EQ(report.find("--- CD version 11"), std::string::npos);
  EXPECT_EQ(LinesFrom(report, "DefReconnect", 9), "|> DefReconnect             : no\n");
  EXPECT_EQ(report.find("Unknown"), std::string::npos);
  EXPECT_FALSE(capture.Context().unknownAttributeSeen);
}

struct FixedList {
  const char* label;
  int offset;
  std::uint32_t firstValue;
  std::vector<const char*> names;
  const char* unknownLabel;
};

const FixedList kLists[] = {
    {"ChannelType",
     24,
     1,
     {"SENDER", "SERVER", "RECEIVER", "REQUESTER", "ALL", "CLNTCONN", "SVRCONN", "CLUSRCVR", "CLUSSDR"},
     "ZKCD - ZKCHT_..."},
    {"TransportType", 28, 0, {"LOCAL", "LU62", "TCP", "NETBIOS", "SPX", "DECNET", "UDP"}, "ZKCD - ZKXPT_..."},
    {"PutAuthority", 848, 1, {"DEFAULT", "CONTEXT", "ONLY_MCA", "ALTERNATE_OR_MCA"}, "ZKCD - ZKPA_..."},
    {"DataConversion", 852, 0, {"NO_SENDER_CONVERSION", "SENDER_CONVERSION"}, "ZKCD - ZKCDC_..."},
    {"MCAType", 1020, 1, {"PROCESS", "THREAD"}, "ZKCD - ZKMCAT_..."},
    {"NonPersistentMsgSpeed", 1488, 1, {"NORMAL", "FAST"}, "ZKCD - ZKNPMS_..."},
    {"SSLClientAuth", 1688, 0, {"REQUIRED", "OPTIONAL"}, "ZKCD - ZKSCA_..."},
};

TEST(ChannelDefinition, FixedLists) {
  for (const FixedList& list : kLists) {
    std::uint32_t value = list.firstValue;
    for (const char* name : list.names)
      EXPECT_EQ(CdLines(list.label, list.offset, value++, 1), Line(list.label, name));
    // `value` is now one above the last; the others are one below the first, and the key that ends a table.
    for (const std::uint32_t unlisted : {value, list.firstValue - 1, 0xFFFFFC25U})
      EXPECT_EQ(CdLines(list.label, list.offset, unlisted, 4),
                Line(list.label, Number(unlisted)) + Notice(list.unknownLabel, unlisted));
  }
}

TEST(ChannelDefinition, UnlistedChannelTypeIsANumberAndANotice) {
  EXPECT_EQ(CdLines("ChannelType", 24, 10, 5),
            "|> ChannelType              : 10\n"
            "|**********************************\n"
            "|* Unknown : ZKCD - ZKCHT_... 0x0000000A\n"
            "|**********************************\n"
            "|> TransportType            : LOCAL\n");
}

TEST(ChannelDefinition, LastPutAuthorityGoesOnToDataConversion) {
  EXPECT_EQ(CdLines("PutAuthority", 848, 4, 2),
            "|> PutAuthority             : ALTERNATE_OR_MCA\n"
            "|> DataConversion           : NO_SENDER_CONVERSION\n");
}

TEST(ChannelDefinition, NoticesAreNeverSuppressed) {
  ReportCapture capture;
  capture.Context().apiKind = kApiKindGet;
  capture.Context().apiPhase = kApiPhaseBefore;
  const Bytes cd = BlankDefinition(1);
  ShowParsedZkcd(capture.Context(), ViewOf(cd));
  EXPECT_EQ(capture.Report(), kVersion1);
  EXPECT_TRUE(capture.Context().unknownAttributeSeen);
}

TEST(ChannelDefinition, ConnectionAffinityStandsOnTwoLines) {
  Bytes cd = BlankDefinition(9);
  SetWord(cd, 1860, 1);
  EXPECT_EQ(LinesFrom(ReportOf(ShowParsedZkcd, cd), "ConnectionAffinity", 9),
            "|> ConnectionAffinity       : 1\n"
            "|> ConnectionAffinity       : preferred\n");
  EXPECT_EQ(CdLines("ConnectionAffinity", 1860, 2, 3),
            "|> ConnectionAffinity       : 2\n"
            "|> ConnectionAffinity       : (Unknown value)\n"
            "|> --- CD version 10---------\n");
}

TEST(ChannelDefinition, TableValuesAreNamedAndNeverReported) {
  EXPECT_EQ(CdLines("ChannelMonitoring", 1832, 0xFFFFFFFD, 1),
            "|> ChannelMonitoring        : queue manager\n");
  EXPECT_EQ(CdLines("ChannelMonitoring", 1832, 2, 2),
            "|> ChannelMonitoring        : (Unknown value)\n"
            "|> ChannelStatistics        : off / disabled\n");
  EXPECT_EQ(CdLines("ChannelStatistics", 1836, 33, 1), "|> ChannelStatistics        : medium\n");
  EXPECT_EQ(CdLines("PropertyControl", 1844, 3, 1), "|> PropertyControl          : force ZKRFH2\n");
  EXPECT_EQ(CdLines("UseDLQ", 1868, 2, 1), "|> UseDLQ                   : yes\n");
  EXPECT_EQ(CdLines("DefReconnect", 1872, 2, 1), "|> DefReconnect             : queue manager\n");
  EXPECT_EQ(CdLines("DefReconnect", 1872, 4, 9), "|> DefReconnect             : (Unknown value)\n");
}

TEST(ChannelDefinition, CompressionListsCountFromOne) {
  Bytes cd = BlankDefinition(8);
  SetWord(cd, 1748, 8);
  SetWord(cd, 1752, 0xFFFFFFFF);
  SetWord(cd, 1756, 1);
  SetWord(cd, 1760, 2);
  SetWord(cd, 1764, 4);
  SetWord(cd, 1768, 0x0FFFFFFF);
  SetWord(cd, 1772, 15);
  SetWord(cd, 1776, 16);
  SetWord(cd, 1816, 0xFFFFFFFF);
  EXPECT_EQ(LinesFrom(ReportOf(ShowParsedZkcd, cd), "HdrCompList[1]", 19),
            "|> HdrCompList[1]           : 8 (SYSTEM)\n"
            "|> HdrCompList[2]           : -1 (not available)\n"
            "|> MsgCompList[1]           : 1 (RLE)\n"
            "|> MsgCompList[2]           : 2 (ZLIBFAST)\n"
            "|> MsgCompList[3]           : 4 (ZLIBHIGH)\n"
            "|> MsgCompList[4]           : 268435455 (any)\n"
            "|> MsgCompList[5]           : 15 (RLE / ZLIBFAST / ZLIBHIGH / SYSTEM)\n"
            "|> MsgCompList[6]           : 16 ()\n"
            "|> MsgCompList[7]           : 0 (none)\n"
            "|> MsgCompList[8]           : 0 (none)\n"
            "|> MsgCompList[9]           : 0 (none)\n"
            "|> MsgCompList[10]          : 0 (none)\n"
            "|> MsgCompList[11]          : 0 (none)\n"
            "|> MsgCompList[12]          : 0 (none)\n"
            "|> MsgCompList[13]          : 0 (none)\n"
            "|> MsgCompList[14]          : 0 (none)\n"
            "|> MsgCompList[15]          : 0 (none)\n"
            "|> MsgCompList[16]          : -1 (not available)\n"
            "|> CLWLChannelRank          : 0\n");
}

TEST(ChannelDefinition, IntegersAreReadAsStored) {
  // Version 1 with its bytes reversed is a large number, so all groups are shown.
  Bytes cd = BlankDefinition(0x01000000);
  SetWord(cd, 304, 0x32000000);
  const std::string report = ReportOf(ShowParsedZkcd, cd);
  EXPECT_EQ(LinesFrom(report, "Version", 1), "|> Version                  : 16777216\n");
  EXPECT_EQ(LinesFrom(report, "BatchSize", 1), "|> BatchSize                : 838860800\n");
  EXPECT_EQ(LinesFrom(report, "DefReconnect", 9), "|> DefReconnect             : no\n");
}

TEST(ChannelDefinition, LabelsWithBlanksStandAsTheyAre) {
  Bytes cd = BlankDefinition(1);
  SetText(cd, 32, "client channel");
  SetText(cd, 232, "MODE1");
  SetText(cd, 240, "TPNAME1");
  const std::string report = ReportOf(ShowParsedZkcd, cd);
  EXPECT_EQ(LinesFrom(report, "Channel description", 1), "|> Channel description      : client channel\n");
  EXPECT_EQ(LinesFrom(report, "LU 6.2 ModeName", 2),
            "|> LU 6.2 ModeName          : MODE1\n"
            "|> LU 6.2 TpName            : TPNAME1\n");
}

TEST(ChannelDefinition, DumpCutInsideATextShowsItsFirstPart) {
  Bytes cd = BlankDefinition(2);
  SetText(cd, 1024, "host.example.com");
  cd.resize(1034);
  EXPECT_EQ(LinesFrom(ReportOf(ShowParsedZkcd, cd), "ConnectionName", 9),
            "|> ConnectionName           : host.examp\n"
            "|> RemoteUserIdentifier     : \n"
            "|> RemotePassword           : \n");
}

}  // namespace
}  // namespace quillon
