// Messages in the programmable command format: header, parameters of every type, nested groups.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "message_composer.h"

namespace quillon::compose {

/// Types of a message (the header's Type).
inline constexpr std::int32_t kPcfCommand = 1;
inline constexpr std::int32_t kPcfResponse = 2;
inline constexpr std::int32_t kPcfEvent = 7;
inline constexpr std::int32_t kPcfStatistics = 21;
inline constexpr std::int32_t kPcfAccounting = 22;

/// Types of a parameter.
inline constexpr std::int32_t kPcfInteger = 3;
inline constexpr std::int32_t kPcfString = 4;
inline constexpr std::int32_t kPcfIntegerList = 5;
inline constexpr std::int32_t kPcfStringList = 6;
inline constexpr std::int32_t kPcfByteString = 9;
inline constexpr std::int32_t kPcfIntegerFilter = 13;
inline constexpr std::int32_t kPcfStringFilter = 14;
inline constexpr std::int32_t kPcfByteStringFilter = 15;
inline constexpr std::int32_t kPcfGroup = 20;
inline constexpr std::int32_t kPcfInteger64 = 23;
inline constexpr std::int32_t kPcfInteger64List = 25;

/// The header (36 bytes) without its count of parameters, which the composer keeps.
struct PcfHeader {
  std::int32_t type = kPcfCommand;
  std::int32_t version = 1;
  std::int32_t command = 0;
  std::int32_t msgSeqNumber = 1;
  std::int32_t control = 1;
  std::int32_t compCode = 0;
  std::int32_t reason = 0;
};

/// Collects the parameters of one message. Strings and bytes are filled to a multiple of 4 behind their
/// length.
class PcfComposer {
 public:
  explicit PcfComposer(const PcfHeader& header, std::int32_t messageEncoding = kEncodingNormal);

  void Integer(std::int32_t id, std::int32_t value);
  void Integer64(std::int32_t id, std::int64_t value);
  void IntegerList(std::int32_t id, const std::vector<std::int32_t>& values);
  void Integer64List(std::int32_t id, const std::vector<std::int64_t>& values);
  /// A string of `width` characters; width 0: as long as the text.
  void String(std::int32_t id, std::string_view text, std::size_t width = 0, std::int32_t ccsid = 819);
  /// Strings of `width` characters each.
  void StringList(std::int32_t id, const std::vector<std::string>& texts, std::size_t width,
                  std::int32_t ccsid = 819);
  void ByteString(std::int32_t id, const Bytes& value);
  void IntegerFilter(std::int32_t id, std::int32_t filterOperator, std::int32_t value);
  void StringFilter(std::int32_t id, std::int32_t filterOperator, std::string_view text,
                    std::int32_t ccsid = 819);
  void ByteStringFilter(std::int32_t id, std::int32_t filterOperator, const Bytes& value);
  /// The parameters up to the matching EndGroup are the group's members.
  void BeginGroup(std::int32_t id);
  void EndGroup();
  /// A parameter of any type, known or not, with the bytes that follow its identifier.
  void Parameter(std::int32_t type, std::int32_t id, const Bytes& rest);

  /// Header and parameters; the composer must not be used afterwards.
  Bytes Take();
  std::int32_t Encoding() const { return encoding; }

 private:
  void Begin(std::int32_t type, std::int32_t id);
  void End();

  struct Level {
    std::size_t countPosition;
    std::int32_t count;
  };
  std::int32_t encoding;
  ByteWriter writer;
  std::vector<Level> levels = {};
  std::size_t parameterStart = 0;
};

/// The body of a command, a reply or an event (format "ZKADMIN", "ZKPCF" or "ZKEVENT").
MessageBody PcfBody(PcfComposer& parameters, std::string format = "ZKADMIN");

/// An embedded header (32 bytes) in front of a message of this form.
struct EmbeddedPcfHeader {
  std::int32_t version = 1;
  std::int32_t flags = 0;
  std::string format = {};
};
MessageBody EmbeddedPcfBody(const EmbeddedPcfHeader& fields, PcfComposer& parameters);

}  // namespace quillon::compose
