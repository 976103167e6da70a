#include "base/trace_line.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace quillon {

void TraceLine::Set(std::string_view newText) {
  const std::size_t end = std::min(newText.find('\0'), std::min(newText.size(), kMaxLineLength));
  length = newText.copy(text, end);  // unlike memcpy it may be given no text at all
}

bool LineReader::Fill() {
  position = 0;
  errno = 0;  // the end of the input is no error: a message about it must not tell an older one
  filled = std::fread(block, 1, kBlockSize, stream);
  if (returns == ReturnBeforeLineFeed::Drop && filled > 0) DropReturns();
  holdsNul = std::memchr(block, '\0', filled) != nullptr;
  return filled > 0;
}

// A carriage return at the block's end needs the next byte: when that is the line feed, it takes its place.
void LineReader::DropReturns() {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < filled; ++i) {
    if (block[i] == '\r' && i + 1 < filled && block[i + 1] == '\n') continue;
    block[kept++] = block[i];
  }
  filled = kept;
  if (block[filled - 1] != '\r') return;
  const int next = std::fgetc(stream);
  if (next == '\n') {
    block[filled - 1] = '\n';
  } else if (next != EOF) {
    static_cast<void>(std::ungetc(next, stream));  // there is always room for the byte just read
  }
}

std::string_view LineReader::Peek() {
  if (position == filled) Fill();
  return {block + position, filled - position};
}

bool LineReader::Read(TraceLine& line) {
  std::size_t taken = 0;
  bool ended = false;
  bool mayHoldNul = false;
  while (!ended && taken < kMaxLineLength) {
    if (position == filled && !Fill()) break;
    const std::size_t most = std::min(filled - position, kMaxLineLength - taken);
    const void* lineFeed = std::memchr(block + position, '\n', most);
    ended = lineFeed != nullptr;
    const std::size_t part =
        ended ? static_cast<std::size_t>(static_cast<const char*>(lineFeed) - (block + position)) + 1 : most;
    std::memcpy(line.text + taken, block + position, part);
    position += part;
    taken += part;
    mayHoldNul |= holdsNul;
  }
  line.length = mayHoldNul ? std::string_view(line.text, taken).find('\0') : taken;
  line.length = std::min(line.length, taken);
  return taken > 0;
}

}  // namespace quillon
