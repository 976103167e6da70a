#include <gtest/gtest.h>

#include <string>

#include "message_bytes.h"
#include "msgdata/formatters.h"
#include "report_capture.h"

namespace quillon {
namespace {

constexpr char kReversed[] = "546 INTEGER_REVERSED / DECIMAL_REVERSED / FLOAT_IEEE_REVERSED";
constexpr char kUndefined[] = "758001456 INTEGER_UNDEFINED / DECIMAL_UNDEFINED / FLOAT_UNDEFINED";

using HeaderFormatter = std::int64_t (*)(RunContext&, FormatName&, std::uint32_t&, ByteView, std::int64_t);

// One call with what it hands back.
struct HeaderResult {
  std::string report;
  std::string terminal;
  std::int64_t advance;
  FormatName nextFormat = {};
  std::uint32_t encoding;
  bool HandedOn() const { return nextFormat == "ZKSTR   " && encoding == 546; }
  bool HandedNothingOn() const { return nextFormat == FormatName{} && encoding == 273; }
};

HeaderResult ShowHeader(HeaderFormatter formatter, const std::vector<std::uint8_t>& data,
                        std::int64_t offset = 0, std::uint32_t encoding = 273, std::int32_t limit = -1) {
  ReportCapture capture;
  capture.Context().maxParsedLength = limit;
  HeaderResult result;
  result.encoding = encoding;
  result.advance = formatter(capture.Context(), result.nextFormat, result.encoding, ViewOf(data), offset);
  result.report = capture.Report();
  result.terminal = capture.Terminal();
  return result;
}

struct Distribution {
  std::int64_t strucLength = 48;
  std::int64_t fields = 0;
  std::int64_t records = 0;
  std::int64_t objectRecOffset = 0;
  std::int64_t putMsgRecOffset = 0;
};

MessageBytes Zkdh(const Distribution& values, ByteOrder order = ByteOrder::Big) {
  MessageBytes header(order);
  header.Text("DH  ").Int(1).Int(values.strucLength).Int(546).Int(819).Text("ZKSTR   ").Int(1);
  return header.Int(values.fields)
      .Int(values.records)
      .Int(values.objectRecOffset)
      .Int(values.putMsgRecOffset);
}

std::string ZkdhFields(std::string_view strucLength, std::string_view fields, std::string_view records) {
  return Field("Version", "1") + Field("StrucLength", strucLength) + Field("Encoding", kReversed) +
         Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", "ZKSTR (String)") +
         Field("Flags", "NEW_MSG_IDS") + Field("PutMsgRecFields", fields) + Field("RecsPresent", records);
}

const std::string kZkdh48 = "|> ----- offset 0-47 (=x0-x2F) length 48 (=x30) - ZKDH (Distribution header)\n";

std::string ObjectRecords() {
  return Field("ObjectName", "QUEUE.ONE") + Field("ObjectQMgrName", "MANAGER.1") +
         Field("ObjectName", "QUEUE.TWO") + Field("ObjectQMgrName", "MANAGER.2");
}

void AddObjectRecords(MessageBytes& data) {
  data.Text("QUEUE.ONE", 48).Text("MANAGER.1", 48).Text("QUEUE.TWO", 48).Text("MANAGER.2", 48);
}

TEST(DistributionHeader, ShowsObjectRecordsThatArePresent) {
  MessageBytes data = Zkdh({.records = 2, .objectRecOffset = 48});
  AddObjectRecords(data);
  const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(240));
  EXPECT_EQ(result.report,
            kZkdh48 + ZkdhFields("48", "(none)", "2") +
                "|> ----- offset 48-239 (=x30-xEF) length 192 (=xC0) - ZKDH -> ZKOR (Object record)\n" +
                ObjectRecords());
  EXPECT_EQ(result.advance, 240);
  EXPECT_TRUE(result.HandedOn());
}

TEST(DistributionHeader, LeavesOutRecordsThatAreNotPresent) {
  MessageBytes data = Zkdh({.records = 2, .objectRecOffset = 48});
  AddObjectRecords(data);
  for (const std::size_t size : {48U, 200U, 239U}) {
    const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(size));
    EXPECT_EQ(result.report, kZkdh48 + ZkdhFields("48", "(none)", "2"));
    EXPECT_EQ(result.advance, 240);
    EXPECT_TRUE(result.HandedOn());
  }
}

