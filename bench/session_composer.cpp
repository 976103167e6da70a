#include "session_composer.h"

#include <string_view>

namespace quillon::compose {

namespace {

constexpr std::uint64_t kStringAddress = 0x20001000;
constexpr std::uint32_t kNoHandle = 0xFFFFFFFF;
constexpr std::int32_t kFailed = 2;
constexpr std::int32_t kApplicationTypeUnix = 6;

/// Layout of the structures that tell their own order.
Layout OwnLayout(const Session& session) {
  return {session.order, session.native.wide};
}

/// An address of the process; `low` is the part that a 32-bit process has.
std::uint64_t AddressOf(const Session& session, std::uint64_t low) {
  constexpr std::uint64_t kHeap = 0x00007F3A00000000;
  return session.native.wide ? kHeap | low : low;
}

std::int32_t Length(std::size_t size) {
  return static_cast<std::int32_t>(size);
}

/// One section: the lines that `write` adds, between the head and the end line.
template <typename Write>
void Section(Session& session, const char* call, Phase phase, Write write) {
  session.trace.BeginSection(call, phase);
  write(session.trace);
  session.trace.EndSection();
  session.trace.Advance(phase == Phase::Before ? session.random.Between(20, 900)
                                               : session.random.Between(40, 5000));
}

/// The sections of a call with the lines that every connected call has.
template <typename WriteBefore, typename WriteAfter>
void Call(Session& session, const char* call, Outcome outcome, WriteBefore before, WriteAfter after) {
  Section(session, call, Phase::Before, [&](TraceComposer& trace) {
    trace.Hex("Hconn", session.connection);
    before(trace);
  });
  Section(session, call, Phase::After, [&](TraceComposer& trace) {
    trace.Outcome(outcome.compCode, outcome.reason);
    trace.Hex("Hconn", session.connection);
    after(trace);
  });
}

/// A string descriptor that points to `text`; an empty text leaves the descriptor's default.
void PointTo(const Session& session, StringDescriptor& descriptor, const std::string& text,
             std::uint64_t address) {
  if (!text.empty()) descriptor = DescriptorOf(text, AddressOf(session, address));
}

void WriteVariable(TraceComposer& trace, const char* name, const std::string& text) {
  if (!text.empty()) trace.VariableItem(name, text);
}

/// The object strings of a call that has returned: the ones before the last are named even when empty.
void WriteObjectStrings(TraceComposer& trace, const ObjectToOpen& object, Phase phase) {
  if (object.descriptor.version < 4) return;
  if (phase == Phase::Before || object.resObjectString.empty()) {
    WriteVariable(trace, "ObjectString", object.objectString);
    WriteVariable(trace, "SelectionString", object.selectionString);
    return;
  }
  trace.VariableItem("ObjectString", object.objectString);
  trace.VariableItem("SelectionString", object.selectionString);
  trace.VariableItem("ResObjectString", object.resObjectString);
}

void CompleteObjectBefore(const Session& session, ObjectToOpen& object) {
  ObjectDescriptor& descriptor = object.descriptor;
  descriptor.recsPresent = Length(object.records.size());
  PointTo(session, descriptor.objectString, object.objectString, kStringAddress);
  PointTo(session, descriptor.selectionString, object.selectionString, kStringAddress + 0x400);
}

void CompleteObjectAfter(const Session& session, ObjectToOpen& object, Outcome outcome) {
  ObjectDescriptor& descriptor = object.descriptor;
  if (outcome.compCode == kFailed) return;
  if (!object.resolvedName.empty()) descriptor.objectName = object.resolvedName;
  if (object.records.empty()) {
    descriptor.resolvedQName = descriptor.objectName;
    descriptor.resolvedQMgrName = session.queueManager;
    descriptor.resolvedType = descriptor.objectType;
  }
  for (const ResponseRecord& response : object.responses)
    ++(response.compCode == kFailed ? descriptor.invalidDestCount : descriptor.knownDestCount);
  PointTo(session, descriptor.resObjectString, object.resObjectString, kStringAddress + 0x800);
}

/// 24 bytes: a fixed part, the queue manager, and a part of its own for each message.
Bytes NewMessageId(Session& session) {
  ByteWriter writer(Order::Big);
  writer.Text("MID", 4);
  writer.Text(session.queueManager, 12);
  writer.Int64(static_cast<std::int64_t>(session.random.Next()));
  return writer.Take();
}

/// Fills in what the product fills in when it accepts a message.
void StampDescriptor(Session& session, MessageDescriptor& descriptor) {
  if (descriptor.msgId.empty()) descriptor.msgId = NewMessageId(session);
  descriptor.userIdentifier = session.userId;
  descriptor.accountingToken = BytesOf("\x06" + std::to_string(session.trace.processId));
  descriptor.putApplType = kApplicationTypeUnix;
  descriptor.putApplName = session.applicationName;
  descriptor.putDate = session.trace.PutDate();
  descriptor.putTime = session.trace.PutTime();
}

void WritePutItems(Session& session, const MessageToPut& message) {
  TraceComposer& trace = session.trace;
  trace.Item("MD", ComposeMessageDescriptor(message.descriptor, OwnLayout(session)));
  trace.Item("PMO", ComposePutOptions(message.options, OwnLayout(session)));
}

void WritePutBefore(Session& session, const MessageToPut& message) {
  TraceComposer& trace = session.trace;
  WritePutItems(session, message);
  if (!message.records.empty())
    trace.Item("PMO->PMR",
               ComposePutMessageRecords(message.records, message.options.putMsgRecFields, session.native));
  if (!message.responses.empty())
    trace.Item("PMO->RR",
               ComposeResponseRecords(std::vector<ResponseRecord>(message.responses.size()), session.native));
  trace.Number("BufferLength", Length(message.body.bytes.size()));
  if (!message.body.bytes.empty()) trace.Item("Buffer", message.body.bytes);
}

void CompletePutBefore(MessageToPut& message) {
  DescribeBody(message.descriptor, message.body);
  if (!message.responses.empty()) message.options.recsPresent = Length(message.responses.size());
}

void CompletePutAfter(Session& session, MessageToPut& message, Outcome outcome) {
  if (outcome.compCode == kFailed) return;
  StampDescriptor(session, message.descriptor);
  if (message.responses.empty()) message.options.knownDestCount = 1;
  for (const ResponseRecord& response : message.responses)
    ++(response.compCode == kFailed ? message.options.invalidDestCount : message.options.knownDestCount);
}

void WritePutAfter(Session& session, const MessageToPut& message) {
  WritePutItems(session, message);
  if (!message.responses.empty())
    session.trace.Item("PMO->RR", ComposeResponseRecords(message.responses, session.native));
}

void WriteGetItems(Session& session, const MessageToGet& message) {
  session.trace.Item("MD", ComposeMessageDescriptor(message.descriptor, OwnLayout(session)));
  session.trace.Item("GMO", ComposeGetOptions(message.options, OwnLayout(session)));
}

/// Fills in what a get returns, up to the body's part that fits the buffer.
void CompleteGetAfter(Session& session, MessageToGet& message, Outcome outcome) {
  message.options.resolvedQName = message.queueName;
  if (outcome.compCode == kFailed) return;
  DescribeBody(message.descriptor, message.body);
  StampDescriptor(session, message.descriptor);
  message.options.segmentation = 'A';
  message.options.msgToken = NewMessageId(session);
  message.options.returnedLength = Length(message.body.bytes.size());
}

void WriteReceivedBody(TraceComposer& trace, const MessageToGet& message) {
  trace.Number("DataLength", Length(message.body.bytes.size()));
  Bytes received = message.body.bytes;
  if (Length(received.size()) > message.bufferLength)
    received.resize(static_cast<std::size_t>(message.bufferLength));
  if (!received.empty()) trace.Item("Buffer", received);
}

std::size_t CharacterLength(const AttributeList& attributes) {
  std::size_t length = 0;
  for (const CharacterAttribute& attribute : attributes.characters) length += attribute.width;
  return length;
}

void WriteAttributeCounts(TraceComposer& trace, const AttributeList& attributes) {
  trace.Number("SelectorCount", Length(attributes.selectors.size()));
  trace.Number("IntAttrCount", Length(attributes.integers.size()));
  trace.Number("CharAttrLength", Length(CharacterLength(attributes)));
}

void WriteAttributeValues(TraceComposer& trace, const Session& session, const AttributeList& attributes) {
  if (!attributes.integers.empty())
    trace.Item("IntAttrs", ComposeIntegers(attributes.integers, session.native));
  if (!attributes.characters.empty())
    trace.Item("CharAttrs", ComposeCharacterAttributes(attributes.characters));
}

void WriteSubscriptionStrings(TraceComposer& trace, const SubscriptionToMake& subscription, Phase phase) {
  WriteVariable(trace, "ObjectString", subscription.objectString);
  WriteVariable(trace, "SubName", subscription.subName);
  if (phase == Phase::Before) return;
  trace.VariableItem("SubUserData", subscription.subUserData);
  trace.VariableItem("SelectionString", subscription.selectionString);
  trace.VariableItem("ResObjectString", subscription.resObjectString);
}

void WriteAuthentication(TraceComposer& trace, const Session& session,
                         const std::vector<AuthenticationEntry>& entries) {
  for (const AuthenticationEntry& entry : entries) {
    trace.Item("CNO->SCO->AIR", ComposeAuthenticationRecord(entry.record, session.native));
    if (!entry.ldapUserName.empty())
      trace.Item("CNO->SCO->AIR->LDAPUserName", ComposeLdapUserName(entry.ldapUserName));
  }
}

void CompleteConnect(const Session& session, ClientConnect& request) {
  if (request.channel) request.options.channelAddress = AddressOf(session, 0x20011000);
  if (request.tls) {
    request.options.tlsOptionsAddress = AddressOf(session, 0x20012000);
    request.tls->authInfoRecCount = Length(request.authentication.size());
    if (!request.authentication.empty()) request.tls->authInfoRecAddress = AddressOf(session, 0x20014000);
  }
  for (AuthenticationEntry& entry : request.authentication)
    entry.record.ldapUserNameLength = Length(entry.ldapUserName.size());
  if (!request.userId.empty()) request.options.securityAddress = AddressOf(session, 0x20013000);
}

void WriteConnectBefore(TraceComposer& trace, const Session& session, const ClientConnect& request) {
  trace.Text("QMgrName", session.queueManager);
  trace.Item("CNO", ComposeConnectionOptions(request.options, session.native));
  if (request.channel) trace.Item("CNO->CD", ComposeChannelDefinition(*request.channel, session.native));
  if (request.tls) trace.Item("CNO->SCO", ComposeTlsOptions(*request.tls, session.native));
  WriteAuthentication(trace, session, request.authentication);
  if (!request.userId.empty())
    trace.Item("CNO->CSP", ComposeSecurityParameters(request.userId, request.password, session.native));
}

}  // namespace

Order OwnOrder(const Session& session, Order wanted) {
  return session.native == Layout() ? wanted : session.native.order;
}

HandlePair HandleOf(const Session& session, std::uint32_t number) {
  return session.order == session.native.order ? HandlePair{0, number} : HandlePair{number, 0};
}

void Connect(Session& session, Outcome outcome) {
  Section(session, "ZKCONN", Phase::Before,
          [&](TraceComposer& trace) { trace.Text("QMgrName", session.queueManager); });
  Section(session, "ZKCONN", Phase::After, [&](TraceComposer& trace) {
    trace.Outcome(outcome.compCode, outcome.reason);
    trace.Hex("Hconn", outcome.compCode == kFailed ? kNoHandle : session.connection);
  });
}

void ConnectExtended(Session& session, ClientConnect request, Outcome outcome) {
  CompleteConnect(session, request);
  Section(session, "ZKCONNX", Phase::Before,
          [&](TraceComposer& trace) { WriteConnectBefore(trace, session, request); });
  if (outcome.compCode != kFailed) request.options.connectionId = NewMessageId(session);
  Section(session, "ZKCONNX", Phase::After, [&](TraceComposer& trace) {
    trace.Outcome(outcome.compCode, outcome.reason);
    trace.Hex("Hconn", outcome.compCode == kFailed ? kNoHandle : session.connection);
    trace.Item("CNO", ComposeConnectionOptions(request.options, session.native));
  });
}

void Disconnect(Session& session) {
  Section(session, "ZKDISC", Phase::Before,
          [&](TraceComposer& trace) { trace.Hex("Hconn", session.connection); });
  Section(session, "ZKDISC", Phase::After, [](TraceComposer& trace) {
    trace.Outcome(0, 0);
    trace.Hex("Hconn", kNoHandle);
  });
}

std::uint32_t Open(Session& session, ObjectToOpen object, Outcome outcome) {
  const std::uint32_t handle = outcome.compCode == kFailed ? 0 : session.nextHandle++;
  CompleteObjectBefore(session, object);
  Call(
      session, "ZKOPEN", outcome,
      [&](TraceComposer& trace) {
        trace.Item("OD", ComposeObjectDescriptor(object.descriptor, OwnLayout(session)));
        WriteObjectStrings(trace, object, Phase::Before);
        trace.Hex("Options", object.options);
        if (!object.records.empty()) trace.Item("OD->OR", ComposeObjectRecords(object.records));
      },
      [&](TraceComposer& trace) {
        CompleteObjectAfter(session, object, outcome);
        trace.Item("OD", ComposeObjectDescriptor(object.descriptor, OwnLayout(session)));
        WriteObjectStrings(trace, object, Phase::After);
        trace.Hex("Hobj", handle);
        if (!object.responses.empty())
          trace.Item("OD->RR", ComposeResponseRecords(object.responses, session.native));
      });
  return handle;
}

void Close(Session& session, std::uint32_t handle, std::uint32_t options, Outcome outcome) {
  Call(
      session, "ZKCLOSE", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        trace.Hex("Options", options);
      },
      [&](TraceComposer& trace) { trace.Hex("Hobj", outcome.compCode == kFailed ? handle : kNoHandle); });
}

