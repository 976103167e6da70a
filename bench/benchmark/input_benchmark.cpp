// How fast the trace is taken in: reading lines, rebuilding dumps.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "base/trace_line.h"
#include "base/trace_line_context.h"
#include "benchmark_context.h"
#include "hexdump/regeneration.h"
#include "split_mix.h"
#include "trace_composer.h"
#include "trace_stories.h"

namespace quillon {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// A temporary file that holds the text, at its start.
File FileOf(const std::string& text) {
  File file(std::tmpfile());
  if (file == nullptr || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) std::abort();
  std::rewind(file.get());
  return file;
}

void BM_ReadLines(benchmark::State& state) {
  std::string trace;
  compose::WriteTrace({.size = 1000000}, [&](const std::string& section) {
    trace += section;
    return true;
  });
  const File file = FileOf(trace);
  TraceLine line;
  std::int64_t lines = 0;
  for ([[maybe_unused]] auto _ : state) {
    std::rewind(file.get());
    LineReader reader(file.get());
    while (reader.Read(line)) ++lines;
    benchmark::DoNotOptimize(line);
  }
  state.SetItemsProcessed(lines);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(trace.size()));
}
BENCHMARK(BM_ReadLines);

/// Dumps of random bytes, of `length` bytes each; a hundred, so that opening the text hardly counts.
constexpr int kDumps = 100;
std::string DumpsOf(std::size_t length) {
  compose::SplitMix64 random{1};
  std::string text;
  for (int dump = 0; dump < kDumps; ++dump) {
    compose::Bytes bytes(length);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random.Below(256));
    text += compose::DataNameLine("Buffer", length) + compose::DumpText(bytes);
  }
  return text;
}

void BM_RebuildDump(benchmark::State& state) {
  BenchmarkContext run;
  const auto trace = std::make_unique<TraceLineContext>();
  const std::string text = DumpsOf(static_cast<std::size_t>(state.range(0)));
  const File file = FileOf(text);
  std::string name;
  for ([[maybe_unused]] auto _ : state) {
    std::rewind(file.get());
    LineReader reader(file.get());
    trace->input = &reader;
    for (int dump = 0; dump < kDumps; ++dump) {
      AdvanceLine(*trace);
      AdvanceLine(*trace);
      RegenerateHexData(run.Context(), *trace, name, trace->dump, Echo::Off);
    }
  }
  if (trace->dump.Count() != state.range(0)) state.SkipWithError("the last dump is not whole");
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(BM_RebuildDump)->Arg(24)->Arg(364)->Arg(4096);

}  // namespace
}  // namespace quillon
