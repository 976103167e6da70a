// What the headers of message data have in common: their title lines and the fields that say what follows.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/format_name.h"
#include "base/run_context.h"
#include "base/struct_reader.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "display/flags.h"

namespace quillon {

/// The title line of a header or of one of its parts. `offset` is counted from the start of the message data;
/// both numbers are shown as 32 bits, a negative length as a large one.
inline void ShowSectionTitle(RunContext& runContext, std::int64_t offset, std::int64_t length,
                             std::string_view title) {
  ShowParsedValueOffset(runContext, static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(length),
                        title);
}

/// The encoding and the format of the data behind a header.
struct FollowingData {
  std::uint32_t encoding;
  FormatName format;
};

/// Reads and shows the three fields that stand side by side in every header: Encoding, CodedCharSetId,
/// Format.
inline FollowingData ShowFollowingData(RunContext& runContext, StructReader& header) {
  const std::uint32_t encoding = header.UInt32();
  ShowParsedEncodingValue(runContext, encoding);
  ShowParsedCommonCcsid(runContext, "CodedCharSetId", header.Int32(), false);
  const ByteView format = header.Bytes(8);
  ShowParsedMsgFormat(runContext, format);
  return {encoding, FormatNameOf(format)};
}

/// Hands on what follows a header that was shown.
inline void HandOn(const FollowingData& following, FormatName& nextFormat, std::uint32_t& encoding) {
  nextFormat = following.format;
  encoding = following.encoding;
}

}  // namespace quillon