TEST(DistributionHeader, AdvancesByItsLengthWithoutRecords) {
  for (const std::int64_t records : {0LL, -1LL, -0x80000000LL}) {
    MessageBytes data = Zkdh(
        {.strucLength = 60, .fields = 1, .records = records, .objectRecOffset = 48, .putMsgRecOffset = 48});
    AddObjectRecords(data);
    const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(240));
    EXPECT_EQ(result.report,
              "|> ----- offset 0-59 (=x0-x3B) length 60 (=x3C) - ZKDH (Distribution header)\n" +
                  ZkdhFields("60", "MSG_ID", std::to_string(records)));
    EXPECT_EQ(result.advance, 60);
    EXPECT_TRUE(result.HandedOn());
  }
}

TEST(DistributionHeader, ShowsBothArraysReversedAtAnOffset) {
  // 48 + 2 * 96 = 240; records of 24 + 4 bytes up to 296.
  MessageBytes data =
      Zkdh({.strucLength = 296, .fields = 9, .records = 2, .objectRecOffset = 48, .putMsgRecOffset = 240},
           ByteOrder::Little);
  AddObjectRecords(data);
  data.Text("MESSAGE.ID.ONE..........").Int(256).Text("MESSAGE.ID.TWO..........").Int(0);
  const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(296), 428, 2);
  // The feedback codes are read as stored: 00 01 00 00 is 65536.
  EXPECT_EQ(
      result.report,
      "|> ----- offset 428-723 (=x1AC-x2D3) length 296 (=x128) - ZKDH (Distribution header)\n" +
          ZkdhFields("296", "MSG_ID / FEEDBACK", "2") +
          "|> ----- offset 476-667 (=x1DC-x29B) length 192 (=xC0) - ZKDH -> ZKOR (Object record)\n" +
          ObjectRecords() +
          "|> ----- offset 668-723 (=x29C-x2D3) length 56 (=x38) - ZKDH -> ZKPMR (Put message record)\n" +
          Field("MsgId",
                "4D455353 4147452E 49442E4F 4E452E2E 2E2E2E2E 2E2E2E2E  [MESSAGE.ID.ONE..........]") +
          Field("Feedback", "65536") +
          Field("MsgId",
                "4D455353 4147452E 49442E54 574F2E2E 2E2E2E2E 2E2E2E2E  [MESSAGE.ID.TWO..........]") +
          Field("Feedback", "0"));
  EXPECT_EQ(result.advance, 296);
  EXPECT_TRUE(result.HandedOn());
}

TEST(DistributionHeader, PutMessageRecordsNeedTheObjectRecordsToo) {
  // The put-message records stand first, at 48; the object records need 56 + 192 = 248 bytes.
  MessageBytes data =
      Zkdh({.strucLength = 48, .fields = 8, .records = 2, .objectRecOffset = 56, .putMsgRecOffset = 48});
  data.Int(1).Int(2);
  AddObjectRecords(data);
  HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(247));
  EXPECT_EQ(result.report, kZkdh48 + ZkdhFields("48", "FEEDBACK", "2"));
  EXPECT_EQ(result.advance, 248);

  result = ShowHeader(ShowParsedZKDH, data.First(248));
  EXPECT_EQ(result.report,
            kZkdh48 + ZkdhFields("48", "FEEDBACK", "2") +
                "|> ----- offset 56-247 (=x38-xF7) length 192 (=xC0) - ZKDH -> ZKOR (Object record)\n" +
                ObjectRecords() +
                "|> ----- offset 48-55 (=x30-x37) length 8 (=x8) - ZKDH -> ZKPMR (Put message record)\n" +
                Field("Feedback", "1") + Field("Feedback", "2"));
  EXPECT_EQ(result.advance, 248);
}

