// The API calls of a traced application, each as the two sections that the tracer writes for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "message_composer.h"
#include "split_mix.h"
#include "structure_composer.h"
#include "trace_composer.h"

namespace quillon::compose {

/// One traced application and the state of its connection.
struct Session {
  TraceComposer trace;
  SplitMix64 random;
  /// How the process's own structures lie in its memory.
  Layout native = {};
  /// Order of the message and object descriptors and of the get and put options, which tell their order; the
  /// other structures are always in the process's own.
  Order order = Order::Big;
  std::string queueManager = "DEPOT1";
  std::string userId = "loader";
  std::string applicationName = "/opt/depot/bin/parcelserver";
  std::uint32_t connection = 0x11;
  std::uint32_t nextHandle = 2;
};

/// The order for those structures that tell theirs: `wanted` on the default platform, whose traces may hold
/// either, else the process's own.
Order OwnOrder(const Session& session, Order wanted);

/// A message handle of the process. In a structure of the other order its words keep their places.
HandlePair HandleOf(const Session& session, std::uint32_t number);

/// How a call ends: completion code 0, 1 (warning) or 2 (failed) and its reason.
struct Outcome {
  std::int32_t compCode = 0;
  std::int32_t reason = 0;
};

void Connect(Session& session, Outcome outcome = {});
void Disconnect(Session& session);

struct AuthenticationEntry {
  AuthenticationRecord record = {};
  std::string ldapUserName = {};
};
/// An extended connect with the structures that hang on its options.
struct ClientConnect {
  ConnectionOptions options = {};
  std::optional<ChannelDefinition> channel = {};
  std::optional<TlsOptions> tls = {};
  std::vector<AuthenticationEntry> authentication = {};
  std::string userId = {};  ///< with the password: security parameters; empty: none
  std::string password = {};
};
void ConnectExtended(Session& session, ClientConnect request, Outcome outcome = {});

/// An object to open, or to put one message to.
struct ObjectToOpen {
  ObjectDescriptor descriptor = {};
  std::uint32_t options = 0;
  std::string objectString = {};  ///< the three strings need a descriptor of version 4
  std::string selectionString = {};
  std::string resObjectString = {};
  std::string resolvedName = {};  ///< what a model or alias queue turned out to be; empty: the name itself
  std::vector<ObjectRecord> records = {};
  std::vector<ResponseRecord> responses = {};
};
/// Returns the object handle, 0 when the call fails.
std::uint32_t Open(Session& session, ObjectToOpen object, Outcome outcome = {});
void Close(Session& session, std::uint32_t handle, std::uint32_t options = 0, Outcome outcome = {});

struct MessageToPut {
  MessageDescriptor descriptor = {};
  PutOptions options = {};
  MessageBody body = {};
  std::vector<PutMessageRecord> records = {};
  std::vector<ResponseRecord> responses = {};
};
void Put(Session& session, std::uint32_t handle, MessageToPut message, Outcome outcome = {});
void PutOne(Session& session, ObjectToOpen object, MessageToPut message, Outcome outcome = {});

struct MessageToGet {
  MessageDescriptor descriptor = {};  ///< as the application passes it
  GetOptions options = {};
  MessageBody body = {};
  std::string queueName = {};
  std::int32_t bufferLength = 4096;  ///< a longer body is cut to it
};
void Get(Session& session, std::uint32_t handle, MessageToGet message, Outcome outcome = {});
/// The conversion exit's sections inside a get.
void ConvertOnGet(Session& session, const MessageBody& before, const MessageBody& after);

/// A call that has no parameters but the connection ("ZKCMIT", "ZKBACK", "ZKBEGIN").
void SimpleCall(Session& session, const char* name, Outcome outcome = {});

struct AttributeList {
  std::vector<std::int32_t> selectors = {};
  std::vector<std::int32_t> integers = {};
  std::vector<CharacterAttribute> characters = {};
};
void Inquire(Session& session, std::uint32_t handle, const AttributeList& attributes, Outcome outcome = {});
void Set(Session& session, std::uint32_t handle, const AttributeList& attributes, Outcome outcome = {});

struct SubscriptionToMake {
  SubscriptionDescriptor descriptor = {};
  std::string objectString = {};
  std::string subName = {};
  std::string subUserData = {};
  std::string selectionString = {};
  std::string resObjectString = {};
};
struct SubscriptionHandles {
  std::uint32_t queue = 0;
  std::uint32_t subscription = 0;
};
SubscriptionHandles Subscribe(Session& session, SubscriptionToMake subscription, Outcome outcome = {});
void RequestPublications(Session& session, std::uint32_t subscription, std::int32_t count,
                         Outcome outcome = {});

/// Registers or removes a consumer of messages.
void RegisterCallback(Session& session, std::uint32_t handle, std::uint32_t operation,
                      const CallbackDescriptor& descriptor, const GetOptions& options, Outcome outcome = {});
/// The product's call of a registered consumer.
void ConsumerCall(Session& session, CallbackContext context, MessageToGet message);
void Control(Session& session, std::uint32_t operation, const ControlOptions& options, Outcome outcome = {});

struct StatusToAsk {
  std::uint32_t type = 0;
  StatusStructure answer = {};
  std::string objectString = {};  ///< the two strings need an answer of version 2
  std::string subName = {};
};
void Status(Session& session, StatusToAsk request, Outcome outcome = {});

/// A call of the transaction manager ("xa_start" and its like).
void XaCall(Session& session, const char* name, std::uint32_t flags, std::int32_t result = 0);

}  // namespace quillon::compose
