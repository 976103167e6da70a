// The walk over the headers of a message body, begun with any format and encoding.
#include "fuzz_run.h"
#include "message_formats.h"
#include "msgdata/formatters.h"

namespace quillon::fuzz {
namespace {

void ShowMessage(Input input, std::size_t size) {
  CheckedRun run(MostOutputOfMessage(size));
  TakeSettings(input, run.context);
  const MessageInput message(input);
  const std::string_view format = kMessageFormats[message.choice % kMessageFormatCount];
  ShowParsedMsgData(run.context, FormatNameOf(ByteView(format)), message.encoding, message.data);
}

}  // namespace
}  // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::fuzz::ShowMessage({data, size}, size);
  return 0;
}