void Put(Session& session, std::uint32_t handle, MessageToPut message, Outcome outcome) {
  CompletePutBefore(message);
  Call(
      session, "ZKPUT", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        WritePutBefore(session, message);
      },
      [&](TraceComposer&) {
        CompletePutAfter(session, message, outcome);
        WritePutAfter(session, message);
      });
}

void PutOne(Session& session, ObjectToOpen object, MessageToPut message, Outcome outcome) {
  CompleteObjectBefore(session, object);
  CompletePutBefore(message);
  Call(
      session, "ZKPUT1", outcome,
      [&](TraceComposer& trace) {
        trace.Item("OD", ComposeObjectDescriptor(object.descriptor, OwnLayout(session)));
        WriteObjectStrings(trace, object, Phase::Before);
        WritePutBefore(session, message);
      },
      [&](TraceComposer& trace) {
        CompleteObjectAfter(session, object, outcome);
        CompletePutAfter(session, message, outcome);
        trace.Item("OD", ComposeObjectDescriptor(object.descriptor, OwnLayout(session)));
        WriteObjectStrings(trace, object, Phase::After);
        WritePutAfter(session, message);
      });
}

void Get(Session& session, std::uint32_t handle, MessageToGet message, Outcome outcome) {
  Call(
      session, "ZKGET", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        WriteGetItems(session, message);
        trace.Number("BufferLength", message.bufferLength);
      },
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        if (outcome.compCode == kFailed) message.body.bytes.clear();
        CompleteGetAfter(session, message, outcome);
        WriteGetItems(session, message);
        WriteReceivedBody(trace, message);
      });
}

