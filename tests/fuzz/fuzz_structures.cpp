// Structures through the dispatch: the input is a list of pieces of a trace, the target writes them as the
// tracer would and scans that trace. So structures refer to each other as they do in a call.
#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "driver/scanner.h"
#include "fuzz_run.h"
#include "structure_pieces.h"

namespace quillon::fuzz {
namespace {

constexpr char kDigits[] = "0123456789ABCDEF";

void AddHex(std::string& text, std::uint32_t value) {
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[value >> shift & 15];
}

void AddNumber(std::string& text, std::int64_t value) {
  text += std::to_string(value);
}

/// One line of a dump; without the image, which nothing reads.
void AddDumpLine(std::string& text, const std::uint8_t* bytes, std::size_t offset, std::size_t count) {
  AddHex(text, static_cast<std::uint32_t>(offset));
  text += ':';
  for (std::size_t i = 0; i < count; ++i) {
    text += kDigits[bytes[offset + i] >> 4];
    text += kDigits[bytes[offset + i] & 15];
    if (i % 4 == 3) text += ' ';
  }
  text += '\n';
}

/// A dump ends when all declared bytes have been read; one that declares more goes on with a repeat, and is
/// cut short by a line that begins with a blank.
void AddDump(std::string& text, Input& input, std::uint8_t kind) {
  const std::uint8_t claim = (kind & kClaimingDump) != 0 ? input.Byte() : kNoClaim;
  std::size_t count = input.Word16();
  const std::unique_ptr<std::uint8_t[]> bytes = input.Take(count);
  const std::int64_t declared = static_cast<std::int64_t>(count) + ClaimedBytes(claim);
  text += kDataNames[kind % kDataNameCount];
  text += ":(";
  AddNumber(text, declared);
  text += " = 0x0 bytes)\n";
  for (std::size_t offset = 0; offset < std::max<std::size_t>(count, 1); offset += 16)
    AddDumpLine(text, bytes.get(), offset, std::min<std::size_t>(count - offset, 16));
  if (ClaimedBytes(claim) == 0) return;
  if (ClaimsRepeat(claim)) {
    AddHex(text, static_cast<std::uint32_t>(count));
    text += '-';
    AddHex(text, 0x7FFFFFFF);
    text += " same as above\n";
  }
  text += " cut\n";
}

void AddPiece(std::string& text, Input& input) {
  const std::uint8_t kind = input.Byte();
  if ((kind & kOtherPiece) == 0) return AddDump(text, input, kind);
  const OtherPiece& piece = kOtherPieces[kind % kOtherPieceCount];
  text += piece.start;
  switch (piece.value) {
    case PieceValue::Call:
      text += kCalls[input.Byte() % kCallCount];
      break;
    case PieceValue::Decimal:
      AddNumber(text, static_cast<std::int16_t>(input.Word16()));
      break;
    case PieceValue::Hex:
      AddHex(text, input.Word32());
      break;
    case PieceValue::None:
      break;
  }
  text += '\n';
}

void ShowStructures(Input input) {
  CheckedRun run(0);
  TakeSettings(input, run.context);
  std::string text;
  while (!input.Empty()) AddPiece(text, input);
  if (text.empty()) return;
  run.AllowForTrace(text.size());
  std::FILE* stream = fmemopen(text.data(), text.size(), "r");
  if (stream == nullptr) return;
  LineReader lines(stream);
  run.trace.input = &lines;
  ScanTrace(run.context, run.trace);
  WriteClosingNotice(run.context);
  run.trace.input = nullptr;
  std::fclose(stream);
}

}  // namespace
}  // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillon::fuzz::ShowStructures({data, size});
  return 0;
}
