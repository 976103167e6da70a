#include <gtest/gtest.h>

#include <string>

#include "message_bytes.h"
#include "msgdata/formatters.h"
#include "report_capture.h"

namespace quillon {
namespace {

constexpr char kNative[] = "273 (Native encoding) INTEGER_NORMAL / DECIMAL_NORMAL / FLOAT_IEEE_NORMAL";
constexpr char kReversed[] = "546 INTEGER_REVERSED / DECIMAL_REVERSED / FLOAT_IEEE_REVERSED";
constexpr char kUndefined[] = "758001456 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED";
constexpr char kRefer[] = "|>  (refer to data shown in hexadecimal format)\n";

FormatName Name(std::string_view text) {
  return FormatNameOf(ByteView(text));
}

std::string Walk(std::string_view format, const std::vector<std::uint8_t>& data, std::uint32_t encoding = 273,
                 std::int32_t limit = -1) {
  ReportCapture capture;
  capture.Context().maxParsedLength = limit;
  ShowParsedMsgData(capture.Context(), Name(format), encoding, ViewOf(data));
  return capture.Report();
}

std::string Walk(std::string_view format, const MessageBytes& data, std::uint32_t encoding = 273) {
  return Walk(format, data.First(data.bytes.size()), encoding);
}

// Each maker below has the byte order of its own integers and the encoding of what follows.

MessageBytes Zkxqh(ByteOrder order, std::int64_t version = 1) {
  MessageBytes header(order);
  return header.Text("XQH ").Int(version).Text("REMOTE.QUEUE", 48).Text("REMOTE.MANAGER", 48);
}

std::string ZkxqhFields() {
  return Field("Version", "1") + Field("RemoteQName", "REMOTE.QUEUE") +
         Field("RemoteQMgrName", "REMOTE.MANAGER");
}

MessageBytes Zkmd(ByteOrder order, std::int64_t encoding, std::string_view format, std::int64_t version = 1) {
  MessageBytes md(order);
  md.Text("MD  ").Int(version).Int(0).Int(8).Int(-1).Int(0).Int(encoding).Int(819).Text(format);
  md.Int(5).Int(1).Zeros(24).Zeros(24).Int(0).Text("REPLY.QUEUE", 48).Text("", 48).Text("user", 12);
  md.Zeros(32).Text("", 32).Int(6).Text("program", 28).Text("20240305").Text("09000012").Text("", 4);
  return md;
}

std::string ZkmdFields(std::string_view encoding, std::string_view format, std::string_view version = "1") {
  return Field("Version", version) + Field("Report", "(none)") + Field("MsgType", "DATAGRAM") +
         Field("Expiry", "-1") + Field("Feedback", "0") + Field("Encoding", encoding) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", format) +
         Field("Priority", "5") + Field("Persistence", "PERSISTENT") + Field("MsgId", "(null)") +
         Field("CorrelId", "(null)") + Field("BackoutCount", "0") + Field("ReplyToQ", "REPLY.QUEUE") +
         Field("ReplyToQMgr", "") + Field("UserIdentifier", "user") + Field("AccountingToken", "(null)") +
         Field("ApplIdentityData", "") + Field("PutApplType", "UNIX") + Field("PutApplName", "program") +
         Field("PutDate", "20240305") + Field("PutTime", "09000012") + Field("ApplOriginData", "");
}

// 296 bytes: two object records at 48, two put-message records (MsgId and Feedback) at 240.
MessageBytes Zkdh(ByteOrder order, std::int64_t encoding, std::string_view format) {
  MessageBytes dh(order);
  dh.Text("DH  ").Int(1).Int(296).Int(encoding).Int(819).Text(format).Int(0).Int(9).Int(2).Int(48).Int(240);
  dh.Text("QUEUE.ONE", 48).Text("MANAGER.1", 48).Text("QUEUE.TWO", 48).Text("MANAGER.2", 48);
  return dh.Text("MESSAGE.ID.ONE..........").Int(0).Text("MESSAGE.ID.TWO..........").Int(0);
}

std::string ZkdhFields(std::string_view encoding, std::string_view format) {
  return Field("Version", "1") + Field("StrucLength", "296") + Field("Encoding", encoding) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", format) +
         Field("Flags", "(none)") + Field("PutMsgRecFields", "MSG_ID / FEEDBACK") + Field("RecsPresent", "2");
}

std::string ObjectRecords() {
  return Field("ObjectName", "QUEUE.ONE") + Field("ObjectQMgrName", "MANAGER.1") +
         Field("ObjectName", "QUEUE.TWO") + Field("ObjectQMgrName", "MANAGER.2");
}

std::string PutMessageRecords() {
  return Field("MsgId", "4D455353 4147452E 49442E4F 4E452E2E 2E2E2E2E 2E2E2E2E  [MESSAGE.ID.ONE..........]") +
         Field("Feedback", "0") +
         Field("MsgId", "4D455353 4147452E 49442E54 574F2E2E 2E2E2E2E 2E2E2E2E  [MESSAGE.ID.TWO..........]") +
         Field("Feedback", "0");
}

// 120 bytes: the source object name has 12 at 108.
MessageBytes Zkrmh(ByteOrder order, std::int64_t encoding, std::string_view format) {
  MessageBytes rmh(order);
  rmh.Text("RMH ").Int(1).Int(120).Int(encoding).Int(819).Text(format).Int(0).Text("FLATFILE").Zeros(24);
  rmh.Int(0).Int(0).Int(12).Int(108).Int(0).Int(0).Int(0).Int(0);
  return rmh.Int(1001).Int(1002).Int(1003).Text("/source.file");
}

std::string ZkrmhFields(std::string_view encoding, std::string_view format) {
  return Field("Version", "1") + Field("StrucLength", "120") + Field("Encoding", encoding) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", format) +
         Field("Flags", "(none)") + Field("ObjectType", "FLATFILE") + Field("ObjectInstanceId", "(null)") +
         Field("source environment data", "(none)") +
         Field("source object name", "2F736F75 7263652E 66696C65  [/source.file]") +
         Field("dest environment data", "(none)") + Field("dest object name", "(none)") +
         Field("DataLogicalLength", "1001") + Field("DataLogicalOffset", "1002") +
         Field("DataLogicalOffset2", "1003");
}

MessageBytes Zkdlh(ByteOrder order, std::int64_t encoding, std::string_view format,
                   std::int64_t reason = 2035, std::int64_t applType = 6) {
  MessageBytes dlh(order);
  dlh.Text("DLH ").Int(1).Int(reason).Text("LOST.QUEUE", 48).Text("LOST.MANAGER", 48).Int(encoding).Int(819);
  return dlh.Text(format).Int(applType).Text("putter", 28).Text("20240306").Text("10111213");
}

std::string ZkdlhFields(std::string_view encoding, std::string_view format,
                        std::string_view reason = "2035 (ZKRC_NOT_AUTHORIZED)",
                        std::string_view applType = "UNIX") {
  return Field("Version", "1") + Field("Reason", reason) + Field("DestQName", "LOST.QUEUE") +
         Field("DestQMgrName", "LOST.MANAGER") + Field("Encoding", encoding) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", format) +
         Field("PutApplType", applType) + Field("PutApplName", "putter") + Field("PutDate", "20240306") +
         Field("PutTime", "10111213");
}

MessageBytes Zkmde(ByteOrder order, std::int64_t encoding, std::string_view format, std::int64_t version = 2,
                   std::int64_t msgFlags = 0x18) {
  MessageBytes mde(order);
  mde.Text("MDE ").Int(version).Int(72).Int(encoding).Int(819).Text(format).Int(0);
  return mde.Text("GROUP.IDENTIFIER........").Int(3).Int(0).Int(msgFlags).Int(-1);
}

std::string ZkmdeFields(std::string_view encoding, std::string_view format,
                        std::string_view msgFlags = "MSG_IN_GROUP / LAST_MSG_IN_GROUP") {
  return Field("StrucLength", "72") + Field("Encoding", encoding) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", format) + Field("Flags", "0") +
         Field("GroupId",
               "47524F55 502E4944 454E5449 46494552 2E2E2E2E 2E2E2E2E  [GROUP.IDENTIFIER........]") +
         Field("MsgSeqNumber", "3") + Field("Offset", "0") + Field("MsgFlags", msgFlags) +
         Field("OriginalLength", "-1");
}

// `folder` must be of a multiple of 4 bytes; an empty one adds none.
MessageBytes Zkhrf2(ByteOrder order, std::int64_t encoding, std::string_view format,
                    std::string_view folder = "") {
  const auto length = static_cast<std::int64_t>(folder.size());
  MessageBytes rf2(order);
  rf2.Text("RFH ").Int(2).Int(length == 0 ? 36 : 40 + length).Int(encoding).Int(819).Text(format).Int(0);
  rf2.Int(1208);
  return length == 0 ? rf2 : rf2.Int(length).Text(folder);
}

std::string Zkhrf2Fields(std::string_view strucLength, std::string_view encoding, std::string_view format) {
  return Field("Version", "2") + Field("StrucLength", strucLength) + Field("Encoding", encoding) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", format) + Field("Flags ", "0") +
         Field("NameValueCCSID", "1208 (UTF-8 with ORX PUA)");
}

// A PCF message without parameters: 36 bytes.
MessageBytes Zkcfh(ByteOrder order) {
  MessageBytes cfh(order);
  return cfh.Int(1).Int(36).Int(3).Int(2).Int(1).Int(1).Int(0).Int(0).Int(0);
}

std::string ZkcfhFields() {
  return Field("Type", "COMMAND") + Field("StrucLength", "    36") + Field("Version", "     3") +
         Field("Command", "     2 (INQUIRE_Q_MGR)") + Field("MsgSeqNumber", "     1") +
         Field("Control", "LAST") + Field("CompCode", "     0") + Field("Reason", "     0") +
         Field("ParameterCount", "     0");
}

// Every header in the order of the walk, and a PCF message: 1208 bytes. `orders` are the byte orders of the
// parts, the transmission-queue header and its descriptor being one; each part announces the order of the
// next one.
constexpr std::size_t kChainParts = 8;

std::int64_t EncodingOf(ByteOrder order) {
  return order == ByteOrder::Big ? 273 : 546;
}
std::string EncodingText(ByteOrder order) {
  return order == ByteOrder::Big ? kNative : kReversed;
}

MessageBytes Chain(const ByteOrder (&orders)[kChainParts]) {
  const auto next = [&](std::size_t part) { return EncodingOf(orders[part + 1]); };
  MessageBytes chain;
  chain.Add(Zkxqh(orders[0]));
  // The descriptor's Encoding is read in the order that the walk came with.
  chain.Add(Zkmd(orders[0], next(0), "ZKHDIST "));
  chain.Add(Zkdh(orders[1], next(1), "ZKHREF  "));
  chain.Add(Zkrmh(orders[2], next(2), "ZKDEAD  "));
  chain.Add(Zkdlh(orders[3], next(3), "ZKHMDE  "));
  chain.Add(Zkmde(orders[4], next(4), "ZKHRF2  "));
  chain.Add(Zkhrf2(orders[5], next(5), "ZKHRF2  ", "<a>b</a>"));
  chain.Add(Zkhrf2(orders[6], next(6), "ZKADMIN "));
  return chain.Add(Zkcfh(orders[7]));
}

std::string ChainReport(const ByteOrder (&orders)[kChainParts]) {
  const auto next = [&](std::size_t part) { return EncodingText(orders[part + 1]); };
  return "|> ----- offset 0-103 (=x0-x67) length 104 (=x68) - ZKXQH (Transmission-queue header)\n" +
         ZkxqhFields() +
         "|> ----- offset 104-427 (=x68-x1AB) length 324 (=x144) - ZKMD1 (Original message descriptor)\n" +
         ZkmdFields(next(0), "ZKHDIST (Distribution header)") +
         "|> ----- offset 428-723 (=x1AC-x2D3) length 296 (=x128) - ZKDH (Distribution header)\n" +
         ZkdhFields(next(1), "ZKHREF (Reference message header)") +
         "|> ----- offset 476-667 (=x1DC-x29B) length 192 (=xC0) - ZKDH -> ZKOR (Object record)\n" +
         ObjectRecords() +
         "|> ----- offset 668-723 (=x29C-x2D3) length 56 (=x38) - ZKDH -> ZKPMR (Put message record)\n" +
         PutMessageRecords() +
         "|> ----- offset 724-843 (=x2D4-x34B) length 120 (=x78) - ZKRMH (Reference message header)\n" +
         ZkrmhFields(next(2), "ZKDEAD (Dead letter header)") +
         "|> ----- offset 844-1015 (=x34C-x3F7) length 172 (=xAC) - ZKDLH (Dead-letter header)\n" +
         ZkdlhFields(next(3), "ZKHMDE (Message descrptor extension)") +
         "|> ----- offset 1016-1087 (=x3F8-x43F) length 72 (=x48) - ZKMDE (ZKMD extension)\n" +
         Field("Version", "2") + ZkmdeFields(next(4), "ZKHRF2 (Rules and formatting header 2)") +
         "|> ----- offset 1088-1135 (=x440-x46F) length 48 (=x30) - ZKHRF2 (Rules and formatting header "
         "2)\n" +
         Zkhrf2Fields("48", next(5), "ZKHRF2 (Rules and formatting header 2)") +
         "|> ----- offset 1128-1135 (=x468-x46F) length 8 (=x8) - XML data in ZKHRF2\n"
         "|> <a>\n"
         "|>   b\n"
         "|> </a>\n"
         "|> ----- offset 1136-1171 (=x470-x493) length 36 (=x24) - ZKHRF2 (Rules and formatting header "
         "2)\n" +
         Zkhrf2Fields("36", next(6), "ZKADMIN (PCF - Administration)") +
         "|> ----- offset 1172-1207 (=x494-x4B7) length 36 (=x24) - ZKCFH (PCF header and parameters)\n" +
         ZkcfhFields();
}

constexpr ByteOrder kB = ByteOrder::Big;
constexpr ByteOrder kL = ByteOrder::Little;

TEST(MessageData, ChainOfAllHeaders) {
  const ByteOrder orders[kChainParts] = {kB, kB, kB, kB, kB, kB, kB, kB};
  const MessageBytes chain = Chain(orders);
  ASSERT_EQ(chain.bytes.size(), 1208U);
  EXPECT_EQ(Walk("ZKXMIT  ", chain, 273), ChainReport(orders));
}

TEST(MessageData, ChainOfAllHeadersReversed) {
  const ByteOrder orders[kChainParts] = {kL, kL, kL, kL, kL, kL, kL, kL};
  EXPECT_EQ(Walk("ZKXMIT  ", Chain(orders), 546), ChainReport(orders));
}

TEST(MessageData, EveryHeaderHandsItsEncodingOn) {
  const ByteOrder orders[kChainParts] = {kB, kL, kB, kL, kB, kL, kB, kL};
  EXPECT_EQ(Walk("ZKXMIT  ", Chain(orders), 273), ChainReport(orders));
  const ByteOrder inverse[kChainParts] = {kL, kB, kL, kB, kL, kB, kL, kB};
  EXPECT_EQ(Walk("ZKXMIT  ", Chain(inverse), 2), ChainReport(inverse));
}

TEST(MessageData, EveryTruncationShowsTheHeadersThatFit) {
  const ByteOrder orders[kChainParts] = {kB, kL, kB, kL, kB, kL, kB, kL};
  const MessageBytes chain = Chain(orders);
  struct Part {
    const char* title;
    std::size_t from;  // the first size at which it is shown
  };
  const Part parts[] =
      {
          {" - ZKXQH", 428},  // both or none
          {" - ZKMD1", 428},         {" - ZKDH (", 428 + 48},
          {" - ZKDH -> ZKOR", 724},  // the records need the whole of the header's length
          {" - ZKDH -> ZKPMR", 724}, {" - ZKRMH", 724 + 108},
          {" - ZKDLH", 844 + 172},   {" - ZKMDE", 1016 + 72},
          {"=x440-x46F", 1088 + 36},                             // the first ZKHRF2
          {" - XML data", 1136},     {"=x470-x493", 1136 + 36},  // the second
          {" - ZKCFH", 1172 + 36},
      };
  // A header that is too short and is not passed by a fixed length leaves its bytes to the catch-all.
  const std::size_t leftOver[][2] = {{429, 475}, {725, 831}, {1089, 1123}, {1137, 1171}};
  for (std::size_t size = 0; size <= chain.bytes.size(); ++size) {
    const std::string report = Walk("ZKXMIT  ", chain.First(size), 273);
    for (const Part& part : parts) {
      EXPECT_EQ(report.find(part.title) != std::string::npos, size >= part.from)
          << part.title << " at " << size;
    }
    bool data = false;
    for (const auto& range : leftOver) data = data || (size >= range[0] && size <= range[1]);
    EXPECT_EQ(report.find(" - Data\n") != std::string::npos, data) << size;
  }
}

TEST(MessageData, TransmissionHeaderOf428BytesStandsAlone) {
  const MessageBytes data = Zkxqh(kB).Add(Zkmd(kB, 273, "ZKADMIN "));
  ASSERT_EQ(data.bytes.size(), 428U);
  EXPECT_EQ(
      Walk("ZKXMIT  ", data),
      "|> ----- offset 0-103 (=x0-x67) length 104 (=x68) - ZKXQH (Transmission-queue header)\n" +
          ZkxqhFields() +
          "|> ----- offset 104-427 (=x68-x1AB) length 324 (=x144) - ZKMD1 (Original message descriptor)\n" +
          ZkmdFields(kNative, "ZKADMIN (PCF - Administration)"));
}

TEST(MessageData, TransmissionHeaderOf427BytesIsNone) {
  const MessageBytes data = Zkxqh(kB).Add(Zkmd(kB, 273, "ZKADMIN "));
  EXPECT_EQ(Walk("ZKXMIT  ", data.First(427)), "");
}

TEST(MessageData, OriginalDescriptorOfVersion2ReadsOnIntoTheBody) {
  MessageBytes data = Zkxqh(kB).Add(Zkmd(kB, 273, "ZKSTR   ", 2));
  data.Text("GROUP.IDENTIFIER........").Int(1).Int(2).Int(4);
  EXPECT_EQ(
      Walk("ZKXMIT  ", data),
      "|> ----- offset 0-103 (=x0-x67) length 104 (=x68) - ZKXQH (Transmission-queue header)\n" +
          ZkxqhFields() +
          "|> ----- offset 104-427 (=x68-x1AB) length 324 (=x144) - ZKMD1 (Original message descriptor)\n" +
          ZkmdFields(kNative, "ZKSTR (String)", "2") + "|> --- MD version 2----------\n" +
          Field("GroupId",
                "47524F55 502E4944 454E5449 46494552 2E2E2E2E 2E2E2E2E  [GROUP.IDENTIFIER........]") +
          Field("MsgSeqNumber", "1") + Field("Offset", "2") + Field("MsgFlags", "LAST_SEGMENT") +
          Field("OriginalLength", "0") + "|> ----- offset 428-463 (=x1AC-x1CF) length 36 (=x24) - Data\n" +
          kRefer);
}

TEST(MessageData, OriginalDescriptorsOwnOrderDoesNotGovernTheWalk) {
  // A reversed descriptor behind an encoding of 273: its Encoding is taken as 0x22020000, which is even.
  MessageBytes data = Zkxqh(kB).Add(Zkmd(kL, 546, "ZKHMDE  ")).Add(Zkmde(kL, 273, "ZKSTR   "));
  EXPECT_EQ(
      Walk("ZKXMIT  ", data),
      "|> ----- offset 0-103 (=x0-x67) length 104 (=x68) - ZKXQH (Transmission-queue header)\n" +
          ZkxqhFields() +
          "|> ----- offset 104-427 (=x68-x1AB) length 324 (=x144) - ZKMD1 (Original message descriptor)\n" +
          ZkmdFields(kReversed, "ZKHMDE (Message descrptor extension)") +
          "|> ----- offset 428-499 (=x1AC-x1F3) length 72 (=x48) - ZKMDE (ZKMD extension)\n" +
          Field("Version", "2") + ZkmdeFields(kNative, "ZKSTR (String)"));
}

TEST(MessageData, LimitOnParsedDataHidesTransmissionHeaders) {
  MessageBytes data = Zkxqh(kB).Add(Zkmd(kB, 273, "ZKSTR   ")).Text("body");
  const std::string xqh =
      "|> ----- offset 0-103 (=x0-x67) length 104 (=x68) - ZKXQH (Transmission-queue header)\n" +
      ZkxqhFields();
  const std::string md =
      "|> ----- offset 104-427 (=x68-x1AB) length 324 (=x144) - ZKMD1 (Original message descriptor)\n" +
      ZkmdFields(kNative, "ZKSTR (String)");
  const std::string body =
      std::string("|> ----- offset 428-431 (=x1AC-x1AF) length 4 (=x4) - Data\n") + kRefer;
  const std::vector<std::uint8_t> exact = data.First(432);
  EXPECT_EQ(Walk("ZKXMIT  ", exact, 273, 0), body);
  EXPECT_EQ(Walk("ZKXMIT  ", exact, 273, 103), body);
  EXPECT_EQ(Walk("ZKXMIT  ", exact, 273, 104), xqh + body);
  EXPECT_EQ(Walk("ZKXMIT  ", exact, 273, 427), xqh + body);
  EXPECT_EQ(Walk("ZKXMIT  ", exact, 273, 428), xqh + md + body);
  EXPECT_EQ(Walk("ZKXMIT  ", exact, 273, -1), xqh + md + body);
}

TEST(MessageData, HeadersOutOfOrderAreNotShown) {
  const std::string dead = "|> ----- offset 0-171 (=x0-xAB) length 172 (=xAC) - ZKDLH (Dead-letter header)\n";
  EXPECT_EQ(Walk("ZKDEAD  ", Zkdlh(kB, 273, "ZKHREF  ").Add(Zkrmh(kB, 273, "ZKSTR   "))),
            dead + ZkdlhFields(kNative, "ZKHREF (Reference message header)") +
                "|> ----- offset 172-291 (=xAC-x123) length 120 (=x78) - Data\n" + kRefer);
  EXPECT_EQ(Walk("ZKDEAD  ", Zkdlh(kB, 273, "ZKDEAD  ").Add(Zkdlh(kB, 273, "ZKSTR   "))),
            dead + ZkdlhFields(kNative, "ZKDEAD (Dead letter header)") +
                "|> ----- offset 172-343 (=xAC-x157) length 172 (=xAC) - Data\n" + kRefer);
  EXPECT_EQ(Walk("ZKDEAD  ", Zkdlh(kB, 273, "ZKXMIT  ").Add(Zkxqh(kB)).Add(Zkmd(kB, 273, "ZKSTR   "))),
            dead + ZkdlhFields(kNative, "ZKXMIT (Transmission queue header)") +
                "|> ----- offset 172-599 (=xAC-x257) length 428 (=x1AC) - Data\n" + kRefer);
  EXPECT_EQ(Walk("ZKHRF2  ", Zkhrf2(kB, 273, "ZKHMDE  ").Add(Zkmde(kB, 273, "ZKSTR   "))),
            "|> ----- offset 0-35 (=x0-x23) length 36 (=x24) - ZKHRF2 (Rules and formatting header 2)\n" +
                Zkhrf2Fields("36", kNative, "ZKHMDE (Message descrptor extension)") +
                "|> ----- offset 36-107 (=x24-x6B) length 72 (=x48) - Data\n" + kRefer);
}

TEST(MessageData, HeadersMayBeLeftOut) {
  // A distribution header that goes straight to an extension, and that to a trigger message too short to
  // show.
  MessageBytes data = Zkdh(kB, 273, "ZKHMDE  ").Add(Zkmde(kB, 273, "ZKTRIG  ")).Text("TM  ");
  EXPECT_EQ(
      Walk("ZKHDIST ", data),
      "|> ----- offset 0-295 (=x0-x127) length 296 (=x128) - ZKDH (Distribution header)\n" +
          ZkdhFields(kNative, "ZKHMDE (Message descrptor extension)") +
          "|> ----- offset 48-239 (=x30-xEF) length 192 (=xC0) - ZKDH -> ZKOR (Object record)\n" +
          ObjectRecords() +
          "|> ----- offset 240-295 (=xF0-x127) length 56 (=x38) - ZKDH -> ZKPMR (Put message record)\n" +
          PutMessageRecords() +
          "|> ----- offset 296-367 (=x128-x16F) length 72 (=x48) - ZKMDE (ZKMD extension)\n" +
          Field("Version", "2") + ZkmdeFields(kNative, "ZKTRIG (Trigger message)"));
}

TEST(MessageData, DeadLetterHeaderIsPassedByItsLengthThoughItIsNotShown) {
  // 100 bytes are left: the walk ends behind the data, and nothing is left for the body.
  EXPECT_EQ(Walk("ZKDEAD  ", Zkdlh(kB, 273, "ZKSTR   ").First(100)), "");
  MessageBytes data = Zkhrf2(kB, 273, "ZKSTR   ");
  EXPECT_EQ(Walk("ZKDEAD  ", data), "");
  // The limit hides a header that is whole: what follows it is found all the same, at 172.
  EXPECT_EQ(Walk("ZKDEAD  ", Zkdlh(kB, 273, "ZKADMIN ").Text("body").First(176), 273, 171),
            std::string("|> ----- offset 172-175 (=xAC-xAF) length 4 (=x4) - Data\n") + kRefer);
  EXPECT_EQ(Walk("ZKHMDE  ", Zkmde(kB, 273, "ZKADMIN ").Text("body").First(76), 273, 71),
            std::string("|> ----- offset 72-75 (=x48-x4B) length 4 (=x4) - Data\n") + kRefer);
}

TEST(MessageData, LengthsThatLeaveTheDataEndTheWalk) {
  const std::string title = " - ZKRMH (Reference message header)\n";
  for (const std::int64_t strucLength : {-1LL, -0x80000000LL, 129LL, 0x7FFFFFFFLL}) {
    MessageBytes data;
    data.Text("RMH ")
        .Int(1)
        .Int(strucLength)
        .Int(273)
        .Int(819)
        .Text("ZKDEAD  ")
        .Zeros(80)
        .Text("twenty bytes of body");
    ASSERT_EQ(data.bytes.size(), 128U);
    const std::string report = Walk("ZKHREF  ", data);
    EXPECT_NE(report.find(title), std::string::npos);
    EXPECT_TRUE(report.ends_with(Field("DataLogicalOffset2", "0"))) << report;
  }
  // Before the start of the data nothing is left either: no later header leads the walk back inside.
  MessageBytes back;
  back.Text("RMH ").Int(1).Int(-100).Int(273).Int(819).Text("ZKDEAD  ").Zeros(300);
  EXPECT_TRUE(Walk("ZKHREF  ", back).ends_with(Field("DataLogicalOffset2", "0")));
  // A record array that wraps in 32 bits: 48 + 0x2AAAAAAB * 96 would be 80.
  MessageBytes data;
  data.Text("DH  ")
      .Int(1)
      .Int(48)
      .Int(273)
      .Int(819)
      .Text("ZKSTR   ")
      .Int(0)
      .Int(0)
      .Int(0x2AAAAAAB)
      .Int(48)
      .Int(0);
  const std::string report = Walk("ZKHDIST ", data.Zeros(200));
  EXPECT_TRUE(report.ends_with(Field("RecsPresent", "715827883"))) << report;
}

TEST(MessageData, LengthZeroStaysAtTheHeader) {
  MessageBytes data;
  data.Text("RMH ").Int(1).Int(0).Int(273).Int(819).Text("ZKPCF   ").Zeros(80);
  const std::string report = Walk("ZKHREF  ", data);
  // The next format is read from the header's own bytes: a PCF header of type "RMH ".
  EXPECT_NE(
      report.find("|> ----- offset 0-107 (=x0-x6B) length 108 (=x6C) - ZKCFH (PCF header and parameters)\n"),
      std::string::npos);
}

TEST(MessageData, BodiesByFormat) {
  for (const char* format : {"ZKADMIN ", "ZKPCF   ", "ZKEVENT "}) {
    EXPECT_EQ(Walk(format, Zkcfh(kB)),
              "|> ----- offset 0-35 (=x0-x23) length 36 (=x24) - ZKCFH (PCF header and parameters)\n" +
                  ZkcfhFields());
  }
  EXPECT_EQ(Walk("ZKPCF   ", Zkcfh(kL), 546),
            "|> ----- offset 0-35 (=x0-x23) length 36 (=x24) - ZKCFH (PCF header and parameters)\n" +
                ZkcfhFields());
}

TEST(MessageData, Rules1EndsTheWalk) {
  MessageBytes data;
  data.Text("RFH ").Int(1).Int(36).Int(273).Int(819).Text("ZKPCF   ").Int(0).Text("a b ").Add(Zkcfh(kB));
  EXPECT_EQ(Walk("ZKHRF   ", data),
            "|> ----- offset 0-31 (=x0-x1F) length 32 (=x20) - ZKHRF (Rules and formatting header)\n" +
                Field("Version", "1") + Field("StrucLength", "36") + Field("Encoding", kNative) +
                Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") +
                Field("Format", "ZKPCF (Programmable command format)") + Field("Flags ", "0") +
                "|> ----- offset 32-67 (=x20-x43) length 36 (=x24) - NameValueString\n"
                "|> a - b\n");
}

TEST(MessageData, EmbeddedPcfIsShownBehindItsHeader) {
  for (const ByteOrder order : {kB, kL}) {
    // The header's Encoding is that of the other order; the PCF message is read in the walk's all the same.
    MessageBytes eph(order);
    eph.Text("EPH ").Int(1).Int(68).Int(EncodingOf(order == kB ? kL : kB)).Int(819).Text("ZKSTR   ").Int(1);
    const std::string ephFields = Field("Version", "1") + Field("StrucLength", "68") +
                                  Field("Encoding", EncodingText(order == kB ? kL : kB)) +
                                  Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") +
                                  Field("Format", "ZKSTR (String)") + Field("Flags", "ccsid embedded");
    const auto encoding = static_cast<std::uint32_t>(EncodingOf(order));
    eph.Add(Zkcfh(order));
    EXPECT_EQ(Walk("ZKHEPCF ", eph, encoding),
              "|> ----- offset 0-67 (=x0-x43) length 68 (=x44) - ZKEPH (Embedded PCF header)\n" + ephFields +
                  "|> ----- offset 32-67 (=x20-x43) length 36 (=x24) - ZKCFH (PCF header and parameters)\n" +
                  ZkcfhFields());
    MessageBytes chain = Zkmde(order, EncodingOf(order), "ZKHEPCF ");
    EXPECT_EQ(
        Walk("ZKHMDE  ", chain.Add(eph), encoding),
        "|> ----- offset 0-71 (=x0-x47) length 72 (=x48) - ZKMDE (ZKMD extension)\n" + Field("Version", "2") +
            ZkmdeFields(EncodingText(order), "ZKHEPCF (Embedded programmable command format)") +
            "|> ----- offset 72-139 (=x48-x8B) length 68 (=x44) - ZKEPH (Embedded PCF header)\n" + ephFields +
            "|> ----- offset 104-139 (=x68-x8B) length 36 (=x24) - ZKCFH (PCF header and parameters)\n" +
            ZkcfhFields());
  }
}

TEST(MessageData, UnknownFormatIsTriedAsXml) {
  for (const char* format : {"ZKSTR   ", "        ", "zkpcf   ", "ZKPCF"}) {
    EXPECT_EQ(Walk(format, MessageBytes().Text("<a></a>")),
              "|> ----- offset 0-6 (=x0-x6) length 7 (=x7) - XML data\n"
              "|> <a>\n"
              "|> </a>\n");
    EXPECT_EQ(Walk(format, MessageBytes().Text("no tags")), "");
  }
  EXPECT_EQ(Walk("ZKHMDE  ", Zkmde(kB, 273, "ZKSTR   ").Text("<a/>")),
            "|> ----- offset 0-71 (=x0-x47) length 72 (=x48) - ZKMDE (ZKMD extension)\n" +
                Field("Version", "2") + ZkmdeFields(kNative, "ZKSTR (String)") +
                "|> ----- offset 72-75 (=x48-x4B) length 4 (=x4) - XML data\n"
                "|> <a/>\n");
}

TEST(MessageData, FormatIsComparedWithItsBlanks) {
  EXPECT_EQ(Walk(std::string_view("ZKDEAD\0\0", 8), Zkdlh(kB, 273, "ZKSTR   ")), "");
}

TEST(MessageData, GeneralDataNeedsAnOffsetAndALength) {
  const auto show = [](std::int64_t length, std::int64_t offset) {
    ReportCapture capture;
    ShowParsedGeneralData(capture.Context(), length, offset);
    return capture.Report();
  };
  EXPECT_EQ(show(5, 1),
            "|> ----- offset 1-5 (=x1-x5) length 5 (=x5) - Data\n"
            "|>  (refer to data shown in hexadecimal format)\n");
  EXPECT_EQ(show(5, 0), "");
  EXPECT_EQ(show(0, 5), "");
  EXPECT_EQ(show(-1, 5), "");
  EXPECT_EQ(show(5, -1), "");
}

TEST(MessageData, LimitOnParsedDataCutsAView) {
  RunContext runContext;
  const MessageBytes data = MessageBytes().Text("0123456789");
  EXPECT_EQ(CapParsedLength(runContext, data.View()).Size(), 10);
  runContext.maxParsedLength = 4;
  EXPECT_EQ(CapParsedLength(runContext, data.View()).Size(), 4);
  runContext.maxParsedLength = 11;
  EXPECT_EQ(CapParsedLength(runContext, data.View()).Size(), 10);
  runContext.maxParsedLength = 0;
  EXPECT_EQ(CapParsedLength(runContext, data.View()).Size(), 0);
}

std::string ShowZkxqh(const std::vector<std::uint8_t>& data) {
  ReportCapture capture;
  ShowParsedZkxqh(capture.Context(), ViewOf(data));
  return capture.Report();
}

TEST(TransmissionQueueHeader, TellsItsOrderByItsVersion) {
  EXPECT_EQ(ShowZkxqh(Zkxqh(kB).First(104)), ZkxqhFields());
  EXPECT_EQ(ShowZkxqh(Zkxqh(kL).First(104)), ZkxqhFields());
  // Byte 4 is the least significant one of a reversed version: 256 reads as big-endian 0x00010000.
  EXPECT_EQ(ShowZkxqh(Zkxqh(kL, 256).First(104)), Notice("ZKXQH version 65536") + Field("Version", "65536") +
                                                      Field("RemoteQName", "REMOTE.QUEUE") +
                                                      Field("RemoteQMgrName", "REMOTE.MANAGER"));
}

TEST(TransmissionQueueHeader, UnknownVersionIsShownAllTheSame) {
  for (const ByteOrder order : {kB, kL}) {
    EXPECT_EQ(ShowZkxqh(Zkxqh(order, 2).First(104)), Notice("ZKXQH version 2") + Field("Version", "2") +
                                                         Field("RemoteQName", "REMOTE.QUEUE") +
                                                         Field("RemoteQMgrName", "REMOTE.MANAGER"));
  }
  EXPECT_EQ(ShowZkxqh(Zkxqh(kB, 0).First(104)), Field("Version", "0") + Field("RemoteQName", "REMOTE.QUEUE") +
                                                    Field("RemoteQMgrName", "REMOTE.MANAGER"));
}

TEST(TransmissionQueueHeader, FieldsStandAtTheirOffsets) {
  // 0x17 to 0x7E: the version is 1B 1C 1D 1E reversed.
  EXPECT_EQ(ShowZkxqh(MessageBytes().Ascending(0x17, 104).First(104)),
            Notice("ZKXQH version 505224219") + Field("Version", "505224219") +
                Field("RemoteQName", Characters(0x1F, 0x4E)) +
                Field("RemoteQMgrName", Characters(0x4F, 0x7E)));
}

TEST(TransmissionQueueHeader, ShortDumpReadsAsZero) {
  EXPECT_EQ(ShowZkxqh({}), Field("Version", "0") + Field("RemoteQName", "") + Field("RemoteQMgrName", ""));
  EXPECT_EQ(ShowZkxqh(Zkxqh(kB).First(14)),
            Field("Version", "1") + Field("RemoteQName", "REMOTE") + Field("RemoteQMgrName", ""));
}

struct HeaderResult {
  std::string report;
  FormatName nextFormat = {};
  std::uint32_t encoding;
  bool HandedNothingOn() const { return nextFormat == FormatName{} && encoding == 273; }
};

HeaderResult ShowHeader(void (*formatter)(RunContext&, FormatName&, std::uint32_t&, ByteView, std::int64_t),
                        const std::vector<std::uint8_t>& data, std::uint32_t encoding = 273,
                        std::int32_t limit = -1) {
  ReportCapture capture;
  capture.Context().maxParsedLength = limit;
  HeaderResult result;
  result.encoding = encoding;
  formatter(capture.Context(), result.nextFormat, result.encoding, ViewOf(data), 0);
  result.report = capture.Report();
  return result;
}

const std::string kZkmdeTitle = "|> ----- offset 0-71 (=x0-x47) length 72 (=x48) - ZKMDE (ZKMD extension)\n";
const std::string kZkdlhTitle =
    "|> ----- offset 0-171 (=x0-xAB) length 172 (=xAC) - ZKDLH (Dead-letter header)\n";

TEST(DescriptorExtension, Versions) {
  for (const ByteOrder order : {kB, kL}) {
    const auto encoding = static_cast<std::uint32_t>(EncodingOf(order));
    for (const std::int64_t version : {-1, 0, 1, 2}) {
      const HeaderResult result =
          ShowHeader(ShowParsedZKMDE, Zkmde(order, 546, "ZKSTR   ", version).First(72), encoding);
      EXPECT_EQ(result.report, kZkmdeTitle + Field("Version", std::to_string(version)) +
                                   ZkmdeFields(kReversed, "ZKSTR (String)"));
      EXPECT_TRUE(result.nextFormat == "ZKSTR   ");
      EXPECT_EQ(result.encoding, 546U);
    }
    EXPECT_EQ(ShowHeader(ShowParsedZKMDE, Zkmde(order, 546, "ZKSTR   ", 3).First(72), encoding).report,
              Notice("ZKMDE version 3") + kZkmdeTitle + Field("Version", "3") +
                  ZkmdeFields(kReversed, "ZKSTR (String)"));
  }
}

TEST(DescriptorExtension, UnknownMessageFlagsGiveNoNotice) {
  EXPECT_EQ(
      ShowHeader(ShowParsedZKMDE, Zkmde(kB, 273, "ZKSTR   ", 2, 0x41).First(72)).report,
      kZkmdeTitle + Field("Version", "2") + ZkmdeFields(kNative, "ZKSTR (String)", "SEGMENTATION_ALLOWED"));
  EXPECT_EQ(ShowHeader(ShowParsedZKMDE, Zkmde(kB, 273, "ZKSTR   ", 2, 0x40).First(72)).report,
            kZkmdeTitle + Field("Version", "2") + ZkmdeFields(kNative, "ZKSTR (String)", "(none)"));
}

TEST(DescriptorExtension, FieldsStandAtTheirOffsets) {
  const HeaderResult result = ShowHeader(ShowParsedZKMDE, MessageBytes().Ascending(0x21, 72).First(72));
  EXPECT_EQ(result.report,
            Notice("ZKMDE version 623257384") + kZkmdeTitle + Field("Version", "623257384") +
                Field("StrucLength", "690629420") + Field("Encoding", kUndefined) +
                Field("CodedCharSetId", "825373492 ((Unknown value))") + Field("Format", "56789:;<") +
                Field("Flags", "1027489600") +
                Field("GroupId",
                      "41424344 45464748 494A4B4C 4D4E4F50 51525354 55565758  [ABCDEFGHIJKLMNOPQRSTUVWX]") +
                Field("MsgSeqNumber", "1499093852") + Field("Offset", "1566465888") +
                Field("MsgFlags", "LAST_SEGMENT") + Field("OriginalLength", "1701209960"));
  EXPECT_TRUE(result.nextFormat == "56789:;<");
  EXPECT_EQ(result.encoding, 758001456U);
}

TEST(DescriptorExtension, ShortDataIsSilent) {
  const MessageBytes data = Zkmde(kB, 546, "ZKSTR   ");
  for (const std::size_t size : {0U, 1U, 71U}) {
    const HeaderResult result = ShowHeader(ShowParsedZKMDE, data.First(size));
    EXPECT_EQ(result.report, "");
    EXPECT_TRUE(result.HandedNothingOn());
  }
  const HeaderResult limited = ShowHeader(ShowParsedZKMDE, data.First(72), 273, 71);
  EXPECT_EQ(limited.report, "");
  EXPECT_TRUE(limited.HandedNothingOn());
}

TEST(DeadLetterHeader, Versions) {
  for (const ByteOrder order : {kB, kL}) {
    const auto encoding = static_cast<std::uint32_t>(EncodingOf(order));
    MessageBytes data = Zkdlh(order, 546, "ZKSTR   ");
    const HeaderResult result = ShowHeader(ShowParsedZKDLH, data.First(172), encoding);
    EXPECT_EQ(result.report, kZkdlhTitle + ZkdlhFields(kReversed, "ZKSTR (String)"));
    EXPECT_TRUE(result.nextFormat == "ZKSTR   ");
    EXPECT_EQ(result.encoding, 546U);

    data.bytes[order == kB ? 7 : 4] = 2;
    std::string fields = ZkdlhFields(kReversed, "ZKSTR (String)");
    fields.replace(0, Field("Version", "1").size(), Field("Version", "2"));
    EXPECT_EQ(ShowHeader(ShowParsedZKDLH, data.First(172), encoding).report,
              Notice("ZKDLH version 2") + kZkdlhTitle + fields);
  }
}

TEST(DeadLetterHeader, ReasonsAndApplicationTypes) {
  EXPECT_EQ(ShowHeader(ShowParsedZKDLH, Zkdlh(kB, 273, "ZKSTR   ", 0, 26).First(172)).report,
            kZkdlhTitle + ZkdlhFields(kNative, "ZKSTR (String)", "0", "BROKER"));
  EXPECT_EQ(ShowHeader(ShowParsedZKDLH, Zkdlh(kB, 273, "ZKSTR   ", 258, 12345).First(172)).report,
            kZkdlhTitle + ZkdlhFields(kNative, "ZKSTR (String)", "258 (ZKFB_EXPIRATION)", "12345"));
  EXPECT_EQ(ShowHeader(ShowParsedZKDLH, Zkdlh(kB, 273, "ZKSTR   ", -5, -987).First(172)).report,
            kZkdlhTitle + ZkdlhFields(kNative, "ZKSTR (String)", "-5 ((Unknown VZK Reason code))", "-987"));
}

TEST(DeadLetterHeader, FieldsStandAtTheirOffsets) {
  EXPECT_EQ(ShowHeader(ShowParsedZKDLH, MessageBytes().Ascending(0x21, 172).First(172)).report,
            Notice("ZKDLH version 623257384") + kZkdlhTitle + Field("Version", "623257384") +
                Field("Reason", "690629420 ((Unknown VZK Reason code))") +
                Field("DestQName", Characters(0x2D, 0x5C)) + Field("DestQMgrName", Characters(0x5D, 0x8C)) +
                Field("Encoding", "2374930320 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED") +
                Field("CodedCharSetId", "-1852664940 ((Unknown value))") + Field("Format", "........") +
                Field("PutApplType", "-1650548832") + Field("PutApplName", std::string(28, '.')) +
                Field("PutDate", "........") + Field("PutTime", "........"));
}

TEST(DeadLetterHeader, ShortDataIsSilent) {
  const MessageBytes data = Zkdlh(kB, 546, "ZKSTR   ");
  for (const std::size_t size : {0U, 100U, 171U}) {
    const HeaderResult result = ShowHeader(ShowParsedZKDLH, data.First(size));
    EXPECT_EQ(result.report, "");
    EXPECT_TRUE(result.HandedNothingOn());
  }
}

MessageBytes Zktm(ByteOrder order, std::int64_t version, std::int64_t applType) {
  MessageBytes tm(order);
  tm.Text("TM  ").Int(version).Text("TRIGGERED.QUEUE", 48).Text("PROCESS.NAME", 48).Text("trigger data", 64);
  return tm.Int(applType).Text("/bin/application", 256).Text("environment", 128).Text("user data", 128);
}

std::string ZktmFields(std::string_view version, std::string_view applType) {
  return Field("Version", version) + Field("QName", "TRIGGERED.QUEUE") +
         Field("ProcessName", "PROCESS.NAME") + Field("TriggerData", "trigger data") +
         Field("ApplType", applType) + Field("ApplId", "/bin/application") + Field("EnvData", "environment") +
         Field("UserData", "user data");
}

TEST(TriggerMessage, TitleSpansTheRestOfTheData) {
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kB, 1, 6)),
            "|> ----- offset 0-683 (=x0-x2AB) length 684 (=x2AC) - ZKTM (Trigger message)\n" +
                ZktmFields("1", "UNIX"));
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kL, 2, 26).Zeros(16), 546),
            Notice("ZKTM version 2") +
                "|> ----- offset 0-699 (=x0-x2BB) length 700 (=x2BC) - ZKTM (Trigger message)\n" +
                ZktmFields("2", "BROKER"));
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kB, 1, 6).Zeros(16).First(700), 273, 690),
            "|> ----- offset 0-689 (=x0-x2B1) length 690 (=x2B2) - ZKTM (Trigger message)\n" +
                ZktmFields("1", "UNIX"));
}

