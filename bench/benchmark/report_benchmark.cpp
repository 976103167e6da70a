// How fast the report is written: dumps, a structure, a message, wrapped text.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "benchmark_context.h"
#include "display/encoding.h"
#include "display/fieldline.h"
#include "message_maker.h"
#include "msgdata/formatters.h"
#include "split_mix.h"
#include "structs/formatters.h"
#include "structure_composer.h"

namespace quillon {
namespace {

ByteView ViewOf(const compose::Bytes& bytes) {
  return {bytes.data(), bytes.size()};
}

void CountBytes(benchmark::State& state, const compose::Bytes& bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void BM_WriteDump(benchmark::State& state) {
  BenchmarkContext run;
  compose::SplitMix64 random{1};
  compose::Bytes bytes(static_cast<std::size_t>(state.range(0)));
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Below(256));
  for ([[maybe_unused]] auto _ : state) PutHexData(run.Context(), "Buffer", ViewOf(bytes), false);
  CountBytes(state, bytes);
}
BENCHMARK(BM_WriteDump)->Arg(24)->Arg(364)->Arg(4096);

void BM_WriteDumpOfText(benchmark::State& state) {
  BenchmarkContext run;
  compose::SplitMix64 random{1};
  const compose::Bytes bytes = compose::BytesOf(compose::MakeText(random, 1208, 4096));
  for ([[maybe_unused]] auto _ : state) PutHexData(run.Context(), "Buffer", ViewOf(bytes), false);
  CountBytes(state, bytes);
}
BENCHMARK(BM_WriteDumpOfText);

/// The descriptor of a message that was put and has been got.
compose::Bytes MessageDescriptor() {
  compose::MessageDescriptor fields;
  fields.report = 0x01000100;
  fields.format = "ZKSTR";
  fields.persistence = 1;
  fields.msgId = compose::BytesOf("MIDDEPOT1      \x01\x02\x03\x04\x05\x06\x07\x08");
  fields.replyToQ = "PARCEL.REPLY.17";
  fields.replyToQMgr = "DEPOT1";
  fields.userIdentifier = "loader";
  fields.accountingToken = compose::BytesOf(
      "\x06"
      "38187");
  fields.putApplType = 6;
  fields.putApplName = "/opt/depot/bin/parcelserver";
  fields.putDate = "20240514";
  fields.putTime = "07112345";
  return compose::ComposeMessageDescriptor(fields);
}

void BM_MessageDescriptor(benchmark::State& state) {
  BenchmarkContext run;
  const compose::Bytes bytes = MessageDescriptor();
  for ([[maybe_unused]] auto _ : state) ShowParsedZkmd(run.Context(), ViewOf(bytes));
  CountBytes(state, bytes);
}
BENCHMARK(BM_MessageDescriptor);

/// One message of each kind: commands, replies, events, statistics.
void BM_PcfMessage(benchmark::State& state) {
  BenchmarkContext run;
  compose::SplitMix64 random{1};
  const compose::MessageKind& kind = compose::PcfMessageKinds()[static_cast<std::size_t>(state.range(0))];
  const compose::MessageBody body = kind.make(random, compose::kEncodingNormal);
  state.SetLabel(std::string(kind.name));
  for ([[maybe_unused]] auto _ : state)
    ShowParsedPCF(run.Context(), compose::kEncodingNormal, ViewOf(body.bytes), 0);
  CountBytes(state, body.bytes);
}
BENCHMARK(BM_PcfMessage)->DenseRange(0, static_cast<int>(compose::PcfMessageKinds().size()) - 1);

void BM_WrappedText(benchmark::State& state) {
  BenchmarkContext run;
  compose::SplitMix64 random{1};
  const auto ccsid = static_cast<std::int32_t>(state.range(0));
  const compose::Bytes bytes = compose::BytesOf(compose::MakeText(random, ccsid, 4096));
  for ([[maybe_unused]] auto _ : state)
    ShowTextStringDataRegardingMaximumLrecl(run.Context(), 3, ViewOf(bytes));
  CountBytes(state, bytes);
}
BENCHMARK(BM_WrappedText)->Arg(819)->Arg(1208);

}  // namespace
}  // namespace quillon
