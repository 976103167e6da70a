#include "trace_stories.h"

#include <algorithm>
#include <utility>

#include "load_traces.h"
#include "message_maker.h"
#include "session_composer.h"

namespace quillon::compose {

namespace {

// As in the message maker, each draw of a random number stands in a statement of its own.

constexpr Outcome kNotAuthorized = {2, 2035};
constexpr Outcome kNoMessage = {2, 2033};
constexpr Outcome kTruncated = {1, 2079};
constexpr Outcome kMultipleReasons = {1, 2136};

constexpr std::uint32_t kFailIfQuiescing = 0x2000;
constexpr std::uint32_t kOpenInput = 0x1;
constexpr std::uint32_t kOpenBrowse = 0x8;
constexpr std::uint32_t kOpenOutput = 0x10;
constexpr std::uint32_t kOpenInquireSet = 0x60;
constexpr std::uint32_t kPutSyncpointNewIds = 0x20C2;
constexpr std::uint32_t kPutNoSyncpoint = 0x2044;
constexpr std::uint32_t kGetWaitSyncpointConvert = 0x6003;
constexpr std::uint32_t kGetBrowseNext = 0x2024;

ObjectToOpen Queue(const std::string& name, std::uint32_t options) {
  ObjectToOpen object;
  object.descriptor.objectName = name;
  object.options = options | kFailIfQuiescing;
  return object;
}

ObjectToOpen Topic(const std::string& name, const std::string& topicString) {
  ObjectToOpen object = Queue(name, kOpenOutput);
  object.descriptor.objectType = 8;
  object.objectString = topicString;
  object.resObjectString = topicString;
  return object;
}

MessageToPut Outgoing(SplitMix64& random, const MessageBody& body) {
  MessageToPut message;
  message.body = body;
  message.options.options = random.Percent(60) ? kPutSyncpointNewIds : kPutNoSyncpoint;
  message.descriptor.persistence = random.Between(0, 2);
  message.descriptor.priority = random.Between(0, 9);
  message.descriptor.version = random.Percent(20) ? 1 : 2;
  if (!random.Percent(25)) return message;
  message.descriptor.msgType = 1;
  message.descriptor.expiry = 300;
  message.descriptor.report = 0x01000100;
  message.descriptor.replyToQ = MakeQueueName(random);
  return message;
}

MessageToGet Incoming(SplitMix64& random, const std::string& queueName, const MessageBody& body) {
  MessageToGet message;
  message.body = body;
  message.queueName = queueName;
  message.options.options = random.Percent(80) ? kGetWaitSyncpointConvert : kGetBrowseNext;
  message.options.waitInterval = 15000;
  message.bufferLength = 65536;
  message.descriptor.version = random.Percent(20) ? 1 : 2;
  return message;
}

/// An encoding for a message body, mostly the process's own. On the default platform a descriptor in reversed
/// order hands its Encoding on as it is stored, so that the body behind it is always taken as reversed.
std::int32_t AnyEncoding(Session& session) {
  if (session.order != session.native.order) return kEncodingReversed;
  const bool own = session.random.Percent(65);
  return own == (session.native.order == Order::Big) ? kEncodingNormal : kEncodingReversed;
}

MessageBody AnyMessage(Session& session) {
  const std::int32_t encoding = AnyEncoding(session);
  return MakeMessage(session.random, encoding);
}

// ---- Stories on queues

/// Requests go to one queue, replies are read from another until it is empty.
void TellRequestsAndReplies(Session& session) {
  SplitMix64& random = session.random;
  const std::string requestQueue = MakeQueueName(random);
  const std::string replyQueue = MakeQueueName(random);
  const std::uint32_t requests = Open(session, Queue(requestQueue, kOpenOutput));
  const std::uint32_t replies = Open(session, Queue(replyQueue, kOpenInput));
  const std::int32_t rounds = random.Between(2, 12);
  for (std::int32_t round = 0; round < rounds; ++round) {
    const MessageBody request = AnyMessage(session);
    Put(session, requests, Outgoing(random, request));
    const MessageBody reply = AnyMessage(session);
    Get(session, replies, Incoming(random, replyQueue, reply));
    if (random.Percent(40)) SimpleCall(session, "ZKCMIT");
  }
  Get(session, replies, Incoming(random, replyQueue, {}), kNoMessage);
  SimpleCall(session, random.Percent(80) ? "ZKCMIT" : "ZKBACK");
  Close(session, replies);
  Close(session, requests);
}

/// Messages are looked at before one is taken; the buffer is too small for one of them.
void TellBrowsing(Session& session) {
  SplitMix64& random = session.random;
  const std::string name = MakeQueueName(random);
  const std::uint32_t handle = Open(session, Queue(name, kOpenBrowse | kOpenInput));
  const std::int32_t count = random.Between(1, 5);
  for (std::int32_t message = 0; message < count; ++message) {
    const MessageBody body = AnyMessage(session);
    MessageToGet get = Incoming(random, name, body);
    get.options.options = message == 0 ? 0x2014 : kGetBrowseNext;
    Get(session, handle, get);
  }
  const MessageBody large = TextBody(MakeText(random, 819, 1500));
  MessageToGet cut = Incoming(random, name, large);
  cut.options.options |= 0x40;
  cut.bufferLength = 256;
  Get(session, handle, cut, kTruncated);
  Close(session, handle);
}

/// Opens that fail: not authorised, unknown name; and a put to a full queue.
void TellFailures(Session& session) {
  SplitMix64& random = session.random;
  Open(session, Queue(MakeQueueName(random), kOpenInput), kNotAuthorized);
  Open(session, Queue("PARCEL.UNKNOWN", kOpenOutput), {2, 2085});
  const std::uint32_t handle = Open(session, Queue(MakeQueueName(random), kOpenOutput));
  const MessageBody body = AnyMessage(session);
  Put(session, handle, Outgoing(random, body), {2, 2053});
  Close(session, handle);
  Close(session, handle, 0, {2, 2019});
}

/// A model queue becomes a dynamic queue; an alias leads to another name; a queue manager is inquired.
void TellModelQueue(Session& session) {
  SplitMix64& random = session.random;
  ObjectToOpen model = Queue("DEPOT.REPLY.MODEL", kOpenInput);
  model.descriptor.dynamicQName = "DEPOT.REPLY.*";
  model.resolvedName = "DEPOT.REPLY." + std::to_string(random.Between(100000, 999999));
  const std::uint32_t handle = Open(session, model);
  const MessageBody body = AnyMessage(session);
  Get(session, handle, Incoming(random, model.resolvedName, body));
  Close(session, handle, 0x2);

  ObjectToOpen alias = Queue("PARCEL.ALIAS", kOpenOutput);
  alias.descriptor.version = 3;
  alias.resolvedName = MakeQueueName(random);
  const std::uint32_t aliasHandle = Open(session, alias);
  const MessageBody note = AnyMessage(session);
  Put(session, aliasHandle, Outgoing(random, note));
  Close(session, aliasHandle);
}

/// One message put without an open call.
void TellSinglePut(Session& session) {
  SplitMix64& random = session.random;
  const MessageBody body = AnyMessage(session);
  const ObjectToOpen object = Queue(MakeQueueName(random), kOpenOutput);
  PutOne(session, object, Outgoing(random, body));
}

/// A distribution list with records of every field; one destination does not exist.
void TellDistributionList(Session& session) {
  SplitMix64& random = session.random;
  ObjectToOpen list = Queue("", kOpenOutput);
  list.descriptor.version = 2;
  MessageToPut message = Outgoing(random, TextBody(MakeText(random, 819, 60)));
  message.options.version = 2;
  message.options.putMsgRecFields = random.Percent(50) ? 0x1F : kRecordMsgId | kRecordFeedback;
  const std::int32_t count = random.Between(2, 5);
  for (std::int32_t record = 0; record < count; ++record) {
    list.records.push_back({MakeQueueName(random), session.queueManager});
    message.records.push_back({BytesOf("PARCEL"), BytesOf("TRUCK"), BytesOf("GROUP"), 0, BytesOf("\x06")});
  }
  list.responses.assign(list.records.size(), {0, 0});
  list.responses.front() = {2, 2085};
  message.responses = list.responses;
  const Order order =
      std::exchange(session.order, session.native.order);  // counts of records are read as stored
  const std::uint32_t handle = Open(session, list, kMultipleReasons);
  Put(session, handle, message, kMultipleReasons);
  Close(session, handle);
  session.order = order;
}

/// Work that a transaction manager coordinates.
void TellTransaction(Session& session) {
  SplitMix64& random = session.random;
  XaCall(session, "xa_open", 0);
  XaCall(session, "xa_start", 0);
  const std::uint32_t handle = Open(session, Queue(MakeQueueName(random), kOpenOutput));
  const MessageBody body = AnyMessage(session);
  Put(session, handle, Outgoing(random, body));
  Close(session, handle);
  XaCall(session, "xa_end", 0x04000000);
  XaCall(session, "xa_prepare", 0);
  XaCall(session, "xa_commit", random.Percent(50) ? 0x40000000 : 0);
  XaCall(session, "xa_close", 0);
}

/// A unit of work that the queue manager coordinates itself.
void TellUnitOfWork(Session& session) {
  SplitMix64& random = session.random;
  SimpleCall(session, "ZKBEGIN", {1, 2121});
  const std::string name = MakeQueueName(random);
  const std::uint32_t handle = Open(session, Queue(name, kOpenInput | kOpenOutput));
  const std::int32_t count = random.Between(1, 4);
  for (std::int32_t message = 0; message < count; ++message) {
    const MessageBody body = AnyMessage(session);
    Put(session, handle, Outgoing(random, body));
  }
  SimpleCall(session, "ZKBACK");
  Close(session, handle);
}

// ---- Stories on message forms

/// One put and one get of every form of message, in either byte order.
void TellEveryMessage(Session& session) {
  SplitMix64& random = session.random;
  const Order order = std::exchange(session.order, session.native.order);
  const std::string name = MakeQueueName(random);
  const std::uint32_t handle = Open(session, Queue(name, kOpenInput | kOpenOutput));
  for (const MessageKind& kind : MessageKinds()) {
    const MessageBody sent = kind.make(random, kEncodingNormal);
    Put(session, handle, Outgoing(random, sent));
    const MessageBody received = kind.make(random, kEncodingReversed);
    Get(session, handle, Incoming(random, name, received));
  }
  Close(session, handle);
  session.order = order;
}

/// Some messages of any form, each as likely as the others.
void TellMixedMessages(Session& session) {
  SplitMix64& random = session.random;
  const std::string name = MakeQueueName(random);
  const std::uint32_t handle = Open(session, Queue(name, kOpenInput | kOpenOutput));
  const std::int32_t count = random.Between(2, 10);
  for (std::int32_t message = 0; message < count; ++message) {
    const std::int32_t encoding = AnyEncoding(session);
    const MessageBody body = random.Pick(MessageKinds()).make(random, encoding);
    if (random.Percent(50))
      Put(session, handle, Outgoing(random, body));
    else
      Get(session, handle, Incoming(random, name, body));
  }
  Close(session, handle);
}

/// A get whose text the application's conversion exit turns from EBCDIC into Latin-1.
void TellConversion(Session& session) {
  SplitMix64& random = session.random;
  const std::string name = MakeQueueName(random);
  const std::uint32_t handle = Open(session, Queue(name, kOpenInput));
  const std::size_t length = MakeLength(random);
  const MessageBody before = TextBody(MakeText(random, 500, length), 500, "DEPOTFMT");
  const MessageBody after = TextBody(MakeText(random, 819, length), 819, "DEPOTFMT");
  ConvertOnGet(session, before, after);
  Get(session, handle, Incoming(random, name, after));
  Close(session, handle);
}

/// The mover of messages between queue managers reads a transmission queue and shows each header by itself.
void TellMover(Session& session) {
  SplitMix64& random = session.random;
  const std::uint32_t handle = Open(session, Queue("NORTH.TRANSMIT", kOpenInput));
  const std::string target = MakeQueueName(random);
  session.trace.BeginSection("MOVE_MESSAGE", Phase::Before);
  session.trace.Item("XQH", ComposeTransmissionHeader({1, target, "NORTH"}));
  session.trace.Item("XQ", ComposeTransmissionHeader({1, target, "NORTH"}, Order::Little));
  session.trace.EndSection();
  Close(session, handle);
}

// ---- Stories of administration

/// A command goes to the command queue, its replies come back one by one.
void TellAdministration(Session& session) {
  SplitMix64& random = session.random;
  const std::string replyQueue = "ADMIN.REPLY";
  const std::uint32_t commands = Open(session, Queue("ADMIN.COMMAND", kOpenOutput));
  const std::uint32_t replies = Open(session, Queue(replyQueue, kOpenInput));
  const std::int32_t commandEncoding = AnyEncoding(session);
  const MessageBody command = PcfMessageKinds().front().make(random, commandEncoding);
  Put(session, commands, Outgoing(random, command));
  const std::int32_t count = random.Between(1, 6);
  for (std::int32_t reply = 0; reply < count; ++reply) {
    const std::int32_t encoding = AnyEncoding(session);
    const MessageBody body = random.Pick(PcfMessageKinds()).make(random, encoding);
    Get(session, replies, Incoming(random, replyQueue, body));
  }
  Get(session, replies, Incoming(random, replyQueue, {}), kNoMessage);
  Close(session, commands);
  Close(session, replies);
}

/// Attributes of a queue, a namelist and the queue manager are read and set.
void TellAttributes(Session& session) {
  SplitMix64& random = session.random;
  const std::string name = MakeQueueName(random);
  const std::uint32_t queue = Open(session, Queue(name, kOpenInquireSet));
  const std::int32_t depth = random.Between(0, 5000);
  Inquire(session, queue,
          {{20, 3, 15, 5, 2016, 2013, 2027},
           {1, depth, 5000, 1},
           {{name, 48}, {"parcels that wait for a label", 64}, {"2024-05-14", 12}}});
  Set(session, queue, {{10, 2023}, {random.Between(0, 1)}, {{"belt 7", 64}}});
  Inquire(session, queue, {{3, 2016}, {0}, {}}, {2, 2067});
  Close(session, queue);

  ObjectToOpen namelist = Queue("DEPOT.QUEUES", kOpenInquireSet);
  namelist.descriptor.objectType = 2;
  const std::uint32_t list = Open(session, namelist);
  Inquire(session, list,
          {{19, 2010, 2020}, {2}, {{"DEPOT.QUEUES", 48}, {"PARCEL.SORT.1", 48}, {"TRUCK.LOAD.2", 48}}});
  Close(session, list);

  ObjectToOpen manager = Queue("", kOpenInquireSet);
  manager.descriptor.objectType = 5;
  const std::uint32_t managerHandle = Open(session, manager);
  Inquire(session, managerHandle, {{2, 136, 32, 2015}, {819, 1, 3}, {{session.queueManager, 48}}});
  Close(session, managerHandle);
}

// ---- Stories of publishing

/// A subscriber asks for retained publications and reads what is published.
void TellSubscription(Session& session) {
  SplitMix64& random = session.random;
  const std::string topic = "/depot/belt/" + std::to_string(random.Between(1, 12)) + "/weight";
  SubscriptionToMake subscription;
  subscription.descriptor.options = 0x202A;
  subscription.descriptor.pubPriority = random.Between(-3, 9);
  subscription.objectString = topic;
  subscription.subName = "BELT.WATCH." + std::to_string(random.Between(1, 99));
  if (random.Percent(50)) subscription.selectionString = "weight > 20000 AND fragile = 'no'";
  if (random.Percent(50)) subscription.subUserData = MakeText(random, 1208, 120);
  subscription.resObjectString = topic;
  const SubscriptionHandles handles = Subscribe(session, subscription);
  const std::int32_t count = random.Between(1, 5);
  RequestPublications(session, handles.subscription, count);
  for (std::int32_t publication = 0; publication < count; ++publication) {
    const MessageBody body = AnyMessage(session);
    Get(session, handles.queue, Incoming(random, "DEPOT.MANAGED.1552", body));
  }
  Close(session, handles.subscription, random.Percent(50) ? 0x4 : 0x8);
  Close(session, handles.queue);
  Subscribe(session, subscription, {2, 2428});
}

/// A publisher puts to a topic, with message handles in its options.
void TellPublisher(Session& session) {
  SplitMix64& random = session.random;
  const std::string topic = "/depot/belt/" + std::to_string(random.Between(1, 12)) + "/weight";
  const std::uint32_t handle = Open(session, Topic("BELTS", topic));
  const std::int32_t count = random.Between(1, 6);
  for (std::int32_t publication = 0; publication < count; ++publication) {
    const MessageBody body = AnyMessage(session);
    MessageToPut message = Outgoing(random, body);
    message.options.version = 3;
    message.options.options = random.Percent(50) ? 0x282004 : 0x2004;
    message.options.newMsgHandle = HandleOf(session, random.Below(9) + 1);
    message.options.action = random.Between(0, 3);
    Put(session, handle, message);
  }
  Close(session, handle);
}

/// Messages arrive through a registered function.
void TellConsumer(Session& session) {
  SplitMix64& random = session.random;
  const std::string name = MakeQueueName(random);
  const std::uint32_t handle = Open(session, Queue(name, kOpenInput));
  CallbackDescriptor descriptor;
  descriptor.options = kFailIfQuiescing;
  descriptor.callbackFunction = 0x08049A10;
  descriptor.callbackName = random.Percent(50) ? "" : "/opt/depot/lib/labels(onLabel)";
  GetOptions options;
  options.options = kGetWaitSyncpointConvert;
  RegisterCallback(session, handle, 0x100, descriptor, options);
  Control(session, 0x1, {.options = 0x2001});
  const std::int32_t count = random.Between(2, 6);
  for (std::int32_t call = 0; call < count; ++call) {
    CallbackContext context;
    context.version = 1 + call % 2;
    context.objectHandle = handle;
    const MessageBody body = AnyMessage(session);
    ConsumerCall(session, context, Incoming(random, name, body));
  }
  CallbackContext event;
  event.callType = 5;
  event.compCode = 2;
  event.reason = 2161;
  event.state = 3;
  ConsumerCall(session, event, Incoming(random, name, {}));
  Control(session, 0x4, {});
  RegisterCallback(session, handle, 0x200, descriptor, options);
  Close(session, handle);
}

/// What became of puts that were not waited for, and of a reconnection.
void TellStatus(Session& session) {
  SplitMix64& random = session.random;
  StatusToAsk request;
  request.answer.putSuccessCount = random.Between(0, 100);
  request.answer.objectName = MakeQueueName(random);
  request.answer.resolvedObjectName = request.answer.objectName;
  request.answer.resolvedQMgrName = session.queueManager;
  request.answer.version = 1;
  Status(session, request);
  request.type = 2;
  request.answer.version = 2;
  request.answer.compCode = 2;
  request.answer.reason = 2085;
  request.answer.objectType = 8;
  request.answer.openOptions = random.Between(0, 2);
  request.answer.subOptions = random.Between(0, 2);
  request.objectString = "/depot/belt/4/weight";
  request.subName = "BELT.WATCH.4";
  Status(session, request);
}

// ---- Stories of clients

ChannelDefinition DepotChannel() {
  ChannelDefinition channel;
  channel.channelName = "PARCEL.CLIENT";
  channel.description = "parcel clients of the depot";
  channel.qMgrName = "DEPOT1";
  channel.connectionName = "host1.depot.example(7001)";
  channel.sslCipherSpec = "TLS_RSA_WITH_AES_128_CBC_SHA";
  channel.localAddress = "10.1.2.99(5000,5010)";
  return channel;
}

TlsOptions DepotTls() {
  TlsOptions tls;
  tls.keyRepository = "/var/depot/keys/client";
  tls.keyResetCount = 40000;
  return tls;
}

std::vector<AuthenticationEntry> DepotDirectories() {
  AuthenticationEntry directory;
  directory.record.version = 1;
  directory.record.authInfoConnName = "ldap1.depot.example(389)";
  directory.record.ldapPassword = "not-a-secret";
  directory.ldapUserName = "cn=certreader,ou=services,o=depot";
  AuthenticationEntry responder;
  responder.record.ocspResponderUrl = "http://ocsp.depot.example:8080/";
  return {directory, responder};
}

/// A client connects with everything that a connect can carry; a first attempt is refused.
void TellClientConnect(Session& session) {
  ClientConnect request;
  request.options.options = 0x0800;
  request.options.connTag = BytesOf("parcels of belt 7");
  request.channel = DepotChannel();
  request.tls = DepotTls();
  request.authentication = DepotDirectories();
  request.userId = "loader";
  request.password = "not-a-secret";
  ConnectExtended(session, request, {2, 2009});
  ConnectExtended(session, request);
  TellSinglePut(session);
}

/// The structures of connects in every version that a program may have been built with.
void TellOldClients(Session& session) {
  ClientConnect request;
  request.channel = DepotChannel();
  request.tls = DepotTls();
  for (std::int32_t version = 1; version <= 10; ++version) {
    request.options.version = std::min(version, 5);
    request.options.options = version % 2 == 0 ? 0x40 : 0x0;
    request.channel->version = version;
    request.tls->version = std::min(version, 4);
    ConnectExtended(session, request);
  }
}

/// The structures of opens, puts and gets in every version and in either byte order.
void TellOldPrograms(Session& session) {
  SplitMix64& random = session.random;
  const Order usual = session.order;
  for (const Order order : {Order::Big, Order::Little}) {
    session.order = OwnOrder(session, order);
    for (std::int32_t version = 1; version <= 4; ++version) {
      const std::string name = MakeQueueName(random);
      ObjectToOpen object = Queue(name, kOpenInput | kOpenOutput);
      object.descriptor.version = version;
      const std::uint32_t handle = Open(session, object);
      const MessageBody body = TextBody(MakeText(random, 819, 100));
      MessageToPut put = Outgoing(random, body);
      put.descriptor.version = std::min(version, 2);
      put.options.version = std::min(version, 3);
      Put(session, handle, put);
      MessageToGet get = Incoming(random, name, body);
      get.options.version = version;
      get.descriptor.version = std::min(version, 2);
      Get(session, handle, get);
      Close(session, handle);
    }
  }
  session.order = usual;
}

/// One story: the part of the trace mixes that it belongs to, and how often it is told.
struct Story {
  std::string_view part;
  std::uint32_t weight;
  void (*tell)(Session& session);
};

constexpr Story kStories[] = {
    {"queue", 40, TellRequestsAndReplies},
    {"queue", 10, TellBrowsing},
    {"queue", 5, TellFailures},
    {"queue", 5, TellModelQueue},
    {"queue", 10, TellSinglePut},
    {"queue", 3, TellDistributionList},
    {"queue", 3, TellTransaction},
    {"queue", 3, TellUnitOfWork},
    {"messages", 1, TellEveryMessage},
    {"messages", 10, TellMixedMessages},
    {"messages", 3, TellConversion},
    {"messages", 1, TellMover},
    {"admin", 8, TellAdministration},
    {"admin", 5, TellAttributes},
    {"publish", 5, TellSubscription},
    {"publish", 5, TellPublisher},
    {"publish", 4, TellConsumer},
    {"publish", 1, TellStatus},
    {"client", 3, TellClientConnect},
    {"client", 1, TellOldClients},
    {"client", 1, TellOldPrograms},
};
constexpr std::string_view kWholeMix = "all";

std::vector<Story> StoriesOf(std::string_view mix) {
  std::vector<Story> stories;
  for (const Story& story : kStories)
    if (mix == kWholeMix || mix == story.part) stories.push_back(story);
  return stories;
}

const Story& PickStory(SplitMix64& random, const std::vector<Story>& stories) {
  std::uint32_t total = 0;
  for (const Story& story : stories) total += story.weight;
  std::uint32_t draw = random.Below(total);
  for (const Story& story : stories) {
    if (draw < story.weight) return story;
    draw -= story.weight;
  }
  return stories.back();
}

/// Some stories between a connect and a disconnect, told by one thread.
void TellConnection(Session& session, const std::vector<Story>& stories) {
  SplitMix64& random = session.random;
  session.order = OwnOrder(session, random.Percent(10) ? Order::Little : Order::Big);
  session.trace.threadId = 1 + random.Below(4);
  session.connection = 0x10 + session.trace.threadId;
  Connect(session);
  const std::int32_t count = random.Between(1, 6);
  for (std::int32_t story = 0; story < count; ++story) PickStory(random, stories).tell(session);
  Disconnect(session);
}

/// Nothing when the mix is made of stories.
const LoadTrace* FindLoadTrace(std::string_view mix) {
  for (const LoadTrace& load : LoadTraces())
    if (load.mix == mix) return &load;
  return nullptr;
}

struct TracePlatform {
  std::string_view name;
  Order order;
  bool wide;
};
constexpr TracePlatform kPlatforms[] = {
    {"be32", Order::Big, false},
    {"le32", Order::Little, false},
    {"be64", Order::Big, true},
    {"le64", Order::Little, true},
};

const TracePlatform* FindPlatform(std::string_view name) {
  for (const TracePlatform& platform : kPlatforms)
    if (platform.name == name) return &platform;
  return nullptr;
}

void TellTour(Session& session, const std::vector<Story>& stories) {
  Connect(session, {2, 2059});
  Connect(session);
  for (const Story& story : stories) story.tell(session);
  Disconnect(session);
}

}  // namespace

std::vector<std::string_view> TracePlatforms() {
  std::vector<std::string_view> names;
  for (const TracePlatform& platform : kPlatforms) names.push_back(platform.name);
  return names;
}

std::vector<std::string_view> TraceMixes() {
  std::vector<std::string_view> mixes = {kWholeMix};
  for (const Story& story : kStories)
    if (mixes.back() != story.part) mixes.push_back(story.part);
  for (const LoadTrace& load : LoadTraces()) mixes.push_back(load.mix);
  return mixes;
}

bool WriteTrace(const TraceRequest& request, const std::function<bool(const std::string&)>& sink) {
  const std::vector<Story> stories = StoriesOf(request.mix);
  const LoadTrace* load = FindLoadTrace(request.mix);
  const TracePlatform* platform = FindPlatform(request.platform);
  if ((stories.empty() && load == nullptr) || platform == nullptr) return false;
  Session session;
  session.native = {platform->order, platform->wide};
  session.order = session.native.order;
  session.random.state = request.seed;
  std::uint64_t written = 0;
  bool failed = false;
  // A story goes on to its end after the last section that is wanted; what it writes then is dropped.
  session.trace.sectionSink = [&](const std::string& section) {
    if (failed || written >= request.size) return;
    failed = !sink(section);
    written += section.size();
  };
  const auto wanted = [&] { return !failed && written < request.size; };
  session.trace.Header({.addressingMode = session.native.wide ? "64-bit" : "32-bit"});
  if (load != nullptr) {
    while (wanted()) load->tell(session, {request.size, wanted});
    return !failed;
  }
  TellTour(session, stories);
  while (wanted()) TellConnection(session, stories);
  return !failed;
}

}  // namespace quillon::compose
