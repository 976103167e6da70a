// Rules-and-formatting header 1 (ZKHRF) and its name/value string.
#include <algorithm>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkhrfLength = 32;
constexpr std::size_t kTokenPiece = 199;

/// Bytes below it separate tokens: blanks and control characters.
constexpr std::uint8_t kFirstTokenByte = 33;

// The first byte of a token at or after `position`, or the end of the text.
std::int64_t SkipSeparators(ByteView text, std::int64_t position) {
  while (position < text.Size() && text.At(position) < kFirstTokenByte) ++position;
  return position;
}

// The end of the token that begins at `position`: the first separator outside double quotes, or the end of
// the text.
std::int64_t EndOfToken(ByteView text, std::int64_t position) {
  bool quoted = false;
  for (; position < text.Size(); ++position) {
    const std::uint8_t byte = text.At(position);
    if (byte < kFirstTokenByte && !quoted) break;
    if (byte == '"') quoted = !quoted;
  }
  return position;
}

// Kept: a token is written in pieces of 199 bytes, each as a text that ends at its first NUL: a NUL in a
// quoted token hides the rest of its piece, and the next piece is shown again.
void WriteToken(RunContext& runContext, ByteView token) {
  char piece[kTokenPiece];
  for (std::int64_t done = 0; done < token.Size(); done += static_cast<std::int64_t>(kTokenPiece)) {
    const ByteView rest = token.Sub(done, static_cast<std::int64_t>(kTokenPiece));
    const auto length = static_cast<std::size_t>(rest.Size());
    rest.CopyTo(reinterpret_cast<std::uint8_t*>(piece), 0, length);
    WriteTraceData(runContext, TextBeforeNul({piece, length}));
  }
}

// One line for each pair of tokens. Kept: an odd number of tokens leaves the last line without its line end.
void ShowNameValueString(RunContext& runContext, ByteView text) {
  text = text.Sub(0, PayForText(runContext, text));
  bool isName = true;
  for (std::int64_t position = SkipSeparators(text, 0); position < text.Size();) {
    const std::int64_t end = EndOfToken(text, position);
    WriteTraceData(runContext, isName ? kLineMarker : " - ");
    WriteToken(runContext, text.Sub(position, end - position));
    if (!isName) WriteTraceData(runContext, "\n");
    isName = !isName;
    position = SkipSeparators(text, end);
  }
}

}  // namespace

void ShowParsedZKHRF1(RunContext& runContext, std::uint32_t encoding, ByteView data, std::int64_t offset) {
  data = CapParsedLength(runContext, data);
  if (data.Size() < kZkhrfLength) return;
  StructReader rf1 = ReaderByEncoding(runContext, data, encoding);
  rf1.Skip(4);  // StrucId
  ShowSectionTitle(runContext, offset, kZkhrfLength, "ZKHRF (Rules and formatting header)");
  ShowFieldValueZklong(runContext, "Version", rf1.Int32());
  const std::int32_t strucLength = rf1.Int32();
  ShowFieldValueZklong(runContext, "StrucLength", strucLength);
  ShowFollowingData(runContext, rf1);
  ShowFieldValueZklong(runContext, "Flags ", rf1.Int32());
  // Kept: this title gives the length of the header and its string together.
  ShowSectionTitle(runContext, offset + kZkhrfLength, strucLength, "NameValueString");
  const std::int64_t usedLength = std::min<std::int64_t>(strucLength, data.Size());
  ShowNameValueString(runContext, data.Sub(kZkhrfLength, usedLength - kZkhrfLength));
}

}  // namespace quillon
