#include "driver/command_line.h"

#include <string>
#include <string_view>

#include "base/decimal.h"
#include "driver/ccsid_choice.h"
#include "driver/message_catalogue.h"
#include "driver/platform_choice.h"

namespace quillon {
namespace {

constexpr int kFirstSwitch = 2;
constexpr std::int32_t kShortestXmlLine = 40;
constexpr std::int32_t kLongestXmlLine = 999;

void TakeXmlLineLength(RunContext& runContext, std::string_view value) {
  const std::int32_t length = DecimalValue(value);
  // Kept: a length out of range is ignored without a message.
  if (length >= kShortestXmlLine && length <= kLongestXmlLine) runContext.maxXmlLineLength = length;
}

int TakePlatform(RunContext& runContext, std::string_view name) {
  if (ChoosePlatform(runContext, name)) return 0;
  PutMessage(runContext, 2011, kResultFromErrno, name);
  return -1;
}

// Kept: the CCSID without its switch is taken in the second place only.
int TakeBareCcsid(RunContext& runContext, int index, std::string_view argument) {
  const std::int32_t ccsid = DecimalValue(argument);
  if (index != kFirstSwitch || ccsid <= 0) {
    PutMessage(runContext, 2011, kResultFromErrno, argument);
    return -1;
  }
  runContext.ccsid = ccsid;
  return 0;
}

// One argument and the one before it, whose value it may be.
int TakeArgument(RunContext& runContext, TraceLineContext& trace, int index, std::string_view before,
                 std::string_view argument) {
  if (argument == "-c" || argument == "-v" || argument == "-x" || argument == "-o" || argument == "-p")
    return 0;
  if (argument == "-q") {
    trace.quiet = true;
  } else if (argument == "-nc") {
    runContext.formatMessageContent = false;
  } else if (before == "-c") {
    runContext.ccsid = DecimalValue(argument);
  } else if (before == "-v") {
    runContext.maxCharvLength = DecimalValue(argument);
  } else if (before == "-x") {
    TakeXmlLineLength(runContext, argument);
  } else if (before == "-o") {
    runContext.outputFileName = argument;
  } else if (before == "-p") {
    return TakePlatform(runContext, argument);
  } else {
    return TakeBareCcsid(runContext, index, argument);
  }
  return 0;
}

void ChooseCcsid(RunContext& runContext, bool quiet) {
  if (runContext.ccsid >= 0) {
    // Kept: this form is printed in quiet mode too.
    PutMessage(runContext, 4015, kResultFromErrno, "(by parameter)", runContext.ccsid);
    return;
  }
  std::string localeName;
  const std::string fromEnvironment = GetEnvValue("ZKCCSID");
  if (!fromEnvironment.empty()) runContext.ccsid = DecimalValue(fromEnvironment);
  if (runContext.ccsid < 0) runContext.ccsid = SelectCcsidByLocale(localeName);
  if (quiet) return;
  PutMessage(runContext, 4015, kResultFromErrno, localeName.empty() ? "(no locale info)" : localeName.c_str(),
             runContext.ccsid);
}

std::string DefaultReportName(std::string name) {
  constexpr std::string_view extension = ".txt";
  if (name.size() > extension.size() && name.ends_with(extension))
    name.resize(name.size() - extension.size());
  return name + "_reformat.txt";
}

}  // namespace

void ShowHelp(std::FILE* terminal, const char* programName) {
  const std::string name = programName;
  const std::string text =
      "\n"
      "   Syntax : " +
      name +
      "  input_file [ -c ccsid ] [ -o output_file ] [ -x max_xml_output_line_len ]\n"
      "                           [ -nc ] [ -v show_max_len_charv_string ]\n"
      "            " +
      name +
      "  input_file [ ccsid ]\n"
      "\n"
      "       -nc : Message content is not formatted.\n"
      "\n"
      "       Ccsid is automatically selected regarding locale if it is not specified.\n";
  static_cast<void>(std::fputs(text.c_str(), terminal));  // the status tells the caller as well
}

int ReadInputParameter(RunContext& runContext, TraceLineContext& trace, int argc, char** argv) {
  trace.inputFileName = argv[1];
  for (int index = kFirstSwitch; index < argc; ++index) {
    if (TakeArgument(runContext, trace, index, argv[index - 1], argv[index]) != 0) return -1;
  }
  ChooseCcsid(runContext, trace.quiet);
  runContext.directoryPrefix = "./";
  SetValueForCodeRangeCheck(runContext);
  if (runContext.outputFileName.empty()) runContext.outputFileName = DefaultReportName(trace.inputFileName);
  return 0;
}

}  // namespace quillon