TEST(DistributionHeader, ObjectRecordsMayStandAlone) {
  // The object records fit in 240 bytes; the put-message records behind them need 240 + 2 * 32.
  MessageBytes data =
      Zkdh({.strucLength = 48, .fields = 16, .records = 2, .objectRecOffset = 48, .putMsgRecOffset = 240});
  AddObjectRecords(data);
  const HeaderResult result = ShowHeader(ShowParsedZKDH, data.Zeros(63).First(303));
  EXPECT_EQ(result.report,
            kZkdh48 + ZkdhFields("48", "ACCOUNTING_TOKEN", "2") +
                "|> ----- offset 48-239 (=x30-xEF) length 192 (=xC0) - ZKDH -> ZKOR (Object record)\n" +
                ObjectRecords());
  EXPECT_EQ(result.advance, 304);
}

TEST(DistributionHeader, OffsetsOfZeroOrLessNameNoRecords) {
  for (const std::int64_t offset : {0LL, -1LL}) {
    MessageBytes data =
        Zkdh({.fields = 1, .records = 2, .objectRecOffset = offset, .putMsgRecOffset = offset});
    AddObjectRecords(data);
    const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(240));
    EXPECT_EQ(result.report, kZkdh48 + ZkdhFields("48", "MSG_ID", "2"));
    EXPECT_EQ(result.advance, 48);
  }
}

TEST(DistributionHeader, UnknownRecordFieldsGiveNoticesButNoRecords) {
  MessageBytes data = Zkdh({.fields = 0x20, .records = 1, .putMsgRecOffset = 48});
  const HeaderResult result = ShowHeader(ShowParsedZKDH, data.Zeros(24).First(72));
  EXPECT_EQ(result.report,
            kZkdh48 + Field("Version", "1") + Field("StrucLength", "48") + Field("Encoding", kReversed) +
                Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") + Field("Format", "ZKSTR (String)") +
                Field("Flags", "NEW_MSG_IDS") + Field("PutMsgRecFields", "(none)") +
                Notice("PutMsgRecFields 0x00000020") + Field("RecsPresent", "1"));
  EXPECT_EQ(result.advance, 48);
}

TEST(DistributionHeader, FieldsStandAtTheirOffsets) {
  const HeaderResult result = ShowHeader(ShowParsedZKDH, MessageBytes().Ascending(0x21, 48).First(48));
  EXPECT_EQ(result.report, Notice("ZKDH version 623257384") +
                               "|> ----- offset 0-690629419 (=x0-x292A2B2B) length 690629420 (=x292A2B2C) - "
                               "ZKDH (Distribution header)\n" +
                               Field("Version", "623257384") + Field("StrucLength", "690629420") +
                               Field("Encoding", kUndefined) +
                               Field("CodedCharSetId", "825373492 ((Unknown value))") +
                               Field("Format", "56789:;<") + Field("Flags", "(none)") +
                               Notice("ZKDH - ZKDHF_... 0x3D3E3F40") + Field("PutMsgRecFields", "GROUP_ID") +
                               Notice("PutMsgRecFields 0x41424344") + Field("RecsPresent", "1162233672"));
  // 1229605708 + 96 * 1162233672, beyond 32 bits
  EXPECT_EQ(result.advance, 112804038220);
  EXPECT_EQ(result.encoding, 758001456U);
  EXPECT_TRUE(result.nextFormat == "56789:;<");
  EXPECT_NE(result.terminal.find("Unknown API structure : ZKDH version 623257384"), std::string::npos);
}

TEST(DistributionHeader, ShortDataIsSilent) {
  const MessageBytes data = Zkdh({});
  for (const std::size_t size : {0U, 1U, 47U}) {
    const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(size));
    EXPECT_EQ(result.report, "");
    EXPECT_EQ(result.advance, 0);
    EXPECT_TRUE(result.HandedNothingOn());
  }
  const HeaderResult limited = ShowHeader(ShowParsedZKDH, data.First(48), 0, 273, 47);
  EXPECT_EQ(limited.report, "");
  EXPECT_TRUE(limited.HandedNothingOn());
}

TEST(DistributionHeader, LimitOnParsedDataHidesRecords) {
  MessageBytes data = Zkdh({.records = 2, .objectRecOffset = 48});
  AddObjectRecords(data);
  const HeaderResult result = ShowHeader(ShowParsedZKDH, data.First(240), 0, 273, 239);
  EXPECT_EQ(result.report, kZkdh48 + ZkdhFields("48", "(none)", "2"));
  EXPECT_EQ(result.advance, 240);
}

