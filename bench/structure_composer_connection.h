// Connection options, TLS options, authentication records and security parameters.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "structure_composer_common.h"

namespace quillon::compose {

/// Version 1: 12 bytes, 2: 20, 3: 148, 4: 156, 5: 188.
struct ConnectionOptions {
  std::int32_t version = 5;
  std::uint32_t options = 0;
  std::int32_t channelOffset = 0;
  std::uint64_t channelAddress = 0;
  Bytes connTag = {};
  std::int32_t tlsOptionsOffset = 0;
  std::uint64_t tlsOptionsAddress = 0;
  Bytes connectionId = {};
  std::int32_t securityOffset = 0;
  std::uint64_t securityAddress = 0;
};
Bytes ComposeConnectionOptions(const ConnectionOptions& fields, const Layout& layout = {});

/// Version 1: 532 bytes, 2: 540, 3: 556, 4: 560.
struct TlsOptions {
  std::int32_t version = 4;
  std::string keyRepository = {};
  std::string cryptoHardware = {};
  std::int32_t authInfoRecCount = 0;
  std::int32_t authInfoRecOffset = 0;
  std::uint64_t authInfoRecAddress = 0;
  std::int32_t keyResetCount = 0;
  std::int32_t fipsRequired = 0;
  std::array<std::int32_t, 4> encryptionPolicySuiteB = {1, 0, 0, 0};
  std::int32_t certificateValPolicy = 0;
};
Bytes ComposeTlsOptions(const TlsOptions& fields, const Layout& layout = {});

/// Version 1: 320 bytes, 2: 576.
struct AuthenticationRecord {
  std::int32_t version = 2;
  std::int32_t authInfoType = 1;
  std::string authInfoConnName = {};
  std::uint64_t ldapUserNameAddress = 0;
  std::int32_t ldapUserNameOffset = 0;
  std::int32_t ldapUserNameLength = 0;
  std::string ldapPassword = {};
  std::string ocspResponderUrl = {};
};
Bytes ComposeAuthenticationRecord(const AuthenticationRecord& fields, const Layout& layout = {});

/// The item that an authentication record points to: the name's characters.
inline Bytes ComposeLdapUserName(const std::string& name) {
  return BytesOf(name);
}

/// 48 bytes; user id and password may follow, the offsets then tell where.
struct SecurityParameters {
  std::int32_t version = 1;
  std::int32_t authenticationType = 0;
  std::uint64_t userIdAddress = 0;
  std::int32_t userIdOffset = 0;
  std::int32_t userIdLength = 0;
  std::uint64_t passwordAddress = 0;
  std::int32_t passwordOffset = 0;
  std::int32_t passwordLength = 0;
};
Bytes ComposeSecurityParameters(const SecurityParameters& fields, const Layout& layout = {});
/// Parameters of type 1 with both texts behind the structure.
Bytes ComposeSecurityParameters(const std::string& userId, const std::string& password,
                                const Layout& layout = {});

}  // namespace quillon::compose