void ConvertOnGet(Session& session, const MessageBody& before, const MessageBody& after) {
  MessageDescriptor descriptor;
  StampDescriptor(session, descriptor);
  const auto write = [&](TraceComposer& trace, const MessageBody& body) {
    DescribeBody(descriptor, body);
    trace.Item("MD", ComposeMessageDescriptor(descriptor, OwnLayout(session)));
    if (!body.bytes.empty()) trace.Item("AgentBuffer-Data", body.bytes);
  };
  Section(session, "DATA_CONV_ON_GET", Phase::Before, [&](TraceComposer& trace) { write(trace, before); });
  Section(session, "DATA_CONV_ON_GET", Phase::After, [&](TraceComposer& trace) {
    trace.Outcome(0, 0);
    write(trace, after);
  });
}

void SimpleCall(Session& session, const char* name, Outcome outcome) {
  Call(
      session, name, outcome, [](TraceComposer&) {}, [](TraceComposer&) {});
}

void Inquire(Session& session, std::uint32_t handle, const AttributeList& attributes, Outcome outcome) {
  Call(
      session, "ZKINQ", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        WriteAttributeCounts(trace, attributes);
        trace.Item("Selectors", ComposeIntegers(attributes.selectors, session.native));
      },
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        WriteAttributeCounts(trace, attributes);
        if (outcome.compCode != kFailed) WriteAttributeValues(trace, session, attributes);
      });
}

