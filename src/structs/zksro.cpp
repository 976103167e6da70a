// Subscription request options (ZKSRO).
#include <iterator>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kOptionRows[] = {
    {0x00002000, "FAIL_IF_QUIESCING"},
};

constexpr std::uint32_t kKnownOptions = 0x00002000;
constexpr FlagWord kOptions = {kOptionRows, std::size(kOptionRows), ~kKnownOptions, "ZKSRO - Options"};
static_assert(EveryBitHasOneClass(kOptions));

}  // namespace

int ShowParsedZksro(RunContext& runContext, ByteView structure) {
  StructReader sro = ReaderAsStored(runContext, structure);
  sro.Skip(4);  // structure id
  ShowFieldValueZklong(runContext, "Version", sro.Int32());
  ShowFlagField(runContext, "Options", kOptions, sro.UInt32());
  return ShowFieldValueZklong(runContext, "NumPubs", sro.Int32());
}

}  // namespace quillon
