// Control options (ZKCTLO).
#include <iterator>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "output/report_writer.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kOptionRows[] = {
    {0x00000001, "THREAD_AFFINITY"},
    {0x00002000, "FAIL_IF_QUIESCING"},
};

constexpr std::uint32_t kKnownOptions = 0x00002001;

// Kept: the notice carries the label of the control operation, not one of this structure's own.
constexpr FlagWord kOptions = {kOptionRows, std::size(kOptionRows), ~kKnownOptions, "ZKCB/ZKCTL - ZKOP_..."};
static_assert(EveryBitHasOneClass(kOptions));

}  // namespace

int ShowParsedZkctlo(RunContext& runContext, ByteView structure) {
  StructReader ctlo = ReaderAsStored(runContext, structure);
  ctlo.Skip(4);  // structure id
  ShowFieldValueZklong(runContext, "Version", ctlo.Int32());
  ShowFlagField(runContext, "Options", kOptions, ctlo.UInt32());
  ctlo.Skip(4);  // reserved
  ShowFieldName(runContext, "ConnectionArea");
  ShowPointerInHex(runContext, ctlo.Pointer(), true);
  return WriteTraceData(runContext, "\n");
}

}  // namespace quillon
