#include "structure_composer_connection.h"

namespace quillon::compose {

Bytes ComposeConnectionOptions(const ConnectionOptions& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("CNO", 4);
  writer.Int32(fields.version);
  writer.UInt32(fields.options);
  if (fields.version < 2) return writer.Take();
  writer.Int32(fields.channelOffset);
  writer.Pointer(fields.channelAddress);
  if (fields.version < 3) return writer.Take();
  writer.Opaque(fields.connTag, 128);
  if (fields.version < 4) return writer.Take();
  if (writer.Wide()) {
    writer.Pointer(fields.tlsOptionsAddress);
    writer.Int32(fields.tlsOptionsOffset);
  } else {
    writer.Int32(fields.tlsOptionsOffset);
    writer.Pointer(fields.tlsOptionsAddress);
  }
  if (fields.version < 5) return writer.Take();
  writer.Opaque(fields.connectionId, 24);
  writer.Int32(fields.securityOffset);
  writer.Pointer(fields.securityAddress);
  return writer.Take();
}

Bytes ComposeTlsOptions(const TlsOptions& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("SCO", 4);
  writer.Int32(fields.version);
  writer.Text(fields.keyRepository, 256);
  writer.Text(fields.cryptoHardware, 256);
  writer.Int32(fields.authInfoRecCount);
  writer.Int32(fields.authInfoRecOffset);
  writer.Pointer(fields.authInfoRecAddress);
  if (fields.version < 2) return writer.Take();
  writer.Int32(fields.keyResetCount);
  writer.Int32(fields.fipsRequired);
  if (fields.version < 3) return writer.Take();
  for (const std::int32_t policy : fields.encryptionPolicySuiteB) writer.Int32(policy);
  if (fields.version < 4) return writer.Take();
  writer.Int32(fields.certificateValPolicy);
  return writer.Take();
}

Bytes ComposeAuthenticationRecord(const AuthenticationRecord& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("AIR", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.authInfoType);
  writer.Text(fields.authInfoConnName, 264);
  writer.Pointer(fields.ldapUserNameAddress);
  writer.Int32(fields.ldapUserNameOffset);
  writer.Int32(fields.ldapUserNameLength);
  writer.Text(fields.ldapPassword, 32);
  if (fields.version < 2) return writer.Take();
  writer.Text(fields.ocspResponderUrl, 256);
  return writer.Take();
}

Bytes ComposeSecurityParameters(const SecurityParameters& fields, const Layout& layout) {
  ByteWriter writer(layout);
  writer.Text("CSP", 4);
  writer.Int32(fields.version);
  writer.Int32(fields.authenticationType);
  writer.Zeros(4);
  writer.Pointer(fields.userIdAddress);
  writer.Int32(fields.userIdOffset);
  writer.Int32(fields.userIdLength);
  writer.Zeros(8);
  writer.Pointer(fields.passwordAddress);
  writer.Int32(fields.passwordOffset);
  writer.Int32(fields.passwordLength);
  return writer.Take();
}

Bytes ComposeSecurityParameters(const std::string& userId, const std::string& password,
                                const Layout& layout) {
  SecurityParameters fields;
  fields.authenticationType = 1;
  fields.userIdOffset = static_cast<std::int32_t>(ComposeSecurityParameters(fields, layout).size());
  fields.userIdLength = static_cast<std::int32_t>(userId.size());
  fields.passwordOffset = fields.userIdOffset + fields.userIdLength;
  fields.passwordLength = static_cast<std::int32_t>(password.size());
  ByteWriter writer(layout);
  writer.Raw(ComposeSecurityParameters(fields, layout));
  writer.Raw(userId);
  writer.Raw(password);
  return writer.Take();
}

}  // namespace quillon::compose
