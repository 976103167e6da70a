// The walk over the headers of a message body.
#include "base/struct_reader.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"
#include "output/report_writer.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkxqhLength = 104;
constexpr std::int64_t kOriginalDescriptorLength = 324;
constexpr std::int64_t kTransmissionLength = kZkxqhLength + kOriginalDescriptorLength;
constexpr std::int64_t kZkephOwnLength = 32;
constexpr std::int64_t kZkdlhLength = 172;
constexpr std::int64_t kZkmdeLength = 72;

/// Where the walk stands. `format` and `encoding` are those of the bytes at `offset`.
struct MessageWalk {
  FormatName format;
  std::uint32_t encoding;
  ByteView data;
  std::int64_t offset = 0;

  ByteView Rest() const { return data.From(offset); }
};

// Lengths come from the data: a walk that was led outside stays outside, with nothing left to show.
void Advance(MessageWalk& walk, std::int64_t length) {
  walk.offset += length;
  if (walk.offset < 0 || walk.offset > walk.data.Size()) walk.data = ByteView();
}

bool WithinParsedLength(const RunContext& runContext, std::int64_t length) {
  return runContext.maxParsedLength < 0 || runContext.maxParsedLength >= length;
}

// The transmission-queue header and the descriptor of the message that it carries. The walk goes on behind
// both even where the limit on parsed data keeps them from being shown.
void ShowTransmissionHeader(RunContext& runContext, MessageWalk& walk) {
  const ByteView descriptor = walk.data.From(kZkxqhLength);
  if (WithinParsedLength(runContext, kZkxqhLength)) {
    ShowSectionTitle(runContext, 0, kZkxqhLength, "ZKXQH (Transmission-queue header)");
    ShowParsedZkxqh(runContext, walk.data);
  }
  if (WithinParsedLength(runContext, kTransmissionLength)) {
    ShowSectionTitle(runContext, kZkxqhLength, kOriginalDescriptorLength,
                     "ZKMD1 (Original message descriptor)");
    // Kept: the descriptor is shown as far as its Version says, so one of version 2 shows its last fields
    // from the bytes of what follows the header.
    ShowParsedZkmd(runContext, descriptor);
  }
  StructReader md = ReaderByEncoding(runContext, descriptor, walk.encoding);
  md.Skip(24);  // StrucId to Feedback
  walk.encoding = md.UInt32();
  md.Skip(4);  // CodedCharSetId
  walk.format = FormatNameOf(md.Bytes(8));
  Advance(walk, kTransmissionLength);
}

using HeaderFormatter = std::int64_t (*)(RunContext& runContext, FormatName& nextFormat,
                                         std::uint32_t& encoding, ByteView header, std::int64_t offset);

struct HeaderStep {
  const char* format;
  HeaderFormatter show;  ///< returns the bytes to advance
};

// The walk passes these two by their length even when they were too short to be shown.
std::int64_t ShowDeadLetterHeader(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                                  ByteView header, std::int64_t offset) {
  ShowParsedZKDLH(runContext, nextFormat, encoding, header, offset);
  return kZkdlhLength;
}

std::int64_t ShowDescriptorExtension(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                                     ByteView header, std::int64_t offset) {
  ShowParsedZKMDE(runContext, nextFormat, encoding, header, offset);
  return kZkmdeLength;
}

// Kept: each of these is looked for once and in this order, so a dead-letter header that names a reference
// header as its successor shows none; what follows is taken for the body.
constexpr HeaderStep kHeadersInOrder[] = {
    {"ZKHDIST ", ShowParsedZKDH},
    {"ZKHREF  ", ShowParsedZKRMH},
    {"ZKDEAD  ", ShowDeadLetterHeader},
    {"ZKHMDE  ", ShowDescriptorExtension},
};

constexpr HeaderStep kRulesHeader2 = {"ZKHRF2  ", ShowParsedZKHRF2};

// Shows the header when the walk's format names it. One that shows nothing names no successor: the format is
// then eight zero bytes, and the rest is the body.
bool ShowHeader(RunContext& runContext, MessageWalk& walk, const HeaderStep& step) {
  if (!(walk.format == step.format)) return false;
  FormatName nextFormat = {};
  Advance(walk, step.show(runContext, nextFormat, walk.encoding, walk.Rest(), walk.offset));
  walk.format = nextFormat;
  return true;
}

void ShowEmbeddedPcf(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset) {
  ShowParsedZKEPH(runContext, encoding, data, offset);
  ShowParsedPCF(runContext, encoding, data.From(kZkephOwnLength), offset + kZkephOwnLength);
}

struct BodyFormat {
  const char* format;
  void (*show)(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset);
};

constexpr BodyFormat kBodyFormats[] = {
    {"ZKHRF   ", ShowParsedZKHRF1}, {"ZKADMIN ", ShowParsedPCF},  {"ZKPCF   ", ShowParsedPCF},
    {"ZKEVENT ", ShowParsedPCF},    {"ZKTRIG  ", ShowParsedZKTM}, {"ZKHEPCF ", ShowEmbeddedPcf},
};

// Returns whether the body's text is shown.
bool ShowBody(RunContext& runContext, const MessageWalk& walk) {
  for (const BodyFormat& body : kBodyFormats) {
    if (!(walk.format == body.format)) continue;
    body.show(runContext, walk.encoding, walk.Rest(), walk.offset);
    return true;
  }
  if (ShowParsedXml(runContext, walk.Rest(), walk.offset, "XML data")) return true;
  ShowParsedGeneralData(runContext, walk.Rest().Size(), walk.offset);
  return false;
}

}  // namespace

bool ShowParsedMsgData(RunContext& runContext, const FormatName& format, std::uint32_t encoding,
                       ByteView data) {
  MessageWalk walk = {format, encoding, data};
  bool shown = walk.format == "ZKXMIT  " && data.Size() >= kTransmissionLength;
  if (shown) ShowTransmissionHeader(runContext, walk);
  for (const HeaderStep& step : kHeadersInOrder) {
    if (ShowHeader(runContext, walk, step)) shown = true;
  }
  while (ShowHeader(runContext, walk, kRulesHeader2)) shown = true;
  return ShowBody(runContext, walk) || shown;
}

void ShowParsedGeneralData(RunContext& runContext, std::int64_t length, std::int64_t offset) {
  if (offset <= 0 || length <= 0) return;
  ShowSectionTitle(runContext, offset, length, "Data");
  WriteTraceData(runContext, kLineMarker);
  WriteTraceData(runContext, " (refer to data shown in hexadecimal format)\n");
}

ByteView CapParsedLength(const RunContext& runContext, ByteView data) {
  return runContext.maxParsedLength < 0 ? data : data.Sub(0, runContext.maxParsedLength);
}

}  // namespace quillon
