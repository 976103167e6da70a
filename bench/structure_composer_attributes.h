// The arrays of the inquire and set calls: selectors, integer attributes, character attributes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "byte_writer.h"

namespace quillon::compose {

/// Selectors or integer attributes, 4 bytes each.
Bytes ComposeIntegers(const std::vector<std::int32_t>& values, const Layout& layout = {});

/// A character attribute in its published length.
struct CharacterAttribute {
  std::string value = {};
  std::size_t width;
};
/// The values back to back, each padded with blanks to its width.
Bytes ComposeCharacterAttributes(const std::vector<CharacterAttribute>& attributes);

}  // namespace quillon::compose
