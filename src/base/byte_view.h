// Bounded bytes: the one type through which every byte of a dump is read.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillon {

struct DumpBytes;

/// Byte order of an integer in a dump, absolute: it never depends on the machine that the program runs on.
enum class ByteOrder : std::uint8_t { Big, Little };

/// A window on the bytes of a dump. The rule: bytes past the end read as zero, and the reader goes on.
///
/// `Size()` is the window's length in bytes as the trace declares it; the memory behind it may be shorter
/// (bytes that the trace declared but did not carry) or folded (long repeats are kept as their pattern, see
/// DumpBytes). Offsets are signed 64-bit so that no sum of 32-bit fields can wrap; negative ones read as zero
/// too. A view owns nothing: it is valid while the DumpBytes (or text) that it was made from is unchanged.
class ByteView {
 public:
  constexpr ByteView() = default;
  ByteView(const std::uint8_t* data, std::size_t size)
      : flatData(data),
        flatSize(static_cast<std::int64_t>(size)),
        viewSize(flatSize),
        readableEnd(flatSize) {}
  /// The characters of a text of the program's own (a name from a table), shown by the primitives for dumped
  /// bytes.
  explicit ByteView(std::string_view text)
      : ByteView(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()) {}
  /// `flat` bytes of memory from the start; beyond them `folded` (may be null) knows the bytes; `size` is the
  /// window.
  ByteView(const std::uint8_t* data, std::int64_t flat, std::int64_t size, const DumpBytes* folded)
      : flatData(data),
        flatSize(flat < size ? flat : size),
        viewSize(size),
        readableEnd(size),
        dump(folded) {}

  std::int64_t Size() const { return viewSize; }
  bool Empty() const { return viewSize <= 0; }
  /// How many of its first bytes the trace only claims (by a length that it does not back, or by a folded
  /// repeat).
  std::int64_t ClaimedBefore(std::int64_t offset) const {
    return offset <= flatSize ? 0 : ClaimedBeyondFlat(offset);
  }
  /// How many bytes of it can be shown where no more than `mostClaimed` claimed ones may be. Not to be asked
  /// for each byte.
  std::int64_t TextSize(std::int64_t mostClaimed) const {
    return viewSize <= flatSize ? viewSize : LimitedTextSize(mostClaimed);
  }
  /// Bytes from the start that the trace has told, folded or not; those behind them are zeros.
  std::int64_t KnownSize() const;

  /// Where the first byte stands in memory, for a text that tells addresses; never to be followed.
  std::uint32_t Address() const {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(flatData));
  }

  std::uint8_t At(std::int64_t offset) const {
    if (static_cast<std::uint64_t>(offset) < static_cast<std::uint64_t>(flatSize)) return flatData[offset];
    return AtBeyondFlat(offset);
  }

  std::uint32_t Word(std::int64_t offset, ByteOrder order) const {
    const std::uint32_t a = At(offset), b = At(Behind(offset, 1)), c = At(Behind(offset, 2)),
                        d = At(Behind(offset, 3));
    return order == ByteOrder::Big ? (a << 24 | b << 16 | c << 8 | d) : (d << 24 | c << 16 | b << 8 | a);
  }
  std::int32_t Int32(std::int64_t offset, ByteOrder order) const {
    return static_cast<std::int32_t>(Word(offset, order));
  }

  /// A field of exactly `length` bytes; those outside this view read as zero.
  ByteView Field(std::int64_t offset, std::int64_t length) const;

  /// The part from `offset` on, `length` bytes at most; never reaches outside this view.
  ByteView Sub(std::int64_t offset, std::int64_t length) const;
  ByteView From(std::int64_t offset) const { return Sub(offset, viewSize); }

  /// Copies `count` bytes from `offset` on; what lies outside the view arrives as zeros.
  void CopyTo(std::uint8_t* target, std::int64_t offset, std::size_t count) const {
    if (offset >= 0 && offset < flatSize && count <= static_cast<std::uint64_t>(flatSize - offset)) {
      std::copy_n(flatData + offset, count, target);  // unlike memcpy it may be given no target for no bytes
    } else {
      CopyBeyondFlat(target, offset, count);
    }
  }

  /// The first offset at or after `offset` (and at most Size()) from which on the bytes may differ from the
  /// 16 bytes before them; `offset` itself when nothing is known. It lets a dump skip a long repeat without
  /// walking it.
  std::int64_t EndOfRepeat(std::int64_t offset) const;

 private:
  void CopyBeyondFlat(std::uint8_t* target, std::int64_t offset, std::size_t count) const;
  std::uint8_t AtBeyondFlat(std::int64_t offset) const;
  std::int64_t LimitedTextSize(std::int64_t mostClaimed) const;
  std::int64_t ClaimedBeyondFlat(std::int64_t offset) const;
  /// `offset` + `count`; past the largest number it wraps to a negative one, which reads as zero as well.
  static constexpr std::int64_t Behind(std::int64_t offset, std::uint64_t count) {
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(offset) + count);
  }

  const std::uint8_t* flatData = nullptr;
  std::int64_t flatSize = 0;        ///< bytes from the start that stand in memory one after the other
  std::int64_t viewSize = 0;        ///< bytes that the view is declared to have
  std::int64_t readableEnd = 0;     ///< end of the bytes that may be seen; from there on everything is zero
  const DumpBytes* dump = nullptr;  ///< the owner; null for bytes that stand elsewhere
  std::int64_t dumpOffset = 0;      ///< offset of this view's first byte in `dump`
};

}  // namespace quillon