struct Item {
  std::int64_t length = 0;
  std::int64_t offset = 0;
};

MessageBytes Zkrmh(std::int64_t strucLength, Item srcEnv, Item srcName, Item destEnv, Item destName,
                   ByteOrder order = ByteOrder::Big) {
  MessageBytes header(order);
  header.Text("RMH ").Int(1).Int(strucLength).Int(546).Int(819).Text("ZKSTR   ").Int(1);
  header.Text("FLATFILE").Text("INSTANCE.IDENTIFIER.....");
  for (const Item& item : {srcEnv, srcName, destEnv, destName}) header.Int(item.length).Int(item.offset);
  return header.Int(1001).Int(1002).Int(1003);
}

std::string ZkrmhReport(std::string_view title, std::string_view strucLength, std::string_view items) {
  return std::string(title) + Field("Version", "1") + Field("StrucLength", strucLength) +
         Field("Encoding", kReversed) + Field("CodedCharSetId", "819 (ISO 8859-1 ASCII)") +
         Field("Format", "ZKSTR (String)") + Field("Flags", "LAST") + Field("ObjectType", "FLATFILE") +
         Field("ObjectInstanceId",
               "494E5354 414E4345 2E494445 4E544946 4945522E 2E2E2E2E  [INSTANCE.IDENTIFIER.....]") +
         std::string(items) + Field("DataLogicalLength", "1001") + Field("DataLogicalOffset", "1002") +
         Field("DataLogicalOffset2", "1003");
}

TEST(ReferenceHeader, ShowsItemsOfEveryLength) {
  // 108 + 4 + 32 + 33 = 177 bytes
  for (const ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
    MessageBytes data = Zkrmh(177, {4, 108}, {32, 112}, {33, 144}, {5, 0}, order);
    data.Text("env1").Text("/data/source/file-of-32-bytes.tx").Text("/data/destination/of/33/bytes.txt");
    const HeaderResult result =
        ShowHeader(ShowParsedZKRMH, data.First(177), 0, order == ByteOrder::Big ? 273U : 546U);
    EXPECT_EQ(
        result.report,
        ZkrmhReport("|> ----- offset 0-176 (=x0-xB0) length 177 (=xB1) - ZKRMH (Reference message header)\n",
                    "177",
                    Field("source environment data", "656E7631  [env1]") +
                        Field("source object name",
                              "2F646174 612F736F 75726365 2F66696C 652D6F66 2D33322D 62797465 732E7478  "
                              "[/data/source/file-of-32-bytes.tx]") +
                        Field("dest environment data", "") +
                        "|>     00000000:2F646174 612F6465 7374696E 6174696F  [/data/destinatio]\n"
                        "|>     00000010:6E2F6F66 2F33332F 62797465 732E7478  [n/of/33/bytes.tx]\n"
                        "|>     00000020:74                                   [t]\n" +
                        Field("dest object name", "(none)")));
    EXPECT_EQ(result.advance, 177);
    EXPECT_TRUE(result.HandedOn());
  }
}

TEST(ReferenceHeader, ItemsOutsideTheDataAreNotShown) {
  MessageBytes data = Zkrmh(112, {5, 108}, {4, 109}, {0x7FFFFFFF, 0x7FFFFFFF}, {4, 108});
  const HeaderResult result = ShowHeader(ShowParsedZKRMH, data.Text("last").First(112), 16);
  EXPECT_EQ(
      result.report,
      ZkrmhReport(
          "|> ----- offset 16-127 (=x10-x7F) length 112 (=x70) - ZKRMH (Reference message header)\n", "112",
          Field("source environment data", " ...") + Field("source object name", " ...") +
              Field("dest environment data", " ...") + Field("dest object name", "6C617374  [last]")));
}

TEST(ReferenceHeader, ItemsWithoutLengthOrOffsetAreNone) {
  const MessageBytes data = Zkrmh(108, {0, 4}, {4, 0}, {-1, 4}, {4, -1});
  EXPECT_EQ(
      ShowHeader(ShowParsedZKRMH, data.First(108)).report,
      ZkrmhReport("|> ----- offset 0-107 (=x0-x6B) length 108 (=x6C) - ZKRMH (Reference message header)\n",
                  "108",
                  Field("source environment data", "(none)") + Field("source object name", "(none)") +
                      Field("dest environment data", "(none)") + Field("dest object name", "(none)")));
}

