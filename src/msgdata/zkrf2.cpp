// Rules-and-formatting header 2 (ZKHRF2) and its folders.
#include "base/struct_reader.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "msgdata/formatters.h"
#include "msgdata/header_common.h"

namespace quillon {
namespace {

constexpr std::int64_t kZkhrf2Length = 36;
constexpr std::int64_t kFolderLengthWidth = 4;

// Whether the limit on parsed data leaves nothing to show from `offset` on.
bool ParsedLengthReached(const RunContext& runContext, std::int64_t offset) {
  return runContext.maxParsedLength >= 0 && runContext.maxParsedLength <= offset;
}

// The folders: each a length and that many bytes. `offset` is that of `folders` in the message data. Folders
// that the trace only claims are cut like a text.
void ShowFolders(RunContext& runContext, ByteView folders, ByteOrder order, std::int64_t offset) {
  std::int64_t position = 0;
  while (folders.Size() - position >= kFolderLengthWidth) {
    if (PayForText(runContext, folders.Sub(position, kFolderLengthWidth)) < kFolderLengthWidth) return;
    const std::int64_t length = folders.Int32(position, order);
    position += kFolderLengthWidth;
    const std::int64_t left = folders.Size() - position;
    if (length < 0 || length > left) {
      ShowParsedGeneralData(runContext, left, offset + position);
      return;
    }
    if (!ShowParsedXml(runContext, folders.Sub(position, length), offset + position, "XML data in ZKHRF2"))
      ShowParsedGeneralData(runContext, length, offset + position);
    position += length;
  }
}

}  // namespace

std::int64_t ShowParsedZKHRF2(RunContext& runContext, FormatName& nextFormat, std::uint32_t& encoding,
                              ByteView header, std::int64_t offset) {
  if (header.Size() < kZkhrf2Length) return 0;
  StructReader rf2 = ReaderByEncoding(runContext, header, encoding);
  rf2.Skip(4);  // StrucId
  const std::int32_t version = rf2.Int32();
  const std::int32_t strucLength = rf2.Int32();
  if (strucLength < kZkhrf2Length) return 0;
  if (ParsedLengthReached(runContext, offset)) return strucLength;
  ShowSectionTitle(runContext, offset, strucLength, "ZKHRF2 (Rules and formatting header 2)");
  ShowFieldValueZklong(runContext, "Version", version);
  ShowFieldValueZklong(runContext, "StrucLength", strucLength);
  const FollowingData following = ShowFollowingData(runContext, rf2);
  ShowFieldValueZklong(runContext, "Flags ", rf2.Int32());
  ShowParsedCommonCcsid(runContext, "NameValueCCSID", rf2.Int32(), false);
  if (header.Size() < strucLength) return header.Size();
  if (ParsedLengthReached(runContext, offset + kZkhrf2Length - 1)) return strucLength;
  ShowFolders(runContext, header.Sub(kZkhrf2Length, strucLength - kZkhrf2Length), rf2.Order(),
              offset + kZkhrf2Length);
  HandOn(following, nextFormat, encoding);
  return strucLength;
}

}  // namespace quillon
