#include "message_maker.h"

#include <vector>

#include "message_composer_pcf.h"
#include "message_composer_text.h"

namespace quillon::compose {

namespace {

// Each draw stands in a statement of its own: the order in which arguments and operands are evaluated is the
// compiler's choice, and a trace must not depend on it.

constexpr std::string_view kQueueFamilies[] = {"PARCEL.LABEL", "PARCEL.SORT",   "TRUCK.LOAD",
                                               "TRUCK.ROUTE",  "DEPOT.INBOUND", "DEPOT.OUTBOUND",
                                               "CUSTOMS.FORM", "RETURN.REQUEST"};
constexpr std::string_view kDepots[] = {"DEPOT1", "DEPOT2", "NORTH", "HARBOUR"};
constexpr std::string_view kTowns[] = {"Aarhus", "Bergen", "Cork", "Delft", "Evora", "Faenza", "Graz"};

Bytes RandomBytes(SplitMix64& random, std::size_t count) {
  Bytes bytes(count);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Next() >> 56);
  return bytes;
}

std::string Depot(SplitMix64& random) {
  return std::string(random.Pick(kDepots));
}

std::string Town(SplitMix64& random) {
  return std::string(random.Pick(kTowns));
}

std::string Number(SplitMix64& random, std::int32_t low, std::int32_t high) {
  return std::to_string(random.Between(low, high));
}

// ---- Text and XML

template <std::int32_t ccsid>
MessageBody MakeTextBody(SplitMix64& random, std::int32_t encoding) {
  MessageBody body = TextBody(MakeText(random, ccsid, MakeLength(random)), ccsid);
  body.encoding = encoding;
  return body;
}

MessageBody MakeBinary(SplitMix64& random, std::int32_t encoding) {
  return {"", encoding, 819, RandomBytes(random, MakeLength(random))};
}

std::string XmlItem(SplitMix64& random) {
  std::string text = "<item no=\"" + Number(random, 1, 999);
  text += "\"><weight unit=\"g\">" + Number(random, 20, 31000);
  text += "</weight><fragile/><to>" + Town(random);
  return text + "</to></item>";
}

std::string XmlDocument(SplitMix64& random) {
  std::string text = "<?xml version=\"1.0\"?><consignment id=\"" + Number(random, 100000, 999999) + "\">";
  const std::size_t length = MakeLength(random);
  do text += XmlItem(random);
  while (text.size() < length);
  return text + "</consignment>";
}

MessageBody MakeXml(SplitMix64& random, std::int32_t encoding) {
  MessageBody body = TextBody(XmlDocument(random), 1208);
  if (random.Percent(50)) body.format.clear();
  body.encoding = encoding;
  return body;
}

// ---- Headers

RulesHeader2 PropertyFolders(SplitMix64& random) {
  RulesHeader2 header;
  std::string properties = "<usr><depot>" + Depot(random);
  properties += "</depot><weight dt=\"i4\">" + Number(random, 1, 31000);
  properties += "</weight></usr>";
  header.folders = {"<mcd><Msd>text</Msd></mcd>", properties};
  if (random.Percent(20)) header.folders.push_back("no folder at all");
  return header;
}

RulesHeader1 PropertyString(SplitMix64& random) {
  RulesHeader1 header;
  header.nameValueString = "depot " + Depot(random);
  header.nameValueString += " town \"" + Town(random) + " North\"";
  header.nameValueString += " weight " + Number(random, 1, 31000);
  return header;
}

DeadLetterHeader LostMessage(SplitMix64& random) {
  static constexpr std::int32_t kReasons[] = {2053, 2085, 2035, 2030};
  DeadLetterHeader header;
  header.reason = random.Pick(kReasons);
  header.destQName = MakeQueueName(random);
  header.destQMgrName = Depot(random);
  header.putApplName = "/opt/depot/bin/sorter";
  header.putDate = "20240514";
  header.putTime = "07112345";
  return header;
}

DistributionHeader ListOfDestinations(SplitMix64& random) {
  DistributionHeader header;
  header.flags = 1;
  header.putMsgRecFields = random.Percent(50) ? 0x1F : kRecordMsgId | kRecordFeedback;
  const std::int32_t count = random.Between(1, 4);
  for (std::int32_t record = 0; record < count; ++record) {
    header.objectRecords.push_back({MakeQueueName(random), Depot(random)});
    header.putMessageRecords.push_back({RandomBytes(random, 24), RandomBytes(random, 24),
                                        RandomBytes(random, 24), random.Between(0, 3),
                                        RandomBytes(random, 32)});
  }
  return header;
}

ReferenceHeader PointerToObject(SplitMix64& random) {
  ReferenceHeader header;
  header.objectType = "FLATFILE";
  header.objectInstanceId = RandomBytes(random, 24);
  header.sourceName = "/var/depot/scan/" + Number(random, 1000, 9999) + ".tif";
  header.destinationEnvironment = Depot(random);
  header.destinationName = "/var/depot/archive/of/scanned/labels/" + Number(random, 1000, 9999);
  header.dataLogicalLength = random.Between(100, 100000);
  return header;
}

DescriptorExtension GroupMember(SplitMix64& random) {
  DescriptorExtension header;
  header.groupId = RandomBytes(random, 24);
  header.msgSeqNumber = random.Between(1, 20);
  header.msgFlags = random.Percent(50) ? 0x8 : 0x18;
  return header;
}

TransmissionHeader Destination(SplitMix64& random) {
  return {1, MakeQueueName(random), Depot(random)};
}

MessageDescriptor OriginalDescriptor(SplitMix64& random) {
  MessageDescriptor descriptor;
  descriptor.msgId = RandomBytes(random, 24);
  descriptor.replyToQ = MakeQueueName(random);
  descriptor.persistence = random.Between(0, 1);
  descriptor.putApplType = 6;
  descriptor.putApplName = "/opt/depot/bin/sorter";
  descriptor.putDate = "20240514";
  descriptor.putTime = "07112345";
  return descriptor;
}

MessageBody MakeRulesHeader1(SplitMix64& random, std::int32_t encoding) {
  const MessageBody body = MakeTextBody<819>(random, encoding);
  return WithRulesHeader1(body, PropertyString(random), encoding);
}

MessageBody MakeRulesHeader2(SplitMix64& random, std::int32_t encoding) {
  const MessageBody body = MakeTextBody<1208>(random, encoding);
  return WithRulesHeader2(body, PropertyFolders(random), encoding);
}

MessageBody MakeDeadLetter(SplitMix64& random, std::int32_t encoding) {
  const MessageBody body = MakeXml(random, encoding);
  return WithDeadLetterHeader(body, LostMessage(random), encoding);
}

MessageBody MakeDistribution(SplitMix64& random, std::int32_t encoding) {
  const MessageBody body = MakeTextBody<819>(random, encoding);
  return WithDistributionHeader(body, ListOfDestinations(random), encoding);
}

MessageBody MakeReference(SplitMix64& random, std::int32_t encoding) {
  const MessageBody body = MakeTextBody<819>(random, encoding);
  return WithReferenceHeader(body, PointerToObject(random), encoding);
}

MessageBody MakeExtension(SplitMix64& random, std::int32_t encoding) {
  const MessageBody body = MakeTextBody<819>(random, encoding);
  return WithDescriptorExtension(body, GroupMember(random), encoding);
}

MessageBody AddTransmissionHeader(SplitMix64& random, const MessageBody& body, std::int32_t encoding) {
  const TransmissionHeader header = Destination(random);
  return WithTransmissionHeader(body, header, OriginalDescriptor(random), encoding);
}

MessageBody MakeTransmission(SplitMix64& random, std::int32_t encoding) {
  return AddTransmissionHeader(random, MakeTextBody<819>(random, encoding), encoding);
}

MessageBody MakeTrigger(SplitMix64& random, std::int32_t encoding) {
  TriggerMessage fields;
  fields.queueName = MakeQueueName(random);
  fields.processName = "START.SORTER";
  fields.triggerData = "belt " + Number(random, 1, 12);
  fields.applId = "/opt/depot/bin/sorter";
  fields.userData = Depot(random);
  return TriggerBody(fields, encoding);
}

// ---- PCF messages

MessageBody MakeInquireCommand(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfCommand, .version = 1, .command = 13}, encoding);
  pcf.String(2016, "PARCEL.*", 48, 0);
  pcf.IntegerList(1002, {1009, 2016, 20, 3});
  pcf.IntegerFilter(3, 4, random.Between(0, 5000));
  return PcfBody(pcf);
}

