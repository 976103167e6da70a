// What the fuzz targets share: a run whose output is checked and counted, not kept, and the reading of
// inputs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>

#include "base/byte_view.h"
#include "base/dump_bytes.h"
#include "base/run_context.h"
#include "base/trace_line_context.h"

/// The entry that libFuzzer and the replay call.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillon::fuzz {

/// Most bytes that a message's report may have for data of this size: so many for each byte, and for the
/// mebibyte of text that the message may claim. XML of short tags under -x 999 comes close to a thousand
/// bytes for one.
constexpr std::uint64_t MostOutputOfMessage(std::size_t size) {
  return (size << 11) + (1ULL << 31);
}

/// An input taken from its front. Behind the end every byte is zero.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : next(data), left(size) {}

  bool Empty() const { return left == 0; }
  std::uint8_t Byte();
  /// The most significant byte first.
  std::uint16_t Word16();
  std::uint32_t Word32();
  /// The next `count` bytes, fewer at the end, in a block of exactly their number, so that a read outside
  /// them is seen.
  std::unique_ptr<std::uint8_t[]> Take(std::size_t& count);
  std::size_t Left() const { return left; }

 private:
  const std::uint8_t* next;
  std::size_t left;
};

/// A run as the program sets it up, but for its streams: what is written is counted. Its end ends the process
/// when the output breaks a rule: no NUL, no more bytes than allowed, no write that failed, no run that takes
/// too long.
class CheckedRun {
 public:
  explicit CheckedRun(std::uint64_t mostOutput);
  /// Allows what is stated of a whole trace of this size. The switches have been read.
  void AllowForTrace(std::size_t traceSize);
  CheckedRun(const CheckedRun&) = delete;
  CheckedRun& operator=(const CheckedRun&) = delete;
  ~CheckedRun();

  RunContext context;
  TraceLineContext trace;
  /// Processor time that the run may take. The fuzzer's own clock goes on while a loaded machine lets it
  /// wait.
  double mostSeconds = 20;

 private:
  std::clock_t started;
};

/// Takes four bytes: platform, CCSID, what is known of the call, limits of text displays. All zero are the
/// program's defaults with CCSID 0.
void TakeSettings(Input& input, RunContext& context);

/// Message data: what a test of a header, a body or the chain of them is given.
class MessageInput {
 public:
  /// Takes six bytes (encoding, a choice of the target's, a claim), then all that is left as the data.
  explicit MessageInput(Input& input);

  std::uint32_t encoding;
  std::uint8_t choice;
  ByteView data;

 private:
  std::unique_ptr<std::uint8_t[]> bytes;
  DumpBytes dump;
};

/// A claim makes an item declare more bytes than it carries. Three quarters of all bytes claim nothing; the
/// low five bits of the others select how much. Claims of a mebibyte and more take a thousand times longer
/// than an input of this size should, so most select less.
inline constexpr std::uint8_t kNoClaim = 0;
inline constexpr std::uint8_t kClaimsMissing = 0xC0;  ///< the bytes are missing
inline constexpr std::uint8_t kClaimsRepeat = 0xE0;   ///< they repeat the last 16
inline constexpr std::uint8_t kClaimsSixteen = 4;     ///< bytes, for example
inline constexpr std::uint8_t kClaimsMost = 31;       ///< what makes the largest length that can be declared
std::int64_t ClaimedBytes(std::uint8_t claim);
inline bool ClaimsRepeat(std::uint8_t claim) {
  return (claim & kClaimsRepeat) == kClaimsRepeat;
}

}  // namespace quillon::fuzz
