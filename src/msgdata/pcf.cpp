// PCF messages: the header, and the walk over the parameters and their groups.
#include <cstdint>
#include <string>

#include "base/struct_reader.h"
#include "display/constants.h"
#include "display/fieldline.h"
#include "display/line_buffer.h"
#include "display/named_values.h"
#include "driver/message_catalogue.h"
#include "msgdata/formatters.h"
#include "msgdata/pcf_parameters.h"
#include "msgdata/pcf_values.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::int64_t kPcfHeaderLength = 36;
constexpr std::int32_t kHighestKnownVersion = 3;

/// Deepest level that a group opens; a group on it counts as an ordinary parameter.
constexpr int kDeepestLevel = 99;

/// How often parameters of length 0, which the walk meets again at the same offset, are shown in one message.
constexpr int kMostZeroLengthParameters = 1000;

/// The first few of them cost nothing; each of the others is paid like this many bytes of claimed text.
constexpr int kFreeZeroLengthParameters = 16;
constexpr std::int64_t kCostOfZeroLengthParameter = 16;

/// Where the walk stands in the nesting of groups; level 0 is the message's own.
struct GroupLevels {
  struct Level {
    std::uint32_t shown;   ///< parameters shown on this level so far
    std::int32_t members;  ///< parameters that belong to it
  };
  int current;
  Level levels[kDeepestLevel + 1];

  Level& Current() { return levels[current]; }
  bool CurrentIsComplete() const {
    return static_cast<std::int64_t>(levels[current].shown) >= levels[current].members;
  }
};

/// Shows the header; returns its ParameterCount.
// Kept: the text for an unknown command or reason brings its own parentheses, so they stand doubled. The same
// holds for an unknown parameter identifier.
std::int32_t ShowHeader(RunContext& runContext, std::uint32_t encoding, ByteView message,
                        std::int64_t offset) {
  StructReader header = ReaderByEncoding(runContext, message, encoding);
  const std::int32_t type = header.Int32();
  const std::int32_t strucLength = header.Int32();
  const std::int32_t version = header.Int32();
  if (version > kHighestKnownVersion) ShowUnknownStructureVersion(runContext, "ZKCFH", version);
  ShowParsedValueOffset(runContext, static_cast<std::uint32_t>(offset),
                        static_cast<std::uint32_t>(message.Size()), "ZKCFH (PCF header and parameters)");
  ShowFieldConstant(runContext, "Type", type, Constant_ZkAttrsPcfType);
  ShowFieldValueZklongFixedLen(runContext, "StrucLength", strucLength);
  ShowFieldValueZklongFixedLen(runContext, "Version", version);
  // The command is unsigned, unlike its neighbours.
  const std::int32_t command = header.Int32();
  ShowFieldValueZkInt64FixedLen(runContext, "Command", 0, static_cast<std::uint32_t>(command),
                                SearchConstantInt(command, Constant_ZkAttrsPcfCommand));
  ShowFieldValueZklongFixedLen(runContext, "MsgSeqNumber", header.Int32());
  ShowFieldConstant(runContext, "Control", header.Int32(), Constant_ZkAttrsPcfControl);
  ShowFieldValueZklongFixedLen(runContext, "CompCode", header.Int32());
  const std::int32_t reason = header.Int32();
  ShowFieldValueZklongFixedLen(runContext, "Reason", reason, LineEnd::None);
  if (reason != 0) ShowPcfDescription(runContext, SearchConstantReasonString(reason));
  WriteTraceData(runContext, "\n");
  const std::int32_t parameterCount = header.Int32();
  ShowFieldValueZklongFixedLen(runContext, "ParameterCount", parameterCount);
  return parameterCount;
}

/// The parameter's number, preceded by those of the groups around it (such as 3.2.3), and its byte range.
void ShowParameterTitle(RunContext& runContext, const GroupLevels& groups, std::int64_t offset,
                        std::int32_t length) {
  LineBuffer line(runContext);
  line.AddNameColumn("------------------------").Add("--- ").AddDecimal(groups.levels[0].shown);
  for (int level = 1; level <= groups.current; ++level) line.Add('.').AddDecimal(groups.levels[level].shown);
  line.Add(" --- ").AddByteRange(static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(length));
  line.Add('\n').Flush();
}

