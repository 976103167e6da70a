#include "driver/program.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

#include "display/constants.h"
#include "driver/command_line.h"
#include "driver/message_catalogue.h"
#include "driver/platform_choice.h"
#include "driver/program_name.h"
#include "driver/scanner.h"
#include "output/report_writer.h"

namespace quillon {
namespace {

struct CloseFile {
  // For the trace, and for a report that nothing was written to; CloseReport looks at what fclose says.
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

struct Run {
  RunContext context;
  TraceLineContext trace;
};

struct DestroyRun {
  void operator()(Run* run) const {
    run->~Run();
    std::free(run);
  }
};

// Message 1010 in a form that needs no memory.
void ReportNoMemory() {
  static_cast<void>(
      std::fputs("No more memory is available.  ENOMEM - Cannot allocate memory (12)\n", stdout));
}

bool IsDirectory(std::FILE* file) {
  struct stat status {};
  return fstat(fileno(file), &status) == 0 && S_ISDIR(status.st_mode);
}

// Opens the trace, or reports why it cannot be read. A directory can be opened but not read: it is refused
// here.
File OpenInput(RunContext& runContext, const char* name) {
  File input(std::fopen(name, "r"));
  if (input != nullptr && IsDirectory(input.get())) {
    input.reset();
    errno = EISDIR;
  }
  if (input == nullptr) PutMessage(runContext, 1001, kResultFromErrno, name, "open");
  return input;
}

bool IsSameFile(std::FILE* input, const std::string& name) {
  struct stat opened {};
  struct stat named {};
  if (fstat(fileno(input), &opened) != 0 || stat(name.c_str(), &named) != 0) return false;
  return opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

// Opens the report, or reports why it cannot be written. A report in place of its own trace would destroy it.
File OpenReport(Run& run, std::FILE* input) {
  const std::string& name = run.context.outputFileName;
  File report;
  if (IsSameFile(input, name)) {
    errno = EBUSY;
  } else {
    report.reset(std::fopen(name.c_str(), "w"));
  }
  if (report == nullptr) {
    PutMessage(run.context, 1001, kResultFromErrno, name, "open");
    return report;
  }
  // The report writer has its own buffer; a stream that keeps its buffer is merely slower.
  static_cast<void>(std::setvbuf(report.get(), nullptr, _IONBF, 0));
  return report;
}

void AnnounceFiles(RunContext& runContext, const TraceLineContext& trace) {
  PutMessage(runContext, 4020, kResultFromErrno, trace.inputFileName);
  PutMessage(runContext, 4016, kResultFromErrno, runContext.outputFileName);
  if (!trace.quiet) PutMessage(runContext, 4019, kResultFromErrno, runContext.maxXmlLineLength);
}

void WriteReportHeader(RunContext& runContext, const TraceLineContext& trace) {
  const std::string rule = "|" + std::string(96, '-') + "\n";
  const std::string platformLine =
      runContext.platform.IsChosen()
          ? "|     Platform                     : " + PlatformText(runContext) + "\n"
          : "";
  const std::string lines[] = {
      rule,
      "|\n",
      "|   Valmora ZK API Exit (Fieldkit TR7E)\n",
      std::string("|   ") + kProgramName + " (" + std::string(kProgramWordSize) + "-bit version) Version " +
          kProgramVersion + "\n",
      "|\n",
      "|     Input file                   : " + trace.inputFileName + "\n",
      "|     CCSID                        : " + std::to_string(runContext.ccsid) + " " +
          SearchConstantCcsidString(runContext.ccsid, 1) + "\n",
      "|     Max length of ZKCHARV string : " + std::to_string(runContext.maxCharvLength) + "\n",
      platformLine,
      "|\n",
      rule,
  };
  for (const std::string& line : lines) SetDataToWriteBuffer(runContext, line);
}

// Closes the report; what still waits is written now, so a full disk may show only here.
void CloseReport(Run& run, File report) {
  const bool written = EmptyReportBuffer(run.context);
  const int writeError = errno;
  run.context.outputFile = nullptr;
  run.context.outputFileClosed = 1;
  const bool closed = std::fclose(report.release()) == 0;
  if (written && closed) return;
  if (!written) errno = writeError;
  run.context.fatalIoError = true;
  PutMessage(run.context, 1001, kResultFromErrno, run.context.outputFileName, "fclose");
}

int Reformat(Run& run, File input, File report) {
  run.context.outputFile = report.get();
  try {
    WriteReport(run.context, run.trace, input.get());
  } catch (const std::bad_alloc&) {
    // The scan stops, as it does when a dump finds no memory; what was written stays.
    ReportNoMemory();
  }
  CloseReport(run, std::move(report));
  input.reset();
  if (!run.trace.quiet) PutMessage(run.context, 4005, kResultFromErrno);
  return run.context.fatalIoError ? -1 : 0;
}

int ReformatByArguments(int argc, char** argv) {
  // Not by new, which throws and catches even where it must not throw: where this finds no memory, there may
  // be none for an exception either.
  void* const memory = std::malloc(sizeof(Run));
  if (memory == nullptr) {
    ReportNoMemory();
    return -1;
  }
  const std::unique_ptr<Run, DestroyRun> run(new (memory) Run);
  InitializeCommonDataArea(run->context, run->trace);
  File input = OpenInput(run->context, argv[1]);
  if (input == nullptr) return -1;
  if (ReadInputParameter(run->context, run->trace, argc, argv) != 0) return -1;
  File report = OpenReport(*run, input.get());
  if (report == nullptr) return -1;
  return Reformat(*run, std::move(input), std::move(report));
}

}  // namespace

void InitializeCommonDataArea(RunContext& runContext, TraceLineContext&) {
  // The types' own defaults are the defaults of a run; only the process is not known before.
  runContext.processId = getpid();
}

void WriteReport(RunContext& runContext, TraceLineContext& trace, std::FILE* input) {
  LineReader lines(input,
                   runContext.platform.IsChosen() ? ReturnBeforeLineFeed::Drop : ReturnBeforeLineFeed::Keep);
  trace.input = &lines;
  AnnounceFiles(runContext, trace);
  LookAheadForPlatform(runContext, lines);
  WriteReportHeader(runContext, trace);
  ScanTrace(runContext, trace);
  WriteClosingNotice(runContext);
  trace.input = nullptr;
}

int RunProgram(int argc, char** argv) {
  std::printf("\n*** %s (%s-bit version)  Version %s ***\n\n", kProgramName, kProgramWordSize.data(),
              kProgramVersion);
  if (argc < 2) {
    ShowHelp(stdout, argc > 0 ? argv[0] : kProgramName);
    return -1;
  }
  try {
    return ReformatByArguments(argc, argv);
  } catch (const std::bad_alloc&) {
    ReportNoMemory();
    return -1;
  }
}

}  // namespace quillon
