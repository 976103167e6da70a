#include "structs/alias_line.h"

#include <cstdint>
#include <string_view>

#include "display/fieldline.h"
#include "driver/handle_list.h"

namespace quillon {

int ShowAliasName(RunContext& runContext, ByteView resolvedName) {
  std::uint8_t name[kObjectNameLength];
  resolvedName.CopyTo(name, 0, sizeof name);
  const char* alias = queueHandleListSearchAliasNameByRealName(
      runContext, {reinterpret_cast<const char*>(name), sizeof name});
  if (alias == nullptr) return 0;
  return ShowFieldValueStringFixed(runContext, "(alias/model name)", std::string_view(alias));
}

}  // namespace quillon
