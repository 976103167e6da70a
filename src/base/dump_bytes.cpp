#include "base/dump_bytes.h"

#include <algorithm>
#include <cstring>

namespace quillon {

void DumpBytes::Start(std::int32_t declared, std::int64_t mostMemory) {
  runCount = 0;
  storedCount = 0;
  unfoldedCount = 0;
  count = 0;
  droppedCount = 0;
  memoryLimit = mostMemory;
  declaredLength = declared;
}

bool DumpBytes::GrowStored(std::int64_t more) {
  const auto needed = static_cast<std::size_t>(storedCount + more);
  return stored.Reserve(std::max({needed, stored.Capacity() + stored.Capacity() / 4, kDumpBufferFloor}));
}

bool DumpBytes::Append(const std::uint8_t* bytes, std::size_t byteCount) {
  const auto added = static_cast<std::int64_t>(byteCount);
  if (byteCount == 0) return true;
  if (!Grow(added)) return false;
  std::memcpy(stored.Data() + storedCount, bytes, byteCount);
  Take(byteCount);
  return true;
}

bool DumpBytes::MustFold(std::int64_t repeat) const {
  if (repeat > kLongestUnfoldedRepeat) return true;
  return unfoldedCount + repeat > kUnfoldedInAnyDump + CarriedCount() * kUnfoldedPerCarriedByte;
}

// Whether the last bytes are a folded repeat of whole copies, so that one more repeat makes it longer.
bool DumpBytes::LastRunGoesOn() const {
  if (runCount == 0) return false;
  const RepeatedRun& last = runs[runCount - 1];
  return last.End() == count && last.length % 16 == 0;
}

bool DumpBytes::AppendRepeat(std::int64_t copies) {
  const std::int64_t length = std::min(copies, static_cast<std::int64_t>(declaredLength)) * 16;
  const std::int64_t wanted = std::min(length, declaredLength - Count());
  if (wanted <= 0) return true;
  if (MemoryIsUsedUp()) {
    droppedCount += wanted;
    return true;
  }
  if (LastRunGoesOn()) {
    runs[runCount - 1].length += static_cast<std::uint32_t>(wanted);
    count += wanted;
    return true;
  }
  // The first copy always stands in memory: it is the pattern of what may be folded behind it.
  const std::int64_t unfolded = MustFold(wanted) ? std::min<std::int64_t>(wanted, 16) : wanted;
  if (!Grow(unfolded)) return false;
  // The last 16 bytes are the last 16 in memory too: a folded run is a whole number of copies, or the end of
  // the dump.
  RepeatStored(unfolded);
  unfoldedCount += unfolded;
  count += unfolded;
  return wanted == unfolded || AppendFolded(wanted - unfolded);
}

void DumpBytes::RepeatStored(std::int64_t length) {
  std::uint8_t pattern[16] = {};
  const std::int64_t known = std::min<std::int64_t>(storedCount, 16);
  std::copy_n(stored.Data() + storedCount - known, known, pattern + 16 - known);
  for (; length >= 16; length -= 16, storedCount += 16) std::memcpy(stored.Data() + storedCount, pattern, 16);
  std::copy_n(pattern, length, stored.Data() + storedCount);
  storedCount += length;
}

bool DumpBytes::AppendFolded(std::int64_t length) {
  if (runCount == runs.Capacity() && !runs.Reserve(runCount + runCount / 4 + 64)) return false;
  runs[runCount++] = {static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(length),
                      static_cast<std::uint32_t>(count - storedCount)};
  count += length;
  return true;
}

// The last run that begins at or before `offset`, or null.
const RepeatedRun* DumpBytes::RunAtOrBefore(std::int64_t offset) const {
  const RepeatedRun* first = runs.Data();
  const RepeatedRun* after =
      std::upper_bound(first, first + runCount, offset,
                       [](std::int64_t wanted, const RepeatedRun& run) { return wanted < run.offset; });
  return after == first ? nullptr : after - 1;
}

std::uint8_t DumpBytes::At(std::int64_t offset) const {
  if (offset < 0 || offset >= count) return 0;
  const RepeatedRun* run = RunAtOrBefore(offset);
  if (run == nullptr) return stored[static_cast<std::size_t>(offset)];
  const std::int64_t into = offset - run->offset;
  const std::int64_t before = std::int64_t{run->offset} - run->foldedBefore;
  const std::int64_t index = into < run->length ? before - 16 + into % 16 : before + into - run->length;
  return stored[static_cast<std::size_t>(index)];
}

std::int64_t DumpBytes::EndOfRun(std::int64_t offset) const {
  const RepeatedRun* run = RunAtOrBefore(offset);
  return run != nullptr ? std::max(offset, run->End()) : offset;
}

std::int64_t DumpBytes::FoldedBefore(std::int64_t offset) const {
  const RepeatedRun* run = RunAtOrBefore(offset);
  if (run == nullptr) return 0;
  return run->foldedBefore + std::min<std::int64_t>(offset - run->offset, run->length);
}

std::int64_t DumpBytes::EndOfFolded(std::int64_t most) const {
  const RepeatedRun* const first = runs.Data();
  const RepeatedRun* const run =
      std::partition_point(first, first + runCount, [most](const RepeatedRun& before) {
        return std::int64_t{before.foldedBefore} + before.length <= most;
      });
  return run == first + runCount ? count : run->offset + (most - run->foldedBefore);
}

ByteView DumpBytes::View(std::int64_t size) const {
  return {stored.Data(), runCount > 0 ? runs[0].offset : storedCount, size, this};
}

void DumpBytes::Swap(DumpBytes& other) noexcept {
  stored.Swap(other.stored);
  runs.Swap(other.runs);
  std::swap(runCount, other.runCount);
  std::swap(storedCount, other.storedCount);
  std::swap(unfoldedCount, other.unfoldedCount);
  std::swap(count, other.count);
  std::swap(droppedCount, other.droppedCount);
  std::swap(memoryLimit, other.memoryLimit);
  std::swap(declaredLength, other.declaredLength);
}

}  // namespace quillon