TEST(TriggerMessage, UnknownApplicationTypeShowsTheTablesText) {
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kB, 1, 12345)),
            "|> ----- offset 0-683 (=x0-x2AB) length 684 (=x2AC) - ZKTM (Trigger message)\n" +
                ZktmFields("1", "(Unknown value)"));
}

// Every four characters are the decimal offset at which they stand.
std::string OffsetDigits(int from, int to) {
  std::string digits;
  for (int offset = from; offset < to; offset += 4) {
    const std::string number = std::to_string(offset);
    digits += std::string(4 - number.size(), '0') + number;
  }
  return digits;
}

TEST(TriggerMessage, FieldsStandAtTheirOffsets) {
  // The version is the text "0004", the application type "0168".
  EXPECT_EQ(Walk("ZKTRIG  ", MessageBytes().Text(OffsetDigits(0, 684))),
            Notice("ZKTM version 808464436") +
                "|> ----- offset 0-683 (=x0-x2AB) length 684 (=x2AC) - ZKTM (Trigger message)\n" +
                Field("Version", "808464436") + Field("QName", OffsetDigits(8, 56)) +
                Field("ProcessName", OffsetDigits(56, 104)) + Field("TriggerData", OffsetDigits(104, 168)) +
                Field("ApplType", "(Unknown value)") + Field("ApplId", OffsetDigits(172, 428)) +
                Field("EnvData", OffsetDigits(428, 556)) + Field("UserData", OffsetDigits(556, 684)));
}

TEST(TriggerMessage, ShortDataIsSilent) {
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kB, 2, 6).First(683)), "");
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kB, 2, 6).First(684), 273, 683), "");
  EXPECT_EQ(Walk("ZKTRIG  ", Zktm(kB, 2, 6).First(0)), "");
}

}  // namespace
}  // namespace quillon
