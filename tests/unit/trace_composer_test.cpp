// The composers of traces, structures and messages: what they write must be right by itself, because tests
// and benchmarks of the program are built on it.

#include "bench/trace_composer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/example_stories.h"
#include "bench/message_composer.h"
#include "bench/message_composer_pcf.h"
#include "bench/message_composer_text.h"
#include "bench/message_maker.h"
#include "bench/split_mix.h"
#include "bench/structure_composer.h"
#include "bench/trace_stories.h"

namespace quillon::compose {
namespace {

Bytes Filled(std::size_t count, std::uint8_t value) {
  return Bytes(count, value);
}

Bytes Joined(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

/// The big-endian word at an offset.
std::uint32_t Word(const Bytes& bytes, std::size_t offset) {
  return static_cast<std::uint32_t>(bytes.at(offset)) << 24 |
         static_cast<std::uint32_t>(bytes.at(offset + 1)) << 16 |
         static_cast<std::uint32_t>(bytes.at(offset + 2)) << 8 |
         static_cast<std::uint32_t>(bytes.at(offset + 3));
}

std::string TextAt(const Bytes& bytes, std::size_t offset, std::size_t width) {
  if (offset + width > bytes.size()) return "(beyond the end)";
  const auto start = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
  return {start, start + static_cast<std::ptrdiff_t>(width)};
}

/// A text field: the value and blanks up to its width.
void ExpectText(const Bytes& bytes, std::size_t offset, std::size_t width, std::string_view value) {
  std::string field(value);
  field.resize(width, ' ');
  EXPECT_EQ(TextAt(bytes, offset, width), field) << "at offset " << offset;
}

/// A byte field: the value and zeros up to its width.
void ExpectOpaque(const Bytes& bytes, std::size_t offset, std::size_t width, std::string_view value) {
  std::string field(value);
  field.resize(width, '\0');
  EXPECT_EQ(TextAt(bytes, offset, width), field) << "at offset " << offset;
}

void ExpectWord(const Bytes& bytes, std::size_t offset, std::uint32_t value) {
  ASSERT_LE(offset + 4, bytes.size());
  EXPECT_EQ(Word(bytes, offset), value) << "at offset " << offset;
}

// ---- Dumps

TEST(TraceComposer, OneByteDump) {
  EXPECT_EQ(DumpText({0x41}), "00000000:41                                   [A]\n");
}

TEST(TraceComposer, EmptyDumpHasNoLines) {
  EXPECT_EQ(DumpText({}), "");
}

TEST(TraceComposer, GroupsOfFourBytes) {
  EXPECT_EQ(DumpText({1, 2, 3, 4, 5}), "00000000:01020304 05                          [.....]\n");
  EXPECT_EQ(DumpText(Filled(16, 0xAB)), "00000000:ABABABAB ABABABAB ABABABAB ABABABAB  [................]\n");
}

TEST(TraceComposer, ShortLastLineKeepsTheImageColumn) {
  EXPECT_EQ(DumpText(BytesOf("/prices/metal/copper")),
            "00000000:2F707269 6365732F 6D657461 6C2F636F  [/prices/metal/co]\n"
            "00000010:70706572                             [pper]\n");
}

TEST(TraceComposer, ImageShowsPrintableAsciiOnly) {
  EXPECT_EQ(DumpText({0x1F, 0x20, 0x5B, 0x7E, 0x7F, 0x80, 0xFF}),
            "00000000:1F205B7E 7F80FF                      [. [~...]\n");
}

TEST(TraceComposer, RepeatRunEndsBeforeADifferentLine) {
  const Bytes bytes = Joined({Filled(64, 0x20), Filled(16, 0x00)});
  EXPECT_EQ(DumpText(bytes),
            "00000000:20202020 20202020 20202020 20202020  [                ]\n"
            "00000010-0000003F same as above\n"
            "00000040:00000000 00000000 00000000 00000000  [................]\n");
}

TEST(TraceComposer, LastLineIsWrittenEvenWhenItRepeats) {
  EXPECT_EQ(DumpText(Filled(32, 0)),
            "00000000:00000000 00000000 00000000 00000000  [................]\n"
            "00000010:00000000 00000000 00000000 00000000  [................]\n");
  EXPECT_EQ(DumpText(Filled(48, 0)),
            "00000000:00000000 00000000 00000000 00000000  [................]\n"
            "00000010-0000001F same as above\n"
            "00000020:00000000 00000000 00000000 00000000  [................]\n");
}

TEST(TraceComposer, ShortLastLineBehindARepeat) {
  EXPECT_EQ(DumpText(Filled(50, 0x41)),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000002F same as above\n"
            "00000030:4141                                 [AA]\n");
}

TEST(TraceComposer, TwoRunsOfRepeats) {
  const Bytes bytes = Joined({Filled(48, 0x41), Filled(48, 0x42), Filled(1, 0x43)});
  EXPECT_EQ(DumpText(bytes),
            "00000000:41414141 41414141 41414141 41414141  [AAAAAAAAAAAAAAAA]\n"
            "00000010-0000002F same as above\n"
            "00000030:42424242 42424242 42424242 42424242  [BBBBBBBBBBBBBBBB]\n"
            "00000040-0000005F same as above\n"
            "00000060:43                                   [C]\n");
}

TEST(TraceComposer, DataNameLines) {
  EXPECT_EQ(DataNameLine("MD", 364), "MD        :(364 = 0x16C bytes)\n");
  EXPECT_EQ(DataNameLine("CNO->SCO->AIR", 320), "CNO->SCO->AIR:(320 = 0x140 bytes)\n");
  EXPECT_EQ(DataNameLine("Buffer", 12), "Buffer    :(12 = 0xC bytes)\n");
  EXPECT_EQ(DataNameLine("Variable-SubUserData", 0), "Variable-SubUserData:(0 = 0x0 bytes)\n");
}

// ---- Sections

TEST(TraceComposer, Section) {
  TraceComposer trace;
  trace.now = std::chrono::sys_days(std::chrono::year(2024) / 2 / 29) + std::chrono::hours(23) +
              std::chrono::minutes(59) + std::chrono::seconds(8) + std::chrono::microseconds(20034);
  trace.processId = 4711;
  trace.BeginSection("ZKOPEN", Phase::After);
  trace.Outcome(2, 2085);
  trace.Hex("Hobj", 0xFFFFFFFF);
  trace.Text("QMgrName", "DEPOT1");
  trace.VariableItem("ObjectString", "/a");
  EXPECT_EQ(trace.PutDate(), "20240229");
  EXPECT_EQ(trace.PutTime(), "23590802");
  trace.EndSection();
  EXPECT_EQ(trace.text,
            "<ZKOPEN\n(AFTER\n2024/02/29 23:59:08.020034  Pid 4711  Tid 1\n"
            "CompCode:2\nReason:2085\nHobj:0xFFFFFFFF\nQMgrName:DEPOT1\n"
            "Variable-ObjectString:(2 = 0x2 bytes)\n"
            "00000000:2F61                                 [/a]\n"
            "--------------------------------------------------------------------------------\n");
}

TEST(TraceComposer, TimeRunsOverMidnight) {
  TraceComposer trace;
  trace.now = std::chrono::sys_days(std::chrono::year(2023) / 12 / 31) + std::chrono::hours(23);
  trace.Advance(3'600'000'001);
  EXPECT_EQ(trace.PutDate(), "20240101");
  trace.BeginSection("ZKCMIT", Phase::Before);
  EXPECT_EQ(trace.text, "<ZKCMIT\n(BEFORE\n2024/01/01 00:00:00.000001  Pid 38187  Tid 1\n");
}

TEST(TraceComposer, Header) {
  TraceComposer trace;
  trace.Header({.programName = "/bin/p", .addressingMode = "64-bit", .operatingSystem = "Plan"});
  const std::string rule = "|" + std::string(96, '-') + "\n";
  EXPECT_EQ(trace.text, rule +
                            "|\n|   ZK API trace\n|\n|  Program name       : /bin/p\n"
                            "|  Addressing mode    : 64-bit\n|  Operating system   : Plan\n"
                            "|  Process id          : 38187\n"
                            "|  Start time          : 2024/05/14 07:00:00.000000\n|\n" +
                            rule);
}

TEST(TraceComposer, SinkTakesEachSection) {
  TraceComposer trace;
  std::vector<std::string> sections;
  trace.sectionSink = [&](const std::string& section) { sections.push_back(section); };
  trace.Line("first");
  trace.EndSection();
  trace.Line("second");
  trace.EndSection();
  const std::string end = std::string(80, '-') + "\n";
  EXPECT_EQ(sections, (std::vector<std::string>{"first\n" + end, "second\n" + end}));
  EXPECT_EQ(trace.text, "");
}

// ---- Lengths of structures

TEST(StructureComposer, LengthsByVersion) {
  for (const auto& [version, length] : std::map<int, std::size_t>{{0, 324}, {1, 324}, {2, 364}, {3, 364}}) {
    MessageDescriptor fields;
    fields.version = version;
    EXPECT_EQ(ComposeMessageDescriptor(fields).size(), length) << version;
  }
  for (const auto& [version, length] :
       std::map<int, std::size_t>{{1, 168}, {2, 200}, {3, 336}, {4, 400}, {5, 400}}) {
    ObjectDescriptor fields;
    fields.version = version;
    EXPECT_EQ(ComposeObjectDescriptor(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 72}, {2, 80}, {3, 100}, {4, 112}}) {
    GetOptions fields;
    fields.version = version;
    EXPECT_EQ(ComposeGetOptions(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 128}, {2, 152}, {3, 176}}) {
    PutOptions fields;
    fields.version = version;
    EXPECT_EQ(ComposePutOptions(fields).size(), length) << version;
  }
  for (const auto& [version, length] :
       std::map<int, std::size_t>{{1, 12}, {2, 20}, {3, 148}, {4, 156}, {5, 188}}) {
    ConnectionOptions fields;
    fields.version = version;
    EXPECT_EQ(ComposeConnectionOptions(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 532}, {2, 540}, {3, 556}, {4, 560}}) {
    TlsOptions fields;
    fields.version = version;
    EXPECT_EQ(ComposeTlsOptions(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 320}, {2, 576}}) {
    AuthenticationRecord fields;
    fields.version = version;
    EXPECT_EQ(ComposeAuthenticationRecord(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 984},
                                                                  {2, 1312},
                                                                  {3, 1480},
                                                                  {4, 1540},
                                                                  {5, 1552},
                                                                  {6, 1648},
                                                                  {7, 1748},
                                                                  {8, 1840},
                                                                  {9, 1864},
                                                                  {10, 1876},
                                                                  {12, 1876}}) {
    ChannelDefinition fields;
    fields.version = version;
    EXPECT_EQ(ComposeChannelDefinition(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 224}, {2, 272}}) {
    StatusStructure fields;
    fields.version = version;
    EXPECT_EQ(ComposeStatusStructure(fields).size(), length) << version;
  }
  for (const auto& [version, length] : std::map<int, std::size_t>{{1, 48}, {2, 52}}) {
    CallbackContext fields;
    fields.version = version;
    EXPECT_EQ(ComposeCallbackContext(fields).size(), length) << version;
  }
  EXPECT_EQ(ComposeSecurityParameters(SecurityParameters{}).size(), 48U);
  EXPECT_EQ(ComposeSubscriptionDescriptor({}).size(), 312U);
  EXPECT_EQ(ComposeSubscriptionRequestOptions({}).size(), 16U);
  EXPECT_EQ(ComposeCallbackDescriptor({}).size(), 156U);
  EXPECT_EQ(ComposeControlOptions({}).size(), 20U);
  EXPECT_EQ(ComposeObjectRecords({{"A", "B"}, {"C", "D"}}).size(), 192U);
  EXPECT_EQ(ComposeResponseRecords({{0, 0}, {2, 2085}}).size(), 16U);
}

// ---- Offsets of fields

TEST(StructureComposer, MessageDescriptorFields) {
  MessageDescriptor fields;
  fields.report = 101;
  fields.msgType = 102;
  fields.expiry = 103;
  fields.feedback = 104;
  fields.encoding = 105;
  fields.codedCharSetId = 106;
  fields.format = "FORMAT";
  fields.priority = 107;
  fields.persistence = 108;
  fields.msgId = BytesOf("message");
  fields.correlId = BytesOf("correlation");
  fields.backoutCount = 109;
  fields.replyToQ = "REPLY.Q";
  fields.replyToQMgr = "REPLY.MANAGER";
  fields.userIdentifier = "user";
  fields.accountingToken = BytesOf("token");
  fields.applIdentityData = "identity";
  fields.putApplType = 110;
  fields.putApplName = "program";
  fields.putDate = "20240514";
  fields.putTime = "07080900";
  fields.applOriginData = "orig";
  fields.groupId = BytesOf("group");
  fields.msgSeqNumber = 111;
  fields.offset = 112;
  fields.msgFlags = 113;
  fields.originalLength = 114;
  const Bytes bytes = ComposeMessageDescriptor(fields);
  ExpectText(bytes, 0, 4, "MD");
  ExpectWord(bytes, 4, 2);
  ExpectWord(bytes, 8, 101);
  ExpectWord(bytes, 12, 102);
  ExpectWord(bytes, 16, 103);
  ExpectWord(bytes, 20, 104);
  ExpectWord(bytes, 24, 105);
  ExpectWord(bytes, 28, 106);
  ExpectText(bytes, 32, 8, "FORMAT");
  ExpectWord(bytes, 40, 107);
  ExpectWord(bytes, 44, 108);
  ExpectOpaque(bytes, 48, 24, "message");
  ExpectOpaque(bytes, 72, 24, "correlation");
  ExpectWord(bytes, 96, 109);
  ExpectText(bytes, 100, 48, "REPLY.Q");
  ExpectText(bytes, 148, 48, "REPLY.MANAGER");
  ExpectText(bytes, 196, 12, "user");
  ExpectOpaque(bytes, 208, 32, "token");
  ExpectText(bytes, 240, 32, "identity");
  ExpectWord(bytes, 272, 110);
  ExpectText(bytes, 276, 28, "program");
  ExpectText(bytes, 304, 8, "20240514");
  ExpectText(bytes, 312, 8, "07080900");
  ExpectText(bytes, 320, 4, "orig");
  ExpectOpaque(bytes, 324, 24, "group");
  ExpectWord(bytes, 348, 111);
  ExpectWord(bytes, 352, 112);
  ExpectWord(bytes, 356, 113);
  ExpectWord(bytes, 360, 114);
}

TEST(StructureComposer, ReversedOrderTouchesIntegersOnly) {
  MessageDescriptor fields;
  fields.format = "FORMAT";
  fields.encoding = 0x01020304;
  const Bytes bytes = ComposeMessageDescriptor(fields, Order::Little);
  ExpectText(bytes, 0, 4, "MD");
  ExpectWord(bytes, 4, 0x02000000);
  ExpectWord(bytes, 24, 0x04030201);
  ExpectText(bytes, 32, 8, "FORMAT");
}

TEST(StructureComposer, ObjectDescriptorFields) {
  ObjectDescriptor fields;
  fields.objectType = 8;
  fields.objectName = "NAME";
  fields.objectQMgrName = "MANAGER";
  fields.dynamicQName = "DYNAMIC.*";
  fields.alternateUserId = "other";
  fields.recsPresent = 1;
  fields.knownDestCount = 2;
  fields.unknownDestCount = 3;
  fields.invalidDestCount = 4;
  fields.objectRecOffset = 5;
  fields.responseRecOffset = 6;
  fields.objectRecAddress = 7;
  fields.responseRecAddress = 8;
  fields.alternateSecurityId = BytesOf("security");
  fields.resolvedQName = "RESOLVED";
  fields.resolvedQMgrName = "RESOLVED.MANAGER";
  fields.objectString = {11, 12, 13, 14, 15};
  fields.selectionString = {21, 22, 23, 24, 25};
  fields.resObjectString = {31, 32, 33, 34, 35};
  fields.resolvedType = 40;
  const Bytes bytes = ComposeObjectDescriptor(fields);
  ExpectText(bytes, 0, 4, "OD");
  ExpectWord(bytes, 4, 4);
  ExpectWord(bytes, 8, 8);
  ExpectText(bytes, 12, 48, "NAME");
  ExpectText(bytes, 60, 48, "MANAGER");
  ExpectText(bytes, 108, 48, "DYNAMIC.*");
  ExpectText(bytes, 156, 12, "other");
  for (std::uint32_t field = 0; field < 8; ++field) ExpectWord(bytes, 168 + 4 * field, 1 + field);
  ExpectOpaque(bytes, 200, 40, "security");
  ExpectText(bytes, 240, 48, "RESOLVED");
  ExpectText(bytes, 288, 48, "RESOLVED.MANAGER");
  for (std::uint32_t word = 0; word < 5; ++word) {
    ExpectWord(bytes, 336 + 4 * word, 11 + word);
    ExpectWord(bytes, 356 + 4 * word, 21 + word);
    ExpectWord(bytes, 376 + 4 * word, 31 + word);
  }
  ExpectWord(bytes, 396, 40);
}

TEST(StructureComposer, GetOptionsFields) {
  GetOptions fields;
  fields.options = 1;
  fields.waitInterval = 2;
  fields.signal1 = 3;
  fields.signal2 = 4;
  fields.resolvedQName = "RESOLVED";
  fields.matchOptions = 5;
  fields.groupStatus = 'G';
  fields.segmentStatus = 'S';
  fields.segmentation = 'A';
  fields.msgToken = BytesOf("token");
  fields.returnedLength = 6;
  fields.msgHandle = {7, 8};
  const Bytes bytes = ComposeGetOptions(fields);
  ExpectText(bytes, 0, 4, "GMO");
  ExpectWord(bytes, 4, 4);
  for (std::uint32_t field = 0; field < 4; ++field) ExpectWord(bytes, 8 + 4 * field, 1 + field);
  ExpectText(bytes, 24, 48, "RESOLVED");
  ExpectWord(bytes, 72, 5);
  ExpectText(bytes, 76, 4, "GSA");
  ExpectOpaque(bytes, 80, 16, "token");
  ExpectWord(bytes, 96, 6);
  ExpectWord(bytes, 100, 0);
  ExpectWord(bytes, 104, 7);
  ExpectWord(bytes, 108, 8);
}

TEST(StructureComposer, PutOptionsFields) {
  PutOptions fields;
  fields.version = 3;
  fields.options = 1;
  fields.timeout = 2;
  fields.context = 3;
  fields.knownDestCount = 4;
  fields.unknownDestCount = 5;
  fields.invalidDestCount = 6;
  fields.resolvedQName = "RESOLVED";
  fields.resolvedQMgrName = "MANAGER";
  fields.recsPresent = 11;
  fields.putMsgRecFields = 12;
  fields.putMsgRecOffset = 13;
  fields.responseRecOffset = 14;
  fields.putMsgRecAddress = 15;
  fields.responseRecAddress = 16;
  fields.originalMsgHandle = {17, 18};
  fields.newMsgHandle = {19, 20};
  fields.action = 21;
  fields.pubLevel = 22;
  const Bytes bytes = ComposePutOptions(fields);
  ExpectText(bytes, 0, 4, "PMO");
  ExpectWord(bytes, 4, 3);
  for (std::uint32_t field = 0; field < 6; ++field) ExpectWord(bytes, 8 + 4 * field, 1 + field);
  ExpectText(bytes, 32, 48, "RESOLVED");
  ExpectText(bytes, 80, 48, "MANAGER");
  for (std::uint32_t field = 0; field < 12; ++field) ExpectWord(bytes, 128 + 4 * field, 11 + field);
}

TEST(StructureComposer, PutMessageRecordsHoldTheChosenFieldsOnly) {
  const std::vector<PutMessageRecord> records = {
      {BytesOf("m1"), BytesOf("c1"), BytesOf("g1"), 1, BytesOf("t1")},
      {BytesOf("m2"), BytesOf("c2"), BytesOf("g2"), 2, BytesOf("t2")}};
  const Bytes some = ComposePutMessageRecords(records, kRecordMsgId | kRecordFeedback);
  ASSERT_EQ(some.size(), 2U * 28U);
  ExpectOpaque(some, 0, 24, "m1");
  ExpectWord(some, 24, 1);
  ExpectOpaque(some, 28, 24, "m2");
  ExpectWord(some, 52, 2);
  const Bytes full = ComposePutMessageRecords(records, 0x1F);
  ASSERT_EQ(full.size(), 2U * 108U);
  ExpectOpaque(full, 108 + 24, 24, "c2");
  ExpectOpaque(full, 108 + 48, 24, "g2");
  ExpectWord(full, 108 + 72, 2);
  ExpectOpaque(full, 108 + 76, 32, "t2");
}

TEST(StructureComposer, ConnectionStructures) {
  ConnectionOptions options;
  options.options = 1;
  options.channelOffset = 2;
  options.channelAddress = 3;
  options.connTag = BytesOf("tag");
  options.tlsOptionsOffset = 4;
  options.tlsOptionsAddress = 5;
  options.connectionId = BytesOf("id");
  options.securityOffset = 6;
  options.securityAddress = 7;
  const Bytes connection = ComposeConnectionOptions(options);
  ExpectText(connection, 0, 4, "CNO");
  ExpectWord(connection, 4, 5);
  ExpectWord(connection, 8, 1);
  ExpectWord(connection, 12, 2);
  ExpectWord(connection, 16, 3);
  ExpectOpaque(connection, 20, 128, "tag");
  ExpectWord(connection, 148, 4);
  ExpectWord(connection, 152, 5);
  ExpectOpaque(connection, 156, 24, "id");
  ExpectWord(connection, 180, 6);
  ExpectWord(connection, 184, 7);

  TlsOptions tlsOptions;
  tlsOptions.keyRepository = "keys";
  tlsOptions.cryptoHardware = "hardware";
  tlsOptions.authInfoRecCount = 1;
  tlsOptions.authInfoRecOffset = 2;
  tlsOptions.authInfoRecAddress = 3;
  tlsOptions.keyResetCount = 4;
  tlsOptions.fipsRequired = 5;
  tlsOptions.encryptionPolicySuiteB = {6, 7, 8, 9};
  tlsOptions.certificateValPolicy = 10;
  const Bytes tls = ComposeTlsOptions(tlsOptions);
  ExpectText(tls, 8, 256, "keys");
  ExpectText(tls, 264, 256, "hardware");
  for (std::uint32_t field = 0; field < 10; ++field) ExpectWord(tls, 520 + 4 * field, 1 + field);

  AuthenticationRecord record;
  record.authInfoType = 1;
  record.authInfoConnName = "ldap";
  record.ldapUserNameAddress = 2;
  record.ldapUserNameOffset = 3;
  record.ldapUserNameLength = 4;
  record.ldapPassword = "password";
  record.ocspResponderUrl = "http://ocsp";
  const Bytes authentication = ComposeAuthenticationRecord(record);
  ExpectWord(authentication, 4, 2);
  ExpectWord(authentication, 8, 1);
  ExpectText(authentication, 12, 264, "ldap");
  ExpectWord(authentication, 276, 2);
  ExpectWord(authentication, 280, 3);
  ExpectWord(authentication, 284, 4);
  ExpectText(authentication, 288, 32, "password");
  ExpectText(authentication, 320, 256, "http://ocsp");
}

TEST(StructureComposer, SecurityParametersCarryTheirTexts) {
  const Bytes bytes = ComposeSecurityParameters("loader", "secret12");
  ASSERT_EQ(bytes.size(), 48U + 6U + 8U);
  ExpectText(bytes, 0, 4, "CSP");
  ExpectWord(bytes, 4, 1);
  ExpectWord(bytes, 8, 1);
  ExpectWord(bytes, 16, 0);
  ExpectWord(bytes, 20, 48);
  ExpectWord(bytes, 24, 6);
  ExpectWord(bytes, 36, 0);
  ExpectWord(bytes, 40, 54);
  ExpectWord(bytes, 44, 8);
  EXPECT_EQ(TextAt(bytes, 48, 14), "loadersecret12");
}

TEST(StructureComposer, ChannelDefinitionFields) {
  ChannelDefinition fields;
  fields.channelName = "CHANNEL";
  fields.channelType = 1;
  fields.transportType = 2;
  fields.description = "description";
  fields.qMgrName = "MANAGER";
  fields.xmitQName = "XMIT";
  fields.shortConnectionName = "short";
  fields.mcaName = "mca";
  fields.modeName = "mode";
  fields.tpName = "tp";
  fields.batchSize = 11;
  fields.discInterval = 12;
  fields.shortRetryCount = 13;
  fields.shortRetryInterval = 14;
  fields.longRetryCount = 15;
  fields.longRetryInterval = 16;
  fields.securityExit = "securityexit";
  fields.msgExit = "msgexit";
  fields.sendExit = "sendexit";
  fields.receiveExit = "receiveexit";
  fields.seqNumberWrap = 21;
  fields.maxMsgLength = 22;
  fields.putAuthority = 23;
  fields.dataConversion = 24;
  fields.securityUserData = "securitydata";
  fields.msgUserData = "msgdata";
  fields.sendUserData = "senddata";
  fields.receiveUserData = "receivedata";
  fields.userIdentifier = "user";
  fields.password = "password";
  fields.mcaUserIdentifier = "mcauser";
  fields.mcaType = 31;
  fields.connectionName = "connection";
  fields.remoteUserIdentifier = "remoteuser";
  fields.remotePassword = "remotepass";
  fields.msgRetryExit = "retryexit";
  fields.msgRetryUserData = "retrydata";
  fields.msgRetryCount = 41;
  fields.msgRetryInterval = 42;
  fields.heartbeatInterval = 43;
  fields.batchInterval = 44;
  fields.nonPersistentMsgSpeed = 45;
  fields.strucLength = 46;
  fields.exitNameLength = 47;
  fields.exitDataLength = 48;
  fields.msgExitsDefined = 49;
  fields.sendExitsDefined = 50;
  fields.receiveExitsDefined = 51;
  fields.exitAddresses = {52, 53, 54, 55, 56, 57};
  fields.clusterAddress = 58;
  fields.clustersDefined = 59;
  fields.networkPriority = 60;
  fields.longMcaUserIdLength = 61;
  fields.longRemoteUserIdLength = 62;
  fields.longUserIdAddresses = {63, 64};
  fields.mcaSecurityId = BytesOf("mcasecurity");
  fields.remoteSecurityId = BytesOf("remotesecurity");
  fields.sslCipherSpec = "cipher";
  fields.sslPeerNameAddress = 71;
  fields.sslPeerNameLength = 72;
  fields.sslClientAuth = 73;
  fields.keepAliveInterval = 74;
  fields.localAddress = "local";
  fields.batchHeartbeat = 81;
  fields.hdrCompList = {82, 83};
  fields.msgCompList = {84, 85, 86, 87, 88, 89, 90, 91, 92, 93, 94, 95, 96, 97, 98, 99};
  fields.clwlChannelRank = 100;
  fields.clwlChannelPriority = 101;
  fields.clwlChannelWeight = 102;
  fields.channelMonitoring = 103;
  fields.channelStatistics = 104;
  fields.sharingConversations = 105;
  fields.propertyControl = 106;
  fields.maxInstances = 107;
  fields.maxInstancesPerClient = 108;
  fields.clientChannelWeight = 109;
  fields.connectionAffinity = 110;
  fields.batchDataLimit = 111;
  fields.useDlq = 112;
  fields.defReconnect = 113;
  const Bytes bytes = ComposeChannelDefinition(fields);
  ExpectText(bytes, 0, 20, "CHANNEL");
  ExpectWord(bytes, 20, 10);
  ExpectWord(bytes, 24, 1);
  ExpectWord(bytes, 28, 2);
  ExpectText(bytes, 32, 64, "description");
  ExpectText(bytes, 96, 48, "MANAGER");
  ExpectText(bytes, 144, 48, "XMIT");
  ExpectText(bytes, 192, 20, "short");
  ExpectText(bytes, 212, 20, "mca");
  ExpectText(bytes, 232, 8, "mode");
  ExpectText(bytes, 240, 64, "tp");
  for (std::uint32_t field = 0; field < 6; ++field) ExpectWord(bytes, 304 + 4 * field, 11 + field);
  ExpectText(bytes, 328, 128, "securityexit");
  ExpectText(bytes, 456, 128, "msgexit");
  ExpectText(bytes, 584, 128, "sendexit");
  ExpectText(bytes, 712, 128, "receiveexit");
  for (std::uint32_t field = 0; field < 4; ++field) ExpectWord(bytes, 840 + 4 * field, 21 + field);
  ExpectText(bytes, 856, 32, "securitydata");
  ExpectText(bytes, 888, 32, "msgdata");
  ExpectText(bytes, 920, 32, "senddata");
  ExpectText(bytes, 952, 32, "receivedata");
  ExpectText(bytes, 984, 12, "user");
  ExpectText(bytes, 996, 12, "password");
  ExpectText(bytes, 1008, 12, "mcauser");
  ExpectWord(bytes, 1020, 31);
  ExpectText(bytes, 1024, 264, "connection");
  ExpectText(bytes, 1288, 12, "remoteuser");
  ExpectText(bytes, 1300, 12, "remotepass");
  ExpectText(bytes, 1312, 128, "retryexit");
  ExpectText(bytes, 1440, 32, "retrydata");
  for (std::uint32_t field = 0; field < 24; ++field) ExpectWord(bytes, 1472 + 4 * field, 41 + field);
  ExpectOpaque(bytes, 1568, 40, "mcasecurity");
  ExpectOpaque(bytes, 1608, 40, "remotesecurity");
  ExpectText(bytes, 1648, 32, "cipher");
  for (std::uint32_t field = 0; field < 4; ++field) ExpectWord(bytes, 1680 + 4 * field, 71 + field);
  ExpectText(bytes, 1696, 48, "local");
  for (std::uint32_t field = 0; field < 33; ++field) ExpectWord(bytes, 1744 + 4 * field, 81 + field);
}

TEST(StructureComposer, SubscriptionDescriptorFields) {
  SubscriptionDescriptor fields;
  fields.options = 1;
  fields.objectName = "NAME";
  fields.alternateUserId = "other";
  fields.alternateSecurityId = BytesOf("security");
  fields.subExpiry = 2;
  fields.objectString = {11, 12, 13, 14, 15};
  fields.subName = {16, 17, 18, 19, 20};
  fields.subUserData = {21, 22, 23, 24, 25};
  fields.subCorrelId = BytesOf("correlation");
  fields.pubPriority = 30;
  fields.pubAccountingToken = BytesOf("token");
  fields.pubApplIdentityData = "identity";
  fields.selectionString = {41, 42, 43, 44, 45};
  fields.subLevel = 46;
  fields.resObjectString = {47, 48, 49, 50, 51};
  const Bytes bytes = ComposeSubscriptionDescriptor(fields);
  ExpectText(bytes, 0, 4, "SD");
  ExpectWord(bytes, 4, 1);
  ExpectWord(bytes, 8, 1);
  ExpectText(bytes, 12, 48, "NAME");
  ExpectText(bytes, 60, 12, "other");
  ExpectOpaque(bytes, 72, 40, "security");
  ExpectWord(bytes, 112, 2);
  for (std::uint32_t word = 0; word < 15; ++word) ExpectWord(bytes, 116 + 4 * word, 11 + word);
  ExpectOpaque(bytes, 176, 24, "correlation");
  ExpectWord(bytes, 200, 30);
  ExpectOpaque(bytes, 204, 32, "token");
  ExpectText(bytes, 236, 32, "identity");
  for (std::uint32_t word = 0; word < 11; ++word) ExpectWord(bytes, 268 + 4 * word, 41 + word);
}

TEST(StructureComposer, StatusAndCallbackFields) {
  StatusStructure statusFields;
  statusFields.compCode = 3;
  statusFields.reason = 4;
  statusFields.putSuccessCount = 5;
  statusFields.putWarningCount = 6;
  statusFields.putFailureCount = 7;
  statusFields.objectType = 8;
  statusFields.objectName = "NAME";
  statusFields.objectQMgrName = "MANAGER";
  statusFields.resolvedObjectName = "RESOLVED";
  statusFields.resolvedQMgrName = "RESOLVED.MANAGER";
  statusFields.objectString = {11, 12, 13, 14, 15};
  statusFields.subName = {16, 17, 18, 19, 20};
  statusFields.openOptions = 21;
  statusFields.subOptions = 22;
  const Bytes status = ComposeStatusStructure(statusFields);
  for (std::uint32_t field = 0; field < 6; ++field) ExpectWord(status, 8 + 4 * field, 3 + field);
  ExpectText(status, 32, 48, "NAME");
  ExpectText(status, 80, 48, "MANAGER");
  ExpectText(status, 128, 48, "RESOLVED");
  ExpectText(status, 176, 48, "RESOLVED.MANAGER");
  for (std::uint32_t field = 0; field < 12; ++field) ExpectWord(status, 224 + 4 * field, 11 + field);

  CallbackDescriptor descriptor;
  descriptor.callbackType = 2;
  descriptor.options = 3;
  descriptor.callbackArea = 4;
  descriptor.callbackFunction = 5;
  descriptor.callbackName = "lib(function)";
  descriptor.maxMsgLength = 6;
  const Bytes callback = ComposeCallbackDescriptor(descriptor);
  for (std::uint32_t field = 0; field < 4; ++field) ExpectWord(callback, 8 + 4 * field, 2 + field);
  ExpectText(callback, 24, 128, "lib(function)");
  ExpectWord(callback, 152, 6);

  CallbackContext contextFields;
  contextFields.callType = 3;
  contextFields.objectHandle = 4;
  contextFields.callbackArea = 5;
  contextFields.connectionArea = 6;
  contextFields.compCode = 7;
  contextFields.reason = 8;
  contextFields.state = 9;
  contextFields.dataLength = 10;
  contextFields.bufferLength = 11;
  contextFields.flags = 12;
  contextFields.reconnectDelay = 13;
  const Bytes context = ComposeCallbackContext(contextFields);
  for (std::uint32_t field = 0; field < 11; ++field) ExpectWord(context, 8 + 4 * field, 3 + field);

  const Bytes control = ComposeControlOptions({.options = 0x2001, .connectionArea = 9});
  ExpectText(control, 0, 4, "CTLO");
  ExpectWord(control, 8, 0x2001);
  ExpectWord(control, 12, 0);
  ExpectWord(control, 16, 9);

  const Bytes request = ComposeSubscriptionRequestOptions({.options = 0x2000, .numPubs = 3});
  ExpectWord(request, 8, 0x2000);
  ExpectWord(request, 12, 3);
}

TEST(StructureComposer, AttributeArrays) {
  const Bytes integers = ComposeIntegers({20, -1});
  EXPECT_EQ(integers, (Bytes{0, 0, 0, 20, 0xFF, 0xFF, 0xFF, 0xFF}));
  const Bytes characters = ComposeCharacterAttributes({{"Q", 4}, {"too long", 3}});
  EXPECT_EQ(TextAt(characters, 0, characters.size()), "Q   too");
}

// ---- Message bodies

TEST(MessageComposer, DeadLetterHeaderDescribesWhatFollows) {
  const MessageBody text = TextBody("lost", 1208);
  const MessageBody body = WithDeadLetterHeader(text, {.reason = 2053,
                                                       .destQName = "QUEUE",
                                                       .destQMgrName = "MANAGER",
                                                       .putApplName = "program",
                                                       .putDate = "20240514",
                                                       .putTime = "07080900"});
  EXPECT_EQ(body.format, "ZKDEAD");
  ASSERT_EQ(body.bytes.size(), 176U);
  ExpectText(body.bytes, 0, 4, "DLH");
  ExpectWord(body.bytes, 8, 2053);
  ExpectText(body.bytes, 12, 48, "QUEUE");
  ExpectText(body.bytes, 60, 48, "MANAGER");
  ExpectWord(body.bytes, 108, 273);
  ExpectWord(body.bytes, 112, 1208);
  ExpectText(body.bytes, 116, 8, "ZKSTR");
  ExpectWord(body.bytes, 124, 6);
  ExpectText(body.bytes, 128, 28, "program");
  ExpectText(body.bytes, 156, 8, "20240514");
  ExpectText(body.bytes, 164, 8, "07080900");
  EXPECT_EQ(TextAt(body.bytes, 172, 4), "lost");
}

TEST(MessageComposer, DescriptorTakesTheBodysDescription) {
  MessageDescriptor descriptor;
  DescribeBody(descriptor, WithDeadLetterHeader(TextBody("x", 943), {}, kEncodingReversed));
  EXPECT_EQ(descriptor.format, "ZKDEAD");
  EXPECT_EQ(descriptor.encoding, 546);
  EXPECT_EQ(descriptor.codedCharSetId, 819);
}

TEST(MessageComposer, TransmissionHeaderHoldsTheOriginalDescriptor) {
  MessageBody trigger = TriggerBody({.queueName = "QUEUE"}, kEncodingReversed);
  const MessageBody body = WithTransmissionHeader(trigger, {1, "REMOTE", "THERE"}, {});
  EXPECT_EQ(body.format, "ZKXMIT");
  ASSERT_EQ(body.bytes.size(), 104U + 324U + 684U);
  ExpectText(body.bytes, 0, 4, "XQH");
  ExpectWord(body.bytes, 4, 1);
  ExpectText(body.bytes, 8, 48, "REMOTE");
  ExpectText(body.bytes, 56, 48, "THERE");
  ExpectText(body.bytes, 104, 4, "MD");
  ExpectWord(body.bytes, 104 + 4, 1);
  ExpectWord(body.bytes, 104 + 24, 546);
  ExpectText(body.bytes, 104 + 32, 8, "ZKTRIG");
  ExpectText(body.bytes, 428, 4, "TM");
}

TEST(MessageComposer, DistributionHeaderAndItsRecords) {
  DistributionHeader header;
  header.flags = 1;
  header.putMsgRecFields = kRecordMsgId;
  header.objectRecords = {{"Q1", "M1"}, {"Q2", "M2"}};
  header.putMessageRecords = {{BytesOf("a"), {}, {}, 0, {}}, {BytesOf("b"), {}, {}, 0, {}}};
  const MessageBody body = WithDistributionHeader(TextBody("text"), header);
  EXPECT_EQ(body.format, "ZKHDIST");
  ASSERT_EQ(body.bytes.size(), 48U + 192U + 48U + 4U);
  ExpectText(body.bytes, 0, 4, "DH");
  ExpectWord(body.bytes, 8, 288);
  ExpectWord(body.bytes, 12, 273);
  ExpectWord(body.bytes, 16, 819);
  ExpectText(body.bytes, 20, 8, "ZKSTR");
  ExpectWord(body.bytes, 28, 1);
  ExpectWord(body.bytes, 32, 1);
  ExpectWord(body.bytes, 36, 2);
  ExpectWord(body.bytes, 40, 48);
  ExpectWord(body.bytes, 44, 240);
  ExpectText(body.bytes, 48, 48, "Q1");
  ExpectText(body.bytes, 192, 48, "M2");
  ExpectOpaque(body.bytes, 240, 24, "a");
  ExpectOpaque(body.bytes, 264, 24, "b");
}

TEST(MessageComposer, ReferenceHeaderPointsAtItsItems) {
  ReferenceHeader header;
  header.objectType = "FILE";
  header.objectInstanceId = BytesOf("instance");
  header.sourceEnvironment = "env";
  header.destinationName = "name1";
  header.dataLogicalLength = 7;
  header.dataLogicalOffset = 8;
  header.dataLogicalOffset2 = 9;
  const MessageBody body = WithReferenceHeader(TextBody("text"), header);
  EXPECT_EQ(body.format, "ZKHREF");
  ASSERT_EQ(body.bytes.size(), 108U + 8U + 4U);
  ExpectText(body.bytes, 0, 4, "RMH");
  ExpectWord(body.bytes, 8, 116);
  ExpectText(body.bytes, 20, 8, "ZKSTR");
  ExpectWord(body.bytes, 28, 1);
  ExpectText(body.bytes, 32, 8, "FILE");
  ExpectOpaque(body.bytes, 40, 24, "instance");
  ExpectWord(body.bytes, 64, 3);
  ExpectWord(body.bytes, 68, 108);
  ExpectWord(body.bytes, 72, 0);
  ExpectWord(body.bytes, 76, 0);
  ExpectWord(body.bytes, 80, 0);
  ExpectWord(body.bytes, 84, 0);
  ExpectWord(body.bytes, 88, 5);
  ExpectWord(body.bytes, 92, 111);
  ExpectWord(body.bytes, 96, 7);
  ExpectWord(body.bytes, 100, 8);
  ExpectWord(body.bytes, 104, 9);
  EXPECT_EQ(TextAt(body.bytes, 108, 12), "envname1text");
}

TEST(MessageComposer, DescriptorExtension) {
  DescriptorExtension fields;
  fields.flags = 1;
  fields.groupId = BytesOf("group");
  fields.msgSeqNumber = 2;
  fields.offset = 3;
  fields.msgFlags = 4;
  fields.originalLength = 5;
  const MessageBody body = WithDescriptorExtension(TextBody("text"), fields);
  EXPECT_EQ(body.format, "ZKHMDE");
  ASSERT_EQ(body.bytes.size(), 72U + 4U);
  ExpectText(body.bytes, 0, 4, "MDE");
  ExpectWord(body.bytes, 4, 2);
  ExpectWord(body.bytes, 8, 72);
  ExpectText(body.bytes, 20, 8, "ZKSTR");
  ExpectWord(body.bytes, 28, 1);
  ExpectOpaque(body.bytes, 32, 24, "group");
  for (std::uint32_t field = 0; field < 4; ++field) ExpectWord(body.bytes, 56 + 4 * field, 2 + field);
}

TEST(MessageComposer, RulesHeadersAreFilledToFullWords) {
  const MessageBody first = WithRulesHeader1(TextBody("text"), {.flags = 7, .nameValueString = "a 1 b 22"});
  EXPECT_EQ(first.format, "ZKHRF");
  ExpectText(first.bytes, 0, 4, "RFH");
  ExpectWord(first.bytes, 4, 1);
  ExpectWord(first.bytes, 8, 40);
  ExpectWord(first.bytes, 28, 7);
  EXPECT_EQ(TextAt(first.bytes, 32, 12), "a 1 b 22text");

  const MessageBody second =
      WithRulesHeader2(TextBody("text"), {.nameValueCcsid = 819, .folders = {"<a>1</a>", "<bc/>"}});
  EXPECT_EQ(second.format, "ZKHRF2");
  ExpectWord(second.bytes, 4, 2);
  ExpectWord(second.bytes, 8, 36 + 4 + 8 + 4 + 8);
  ExpectWord(second.bytes, 32, 819);
  ExpectWord(second.bytes, 36, 8);
  EXPECT_EQ(TextAt(second.bytes, 40, 8), "<a>1</a>");
  ExpectWord(second.bytes, 48, 8);
  EXPECT_EQ(TextAt(second.bytes, 52, 12), "<bc/>   text");
}

TEST(MessageComposer, TriggerMessage) {
  const MessageBody body = TriggerBody({.queueName = "QUEUE",
                                        .processName = "PROCESS",
                                        .triggerData = "data",
                                        .applType = 11,
                                        .applId = "program",
                                        .envData = "environment",
                                        .userData = "user"});
  EXPECT_EQ(body.format, "ZKTRIG");
  ASSERT_EQ(body.bytes.size(), 684U);
  ExpectText(body.bytes, 0, 4, "TM");
  ExpectText(body.bytes, 8, 48, "QUEUE");
  ExpectText(body.bytes, 56, 48, "PROCESS");
  ExpectText(body.bytes, 104, 64, "data");
  ExpectWord(body.bytes, 168, 11);
  ExpectText(body.bytes, 172, 256, "program");
  ExpectText(body.bytes, 428, 128, "environment");
  ExpectText(body.bytes, 556, 128, "user");
}

TEST(MessageComposer, ChainIsDescribedFromHeaderToHeader) {
  MessageBody body = TextBody("text", 932);
  body = WithRulesHeader2(body, {}, kEncodingReversed);
  body = WithDescriptorExtension(body, {});
  EXPECT_EQ(body.format, "ZKHMDE");
  EXPECT_EQ(body.encoding, 273);
  ExpectWord(body.bytes, 12, 546);
  ExpectText(body.bytes, 20, 8, "ZKHRF2");
  ExpectWord(body.bytes, 72 + 8, 0x24000000);   // 36, reversed
  ExpectWord(body.bytes, 72 + 12, 0x11010000);  // 273, reversed
  ExpectWord(body.bytes, 72 + 16, 0xA4030000);  // 932, reversed
  EXPECT_EQ(TextAt(body.bytes, 108, 4), "text");
}

// ---- PCF messages

TEST(PcfComposer, HeaderAndSimpleParameters) {
  PcfComposer pcf({.type = kPcfResponse,
                   .version = 3,
                   .command = 13,
                   .msgSeqNumber = 2,
                   .control = 0,
                   .compCode = 1,
                   .reason = 2085});
  pcf.Integer(20, -1);
  pcf.String(2016, "QUEUE", 6, 1208);
  const Bytes bytes = pcf.Take();
  ASSERT_EQ(bytes.size(), 36U + 16U + 28U);
  const std::uint32_t header[] = {2, 36, 3, 13, 2, 0, 1, 2085, 2};
  for (std::size_t field = 0; field < 9; ++field) ExpectWord(bytes, 4 * field, header[field]);
  ExpectWord(bytes, 36, 3);
  ExpectWord(bytes, 40, 16);
  ExpectWord(bytes, 44, 20);
  ExpectWord(bytes, 48, 0xFFFFFFFF);
  ExpectWord(bytes, 52, 4);
  ExpectWord(bytes, 56, 28);
  ExpectWord(bytes, 60, 2016);
  ExpectWord(bytes, 64, 1208);
  ExpectWord(bytes, 68, 6);
  EXPECT_EQ(TextAt(bytes, 72, 8), std::string("QUEUE \0\0", 8));
}

TEST(PcfComposer, ListsAndStrings) {
  PcfComposer pcf({});
  pcf.IntegerList(1002, {1, 2, 3});
  pcf.StringList(3011, {"A", "BB"}, 3);
  pcf.ByteString(7013, {1, 2, 3, 4, 5});
  const Bytes bytes = pcf.Take();
  const std::size_t list = 36;
  ExpectWord(bytes, list, 5);
  ExpectWord(bytes, list + 4, 28);
  ExpectWord(bytes, list + 12, 3);
  ExpectWord(bytes, list + 24, 3);
  const std::size_t strings = list + 28;
  ExpectWord(bytes, strings, 6);
  ExpectWord(bytes, strings + 4, 32);
  ExpectWord(bytes, strings + 12, 819);
  ExpectWord(bytes, strings + 16, 2);
  ExpectWord(bytes, strings + 20, 3);
  EXPECT_EQ(TextAt(bytes, strings + 24, 8), std::string("A  BB \0\0", 8));
  const std::size_t byteString = strings + 32;
  ExpectWord(bytes, byteString, 9);
  ExpectWord(bytes, byteString + 4, 24);
  ExpectWord(bytes, byteString + 12, 5);
  EXPECT_EQ(bytes.size(), byteString + 24);
}

TEST(PcfComposer, FiltersAndLongIntegers) {
  PcfComposer pcf({});
  pcf.IntegerFilter(3, 4, 100);
  pcf.StringFilter(2016, 18, "A*", 1208);
  pcf.ByteStringFilter(7010, 2, {9});
  pcf.Integer64(747, 0x0102030405060708);
  pcf.Integer64List(748, {1, 2});
  const Bytes bytes = pcf.Take();
  ExpectWord(bytes, 32, 5);
  std::size_t start = 36;
  for (const auto& [word, value] :
       std::map<std::size_t, std::uint32_t>{{0, 13}, {1, 20}, {2, 3}, {3, 4}, {4, 100}})
    ExpectWord(bytes, start + 4 * word, value);
  start += 20;
  for (const auto& [word, value] : std::map<std::size_t, std::uint32_t>{
           {0, 14}, {1, 28}, {2, 2016}, {3, 18}, {4, 1208}, {5, 2}, {6, 0x412A0000}})
    ExpectWord(bytes, start + 4 * word, value);
  start += 28;
  for (const auto& [word, value] :
       std::map<std::size_t, std::uint32_t>{{0, 15}, {1, 24}, {2, 7010}, {3, 2}, {4, 1}, {5, 0x09000000}})
    ExpectWord(bytes, start + 4 * word, value);
  start += 24;
  for (const auto& [word, value] : std::map<std::size_t, std::uint32_t>{
           {0, 23}, {1, 24}, {2, 747}, {3, 0}, {4, 0x01020304}, {5, 0x05060708}})
    ExpectWord(bytes, start + 4 * word, value);
  start += 24;
  for (const auto& [word, value] : std::map<std::size_t, std::uint32_t>{
           {0, 25}, {1, 32}, {2, 748}, {3, 2}, {4, 0}, {5, 1}, {6, 0}, {7, 2}})
    ExpectWord(bytes, start + 4 * word, value);
  EXPECT_EQ(bytes.size(), start + 32);
}

TEST(PcfComposer, GroupsCountTheirOwnMembers) {
  PcfComposer pcf({});
  pcf.BeginGroup(8005);
  pcf.Integer(1, 1);
  pcf.BeginGroup(8004);
  pcf.Integer(1, 2);
  pcf.EndGroup();
  pcf.Integer(1, 3);
  pcf.EndGroup();
  pcf.Integer(1, 4);
  const Bytes bytes = pcf.Take();
  ASSERT_EQ(bytes.size(), 36U + 6U * 16U);
  ExpectWord(bytes, 32, 2);
  ExpectWord(bytes, 36, 20);
  ExpectWord(bytes, 40, 16);
  ExpectWord(bytes, 44, 8005);
  ExpectWord(bytes, 48, 3);
  ExpectWord(bytes, 68, 20);
  ExpectWord(bytes, 72, 16);
  ExpectWord(bytes, 80, 1);
}

TEST(PcfComposer, ReversedAndEmbedded) {
  PcfComposer pcf({.version = 3, .command = 75}, kEncodingReversed);
  pcf.Integer64(747, 0x0102030405060708);
  const MessageBody body = EmbeddedPcfBody({.flags = 1, .format = "ZKADMIN"}, pcf);
  EXPECT_EQ(body.format, "ZKHEPCF");
  EXPECT_EQ(body.encoding, 546);
  ASSERT_EQ(body.bytes.size(), 32U + 36U + 24U);
  ExpectText(body.bytes, 0, 4, "EPH");
  ExpectWord(body.bytes, 4, 0x01000000);
  ExpectWord(body.bytes, 8, 0x5C000000);  // 92
  ExpectWord(body.bytes, 12, 0x22020000);
  ExpectText(body.bytes, 20, 8, "ZKADMIN");
  ExpectWord(body.bytes, 28, 0x01000000);
  ExpectWord(body.bytes, 32, 0x01000000);
  ExpectWord(body.bytes, 36, 0x24000000);
  ExpectWord(body.bytes, 32 + 36 + 16, 0x08070605);
  ExpectWord(body.bytes, 32 + 36 + 20, 0x04030201);
}

// ---- Generated traces

TEST(SplitMix64, PublishedSequence) {
  SplitMix64 random{0};
  EXPECT_EQ(random.Next(), 0xE220A8397B1DCDAFULL);
  EXPECT_EQ(random.Next(), 0x6E789E6AA1B965F4ULL);
  EXPECT_EQ(random.Next(), 0x06C45D188009454FULL);
}

TEST(SplitMix64, BoundsHold) {
  SplitMix64 random{7};
  std::set<std::int32_t> seen;
  for (int draw = 0; draw < 1000; ++draw) seen.insert(random.Between(-2, 2));
  EXPECT_EQ(seen, (std::set<std::int32_t>{-2, -1, 0, 1, 2}));
}

TEST(MessageMaker, TextKeepsToItsVocabulary) {
  SplitMix64 random{1};
  for (const Vocabulary& vocabulary : Vocabularies()) {
    const std::string text = MakeText(random, vocabulary.ccsid, 200);
    EXPECT_GE(text.size(), 200U);
    EXPECT_NE(text.find(vocabulary.blank), std::string::npos) << vocabulary.ccsid;
  }
}

/// Makes a trace in memory.
std::string MakeTrace(const TraceRequest& request) {
  std::string trace;
  EXPECT_TRUE(WriteTrace(request, [&](const std::string& section) {
    trace += section;
    return true;
  }));
  return trace;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// An item as it is read back from the text of a trace.
struct ReadItem {
  std::string name;
  std::size_t declared = 0;
  Bytes bytes;
};

bool IsDataNameLine(const std::string& line) {
  return line.find(":(") != std::string::npos && line.ends_with(" bytes)");
}

/// Adds the bytes of one dump line; false when the line is no dump line.
bool ReadDumpLine(const std::string& line, Bytes& bytes) {
  if (line.size() < 9 || (line[8] != ':' && line[8] != '-')) return false;
  const std::size_t offset = std::stoul(line.substr(0, 8), nullptr, 16);
  EXPECT_EQ(offset, bytes.size()) << line;
  if (line[8] == '-') {
    if (bytes.size() < 16) return false;
    const std::size_t end = std::stoul(line.substr(9, 8), nullptr, 16);
    while (bytes.size() < end) {
      const Bytes last(bytes.end() - 16, bytes.end());
      bytes.insert(bytes.end(), last.begin(), last.end());
    }
    return true;
  }
  const std::string hex = line.substr(9, line.find('[') - 9);
  for (std::size_t column = 0; column + 1 < hex.size(); column += hex[column] == ' ' ? 1 : 2)
    if (hex[column] != ' ')
      bytes.push_back(static_cast<std::uint8_t>(std::stoul(hex.substr(column, 2), nullptr, 16)));
  return true;
}

std::vector<ReadItem> ItemsOf(const std::vector<std::string>& lines) {
  std::vector<ReadItem> items;
  for (std::size_t index = 0; index < lines.size(); ++index) {
    if (!IsDataNameLine(lines[index])) continue;
    ReadItem item;
    item.name = lines[index].substr(0, lines[index].find_first_of(": "));
    item.declared = std::stoul(lines[index].substr(lines[index].find(":(") + 2));
    while (item.bytes.size() < item.declared && ReadDumpLine(lines.at(index + 1), item.bytes)) ++index;
    items.push_back(item);
  }
  return items;
}

TEST(TraceStories, SameRequestSameBytes) {
  const TraceRequest request = {.size = 300000, .seed = 5};
  EXPECT_EQ(MakeTrace(request), MakeTrace(request));
  EXPECT_NE(MakeTrace(request), MakeTrace({.size = 300000, .seed = 6}));
}

TEST(TraceStories, EndsWithTheSectionThatReachesTheSize) {
  const std::string end = std::string(80, '-') + "\n";
  for (const std::uint64_t size : {1U, 1000U, 65536U, 500000U}) {
    const std::string trace = MakeTrace({.size = size});
    EXPECT_GE(trace.size(), size);
    EXPECT_TRUE(trace.ends_with(end));
    const std::string rest = trace.substr(0, trace.size() - end.size());
    const std::size_t before = rest.rfind("\n" + end);  // the header's rules begin with a bar
    EXPECT_TRUE(before == std::string::npos || before + 1 + end.size() < size) << size;
  }
}

TEST(TraceStories, UnknownMixAndFullSink) {
  const auto take = [](const std::string&) { return true; };
  EXPECT_FALSE(WriteTrace({.size = 10, .mix = "nothing"}, take));
  int sections = 0;
  EXPECT_FALSE(WriteTrace({.size = 1000000}, [&](const std::string&) { return ++sections < 3; }));
  EXPECT_EQ(sections, 3);
}

TEST(TraceStories, EveryMixMakesATrace) {
  for (const std::string_view mix : TraceMixes())
    EXPECT_GE(MakeTrace({.size = 100000, .mix = std::string(mix)}).size(), 100000U) << mix;
}

TEST(TraceStories, EveryDumpIsWhole) {
  const std::vector<std::string> lines = LinesOf(MakeTrace({.size = 2000000}));
  const std::vector<ReadItem> items = ItemsOf(lines);
  ASSERT_GT(items.size(), 100U);
  for (const ReadItem& item : items) ASSERT_EQ(item.bytes.size(), item.declared) << item.name;
  for (const std::string& line : lines) ASSERT_LT(line.size(), 998U);
}

TEST(TraceStories, EveryPlatformMakesATrace) {
  const std::string usual = MakeTrace({.size = 2000000});
  const std::map<std::string_view, std::pair<std::string, std::size_t>> expected = {
      {"be32", {"32-bit", 400}},
      {"le32", {"32-bit", 400}},
      {"be64", {"64-bit", 424}},
      {"le64", {"64-bit", 424}}};
  for (const std::string_view platform : TracePlatforms()) {
    const auto& [wordSize, descriptorLength] = expected.at(platform);
    const std::string trace = MakeTrace({.size = 2000000, .platform = std::string(platform)});
    const std::vector<std::string> lines = LinesOf(trace);
    EXPECT_EQ(std::ranges::count(lines, "|  Addressing mode    : " + wordSize), 1) << platform;
    std::set<std::string> orders;
    std::set<std::size_t> lengths;
    std::set<std::string> names;
    for (const ReadItem& item : ItemsOf(lines)) {
      ASSERT_EQ(item.bytes.size(), item.declared) << item.name;
      names.insert(item.name);
      if (item.name == "SD" || item.name == "CNO") orders.insert(item.bytes.at(4) == 0 ? "be" : "le");
      if (item.name == "OD" && item.bytes.at(4) + item.bytes.at(7) == 4) lengths.insert(item.bytes.size());
    }
    EXPECT_EQ(orders, std::set<std::string>{std::string(platform.substr(0, 2))}) << platform;
    EXPECT_EQ(lengths, std::set<std::size_t>{descriptorLength}) << platform;
    EXPECT_EQ(names.size(), 32U) << platform << " holds every item of the tour";
    EXPECT_EQ(trace == usual, platform == "be32");
  }
  EXPECT_FALSE(WriteTrace({.size = 10, .platform = "le16"}, [](const std::string&) { return true; }));
}

TEST(TraceStories, TourShowsEveryItemCallAndFormat) {
  const std::vector<std::string> lines = LinesOf(MakeTrace({.size = 2000000}));
  std::set<std::string> names;
  std::set<std::string> formats;
  std::set<std::string> versions;
  for (const ReadItem& item : ItemsOf(lines)) {
    names.insert(item.name);
    if (item.name == "MD") formats.insert(TextAt(item.bytes, 32, 8));
    const std::size_t versionOffset = item.name == "CNO->CD" ? 20 : 4;
    if (item.bytes.size() < versionOffset + 4) continue;
    versions.insert(item.name + " " + std::to_string(Word(item.bytes, versionOffset)));
  }
  for (const char* name : {"MD",
                           "OD",
                           "OD->OR",
                           "OD->RR",
                           "PMO",
                           "PMO->PMR",
                           "PMO->RR",
                           "GMO",
                           "CNO",
                           "CNO->CD",
                           "CNO->SCO",
                           "CNO->SCO->AIR",
                           "CNO->SCO->AIR->LDAPUserName",
                           "CNO->CSP",
                           "Selectors",
                           "IntAttrs",
                           "CharAttrs",
                           "SD",
                           "SRO",
                           "STS",
                           "CBD",
                           "CBC",
                           "CTLO",
                           "XQH",
                           "Buffer",
                           "AgentBuffer-Data",
                           "Variable-ObjectString",
                           "Variable-SelectionString",
                           "Variable-ResObjectString",
                           "Variable-SubName",
                           "Variable-SubUserData"})
    EXPECT_TRUE(names.contains(name)) << name;
  for (const char* format :
       {"ZKSTR   ", "        ", "ZKXMIT  ", "ZKHDIST ", "ZKHREF  ", "ZKDEAD  ", "ZKHMDE  ", "ZKHRF2  ",
        "ZKHRF   ", "ZKADMIN ", "ZKPCF   ", "ZKEVENT ", "ZKTRIG  ", "ZKHEPCF "})
    EXPECT_TRUE(formats.contains(format)) << format;
  const std::map<std::string, std::uint32_t> highest = {
      {"MD", 2},       {"OD", 4},       {"GMO", 4},           {"PMO", 3}, {"CNO", 5},
      {"CNO->CD", 10}, {"CNO->SCO", 4}, {"CNO->SCO->AIR", 2}, {"STS", 2}, {"CBC", 2}};
  for (const auto& [name, last] : highest)
    for (std::uint32_t version = 1; version <= last; ++version)
      EXPECT_TRUE(versions.contains(name + " " + std::to_string(version))) << name << " " << version;
  for (const char* name : {"MD", "OD", "GMO", "PMO"})
    EXPECT_TRUE(versions.contains(std::string(name) + " 16777216")) << "reversed " << name;
  const std::set<std::string> all(lines.begin(), lines.end());
  for (const char* call :
       {"<ZKCONN",     "<ZKCONNX",   "<ZKDISC",   "<ZKOPEN", "<ZKCLOSE",          "<ZKPUT",    "<ZKPUT1",
        "<ZKGET",      "<ZKINQ",     "<ZKSET",    "<ZKSUB",  "<ZKSUBRQ",          "<ZKCB",     "<ZKCTL",
        "<ZKSTAT",     "<ZKBEGIN",   "<ZKCMIT",   "<ZKBACK", "<DATA_CONV_ON_GET", "<xa_start", "Reason:2035",
        "Reason:2033", "CompCode:1", "CompCode:2"})
    EXPECT_TRUE(all.contains(call)) << call;
}

// ---- Examples

TEST(ExampleStories, ExamplesAreWhatTheStoriesSay) {
  for (const ExampleStory& story : ExampleStories()) {
    const std::string path =
        std::string(QUILLON_SOURCE_DIR) + "/examples/" + std::string(story.name) + ".txt";
    std::ifstream file(path, std::ios::binary);
    ASSERT_TRUE(file) << path;
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(text, story.compose()) << path;
    EXPECT_GE(std::ranges::count(text, '\n'), 100) << path;
    EXPECT_LE(std::ranges::count(text, '\n'), 300) << path;
  }
}

}  // namespace
}  // namespace quillon::compose
