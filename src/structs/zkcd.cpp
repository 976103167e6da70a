// Channel definition (ZKCD).
#include <cstdio>

#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "display/named_values.h"
#include "display/table_checks.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr ConstantRow kChannelType[] = {
    {1, "SENDER"},   {2, "SERVER"},  {3, "RECEIVER"}, {4, "REQUESTER"}, {5, "ALL"},
    {6, "CLNTCONN"}, {7, "SVRCONN"}, {8, "CLUSRCVR"}, {9, "CLUSSDR"},   {kEndOfTable, ""},
};
static_assert(CheckTable(kChannelType, {9, 0, ""}));

constexpr ConstantRow kTransportType[] = {
    {0, "LOCAL"}, {1, "LU62"},   {2, "TCP"}, {3, "NETBIOS"},
    {4, "SPX"},   {5, "DECNET"}, {6, "UDP"}, {kEndOfTable, ""},
};
static_assert(CheckTable(kTransportType, {7, 0, ""}));

constexpr ConstantRow kPutAuthority[] = {
    {1, "DEFAULT"}, {2, "CONTEXT"}, {3, "ONLY_MCA"}, {4, "ALTERNATE_OR_MCA"}, {kEndOfTable, ""},
};
static_assert(CheckTable(kPutAuthority, {4, 0, ""}));

constexpr ConstantRow kDataConversion[] = {
    {0, "NO_SENDER_CONVERSION"},
    {1, "SENDER_CONVERSION"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kDataConversion, {2, 0, ""}));

constexpr ConstantRow kMcaType[] = {
    {1, "PROCESS"},
    {2, "THREAD"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kMcaType, {2, 0, ""}));

constexpr ConstantRow kNonPersistentMsgSpeed[] = {
    {1, "NORMAL"},
    {2, "FAST"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kNonPersistentMsgSpeed, {2, 0, ""}));

constexpr ConstantRow kSslClientAuth[] = {
    {0, "REQUIRED"},
    {1, "OPTIONAL"},
    {kEndOfTable, ""},
};
static_assert(CheckTable(kSslClientAuth, {2, 0, ""}));

/// A value of a fixed list; one outside it stands as a number, and the notice follows.
int ShowListedValue(RunContext& runContext, std::string_view name, std::int32_t value,
                    const ConstantRow* list, std::string_view unknownLabel) {
  return ShowFieldEnumeration(runContext, name, value, list, UnknownForm::NumberOnly, unknownLabel);
}

/// `count` lines of compression techniques, numbered from 1.
int ShowCompressionList(RunContext& runContext, const char* name, unsigned count, StructReader& cd) {
  int result = 0;
  for (unsigned index = 1; index <= count; ++index) {
    char label[24];
    // The names are those of this source; they fit.
    static_cast<void>(std::snprintf(label, sizeof label, "%s[%u]", name, index));
    result = ShowParsedCompressInfo(runContext, label, cd.Int32(), false, true);
  }
  return result;
}