MessageBody MakeQueueReply(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfResponse,
                   .version = 1,
                   .command = 13,
                   .msgSeqNumber = random.Between(1, 9),
                   .control = random.Between(0, 1)},
                  encoding);
  pcf.String(2016, MakeQueueName(random), 48);
  pcf.Integer(20, 1);
  pcf.String(2013, random.Percent(30) ? "" : "parcels of the " + Depot(random), 64);
  pcf.Integer(3, random.Between(0, 5000));
  pcf.Integer(15, 5000);
  pcf.Integer(5, random.Between(0, 1));
  pcf.Integer(2, 819);
  pcf.String(2027, "2024-05-14", 12);
  pcf.String(2028, "07.11.23", 8);
  pcf.IntegerList(1226, {random.Between(0, 99999), -1});
  return PcfBody(pcf);
}

MessageBody MakeFailedReply(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfResponse, .version = 1, .command = 13, .compCode = 2, .reason = 2085},
                  encoding);
  pcf.String(2016, MakeQueueName(random), 48);
  pcf.Integer(1013, 2085);
  pcf.Integer(1021, 13);
  return PcfBody(pcf);
}

MessageBody MakeEvent(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfEvent, .version = 2, .command = 44, .compCode = 1, .reason = 2035}, encoding);
  pcf.String(2015, Depot(random), 48);
  pcf.Integer(1020, 2);
  pcf.String(2016, MakeQueueName(random), 48);
  pcf.String(3025, "loader", 12);
  pcf.Integer(1, 6);
  pcf.String(3024, "/opt/depot/bin/parcelserver", 28);
  pcf.BeginGroup(8001);
  pcf.ByteString(7001, RandomBytes(random, 32));
  pcf.String(3045, "loader", 12);
  pcf.EndGroup();
  return PcfBody(pcf, "ZKEVENT");
}

