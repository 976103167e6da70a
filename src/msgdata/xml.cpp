// XML: the recogniser and the indented display.
#include <algorithm>

#include "display/encoding.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"

namespace quillon {
namespace {

constexpr std::int32_t kIndentStep = 2;
constexpr std::int64_t kNotXml = -1;

// How many bytes from `position` on, a whole number of lines of 16, are known to repeat the 16 bytes before
// them.
std::int64_t RepeatedBytes(ByteView data, std::int64_t position) {
  return (data.EndOfRepeat(position) - position) / 16 * 16;
}

// The offset of the bracket that ends the document, or kNotXml. A document begins with '<', ends with '>' but
// for blanks and zero bytes, and has its brackets in turn; names are not looked at.
std::int64_t FindEndOfXml(ByteView data) {
  if (data.Size() < 2 || data.At(0) != '<') return kNotXml;
  bool tagOpen = false;
  std::int64_t last = 0;
  for (std::int64_t position = 0; position < data.Size(); ++position) {
    // Of the repeats of a line only the last is walked: it fails where the first would, and if none fails all
    // leave the same state.
    if (position % 16 == 0 && position > 0)
      position += std::max<std::int64_t>(RepeatedBytes(data, position) - 16, 0);
    const std::uint8_t byte = data.At(position);
    const std::uint8_t misplaced = tagOpen ? '<' : '>';
    if (byte == misplaced) return kNotXml;
    if (byte == '<' || byte == '>') tagOpen = !tagOpen;
    if (byte != ' ' && byte != 0) last = position;
  }
  return !tagOpen && data.At(last) == '>' ? last : kNotXml;
}

// The first offset from `position` on that holds `byte`, or the end of the data.
std::int64_t Find(ByteView data, std::int64_t position, std::uint8_t byte) {
  while (position < data.Size() && data.At(position) != byte) ++position;
  return position;
}

// Kept: every tag that neither closes another nor itself indents what follows, so declarations and comments
// do too.
void ShowTag(RunContext& runContext, ByteView tag, std::int32_t& indent) {
  const bool closes = tag.At(1) == '/';
  const bool closedInItself = tag.At(tag.Size() - 2) == '/';
  if (closes && indent > 1) indent -= kIndentStep;
  ShowTextStringDataRegardingMaximumLrecl(runContext, indent, tag);
  if (!closes && !closedInItself) indent += kIndentStep;
}

void ShowTagsAndText(RunContext& runContext, ByteView document) {
  document = document.Sub(0, PayForText(runContext, document));
  std::int32_t indent = 0;
  for (std::int64_t position = 0; position < document.Size();) {
    const bool isTag = document.At(position) == '<';
    const std::int64_t end =
        isTag ? std::min(Find(document, position, '>') + 1, document.Size()) : Find(document, position, '<');
    const ByteView piece = document.Sub(position, end - position);
    if (isTag) {
      ShowTag(runContext, piece, indent);
    } else {
      ShowTextStringDataRegardingMaximumLrecl(runContext, indent, piece);
    }
    position = end;
  }
}

}  // namespace

bool ShowParsedXml(RunContext& runContext, ByteView data, std::int64_t offset, std::string_view title) {
  const std::int64_t limit = runContext.maxParsedLength;
  if (limit >= 0 && limit <= offset) return false;
  std::int64_t end = FindEndOfXml(data);
  if (end == kNotXml) return false;
  if (limit >= 0) end = std::min(end, limit - 1 - offset);
  if (end <= 0) return false;
  ShowSectionTitle(runContext, offset, data.Size(), title);
  ShowTagsAndText(runContext, data.Sub(0, end + 1));
  return true;
}

}  // namespace quillon
