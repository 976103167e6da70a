#include "driver/scanner.h"

#include <sys/utsname.h>

#include <array>
#include <cstdio>
#include <string>

#include "base/decimal.h"
#include "base/hex_digits.h"
#include "display/flags.h"
#include "driver/handle_list.h"
#include "driver/message_catalogue.h"
#include "driver/program_name.h"
#include "hexdump/dispatch.h"
#include "hexdump/regeneration.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

constexpr std::string_view kOperatingSystemStart = "|  Operating system   : ";
constexpr std::string_view kReportMarker = "|> ";
constexpr std::string_view kCompCodeStart = "CompCode:";

// Header messages stand between blank lines.
void PutSpacedMessage(RunContext& runContext, std::int32_t code, std::string_view own,
                      std::string_view traced) {
  PutMessage(runContext, 0, kResultFromErrno);
  PutMessage(runContext, code, kResultFromErrno, own, traced);
  PutMessage(runContext, 0, kResultFromErrno);
}

void ReplaceLine(RunContext& runContext, TraceLineContext& trace, const std::string& text) {
  trace.currentLine->Set(text);
  SetDataToWriteBuffer(runContext, trace.currentLine->View());
}

int CheckAddressingMode(RunContext& runContext, TraceLineContext& trace) {
  trace.amodeChecked = true;
  const std::string traced(trace.currentLine->From(kAddressingModeStart.size()).substr(0, 2));
  Platform& platform = runContext.platform;
  if (platform.autoDetect && (traced == kProgramWordSize || traced == kWideWordSize))
    platform.wide = traced == kWideWordSize;
  const std::string_view expected = platform.wide ? kWideWordSize : kProgramWordSize;
  if (traced == expected) return 0;
  PutSpacedMessage(runContext, 4018, expected, traced);
  // Kept: the misspelling is known to those who search reports for this line.
  ReplaceLine(runContext, trace,
              "| Reformat trace program : " + std::string(expected) +
                  "-bit mode.  Input trace data : " + traced + "-bit mode.  Process termianted.\n");
  return -1;
}

std::string_view FirstWord(std::string_view text) {
  return text.substr(0, text.find_first_of(" \n"));
}

// Kept: the warning replaces the trace's line and is written here; the scanner writes the current line once
// more, so the report holds the warning twice.
void CheckOperatingSystem(RunContext& runContext, TraceLineContext& trace) {
  trace.osChecked = true;
  // The warning is about integers of another byte order, which a chosen platform reads right.
  if (runContext.platform.IsChosen()) return;
  utsname system{};
  uname(&system);
  const std::string own(FirstWord(system.sysname));
  const std::string traced(FirstWord(trace.currentLine->From(kOperatingSystemStart.size())));
  if (traced == own) return;
  PutSpacedMessage(runContext, 4017, own, traced);
  ReplaceLine(runContext, trace,
              "| Reformat trace program : " + own + ".  Input trace data : " + traced +
                  ".  Reformatted integer values might be incorrect.\n");
}

// Returns 0 to go on, -1 to stop the run.
int CheckAmodeAndOs(RunContext& runContext, TraceLineContext& trace) {
  if (!trace.amodeChecked && trace.currentLine->StartsWith(kAddressingModeStart)) {
    return CheckAddressingMode(runContext, trace);
  }
  if (!trace.osChecked && trace.currentLine->StartsWith(kOperatingSystemStart))
    CheckOperatingSystem(runContext, trace);
  return 0;
}

// Copies the characters from column 1 on, the line feed included, as far as they fit.
template <std::size_t size>
void TakeName(char (&name)[size], const TraceLine& line) {
  const std::string_view text = line.From(1);
  const std::size_t length = text.copy(name, size - 1);
  name[length] = '\0';
}

void TakeApiLine(RunContext& runContext, TraceLineContext& trace) {
  TakeName(trace.apiName, *trace.currentLine);
  const std::string_view name = trace.apiName;
  runContext.apiKind = name == "ZKGET\n"              ? kApiKindGet
                       : name == "DATA_CONV_ON_GET\n" ? kApiKindDataConvOnGet
                                                      : kApiKindOther;
  trace.messageEncoding = 0;
  trace.messageFormat = {};
}

void TakePhaseLine(RunContext& runContext, TraceLineContext& trace) {
  TakeName(trace.phaseText, *trace.currentLine);
  const std::string_view phase = trace.phaseText;
  runContext.apiPhase = phase == "BEFORE\n"  ? kApiPhaseBefore
                        : phase == "AFTER\n" ? kApiPhaseAfter
                                             : kApiPhaseOther;
  if (runContext.apiPhase != kApiPhaseBefore) return;
  trace.selectorCount = 0;
  trace.integerAttributeCount = 0;
  trace.characterAttributeLength = 0;
  trace.savedObjectDescriptor.length = 0;
  trace.savedPutOptions.length = 0;
}

void TakeCompCode(RunContext& runContext, const TraceLine& line) {
  const char digit = line.At(kCompCodeStart.size());
  runContext.compCode = digit == '0' ? 0 : digit == '1' ? 1 : kCompCodeFailed;
}

