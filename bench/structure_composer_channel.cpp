#include "structure_composer_channel.h"

#include <algorithm>

namespace quillon::compose {

namespace {

void WriteVersion1(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Text(fields.channelName, 20);
  writer.Int32(fields.version);
  writer.Int32(fields.channelType);
  writer.Int32(fields.transportType);
  writer.Text(fields.description, 64);
  writer.Text(fields.qMgrName, 48);
  writer.Text(fields.xmitQName, 48);
  writer.Text(fields.shortConnectionName, 20);
  writer.Text(fields.mcaName, 20);
  writer.Text(fields.modeName, 8);
  writer.Text(fields.tpName, 64);
  writer.Int32(fields.batchSize);
  writer.Int32(fields.discInterval);
  writer.Int32(fields.shortRetryCount);
  writer.Int32(fields.shortRetryInterval);
  writer.Int32(fields.longRetryCount);
  writer.Int32(fields.longRetryInterval);
  writer.Text(fields.securityExit, 128);
  writer.Text(fields.msgExit, 128);
  writer.Text(fields.sendExit, 128);
  writer.Text(fields.receiveExit, 128);
  writer.Int32(fields.seqNumberWrap);
  writer.Int32(fields.maxMsgLength);
  writer.Int32(fields.putAuthority);
  writer.Int32(fields.dataConversion);
  writer.Text(fields.securityUserData, 32);
  writer.Text(fields.msgUserData, 32);
  writer.Text(fields.sendUserData, 32);
  writer.Text(fields.receiveUserData, 32);
}

void WriteVersion2(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Text(fields.userIdentifier, 12);
  writer.Text(fields.password, 12);
  writer.Text(fields.mcaUserIdentifier, 12);
  writer.Int32(fields.mcaType);
  writer.Text(fields.connectionName, 264);
  writer.Text(fields.remoteUserIdentifier, 12);
  writer.Text(fields.remotePassword, 12);
}

void WriteVersion3(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Text(fields.msgRetryExit, 128);
  writer.Text(fields.msgRetryUserData, 32);
  writer.Int32(fields.msgRetryCount);
  writer.Int32(fields.msgRetryInterval);
}

std::int32_t LengthOfVersion(std::int32_t version, bool wide) {
  const auto& lengths = wide ? kWideChannelDefinitionLengths : kChannelDefinitionLengths;
  const auto last = static_cast<std::int32_t>(lengths.size());
  return lengths[static_cast<std::size_t>(std::clamp(version, 1, last) - 1)];
}

void WriteVersion4(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Int32(fields.heartbeatInterval);
  writer.Int32(fields.batchInterval);
  writer.Int32(fields.nonPersistentMsgSpeed);
  writer.Int32(fields.strucLength == -1 ? LengthOfVersion(fields.version, writer.Wide())
                                        : fields.strucLength);
  writer.Int32(fields.exitNameLength);
  writer.Int32(fields.exitDataLength);
  writer.Int32(fields.msgExitsDefined);
  writer.Int32(fields.sendExitsDefined);
  writer.Int32(fields.receiveExitsDefined);
  for (const std::uint64_t address : fields.exitAddresses) writer.Pointer(address);
}

void WriteVersion5(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Pointer(fields.clusterAddress);
  writer.Int32(fields.clustersDefined);
  writer.Int32(fields.networkPriority);
}

void WriteVersion6(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Int32(fields.longMcaUserIdLength);
  writer.Int32(fields.longRemoteUserIdLength);
  for (const std::uint64_t address : fields.longUserIdAddresses) writer.Pointer(address);
  writer.Opaque(fields.mcaSecurityId, 40);
  writer.Opaque(fields.remoteSecurityId, 40);
}

void WriteVersion7(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Text(fields.sslCipherSpec, 32);
  writer.Pointer(fields.sslPeerNameAddress);
  writer.Int32(fields.sslPeerNameLength);
  writer.Int32(fields.sslClientAuth);
  writer.Int32(fields.keepAliveInterval);
  writer.Text(fields.localAddress, 48);
  writer.Int32(fields.batchHeartbeat);
}

void WriteVersion8(ByteWriter& writer, const ChannelDefinition& fields) {
  for (const std::int32_t technique : fields.hdrCompList) writer.Int32(technique);
  for (const std::int32_t technique : fields.msgCompList) writer.Int32(technique);
  writer.Int32(fields.clwlChannelRank);
  writer.Int32(fields.clwlChannelPriority);
  writer.Int32(fields.clwlChannelWeight);
  writer.Int32(fields.channelMonitoring);
  writer.Int32(fields.channelStatistics);
}

void WriteVersion9(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Int32(fields.sharingConversations);
  writer.Int32(fields.propertyControl);
  writer.Int32(fields.maxInstances);
  writer.Int32(fields.maxInstancesPerClient);
  writer.Int32(fields.clientChannelWeight);
  writer.Int32(fields.connectionAffinity);
}

void WriteVersion10(ByteWriter& writer, const ChannelDefinition& fields) {
  writer.Int32(fields.batchDataLimit);
  writer.Int32(fields.useDlq);
  writer.Int32(fields.defReconnect);
}

using GroupWriter = void (*)(ByteWriter&, const ChannelDefinition&);
constexpr GroupWriter kGroupOfVersion[] = {WriteVersion1, WriteVersion2, WriteVersion3, WriteVersion4,
                                           WriteVersion5, WriteVersion6, WriteVersion7, WriteVersion8,
                                           WriteVersion9, WriteVersion10};

}  // namespace

Bytes ComposeChannelDefinition(const ChannelDefinition& fields, const Layout& layout) {
  ByteWriter writer(layout);
  std::int32_t group = 0;
  for (const GroupWriter write : kGroupOfVersion)
    if (++group == 1 || group <= fields.version) write(writer, fields);
  return writer.Take();
}

}  // namespace quillon::compose
