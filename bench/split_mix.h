// A small generator of pseudo-random numbers that gives the same sequence on every machine.
#pragma once

#include <cstdint>
#include <span>

namespace quillon::compose {

/// SplitMix64. The distributions of the standard library differ between implementations, so they are not
/// used.
struct SplitMix64 {
  std::uint64_t state = 0;

  std::uint64_t Next() {
    state += 0x9E3779B97F4A7C15ULL;
    std::uint64_t mixed = state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
    return mixed ^ (mixed >> 31);
  }
  /// A number from 0 to bound - 1; the bound must be above 0.
  std::uint32_t Below(std::uint32_t bound) {
    return static_cast<std::uint32_t>(((Next() >> 32) * bound) >> 32);
  }
  /// A number from low to high, both included.
  std::int32_t Between(std::int32_t low, std::int32_t high) {
    return low + static_cast<std::int32_t>(Below(static_cast<std::uint32_t>(high - low) + 1));
  }
  bool Percent(std::uint32_t chance) { return Below(100) < chance; }

  template <typename Item, std::size_t extent>
  const Item& Pick(std::span<const Item, extent> items) {
    return items[Below(static_cast<std::uint32_t>(items.size()))];
  }
  template <typename Item, std::size_t count>
  const Item& Pick(const Item (&items)[count]) {
    return items[Below(static_cast<std::uint32_t>(count))];
  }
};

}  // namespace quillon::compose