TEST(ReferenceHeader, ItemsOfZerosAreNull) {
  // 33 zero bytes at 108 do not become a dump; an item may point into the header itself.
  MessageBytes data = Zkrmh(141, {4, 108}, {33, 108}, {4, 0x20}, {8, 0x20});
  EXPECT_EQ(
      ShowHeader(ShowParsedZKRMH, data.Zeros(33).First(141)).report,
      ZkrmhReport("|> ----- offset 0-140 (=x0-x8C) length 141 (=x8D) - ZKRMH (Reference message header)\n",
                  "141",
                  Field("source environment data", "(null)") + Field("source object name", "(null)") +
                      Field("dest environment data", "464C4154  [FLAT]") +
                      Field("dest object name", "464C4154 46494C45  [FLATFILE]")));
}

TEST(ReferenceHeader, LimitOnParsedDataBoundsTheItems) {
  MessageBytes data = Zkrmh(112, {4, 108}, {3, 108}, {}, {});
  const HeaderResult result = ShowHeader(ShowParsedZKRMH, data.Text("last").First(112), 0, 273, 111);
  EXPECT_EQ(
      result.report,
      ZkrmhReport("|> ----- offset 0-111 (=x0-x6F) length 112 (=x70) - ZKRMH (Reference message header)\n",
                  "112",
                  Field("source environment data", " ...") + Field("source object name", "6C6173  [las]") +
                      Field("dest environment data", "(none)") + Field("dest object name", "(none)")));
  EXPECT_EQ(result.advance, 112);
}

TEST(ReferenceHeader, FieldsStandAtTheirOffsets) {
  const HeaderResult result = ShowHeader(ShowParsedZKRMH, MessageBytes().Ascending(0x21, 108).First(108));
  EXPECT_EQ(result.report,
            Notice("ZKRMH version 623257384") +
                "|> ----- offset 0-690629419 (=x0-x292A2B2B) length 690629420 (=x292A2B2C) - "
                "ZKRMH (Reference message header)\n" +
                Field("Version", "623257384") + Field("StrucLength", "690629420") +
                Field("Encoding", kUndefined) + Field("CodedCharSetId", "825373492 ((Unknown value))") +
                Field("Format", "56789:;<") + Field("Flags", "(none)") +
                Notice("ZKRMH - ZKRMHF_... 0x3D3E3F40") + Field("ObjectType", "ABCDEFGH") +
                Field("ObjectInstanceId",
                      "494A4B4C 4D4E4F50 51525354 55565758 595A5B5C 5D5E5F60  [IJKLMNOPQRSTUVWXYZ[\\]^_`]") +
                Field("source environment data", " ...") + Field("source object name", " ...") +
                Field("dest environment data", " ...") + Field("dest object name", " ...") +
                Field("DataLogicalLength", "-2122153084") + Field("DataLogicalOffset", "-2054781048") +
                Field("DataLogicalOffset2", "-1987409012"));
  EXPECT_EQ(result.advance, 690629420);
  EXPECT_NE(result.terminal.find("Unknown API structure : ZKRMH version 623257384"), std::string::npos);
}

TEST(ReferenceHeader, ItemsTakeTheirOwnLengthAndOffset) {
  // Every item has a length and an offset of its own.
  MessageBytes data = Zkrmh(118, {1, 108}, {2, 109}, {3, 111}, {4, 114});
  EXPECT_EQ(
      ShowHeader(ShowParsedZKRMH, data.Text("abbcccdddd").First(118)).report,
      ZkrmhReport("|> ----- offset 0-117 (=x0-x75) length 118 (=x76) - ZKRMH (Reference message header)\n",
                  "118",
                  Field("source environment data", "61  [a]") + Field("source object name", "6262  [bb]") +
                      Field("dest environment data", "636363  [ccc]") +
                      Field("dest object name", "64646464  [dddd]")));
}

TEST(ReferenceHeader, ShortDataIsSilent) {
  const MessageBytes data = Zkrmh(108, {}, {}, {}, {});
  for (const std::size_t size : {0U, 1U, 107U}) {
    const HeaderResult result = ShowHeader(ShowParsedZKRMH, data.First(size));
    EXPECT_EQ(result.report, "");
    EXPECT_EQ(result.advance, 0);
    EXPECT_TRUE(result.HandedNothingOn());
  }
}

