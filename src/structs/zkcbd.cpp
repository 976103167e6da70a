// Callback descriptor (ZKCBD).
#include <iterator>

#include "base/struct_reader.h"
#include "display/fieldline.h"
#include "display/flags.h"
#include "output/report_writer.h"
#include "structs/formatters.h"

namespace quillon {
namespace {

constexpr FlagRow kCallbackTypeRows[] = {
    {0x00000001, "MESSAGE_CONSUMER"},
    {0x00000002, "EVENT_HANDLER"},
};

constexpr std::uint32_t kKnownCallbackTypes = 0x00000003;
constexpr FlagWord kCallbackType = {kCallbackTypeRows, std::size(kCallbackTypeRows), ~kKnownCallbackTypes,
                                    "ZKCBD - CallbackType"};
static_assert(EveryBitHasOneClass(kCallbackType));

constexpr FlagRow kOptionRows[] = {
    {0x00000001, "START_CALL"},      {0x00000004, "STOP_CALL"},         {0x00000100, "REGISTER_CALL"},
    {0x00000200, "DEREGISTER_CALL"}, {0x00002000, "FAIL_IF_QUIESCING"},
};

constexpr std::uint32_t kKnownOptions = 0x00002305;
constexpr FlagWord kOptions = {kOptionRows, std::size(kOptionRows), ~kKnownOptions, "ZKCBD - Options"};
static_assert(EveryBitHasOneClass(kOptions));

}  // namespace

int ShowParsedZkcbd(RunContext& runContext, ByteView structure) {
  StructReader cbd = ReaderAsStored(runContext, structure);
  cbd.Skip(4);  // structure id
  ShowFieldValueZklong(runContext, "Version", cbd.Int32());
  ShowFlagField(runContext, "CallbackType", kCallbackType, cbd.UInt32());
  ShowFlagField(runContext, "Options", kOptions, cbd.UInt32());
  ShowFieldName(runContext, "CallbackArea");
  ShowPointerInHex(runContext, cbd.Pointer(), true);
  WriteTraceData(runContext, "\n");
  ShowFieldName(runContext, "CallbackFunction");
  ShowPointerInHex(runContext, cbd.Pointer(), true);
  WriteTraceData(runContext, "\n");
  ShowFieldValueStringFixed(runContext, "CallbackName", cbd.Bytes(128));
  return ShowFieldValueZklong(runContext, "MaxMsgLength", cbd.Int32());
}

}  // namespace quillon