void Set(Session& session, std::uint32_t handle, const AttributeList& attributes, Outcome outcome) {
  Call(
      session, "ZKSET", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Hobj", handle);
        WriteAttributeCounts(trace, attributes);
        trace.Item("Selectors", ComposeIntegers(attributes.selectors, session.native));
        WriteAttributeValues(trace, session, attributes);
      },
      [&](TraceComposer& trace) { trace.Hex("Hobj", handle); });
}

SubscriptionHandles Subscribe(Session& session, SubscriptionToMake subscription, Outcome outcome) {
  SubscriptionHandles handles;
  SubscriptionDescriptor& descriptor = subscription.descriptor;
  PointTo(session, descriptor.objectString, subscription.objectString, kStringAddress);
  PointTo(session, descriptor.subName, subscription.subName, kStringAddress + 0x100);
  PointTo(session, descriptor.subUserData, subscription.subUserData, kStringAddress + 0x200);
  PointTo(session, descriptor.selectionString, subscription.selectionString, kStringAddress + 0x300);
  PointTo(session, descriptor.resObjectString, subscription.resObjectString, kStringAddress + 0x400);
  Call(
      session, "ZKSUB", outcome,
      [&](TraceComposer& trace) {
        trace.Item("SD", ComposeSubscriptionDescriptor(descriptor, session.native));
        WriteSubscriptionStrings(trace, subscription, Phase::Before);
        trace.Hex("Hobj", 0);
      },
      [&](TraceComposer& trace) {
        if (outcome.compCode != kFailed) handles = {session.nextHandle, session.nextHandle + 1};
        session.nextHandle += 2;
        descriptor.subCorrelId = NewMessageId(session);
        trace.Item("SD", ComposeSubscriptionDescriptor(descriptor, session.native));
        WriteSubscriptionStrings(trace, subscription, Phase::After);
        trace.Hex("Hobj", handles.queue);
        trace.Hex("Hsub", handles.subscription);
      });
  return handles;
}

