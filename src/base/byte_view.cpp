#include "base/byte_view.h"

#include <algorithm>

#include "base/dump_bytes.h"

namespace quillon {
ByteView ByteView::Field(std::int64_t offset, std::int64_t length) const {
  ByteView field;
  field.dump = dump;
  if (length <= 0) return field;
  field.viewSize = length;
  if (offset < 0 || offset >= readableEnd) return field;
  field.readableEnd = std::min(length, readableEnd - offset);
  if (offset < flatSize) {
    field.flatData = flatData + offset;
    field.flatSize = std::min(field.readableEnd, flatSize - offset);
  }
  field.dumpOffset = dumpOffset + offset;
  return field;
}

ByteView ByteView::Sub(std::int64_t offset, std::int64_t length) const {
  if (offset < 0 || offset >= viewSize) return Field(0, 0);
  return Field(offset, std::min(length, viewSize - offset));
}

void ByteView::CopyBeyondFlat(std::uint8_t* target, std::int64_t offset, std::size_t count) const {
  const auto wanted = static_cast<std::int64_t>(count);
  std::int64_t done = 0;
  if (offset >= 0 && offset < flatSize) {
    done = std::min(wanted, flatSize - offset);
    std::copy_n(flatData + offset, done, target);
  }
  for (; done < wanted; ++done) target[done] = At(offset + done);
}

std::int64_t ByteView::KnownSize() const {
  if (dump == nullptr) return flatSize;
  return std::max<std::int64_t>(0, std::min(dump->KeptCount() - dumpOffset, readableEnd));
}

std::int64_t ByteView::EndOfRepeat(std::int64_t offset) const {
  if (offset < flatSize) return offset;
  if (dump != nullptr) {
    // The run may go on in the dump where this view's bytes are over.
    const std::int64_t end = std::min(dump->EndOfRun(dumpOffset + offset) - dumpOffset, readableEnd);
    if (end > offset) return end;
  }
  // Behind everything that the trace carried there are only zeros; they repeat from their second line on.
  return offset >= KnownSize() + 16 ? viewSize : offset;
}

std::int64_t ByteView::LimitedTextSize(std::int64_t mostClaimed) const {
  if (dump == nullptr) return std::min(viewSize, flatSize + mostClaimed);
  const std::int64_t known = KnownSize();
  const std::int64_t end = dump->EndOfFolded(dump->FoldedBefore(dumpOffset) + mostClaimed) - dumpOffset;
  if (known > 0 && end < known) return end;
  return std::min(viewSize, known + mostClaimed - ClaimedBefore(known));
}

std::int64_t ByteView::ClaimedBeyondFlat(std::int64_t offset) const {
  const std::int64_t known = std::min(offset, KnownSize());
  const std::int64_t folded =
      dump != nullptr ? dump->FoldedBefore(dumpOffset + known) - dump->FoldedBefore(dumpOffset) : 0;
  return folded + offset - known;
}

std::uint8_t ByteView::AtBeyondFlat(std::int64_t offset) const {
  if (dump == nullptr || offset < 0 || offset >= readableEnd) return 0;
  return dump->At(dumpOffset + offset);
}

}  // namespace quillon
