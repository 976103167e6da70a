// The two rules-and-formatting headers: an even choice begins with the first kind, an odd one with the
// second. The choice's other bits are the offset of the header in its message.
#include "fuzz_run.h"
#include "msgdata/formatters.h"

namespace quillon::fuzz {
namespace {

void ShowRulesHeader(Input input, std::size_t size) {
  CheckedRun run(MostOutputOfMessage(size));
  TakeSettings(input, run.context);
  MessageInput message(input);
  const std::int64_t offset = message.choice >> 1;
  if ((message.choice & 1) != 0) {
    FormatName format = {};
    ShowParsedZKHRF2(run.context, format, message.encoding, message.data, offset);
  } else {
    ShowParsedZKHRF1(run.context, message.encoding, message.data, offset);
  }
}

}  // namespace
}  // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::fuzz::ShowRulesHeader({data, size}, size);
  return 0;
}