void RequestPublications(Session& session, std::uint32_t subscription, std::int32_t count, Outcome outcome) {
  SubscriptionRequestOptions options{.options = 0x2000};
  Call(
      session, "ZKSUBRQ", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Hsub", subscription);
        trace.Hex("Action", 1);
        trace.Item("SRO", ComposeSubscriptionRequestOptions(options, session.native));
      },
      [&](TraceComposer& trace) {
        options.numPubs = count;
        trace.Item("SRO", ComposeSubscriptionRequestOptions(options, session.native));
      });
}

void RegisterCallback(Session& session, std::uint32_t handle, std::uint32_t operation,
                      const CallbackDescriptor& descriptor, const GetOptions& options, Outcome outcome) {
  Call(
      session, "ZKCB", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Operation", operation);
        trace.Item("CBD", ComposeCallbackDescriptor(descriptor, session.native));
        trace.Hex("Hobj", handle);
        trace.Item("MD", ComposeMessageDescriptor({}, OwnLayout(session)));
        trace.Item("GMO", ComposeGetOptions(options, OwnLayout(session)));
      },
      [&](TraceComposer& trace) {
        trace.Hex("Operation", operation);
        trace.Item("CBD", ComposeCallbackDescriptor(descriptor, session.native));
        trace.Hex("Hobj", handle);
      });
}

void ConsumerCall(Session& session, CallbackContext context, MessageToGet message) {
  CompleteGetAfter(session, message, {});
  context.dataLength = Length(message.body.bytes.size());
  context.bufferLength = context.dataLength;
  Section(session, "CONSUMER_FUNCTION", Phase::Before, [&](TraceComposer& trace) {
    trace.Hex("Hconn", session.connection);
    WriteGetItems(session, message);
    if (!message.body.bytes.empty()) trace.Item("Buffer", message.body.bytes);
    trace.Item("CBC", ComposeCallbackContext(context, session.native));
  });
  Section(session, "CONSUMER_FUNCTION", Phase::After,
          [&](TraceComposer& trace) { trace.Hex("Hconn", session.connection); });
}

void Control(Session& session, std::uint32_t operation, const ControlOptions& options, Outcome outcome) {
  const auto write = [&](TraceComposer& trace) {
    trace.Hex("Operation", operation);
    trace.Item("CTLO", ComposeControlOptions(options, session.native));
  };
  Call(session, "ZKCTL", outcome, write, write);
}

void Status(Session& session, StatusToAsk request, Outcome outcome) {
  PointTo(session, request.answer.objectString, request.objectString, kStringAddress);
  PointTo(session, request.answer.subName, request.subName, kStringAddress + 0x100);
  StatusStructure question;
  question.version = request.answer.version;
  Call(
      session, "ZKSTAT", outcome,
      [&](TraceComposer& trace) {
        trace.Hex("Type", request.type);
        trace.Item("STS", ComposeStatusStructure(question, session.native));
      },
      [&](TraceComposer& trace) {
        trace.Hex("Type", request.type);
        trace.Item("STS", ComposeStatusStructure(request.answer, session.native));
        if (request.answer.version < 2) return;
        WriteVariable(trace, "ObjectString", request.objectString);
        WriteVariable(trace, "SubName", request.subName);
      });
}

void XaCall(Session& session, const char* name, std::uint32_t flags, std::int32_t result) {
  Section(session, name, Phase::Before, [&](TraceComposer& trace) {
    trace.Number("rmid", 1);
    trace.Hex("flags", flags);
  });
  Section(session, name, Phase::After, [&](TraceComposer& trace) { trace.Number("returns", result); });
}

}  // namespace quillon::compose
