#include "example_stories.h"

#include "message_composer_pcf.h"
#include "session_composer.h"

namespace quillon::compose {

namespace {

constexpr std::uint32_t kOpenInput = 0x2001;
constexpr std::uint32_t kOpenInputInquire = 0x2021;
constexpr std::uint32_t kOpenOutput = 0x2010;
constexpr std::uint32_t kOpenInputOutput = 0x2011;
constexpr std::uint32_t kPutNewIds = 0x20C4;
constexpr std::uint32_t kGetWait = 0x2005;

Session StartSession(const std::string& program, const std::string& user, std::uint32_t processId,
                     Layout native = {}) {
  Session session;
  session.native = native;
  session.order = native.order;
  session.trace.processId = processId;
  session.random.state = processId;
  session.applicationName = program;
  session.userId = user;
  session.trace.Header({.programName = program, .addressingMode = native.wide ? "64-bit" : "32-bit"});
  return session;
}

ObjectToOpen NamedObject(const std::string& name, std::int32_t objectType, std::uint32_t options) {
  ObjectToOpen object;
  object.descriptor.objectName = name;
  object.descriptor.objectType = objectType;
  object.options = options;
  return object;
}

/// A queue, described as briefly as the call allows.
ObjectToOpen NamedQueue(const std::string& name, std::uint32_t options) {
  ObjectToOpen object = NamedObject(name, 1, options);
  object.descriptor.version = 1;
  return object;
}

MessageToPut Outgoing(const MessageBody& body) {
  MessageToPut message;
  message.body = body;
  message.options.options = kPutNewIds;
  return message;
}

MessageToGet Incoming(const std::string& queueName, const MessageBody& body) {
  MessageToGet message;
  message.body = body;
  message.queueName = queueName;
  message.options.options = kGetWait;
  message.options.waitInterval = 15000;
  return message;
}

std::string ComposeQueueSession() {
  Session session = StartSession("/opt/depot/bin/labeler", "labeler", 4711);
  Connect(session);
  Open(session, NamedQueue("CUSTOMS.FORM", kOpenOutput), {2, 2035});
  const std::uint32_t labels = Open(session, NamedQueue("PARCEL.LABEL", kOpenInputOutput));
  MessageToPut label = Outgoing(TextBody("Parcel 20815 to Bergen, belt 7, 1250 g"));
  label.descriptor.persistence = 1;
  Put(session, labels, label);
  Get(session, labels, Incoming("PARCEL.LABEL", TextBody("Parcel 20814 to Delft, belt 2, fragile")));
  Close(session, labels);
  Disconnect(session);
  return session.trace.text;
}

std::string ComposePublishSubscribe() {
  const std::string topic = "/depot/belt/7/weight";
  Session session = StartSession("/opt/depot/bin/beltwatch", "watcher", 4712);
  Connect(session);
  SubscriptionToMake subscription;
  subscription.descriptor.options = 0x202A;
  subscription.objectString = topic;
  subscription.subName = "BELT.WATCH.7";
  subscription.selectionString = "weight > 20000";
  subscription.resObjectString = topic;
  const SubscriptionHandles handles = Subscribe(session, subscription);

  ObjectToOpen belts = NamedObject("BELTS", 8, kOpenOutput);
  belts.objectString = topic;
  belts.resObjectString = topic;
  const std::uint32_t publisher = Open(session, belts);
  MessageToPut publication = Outgoing(
      WithRulesHeader2(TextBody("25400 g", 1208), {.folders = {"<usr><weight>25400</weight></usr>"}}));
  publication.descriptor.version = 1;
  publication.options.version = 3;
  publication.options.options = 0x202004;
  Put(session, publisher, publication);
  Close(session, publisher);

  RequestPublications(session, handles.subscription, 1);
  Close(session, handles.subscription, 0x4);
  Close(session, handles.queue);
  Disconnect(session);
  return session.trace.text;
}

MessageBody InquireQueues() {
  PcfComposer command({.type = kPcfCommand, .version = 1, .command = 13});
  command.String(2016, "PARCEL.*", 48, 0);
  command.IntegerList(1002, {2016, 20, 3});
  command.IntegerFilter(3, 4, 100);
  return PcfBody(command);
}

MessageBody QueueReply(const std::string& queue, std::int32_t depth, std::int32_t number, bool isLast) {
  PcfComposer reply(
      {.type = kPcfResponse, .version = 1, .command = 13, .msgSeqNumber = number, .control = isLast ? 1 : 0});
  reply.String(2016, queue, 48);
  reply.Integer(20, 1);
  reply.Integer(3, depth);
  return PcfBody(reply);
}

std::string ComposeAdminCommand() {
  Session session = StartSession("/opt/depot/bin/depthcheck", "operator", 4713);
  Connect(session);
  MessageToPut command = Outgoing(InquireQueues());
  command.descriptor.version = 1;
  command.descriptor.msgType = 1;
  command.descriptor.expiry = 300;
  command.descriptor.replyToQ = "ADMIN.REPLY";
  command.options.version = 1;
  PutOne(session, NamedQueue("ADMIN.COMMAND", 0), command);
  const std::uint32_t replies = Open(session, NamedQueue("ADMIN.REPLY", kOpenInput));
  for (const MessageBody& reply :
       {QueueReply("PARCEL.LABEL", 412, 1, false), QueueReply("PARCEL.SORT", 2094, 2, true)}) {
    MessageToGet get = Incoming("ADMIN.REPLY", reply);
    get.descriptor.version = 1;
    get.options.version = 1;
    Get(session, replies, get);
  }
  Disconnect(session);
  return session.trace.text;
}

ChannelDefinition ParcelChannel() {
  ChannelDefinition channel;
  channel.channelName = "PARCEL.CLIENT";
  channel.description = "parcel clients of the depot";
  channel.qMgrName = "DEPOT1";
  channel.connectionName = "host1.depot.example(7001)";
  channel.sslCipherSpec = "TLS_RSA_WITH_AES_128_CBC_SHA";
  channel.localAddress = "10.1.2.99(5000,5010)";
  channel.hdrCompList = {1, -1};
  return channel;
}

std::string ComposeClientConnect() {
  Session session = StartSession("/opt/depot/bin/handscanner", "scanner", 4714);
  ClientConnect request;
  request.options.options = 0x0840;
  request.options.connTag = BytesOf("hand scanner 12");
  request.channel = ParcelChannel();
  request.tls = TlsOptions{};
  request.tls->keyRepository = "/var/depot/keys/client";
  request.tls->keyResetCount = 40000;
  AuthenticationEntry directory;
  directory.record.version = 1;
  directory.record.authInfoConnName = "ldap1.depot.example(389)";
  directory.record.ldapPassword = "not-a-secret";
  directory.ldapUserName = "cn=certreader,ou=services,o=depot";
  request.authentication.push_back(directory);
  request.userId = "scanner";
  request.password = "not-a-secret";
  ConnectExtended(session, request);
  MessageToPut scan = Outgoing(TextBody("scan 20815 belt 7 07:00:03"));
  PutOne(session, NamedQueue("PARCEL.SCAN", 0), scan);
  Disconnect(session);
  return session.trace.text;
}

/// A body whose integers stand in the order of a little-endian process, as its descriptor says.
MessageBody LittleEndianText(std::string_view text) {
  MessageBody body = TextBody(text);
  body.encoding = kEncodingReversed;
  return body;
}

std::string ComposeLittleEndianSession() {
  Session session = StartSession("/opt/depot/bin/beltsorter", "sorter", 4715, {Order::Little, true});
  Connect(session);
  ObjectToOpen heavy = NamedObject("PARCEL.SORT", 1, kOpenInputInquire);
  heavy.selectionString = "weight > 20000";
  const std::uint32_t parcels = Open(session, heavy);
  Inquire(session, parcels, {{20, 3, 2016}, {1, 2094}, {{"PARCEL.SORT", 48}}});
  MessageToGet parcel = Incoming("PARCEL.SORT", LittleEndianText("Parcel 20816 to Oslo, belt 3, 25400 g"));
  parcel.descriptor.version = 1;
  parcel.descriptor.encoding = kEncodingReversed;
  parcel.options.version = 3;
  Get(session, parcels, parcel);
  MessageToPut note = Outgoing(LittleEndianText("belt 3: parcel 20816 is heavy"));
  note.descriptor.version = 1;
  PutOne(session, NamedQueue("BELT.NOTE", 0), note);
  Close(session, parcels);
  Disconnect(session);
  return session.trace.text;
}

constexpr ExampleStory kExampleStories[] = {
    {"little_endian_session", ComposeLittleEndianSession},
    {"queue_session", ComposeQueueSession},
    {"publish_subscribe", ComposePublishSubscribe},
    {"admin_command", ComposeAdminCommand},
    {"client_connect", ComposeClientConnect},
};

}  // namespace

std::span<const ExampleStory> ExampleStories() {
  return kExampleStories;
}

}  // namespace quillon::compose