void ShowParameterPrefix(RunContext& runContext, const PcfParameter& parameter) {
  ShowFieldConstant(runContext, "(parm) - Type", parameter.type, Constant_ZkAttrsPcfType);
  ShowFieldValueZklongFixedLen(runContext, "(parm) - Length", parameter.length);
  ShowFieldValueZklongFixedLen(runContext, "(parm) - Parameter", parameter.identifier, LineEnd::None);
  ShowPcfDescription(runContext, parameter.name);
  WriteTraceData(runContext, "\n");
}

/// Moves to the level of the parameter that follows: into a group, or out of the groups that are complete.
void FollowGroups(GroupLevels& groups, const PcfParameter& parameter) {
  if (parameter.type == kPcfTypeGroup && groups.current < kDeepestLevel) {
    ++groups.current;
    groups.Current() = {0, CalculatePcfGroupMembers(parameter)};
    return;
  }
  // Kept: a group is tested for completeness only behind a member, so a group that announces none takes the
  // parameter behind it as its one member.
  while (groups.current > 0 && groups.CurrentIsComplete()) --groups.current;
}

void ReportZeroLengthParameters(RunContext& runContext, int shown) {
  PutMessage(runContext, 1, 0,
             "PCF parameters of length 0 were shown " + std::to_string(shown) +
                 " times; the rest of the message is not shown.");
}

/// Whether one more parameter of length 0 is shown behind the `shown` ones of the message.
bool TakeZeroLengthParameter(RunContext& runContext, int shown) {
  if (shown < kFreeZeroLengthParameters) return true;
  if (shown >= kMostZeroLengthParameters || runContext.claimedTextLeft <= 0) return false;
  runContext.claimedTextLeft -= kCostOfZeroLengthParameter;
  return true;
}

void ShowParameters(RunContext& runContext, std::uint32_t encoding, ByteView message, std::int64_t offset,
                    std::int32_t parameterCount) {
  GroupLevels groups = {};
  groups.Current().members = parameterCount;
  int zeroLengthParameters = 0;
  std::int64_t position = kPcfHeaderLength;
  while (message.Size() - position >= kPcfParameterPrefixLength) {
    if (groups.current == 0 && groups.CurrentIsComplete()) return;
    PcfParameter parameter = ReadPcfParameter(runContext, encoding, message.From(position));
    if (parameter.length < 0 || parameter.length > parameter.bytes.Size()) return;
    // A trace of two lines may claim millions of parameters, and lists of millions.
    const std::int64_t length = std::max<std::int64_t>(parameter.length, kPcfParameterPrefixLength);
    parameter.shown = PayForText(runContext, parameter.bytes.Sub(0, length));
    if (parameter.shown < kPcfParameterPrefixLength) return ReportTextLeftOut(runContext);
    if (parameter.length == 0) {
      if (!TakeZeroLengthParameter(runContext, zeroLengthParameters))
        return ReportZeroLengthParameters(runContext, zeroLengthParameters);
      ++zeroLengthParameters;
    }
    ++groups.Current().shown;
    ShowParameterTitle(runContext, groups, offset + position, parameter.length);
    ShowParameterPrefix(runContext, parameter);
    ShowPcfParameterValue(runContext, parameter);
    FollowGroups(groups, parameter);
    // Kept: a parameter of length 0 is shown again at the same offset until the counts are reached.
    position += parameter.length;
  }
}

}  // namespace

void ShowParsedPCF(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset) {
  const ByteView message = CapParsedLength(runContext, data);
  if (message.Size() < kPcfHeaderLength) return;
  const std::int32_t parameterCount = ShowHeader(runContext, encoding, message, offset);
  ShowParameters(runContext, encoding, message, offset, parameterCount);
}

}  // namespace quillon
