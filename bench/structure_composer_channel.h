// The channel definition.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "structure_composer_common.h"

namespace quillon::compose {

/// Lengths in bytes by version, 1 to 10, and those of the 64-bit layout.
inline constexpr std::array<std::int32_t, 10> kChannelDefinitionLengths = {984,  1312, 1480, 1540, 1552,
                                                                           1648, 1748, 1840, 1864, 1876};
inline constexpr std::array<std::int32_t, 10> kWideChannelDefinitionLengths = {984,  1312, 1480, 1568, 1584,
                                                                               1688, 1792, 1888, 1912, 1920};

struct ChannelDefinition {
  std::string channelName = {};
  std::int32_t version = 10;
  std::int32_t channelType = 6;
  std::int32_t transportType = 2;
  std::string description = {};
  std::string qMgrName = {};
  std::string xmitQName = {};
  std::string shortConnectionName = {};
  std::string mcaName = {};
  std::string modeName = {};
  std::string tpName = {};
  std::int32_t batchSize = 50;
  std::int32_t discInterval = 6000;
  std::int32_t shortRetryCount = 10;
  std::int32_t shortRetryInterval = 60;
  std::int32_t longRetryCount = 999999999;
  std::int32_t longRetryInterval = 1200;
  std::string securityExit = {};
  std::string msgExit = {};
  std::string sendExit = {};
  std::string receiveExit = {};
  std::int32_t seqNumberWrap = 999999999;
  std::int32_t maxMsgLength = 4194304;
  std::int32_t putAuthority = 1;
  std::int32_t dataConversion = 0;
  std::string securityUserData = {};
  std::string msgUserData = {};
  std::string sendUserData = {};
  std::string receiveUserData = {};
  // Version 2
  std::string userIdentifier = {};
  std::string password = {};
  std::string mcaUserIdentifier = {};
  std::int32_t mcaType = 1;
  std::string connectionName = {};
  std::string remoteUserIdentifier = {};
  std::string remotePassword = {};
  // Version 3
  std::string msgRetryExit = {};
  std::string msgRetryUserData = {};
  std::int32_t msgRetryCount = 10;
  std::int32_t msgRetryInterval = 1000;
  // Version 4
  std::int32_t heartbeatInterval = 300;
  std::int32_t batchInterval = 0;
  std::int32_t nonPersistentMsgSpeed = 2;
  std::int32_t strucLength = -1;  ///< -1: the length that belongs to the version
  std::int32_t exitNameLength = 128;
  std::int32_t exitDataLength = 32;
  std::int32_t msgExitsDefined = 0;
  std::int32_t sendExitsDefined = 0;
  std::int32_t receiveExitsDefined = 0;
  std::array<std::uint64_t, 6> exitAddresses = {};
  // Version 5
  std::uint64_t clusterAddress = 0;
  std::int32_t clustersDefined = 0;
  std::int32_t networkPriority = 0;
  // Version 6
  std::int32_t longMcaUserIdLength = 0;
  std::int32_t longRemoteUserIdLength = 0;
  std::array<std::uint64_t, 2> longUserIdAddresses = {};
  Bytes mcaSecurityId = {};
  Bytes remoteSecurityId = {};
  // Version 7
  std::string sslCipherSpec = {};
  std::uint64_t sslPeerNameAddress = 0;
  std::int32_t sslPeerNameLength = 0;
  std::int32_t sslClientAuth = 0;
  std::int32_t keepAliveInterval = -1;
  std::string localAddress = {};
  std::int32_t batchHeartbeat = 0;
  // Version 8
  std::array<std::int32_t, 2> hdrCompList = {0, -1};
  std::array<std::int32_t, 16> msgCompList = {0, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
  std::int32_t clwlChannelRank = 0;
  std::int32_t clwlChannelPriority = 0;
  std::int32_t clwlChannelWeight = 50;
  std::int32_t channelMonitoring = 0;
  std::int32_t channelStatistics = 0;
  // Version 9
  std::int32_t sharingConversations = 10;
  std::int32_t propertyControl = 0;
  std::int32_t maxInstances = 999999999;
  std::int32_t maxInstancesPerClient = 999999999;
  std::int32_t clientChannelWeight = 0;
  std::int32_t connectionAffinity = 1;
  // Version 10
  std::int32_t batchDataLimit = 5000;
  std::int32_t useDlq = 2;
  std::int32_t defReconnect = 0;
};
Bytes ComposeChannelDefinition(const ChannelDefinition& fields, const Layout& layout = {});

}  // namespace quillon::compose
