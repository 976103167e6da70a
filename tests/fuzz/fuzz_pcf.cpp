// PCF messages and embedded PCF headers. An even choice begins with the PCF header, an odd one with the
// header that embeds it; the choice's other bits are the offset of the data in its message.
#include "fuzz_run.h"
#include "msgdata/formatters.h"

namespace quillon::fuzz {
namespace {

void ShowPcf(Input input, std::size_t size) {
  CheckedRun run(MostOutputOfMessage(size));
  TakeSettings(input, run.context);
  const MessageInput message(input);
  const std::int64_t offset = message.choice >> 1;
  if ((message.choice & 1) != 0) {
    ShowParsedZKEPH(run.context, message.encoding, message.data, offset);
  } else {
    ShowParsedPCF(run.context, message.encoding, message.data, offset);
  }
}

}  // namespace
}  // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::fuzz::ShowPcf({data, size}, size);
  return 0;
}
