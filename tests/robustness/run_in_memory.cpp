#include "robustness/run_in_memory.h"

#include <malloc.h>

#include <cstdio>
#include <ctime>
#include <memory>
#include <stdexcept>

#include "driver/ccsid_choice.h"
#include "driver/platform_choice.h"
#include "driver/scanner.h"
#include "output/report_writer.h"
#include "sanitizer.h"

#ifdef QUILLON_ADDRESS_SANITIZER
#include <sanitizer/allocator_interface.h>
#endif

namespace quillon {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

ssize_t TakeFromView(void* cookie, char* target, std::size_t size) {
  auto& rest = *static_cast<std::string_view*>(cookie);
  const std::size_t taken = rest.copy(target, size);
  rest.remove_prefix(taken);
  return static_cast<ssize_t>(taken);
}

ssize_t AppendToSink(void* cookie, const char* bytes, std::size_t size) {
  auto& sink = *static_cast<MemoryRun::Sink*>(cookie);
  sink.bytes += static_cast<std::int64_t>(size);
  if (sink.keep) sink.text.append(bytes, size);
  return static_cast<ssize_t>(size);
}

File OpenForReading(std::string_view& text) {
  File file(fopencookie(&text, "r", {TakeFromView, nullptr, nullptr, nullptr}));
  if (file == nullptr) throw std::runtime_error("fopencookie");
  return file;
}

File OpenForWriting(MemoryRun::Sink& sink, bool keep) {
  sink.text.clear();
  sink.bytes = 0;
  sink.keep = keep;
  File file(fopencookie(&sink, "w", {nullptr, AppendToSink, nullptr, nullptr}));
  if (file == nullptr) throw std::runtime_error("fopencookie");
  return file;
}

double ProcessorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

std::int64_t Capacity(const MemoryRun::Sink& sink) {
  return static_cast<std::int64_t>(sink.text.capacity());
}

}  // namespace

MemoryRun::MemoryRun(const MemoryRunSettings& chosen) : settings(chosen) {
  RunContext context;
  context.ccsid = settings.ccsid;
  SetValueForCodeRangeCheck(context);
  patterns = context.characterPatterns;
}

MemoryRunOutcome MemoryRun::Scan(std::string_view trace) {
  std::string_view rest = trace;
  const File input = OpenForReading(rest);
  File reportFile = OpenForWriting(report, settings.keepTexts);
  File terminalFile = OpenForWriting(terminal, settings.keepTexts);
  const std::unique_ptr<RunContext> context(new RunContext);
  const auto lineContext = std::make_unique<TraceLineContext>();
  context->ccsid = settings.ccsid;
  context->characterPatterns = patterns;
  context->maxXmlLineLength = settings.maxXmlLineLength;
  context->maxCharvLength = settings.maxCharvLength;
  context->outputFile = reportFile.get();
  context->outputFileName = "report.txt";
  context->terminal = terminalFile.get();
  if (!settings.platform.empty()) ChoosePlatform(*context, settings.platform);
  lineContext->inputFileName = "trace.txt";
  const auto lines = std::make_unique<LineReader>(
      input.get(), settings.platform.empty() ? ReturnBeforeLineFeed::Keep : ReturnBeforeLineFeed::Drop);
  lineContext->input = lines.get();

  MemoryRunOutcome outcome;
  const std::int64_t before = AllocatedBytes() - Capacity(report) - Capacity(terminal);
  const double start = ProcessorSeconds();
  LookAheadForPlatform(*context, *lines);
  ScanTrace(*context, *lineContext);
  FlushReport(*context);
  outcome.seconds = ProcessorSeconds() - start;
  outcome.mostMemory = AllocatedBytes() - Capacity(report) - Capacity(terminal) - before;
  outcome.unknownSeen = context->unknownAttributeSeen;
  reportFile.reset();
  terminalFile.reset();
  outcome.report = report.text;
  outcome.terminal = terminal.text;
  outcome.reportBytes = report.bytes;
  outcome.terminalBytes = terminal.bytes;
  return outcome;
}

std::int64_t AllocatedBytes() {
#ifdef QUILLON_ADDRESS_SANITIZER
  return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
  const struct mallinfo2 use = mallinfo2();
  return static_cast<std::int64_t>(use.uordblks + use.hblkhd);
#endif
}

double SlownessOfBuild() {
#if defined(QUILLON_ADDRESS_SANITIZER)
  return 20;
#elif defined(__OPTIMIZE__)
  return 1;
#else
  return 5;
#endif
}

}  // namespace quillon