void TrackCall(RunContext& runContext, TraceLineContext& trace) {
  const TraceLine& line = *trace.currentLine;
  if (line.At(0) == '<') {
    TakeApiLine(runContext, trace);
  } else if (line.At(0) == '(') {
    TakePhaseLine(runContext, trace);
  } else if (line.StartsWith(kCompCodeStart)) {
    TakeCompCode(runContext, line);
  }
}

// Option lines: the value stands right behind the line's start.
using OptionDecoder = void (*)(RunContext&, TraceLineContext&, std::string_view value);

template <int (*decoder)(RunContext&, std::uint32_t)>
void DecodeWord(RunContext& runContext, TraceLineContext&, std::string_view value) {
  decoder(runContext, static_cast<std::uint32_t>(ConvertEightByteHexToInteger(value)));
}

void DecodeStatusType(RunContext& runContext, TraceLineContext&, std::string_view value) {
  ShowParsedZkstatType(runContext, "Type", ConvertEightByteHexToInteger(value));
}

template <std::int32_t TraceLineContext::*count>
void StoreCount(RunContext&, TraceLineContext& trace, std::string_view value) {
  trace.*count = DecimalValue(value);
}

struct OptionLine {
  std::string_view
      apiName;  ///< with its line feed; a name without one matches every call that begins with it
  std::string_view start;
  OptionDecoder decode;
};

constexpr OptionLine kOptionLines[] = {
    {"ZKOPEN\n", "Options:0x", DecodeWord<ShowParsedZkoo>},
    {"ZKCLOSE\n", "Options:0x", DecodeWord<ShowParsedZkco>},
    {"ZKSET\n", "SelectorCount:", StoreCount<&TraceLineContext::selectorCount>},
    {"ZKSET\n", "IntAttrCount:", StoreCount<&TraceLineContext::integerAttributeCount>},
    {"ZKSET\n", "CharAttrLength:", StoreCount<&TraceLineContext::characterAttributeLength>},
    {"ZKINQ\n", "SelectorCount:", StoreCount<&TraceLineContext::selectorCount>},
    {"ZKINQ\n", "IntAttrCount:", StoreCount<&TraceLineContext::integerAttributeCount>},
    {"ZKINQ\n", "CharAttrLength:", StoreCount<&TraceLineContext::characterAttributeLength>},
    {"ZKCTL\n", "Operation:0x", DecodeWord<ShowParsedZkop>},
    {"ZKCB\n", "Operation:0x", DecodeWord<ShowParsedZkop>},
    {"ZKSUBRQ\n", "Action:0x", DecodeWord<ShowParsedZksr>},
    {"ZKSTAT\n", "Operation:0x", DecodeWord<ShowParsedZkop>},
    {"ZKSTAT\n", "Type:0x", DecodeStatusType},
    {"xa_", "flags:0x", DecodeWord<ShowParsedXaFlags>},
};

bool IsNameOf(const OptionLine& option, std::string_view apiName) {
  return option.apiName.back() == '\n' ? apiName == option.apiName : apiName.starts_with(option.apiName);
}

consteval std::array<bool, 256> FirstCharactersOfOptions() {
  std::array<bool, 256> first{};
  for (const OptionLine& option : kOptionLines) first[static_cast<unsigned char>(option.start[0])] = true;
  return first;
}
// Most lines begin like none of them.
constexpr std::array<bool, 256> kBeginsOption = FirstCharactersOfOptions();

void DecodeOptionLine(RunContext& runContext, TraceLineContext& trace) {
  if (!kBeginsOption[static_cast<unsigned char>(trace.currentLine->At(0))]) return;
  for (const OptionLine& option : kOptionLines) {
    if (!trace.currentLine->StartsWith(option.start) || !IsNameOf(option, trace.apiName)) continue;
    option.decode(runContext, trace, trace.currentLine->From(option.start.size()));
    return;
  }
}

// Writes an ordinary line, drops a line of an earlier report, hands a dump on. Returns -1 to stop the scan.
int CopyLine(RunContext& runContext, TraceLineContext& trace) {
  if (trace.currentLine->StartsWith(kReportMarker)) return 0;
  if (trace.currentLine->StartsWith(kFirstDumpLine)) return ProcessHexData(runContext, trace);
  SetDataToWriteBuffer(runContext, trace.currentLine->View());
  return 0;
}

}  // namespace

void ScanTrace(RunContext& runContext, TraceLineContext& trace) {
  while (AdvanceLine(trace)) {
    if (!(trace.amodeChecked && trace.osChecked) && CheckAmodeAndOs(runContext, trace) != 0) return;
    TrackCall(runContext, trace);
    if (CopyLine(runContext, trace) != 0) return;
    DecodeOptionLine(runContext, trace);
    ManageRelationOfObjHandleAndObjName(runContext, trace);
  }
}

void WriteClosingNotice(RunContext& runContext) {
  if (!runContext.unknownAttributeSeen) return;
  const std::string rule = "|" + std::string(65, '*') + "\n";
  const std::string notice = "\n" + rule + rule +
                             "|**\n"
                             "|**   Unknown ZK attribute exists.\n"
                             "|**   Please check ZK attribute settings in your program or\n"
                             "|**   report to support@quillon.example with this trace data.\n"
                             "|**   (New attributes might have been supported by Valmora ZK.)\n"
                             "|**\n" +
                             rule + rule + "\n";
  WriteTraceData(runContext, notice);
}

}  // namespace quillon