// Kept: three labels of this group are spelled with blanks, unlike all others.
int ShowVersion1(RunContext& runContext, StructReader& cd) {
  ShowListedValue(runContext, "ChannelType", cd.Int32(), kChannelType, "ZKCD - ZKCHT_...");
  ShowListedValue(runContext, "TransportType", cd.Int32(), kTransportType, "ZKCD - ZKXPT_...");
  ShowFieldValueStringFixed(runContext, "Channel description", cd.Bytes(64));
  ShowFieldValueStringFixed(runContext, "QMgrName", cd.Bytes(48));
  ShowFieldValueStringFixed(runContext, "XmitQName", cd.Bytes(48));
  ShowFieldValueStringFixed(runContext, "ShortConnectionName", cd.Bytes(20));
  ShowFieldValueStringFixed(runContext, "MCAName", cd.Bytes(20));
  ShowFieldValueStringFixed(runContext, "LU 6.2 ModeName", cd.Bytes(8));
  ShowFieldValueStringFixed(runContext, "LU 6.2 TpName", cd.Bytes(64));
  ShowFieldValueZklong(runContext, "BatchSize", cd.Int32());
  ShowFieldValueZklong(runContext, "DiscInterval", cd.Int32());
  ShowFieldValueZklong(runContext, "ShortRetryCount", cd.Int32());
  ShowFieldValueZklong(runContext, "ShortRetryInterval", cd.Int32());
  ShowFieldValueZklong(runContext, "LongRetryCount", cd.Int32());
  ShowFieldValueZklong(runContext, "LongRetryInterval", cd.Int32());
  ShowFieldValueStringFixed(runContext, "SecurityExit", cd.Bytes(128));
  ShowFieldValueStringFixed(runContext, "MsgExit", cd.Bytes(128));
  ShowFieldValueStringFixed(runContext, "SendExit", cd.Bytes(128));
  ShowFieldValueStringFixed(runContext, "ReceiveExit", cd.Bytes(128));
  ShowFieldValueZklong(runContext, "SeqNumberWrap", cd.Int32());
  ShowFieldValueZklong(runContext, "MaxMsgLength", cd.Int32());
  ShowListedValue(runContext, "PutAuthority", cd.Int32(), kPutAuthority, "ZKCD - ZKPA_...");
  ShowListedValue(runContext, "DataConversion", cd.Int32(), kDataConversion, "ZKCD - ZKCDC_...");
  ShowFieldValueStringFixed(runContext, "SecurityUserData", cd.Bytes(32));
  ShowFieldValueStringFixed(runContext, "MsgUserData", cd.Bytes(32));
  ShowFieldValueStringFixed(runContext, "SendUserData", cd.Bytes(32));
  return ShowFieldValueStringFixed(runContext, "ReceiveUserData", cd.Bytes(32));
}

int ShowVersion2(RunContext& runContext, StructReader& cd) {
  ShowFieldValueStringFixed(runContext, "UserIdentifier", cd.Bytes(12));
  ShowFieldValueStringFixed(runContext, "Password", cd.Bytes(12));
  ShowFieldValueStringFixed(runContext, "MCAUserIdentifier", cd.Bytes(12));
  ShowListedValue(runContext, "MCAType", cd.Int32(), kMcaType, "ZKCD - ZKMCAT_...");
  ShowFieldValueStringFixed(runContext, "ConnectionName", cd.Bytes(264));
  ShowFieldValueStringFixed(runContext, "RemoteUserIdentifier", cd.Bytes(12));
  return ShowFieldValueStringFixed(runContext, "RemotePassword", cd.Bytes(12));
}

int ShowVersion3(RunContext& runContext, StructReader& cd) {
  ShowFieldValueStringFixed(runContext, "MsgRetryExit", cd.Bytes(128));
  ShowFieldValueStringFixed(runContext, "MsgRetryUserData", cd.Bytes(32));
  ShowFieldValueZklong(runContext, "MsgRetryCount", cd.Int32());
  return ShowFieldValueZklong(runContext, "MsgRetryInterval", cd.Int32());
}

int ShowVersion4(RunContext& runContext, StructReader& cd) {
  ShowFieldValueZklong(runContext, "HeartbeatInterval", cd.Int32());
  ShowFieldValueZklong(runContext, "BatchInterval", cd.Int32());
  ShowListedValue(runContext, "NonPersistentMsgSpeed", cd.Int32(), kNonPersistentMsgSpeed,
                  "ZKCD - ZKNPMS_...");
  ShowFieldValueZklong(runContext, "StrucLength", cd.Int32());
  ShowFieldValueZklong(runContext, "ExitNameLength", cd.Int32());
  ShowFieldValueZklong(runContext, "ExitDataLength", cd.Int32());
  ShowFieldValueZklong(runContext, "MsgExitsDefined", cd.Int32());
  ShowFieldValueZklong(runContext, "SendExitsDefined", cd.Int32());
  const int result = ShowFieldValueZklong(runContext, "ReceiveExitsDefined", cd.Int32());
  // addresses of exit names and exit user data
  for (int address = 0; address < 6; ++address) cd.SkipPointer();
  return result;
}

int ShowVersion5(RunContext& runContext, StructReader& cd) {
  cd.SkipPointer();  // address of the cluster names
  ShowFieldValueZklong(runContext, "ClustersDefined", cd.Int32());
  return ShowFieldValueZklong(runContext, "NetworkPriority", cd.Int32());
}