TEST(ReferenceHeader, AdvancesByItsLengthWhateverItIs) {
  for (const std::int64_t strucLength : {0LL, 1000LL, -1LL}) {
    const HeaderResult result = ShowHeader(ShowParsedZKRMH, Zkrmh(strucLength, {}, {}, {}, {}).First(108));
    EXPECT_EQ(result.advance, strucLength);
    EXPECT_TRUE(result.HandedOn());
  }
}

MessageBytes Zkeph(std::int64_t version, std::int64_t flags, ByteOrder order = ByteOrder::Big) {
  MessageBytes header(order);
  return header.Text("EPH ").Int(version).Int(68).Int(546).Int(0).Text("ZKADMIN ").Int(flags);
}

std::string ZkephFields(std::string_view version, std::string_view flags) {
  return Field("Version", version) + Field("StrucLength", "68") + Field("Encoding", kReversed) +
         Field("CodedCharSetId", "0 (default / queue_manager)") +
         Field("Format", "ZKADMIN (PCF - Administration)") + Field("Flags", flags);
}

std::string ShowZkeph(const std::vector<std::uint8_t>& data, std::int64_t offset, std::uint32_t encoding,
                      std::int32_t limit = -1) {
  ReportCapture capture;
  capture.Context().maxParsedLength = limit;
  ShowParsedZKEPH(capture.Context(), encoding, ViewOf(data), offset);
  return capture.Report();
}

TEST(EmbeddedPcfHeader, NamesItsFlags) {
  const std::string title = "|> ----- offset 0-67 (=x0-x43) length 68 (=x44) - ZKEPH (Embedded PCF header)\n";
  EXPECT_EQ(ShowZkeph(Zkeph(1, 1).Zeros(36).First(68), 0, 273), title + ZkephFields("1", "ccsid embedded"));
  EXPECT_EQ(ShowZkeph(Zkeph(1, 0).Zeros(36).First(68), 0, 273), title + ZkephFields("1", "(none)"));
  EXPECT_EQ(ShowZkeph(Zkeph(1, 2).Zeros(36).First(68), 0, 273), title + ZkephFields("1", "(Unknown value)"));
}

TEST(EmbeddedPcfHeader, TitleSpansTheRestOfTheData) {
  EXPECT_EQ(ShowZkeph(Zkeph(2, 1, ByteOrder::Little).Zeros(68).First(100), 28, 546),
            Notice("ZKEPH version 2") +
                "|> ----- offset 28-127 (=x1C-x7F) length 100 (=x64) - ZKEPH (Embedded PCF header)\n" +
                ZkephFields("2", "ccsid embedded"));
  EXPECT_EQ(ShowZkeph(Zkeph(1, 1).Zeros(68).First(100), 28, 273, 70),
            "|> ----- offset 28-97 (=x1C-x61) length 70 (=x46) - ZKEPH (Embedded PCF header)\n" +
                ZkephFields("1", "ccsid embedded"));
}

TEST(EmbeddedPcfHeader, FieldsStandAtTheirOffsets) {
  EXPECT_EQ(ShowZkeph(MessageBytes().Ascending(0x21, 68).First(68), 0, 273),
            Notice("ZKEPH version 623257384") +
                "|> ----- offset 0-67 (=x0-x43) length 68 (=x44) - ZKEPH (Embedded PCF header)\n" +
                Field("Version", "623257384") + Field("StrucLength", "690629420") +
                Field("Encoding", kUndefined) + Field("CodedCharSetId", "825373492 ((Unknown value))") +
                Field("Format", "56789:;<") + Field("Flags", "(Unknown value)"));
}

TEST(EmbeddedPcfHeader, ShortDataIsSilent) {
  const MessageBytes data = Zkeph(2, 1).Zeros(36);
  for (const std::size_t size : {0U, 32U, 67U}) EXPECT_EQ(ShowZkeph(data.First(size), 0, 273), "");
  EXPECT_EQ(ShowZkeph(data.First(68), 0, 273, 67), "");
}

}  // namespace
}  // namespace quillon
