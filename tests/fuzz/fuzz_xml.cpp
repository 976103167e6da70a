// The XML recogniser and its display.
#include "fuzz_run.h"
#include "msgdata/formatters.h"

namespace quillon::fuzz {
namespace {

void ShowXml(Input input, std::size_t size) {
  CheckedRun run(MostOutputOfMessage(size));
  TakeSettings(input, run.context);
  const MessageInput message(input);
  ShowParsedXml(run.context, message.data, message.choice, "XML data");
}

}  // namespace
}  // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::fuzz::ShowXml({data, size}, size);
  return 0;
}
