// The name of a message format: eight characters, blank-padded, compared blanks included.
#pragma once

#include <array>
#include <string_view>

#include "base/byte_view.h"

namespace quillon {

using FormatName = std::array<char, 8>;

/// The format name at the start of the bytes.
inline FormatName FormatNameOf(ByteView bytes) {
  FormatName name;
  for (std::size_t i = 0; i < name.size(); ++i)
    name[i] = static_cast<char>(bytes.At(static_cast<std::int64_t>(i)));
  return name;
}

inline bool operator==(const FormatName& name, std::string_view text) {
  return std::string_view(name.data(), name.size()) == text;
}

}  // namespace quillon
