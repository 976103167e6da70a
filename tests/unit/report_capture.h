// A run context whose report and terminal go to memory, for tests of functions that write.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "base/byte_view.h"
#include "base/run_context.h"
#include "display/character_walk.h"
#include "output/report_writer.h"

namespace quillon {

/// Captures what is written to the report and to the terminal. Both texts may be read at any time.
class ReportCapture {
 public:
  ReportCapture() : context(std::make_unique<RunContext>()) {
    context->outputFile = open_memstream(&reportText, &reportSize);
    context->outputFileName = "report.txt";
    context->terminal = open_memstream(&terminalText, &terminalSize);
    // Printable ASCII, one byte to a character, until a test chooses otherwise.
    for (int byte = 0x20; byte <= 0x7E; ++byte)
      context->characterPatterns.entry[0][0][byte] = CharacterPatternMap::kAllowed;
    context->characterPatterns.entry[0][1][0] = CharacterPatternMap::kEnd;
    context->characterPatterns.entry[1][0][0] = CharacterPatternMap::kEnd;
    FillCharacterImages(context->characterPatterns);
  }
  ReportCapture(const ReportCapture&) = delete;
  ReportCapture& operator=(const ReportCapture&) = delete;
  ~ReportCapture() {
    std::fclose(context->outputFile);
    std::fclose(context->terminal);
    std::free(reportText);
    std::free(terminalText);
  }

  RunContext& Context() { return *context; }
  std::string Report() {
    FlushReport(*context);
    std::fflush(context->outputFile);
    return {reportText, reportSize};
  }
  std::string Terminal() {
    std::fflush(context->terminal);
    return {terminalText, terminalSize};
  }

 private:
  std::unique_ptr<RunContext> context;
  char* reportText = nullptr;
  std::size_t reportSize = 0;
  char* terminalText = nullptr;
  std::size_t terminalSize = 0;
};

/// Puts a device that is always full, without a buffer of its own, in the place of a report: every write to
/// it fails. Release() and the end put the report back.
class FullDevice {
 public:
  explicit FullDevice(RunContext& runContext)
      : context(runContext), report(runContext.outputFile), device(std::fopen("/dev/full", "w")) {
    static_cast<void>(std::setvbuf(device, nullptr, _IONBF, 0));
    context.outputFile = device;
  }
  FullDevice(const FullDevice&) = delete;
  FullDevice& operator=(const FullDevice&) = delete;
  ~FullDevice() {
    Release();
    std::fclose(device);
  }
  void Release() { context.outputFile = report; }

 private:
  RunContext& context;
  std::FILE* report;
  std::FILE* device;
};

/// Bytes from hex digits; blanks are skipped ("4D442020 00000002").
inline std::vector<std::uint8_t> BytesOfHex(const std::string& hex) {
  std::vector<std::uint8_t> bytes;
  std::string pair;
  for (const char c : hex) {
    if (c == ' ' || c == '\n') continue;
    pair += c;
    if (pair.size() == 2) {
      bytes.push_back(static_cast<std::uint8_t>(std::stoul(pair, nullptr, 16)));
      pair.clear();
    }
  }
  return bytes;
}

/// A view on a vector that outlives it.
inline ByteView ViewOf(const std::vector<std::uint8_t>& bytes) {
  return {bytes.data(), bytes.size()};
}

}  // namespace quillon