MessageBody MakeStatistics(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfStatistics, .version = 3, .command = 165}, encoding);
  pcf.String(2015, Depot(random), 48);
  pcf.String(2711, "2024-05-14", 12);
  const std::int32_t queues = random.Between(1, 5);
  pcf.Integer(732, queues);
  for (std::int32_t queue = 0; queue < queues; ++queue) {
    pcf.BeginGroup(8011);
    pcf.String(2016, MakeQueueName(random), 48);
    pcf.IntegerList(735, {random.Between(0, 9999), random.Between(0, 9999)});
    pcf.Integer64List(748, {random.Between(0, 1 << 30), std::int64_t{random.Between(0, 9999)} << 32});
    pcf.IntegerList(733, {0, random.Between(0, 99), 0, 0, 0, 1, 0, 0, 2});
    pcf.EndGroup();
  }
  return PcfBody(pcf);
}

MessageBody MakeAccounting(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfAccounting, .version = 3, .command = 167}, encoding);
  pcf.String(2015, Depot(random), 48);
  pcf.Integer(1, 6);
  pcf.ByteString(7006, RandomBytes(random, 24));
  pcf.IntegerList(714, {1, 0, 0});
  pcf.IntegerList(722, {random.Between(0, 9999), random.Between(0, 9999)});
  pcf.Integer64(748, random.Between(0, 9999));
  return PcfBody(pcf);
}

/// Every type of parameter, a type that nobody knows, and groups inside groups.
MessageBody MakeEveryParameter(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfCommand, .version = 3, .command = 13}, encoding);
  pcf.Integer(1243, 273);
  pcf.Integer(1228, 0x110);
  pcf.String(3014, MakeText(random, 943, 150), 0, 943);
  pcf.IntegerList(1576, {0, 4});
  pcf.StringList(3011, {MakeQueueName(random), MakeQueueName(random)}, 48, 819);
  pcf.ByteString(7013, RandomBytes(random, 24));
  pcf.ByteString(7020, RandomBytes(random, 70));
  pcf.IntegerFilter(17, 4, random.Between(0, 9));
  pcf.StringFilter(2016, 18, "PARCEL.*");
  pcf.ByteStringFilter(7010, 2, RandomBytes(random, 32));
  pcf.Integer64(747, std::int64_t{random.Between(1, 9999)} << 33);
  pcf.Integer64List(747, {1, std::int64_t{1} << 40});
  pcf.Parameter(99, 1013, RandomBytes(random, 20));
  pcf.BeginGroup(8005);
  pcf.String(3024, "sorter", 28);
  pcf.BeginGroup(8004);
  pcf.Integer(1013, 0);
  pcf.BeginGroup(8008);
  pcf.Integer(1247, 0x18);
  pcf.Integer(1255, 0x01000100);
  pcf.EndGroup();
  pcf.EndGroup();
  pcf.EndGroup();
  pcf.Integer(2, 1208);
  return PcfBody(pcf, "ZKPCF");
}