int ShowVersion6(RunContext& runContext, StructReader& cd) {
  ShowFieldValueZklong(runContext, "LongMCAUserIdLength", cd.Int32());
  ShowFieldValueZklong(runContext, "LongRemoteUserIdLength", cd.Int32());
  cd.SkipPointer();  // address of the long MCA user id
  cd.SkipPointer();  // address of the long remote user id
  ShowParsedHexValueSingleLine(runContext, "MCASecurityId", cd.Bytes(40));
  return ShowParsedHexValueSingleLine(runContext, "RemoteSecurityId", cd.Bytes(40));
}

int ShowVersion7(RunContext& runContext, StructReader& cd) {
  ShowFieldValueStringFixed(runContext, "SSLCipherSpec", cd.Bytes(32));
  cd.SkipPointer();  // address of the TLS peer name
  ShowFieldValueZklong(runContext, "SSLPeerNameLength", cd.Int32());
  ShowListedValue(runContext, "SSLClientAuth", cd.Int32(), kSslClientAuth, "ZKCD - ZKSCA_...");
  ShowFieldValueZklong(runContext, "KeepAliveInterval", cd.Int32());
  ShowFieldValueStringFixed(runContext, "LocalAddress", cd.Bytes(48));
  return ShowFieldValueZklong(runContext, "BatchHeartbeat", cd.Int32());
}

int ShowVersion8(RunContext& runContext, StructReader& cd) {
  ShowCompressionList(runContext, "HdrCompList", 2, cd);
  ShowCompressionList(runContext, "MsgCompList", 16, cd);
  ShowFieldValueZklong(runContext, "CLWLChannelRank", cd.Int32());
  ShowFieldValueZklong(runContext, "CLWLChannelPriority", cd.Int32());
  ShowFieldValueZklong(runContext, "CLWLChannelWeight", cd.Int32());
  ShowFieldConstant(runContext, "ChannelMonitoring", cd.Int32(), Constant_Zkmon);
  return ShowFieldConstant(runContext, "ChannelStatistics", cd.Int32(), Constant_Zkmon);
}

int ShowVersion9(RunContext& runContext, StructReader& cd) {
  ShowFieldValueZklong(runContext, "SharingConversations", cd.Int32());
  ShowFieldConstant(runContext, "PropertyControl", cd.Int32(), Constant_Zkprop);
  ShowFieldValueZklong(runContext, "MaxInstances", cd.Int32());
  ShowFieldValueZklong(runContext, "MaxInstancesPerClient", cd.Int32());
  ShowFieldValueZklong(runContext, "ClientChannelWeight", cd.Int32());
  // Kept: the affinity stands on two lines, first as a number, then by its name.
  const std::int32_t connectionAffinity = cd.Int32();
  ShowFieldValueZklong(runContext, "ConnectionAffinity", connectionAffinity);
  return ShowFieldConstant(runContext, "ConnectionAffinity", connectionAffinity, Constant_Zkcafty);
}

int ShowVersion10(RunContext& runContext, StructReader& cd) {
  ShowFieldValueZklong(runContext, "BatchDataLimit", cd.Int32());
  ShowFieldConstant(runContext, "UseDLQ", cd.Int32(), Constant_Zkusedlq);
  return ShowFieldConstant(runContext, "DefReconnect", cd.Int32(), Constant_Zkrcn);
}

/// The fields that a version added.
struct VersionGroup {
  std::int32_t version;
  int (*show)(RunContext& runContext, StructReader& cd);
};

constexpr VersionGroup kLaterGroups[] = {
    {2, ShowVersion2}, {3, ShowVersion3}, {4, ShowVersion4}, {5, ShowVersion5},   {6, ShowVersion6},
    {7, ShowVersion7}, {8, ShowVersion8}, {9, ShowVersion9}, {10, ShowVersion10},
};

}  // namespace

int ShowParsedZkcd(RunContext& runContext, ByteView structure) {
  StructReader cd = ReaderAsStored(runContext, structure, kChannelVersionOffset);
  // There is no structure id: the channel's name stands first.
  ShowFieldValueStringFixed(runContext, "ChannelName", cd.Bytes(20));
  const std::int32_t version = cd.Int32();
  ShowFieldValueZklong(runContext, "Version", version);
  int result = ShowVersion1(runContext, cd);
  for (const VersionGroup& group : kLaterGroups) {
    if (version < group.version) return result;
    ShowDataVersion(runContext, "CD", group.version);
    result = group.show(runContext, cd);
  }
  return result;
}

}  // namespace quillon
