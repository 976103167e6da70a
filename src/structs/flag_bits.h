// Compile-time accounting of the bits of a flag word.
#pragma once

#include <cstddef>
#include <cstdint>

#include "display/flags.h"

namespace quillon {

/// The bits that the rows name. A row that holds when its bits are clear names none of them.
template <std::size_t kRowCount>
constexpr std::uint32_t NamedBits(const FlagRow (&rows)[kRowCount]) {
  std::uint32_t bits = 0;
  for (const FlagRow& row : rows)
    if (row.test != FlagTest::None) bits |= row.mask;
  return bits;
}

}  // namespace quillon