MessageBody MakeEmbeddedPcf(SplitMix64& random, std::int32_t encoding) {
  PcfComposer pcf({.type = kPcfCommand, .version = 3, .command = 75}, encoding);
  pcf.BeginGroup(8003);
  pcf.Integer(1243, random.Between(0, 1) == 0 ? kEncodingNormal : kEncodingReversed);
  pcf.EndGroup();
  return EmbeddedPcfBody({.flags = random.Between(0, 1), .format = "ZKADMIN"}, pcf);
}

// ---- Chains

/// All headers that may follow one another, in the only order that they are looked for in.
MessageBody MakeLongChain(SplitMix64& random, std::int32_t encoding) {
  MessageBody body = MakeQueueReply(random, encoding);
  body = WithRulesHeader2(body, PropertyFolders(random), encoding);
  body = WithRulesHeader2(body, PropertyFolders(random), encoding);
  body = WithDescriptorExtension(body, GroupMember(random), encoding);
  body = WithDeadLetterHeader(body, LostMessage(random), encoding);
  body = WithReferenceHeader(body, PointerToObject(random), encoding);
  body = WithDistributionHeader(body, ListOfDestinations(random), encoding);
  return AddTransmissionHeader(random, body, encoding);
}

/// Headers whose integers change their order from one to the next.
MessageBody MakeMixedChain(SplitMix64& random, std::int32_t encoding) {
  const std::int32_t other = encoding == kEncodingNormal ? kEncodingReversed : kEncodingNormal;
  MessageBody body = MakeTrigger(random, encoding);
  body = WithRulesHeader2(body, PropertyFolders(random), other);
  return WithDeadLetterHeader(body, LostMessage(random), encoding);
}

constexpr MessageKind kKinds[] = {
    {"text, Latin-1", MakeTextBody<819>},
    {"text, UTF-8", MakeTextBody<1208>},
    {"text, Shift-JIS", MakeTextBody<932>},
    {"text, Shift-JIS with extensions", MakeTextBody<943>},
    {"text, EUC Japanese", MakeTextBody<954>},
    {"text, EUC Korean", MakeTextBody<970>},
    {"text, GBK", MakeTextBody<1386>},
    {"text, EBCDIC", MakeTextBody<500>},
    {"binary", MakeBinary},
    {"XML", MakeXml},
    {"rules header 1", MakeRulesHeader1},
    {"rules header 2", MakeRulesHeader2},
    {"dead letter", MakeDeadLetter},
    {"distribution list", MakeDistribution},
    {"reference", MakeReference},
    {"descriptor extension", MakeExtension},
    {"transmission", MakeTransmission},
    {"trigger", MakeTrigger},
    {"embedded PCF", MakeEmbeddedPcf},
    {"long chain", MakeLongChain},
    {"chain with both byte orders", MakeMixedChain},
    {"inquire command", MakeInquireCommand},
    {"reply", MakeQueueReply},
    {"reply to a failed command", MakeFailedReply},
    {"event", MakeEvent},
    {"statistics", MakeStatistics},
    {"accounting", MakeAccounting},
    {"every parameter", MakeEveryParameter},
};
constexpr std::size_t kPcfKindCount = 7;

}  // namespace

std::span<const MessageKind> MessageKinds() {
  return kKinds;
}

std::span<const MessageKind> PcfMessageKinds() {
  return MessageKinds().last(kPcfKindCount);
}

MessageBody MakeMessage(SplitMix64& random, std::int32_t encoding) {
  if (random.Percent(50)) return MakeTextBody<819>(random, encoding);
  if (random.Percent(30)) return MakeXml(random, encoding);
  return random.Pick(MessageKinds()).make(random, encoding);
}

std::string MakeText(SplitMix64& random, std::int32_t ccsid, std::size_t length) {
  const Vocabulary& vocabulary = VocabularyOf(ccsid);
  std::string text(random.Pick(vocabulary.words));
  while (text.size() < length) {
    text += vocabulary.blank;
    text += random.Pick(vocabulary.words);
  }
  return text;
}

std::size_t MakeLength(SplitMix64& random) {
  const std::uint32_t draw = random.Below(100);
  if (draw < 10) return random.Below(20);
  if (draw < 80) return 20 + random.Below(700);
  if (draw < 97) return 700 + random.Below(3300);
  return 4000 + random.Below(28000);
}

std::string MakeQueueName(SplitMix64& random) {
  const std::string family(random.Pick(kQueueFamilies));
  return family + "." + Number(random, 1, 40);
}

}  // namespace quillon::compose
