// The rebuilt bytes of one dump: the owner behind every ByteView of dumped data.
#pragma once

#include <cstdint>
#include <limits>

#include "base/byte_view.h"
#include "base/growable_array.h"

namespace quillon {

/// A long repeat that is kept as its pattern: the bytes from `offset` on, `length` of them, repeat the 16
/// bytes that stand before `offset`. `foldedBefore` is the sum of the lengths of the runs before this one. A
/// dump has little more than 2147483647 bytes, and a run must take no more memory than the bytes that it
/// stands for.
struct RepeatedRun {
  std::uint32_t offset;
  std::uint32_t length;
  std::uint32_t foldedBefore;

  std::int64_t End() const { return std::int64_t{offset} + length; }
};

/// Capacity floor of every dump buffer, in bytes: a long trace then causes few allocations.
inline constexpr std::size_t kDumpBufferFloor = 10000;

/// Repeats longer than this many bytes are folded, so that a line that claims two thousand million bytes
/// costs no memory.
inline constexpr std::int64_t kLongestUnfoldedRepeat = 65536;

/// All repeats of a dump that stand in memory together take no more than this many bytes, and so many for
/// each byte of its data lines; the others are folded. So many repeat lines cost no memory either, and what a
/// dump shows of them without asking for claimed text is bounded by what it carries.
inline constexpr std::int64_t kUnfoldedInAnyDump = 128;
inline constexpr std::int64_t kUnfoldedPerCarriedByte = 16;

/// Bytes appended in the order of the trace. Memory grows with the bytes that the trace carries, never with
/// the length that it declares, and is kept from dump to dump; only bytes appended since the last Start() can
/// be seen.
struct DumpBytes {
  /// Forgets the bytes of the dump before and sets the declared length (bytes). Once `mostMemory` bytes are
  /// taken, what is appended counts but reads as zero.
  void Start(std::int32_t declared, std::int64_t mostMemory = kAnyMemory);
  static constexpr std::int64_t kAnyMemory = std::numeric_limits<std::int64_t>::max();

  /// Appends the bytes of one data line. Those beyond the declared length are kept: a formatter that reads
  /// that far sees them. False when there is no memory.
  bool Append(const std::uint8_t* bytes, std::size_t byteCount);
  /// The same in two steps: room for `most` bytes at the end (null when there is no memory), and how many of
  /// them the caller has put there.
  std::uint8_t* Room(std::size_t most) {
    return Grow(static_cast<std::int64_t>(most)) ? stored.Data() + storedCount : nullptr;
  }
  void Take(std::size_t byteCount) {
    const auto taken = static_cast<std::int64_t>(byteCount);
    if (MemoryIsUsedUp()) {
      droppedCount += taken;
      return;
    }
    storedCount += taken;
    count += taken;
  }
  bool Append(std::uint8_t byte) { return Append(&byte, 1); }

  /// Appends `copies` copies of the last 16 bytes (bytes before the start count as zero), cut at the declared
  /// length. False when there is no memory.
  bool AppendRepeat(std::int64_t copies);

  /// Bytes appended so far.
  std::int64_t Count() const { return count + droppedCount; }
  /// Those of them that can be seen.
  std::int64_t KeptCount() const { return count; }
  /// Those of them that stand in data lines.
  std::int64_t CarriedCount() const { return storedCount - unfoldedCount; }

  std::int32_t DeclaredLength() const { return declaredLength; }

  /// The declared bytes; those that the trace did not carry read as zero.
  ByteView Declared() const { return View(declaredLength); }
  /// The declared bytes and those that the last data line carried beyond them.
  ByteView Whole() const { return View(count > declaredLength ? count : declaredLength); }

  /// The byte at an offset from the start, folded or not; zero outside what was appended.
  std::uint8_t At(std::int64_t offset) const;
  /// End of the folded repeat that holds the offset; the offset itself when none does.
  std::int64_t EndOfRun(std::int64_t offset) const;
  /// How many bytes before the offset are folded.
  std::int64_t FoldedBefore(std::int64_t offset) const;
  /// The largest offset that no more than `most` folded bytes stand before; KeptCount() at most.
  std::int64_t EndOfFolded(std::int64_t most) const;

  void Swap(DumpBytes& other) noexcept;

 private:
  ByteView View(std::int64_t size) const;
  bool Grow(std::int64_t more) {
    return static_cast<std::size_t>(storedCount + more) <= stored.Capacity() || GrowStored(more);
  }
  bool GrowStored(std::int64_t more);
  /// Appends copies of the last 16 stored bytes; there is room.
  void RepeatStored(std::int64_t length);
  bool AppendFolded(std::int64_t length);
  bool MustFold(std::int64_t repeat) const;
  bool MemoryIsUsedUp() const {
    return storedCount + static_cast<std::int64_t>(runCount * sizeof(RepeatedRun)) >= memoryLimit;
  }
  bool LastRunGoesOn() const;
  const RepeatedRun* RunAtOrBefore(std::int64_t offset) const;

  GrowableArray<std::uint8_t> stored;  ///< the bytes less the folded ones
  GrowableArray<RepeatedRun> runs;
  std::size_t runCount = 0;
  std::int64_t storedCount = 0;
  std::int64_t unfoldedCount = 0;  ///< stored bytes that come from repeats
  std::int64_t count = 0;
  std::int64_t droppedCount = 0;  ///< bytes behind the others that were appended but not kept
  std::int64_t memoryLimit = kAnyMemory;
  std::int32_t declaredLength = 0;
};

}  // namespace quillon
