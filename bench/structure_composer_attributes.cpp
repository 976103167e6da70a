#include "structure_composer_attributes.h"

namespace quillon::compose {

Bytes ComposeIntegers(const std::vector<std::int32_t>& values, const Layout& layout) {
  ByteWriter writer(layout);
  for (const std::int32_t value : values) writer.Int32(value);
  return writer.Take();
}

Bytes ComposeCharacterAttributes(const std::vector<CharacterAttribute>& attributes) {
  ByteWriter writer(Order::Big);
  for (const CharacterAttribute& attribute : attributes) writer.Text(attribute.value, attribute.width);
  return writer.Take();
}

}  // namespace quillon::compose
