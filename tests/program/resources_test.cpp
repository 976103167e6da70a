// The built program where a resource fails it: rights, memory, a file that changes while it is read, a report
// that cannot be closed, and traces that must not take memory.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ostream>
#include <string>
#include <thread>

#include "program/program_fixture.h"
#include "sanitizer.h"

namespace quillon {
namespace {

#ifdef QUILLON_ADDRESS_SANITIZER
constexpr bool kAddressSanitizer = true;
#else
constexpr bool kAddressSanitizer = false;
#endif

const std::string kNoMemory = "No more memory is available.  ENOMEM - Cannot allocate memory (12)\n";

// --- rights

/// Runs the program as a user who has no rights but those of everyone.
class ProgramWithoutRights : public Program {
 protected:
  static constexpr uid_t kNobody = 65534;

  void SetUp() override {
    if (geteuid() != 0) return;
    // The program may stand in a folder of the superuser: a copy stands where everyone may start it.
    for (const char* const part : {"", "program"}) fs::create_directories(Path(part));
    fs::copy_file(QUILLON_PROGRAM, Path("program/quillon"));
    OpenToEveryone();
    Write(kTrace, kText);
    if (RunAsNobody().status != 0) GTEST_SKIP() << "nobody may start a program in " << Path("");
    fs::remove(Path(kReport));
  }

  void OpenToEveryone() const {
    fs::permissions(Path("."), fs::perms::all);
    fs::permissions(Path("program"), fs::perms::all);
    fs::permissions(Path("program/quillon"), fs::perms::all);
  }

  Ending RunAsNobody() const {
    Start start;
    if (geteuid() == 0) {
      start.program = Path("program/quillon").string();
      start.prepare = [] {
        if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0) _exit(126);
      };
    }
    return Run(start);
  }
};

TEST_F(ProgramWithoutRights, RefusesAnInputThatMayNotBeRead) {
  Write(kTrace, kText);
  fs::permissions(Path(kTrace), fs::perms::none);
  const Ending ending = RunAsNobody();
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + FileError(kTrace, "open", "EACCES - Permission denied (13)"));
  EXPECT_FALSE(Exists(kReport));
}

TEST_F(ProgramWithoutRights, RefusesAReportThatMayNotBeWritten) {
  Write(kTrace, kText);
  Write(kReport, "earlier");
  fs::permissions(Path(kReport), fs::perms::owner_read | fs::perms::others_read);
  const Ending ending = RunAsNobody();
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal,
            kBanner + Locale() + FileError(kReport, "open", "EACCES - Permission denied (13)"));
  EXPECT_EQ(Read(kReport), "earlier");
}

TEST_F(ProgramWithoutRights, RefusesAReportInAFolderThatMayNotBeWritten) {
  Write(kTrace, kText);
  fs::permissions(Path("."), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                 fs::perms::others_exec);
  const Ending ending = RunAsNobody();
  fs::permissions(Path("."), fs::perms::all);
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal,
            kBanner + Locale() + FileError(kReport, "open", "EACCES - Permission denied (13)"));
  EXPECT_FALSE(Exists(kReport));
}

TEST_F(Program, RefusesAReportInAFolderThatIsMissing) {
  Write(kTrace, kText);
  const Ending ending = Run({kTrace, "-o", "folder/report"});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(
      ending.terminal,
      kBanner + Locale() + FileError("folder/report", "open", "ENOENT - No such file or directory (2)"));
}

// --- an input that changes

TEST_F(Program, ReadsAnInputThatGrows) {
  const std::string start = Repeated("a line of the start\n", 200000);
  Write(kTrace, start);
  std::atomic<bool> ended = false;
  std::atomic<int> added = 0;
  std::thread writer([this, &ended, &added] {
    std::ofstream file(Path(kTrace), std::ios::app);
    for (; !ended && added < 1000000; ++added) file << "an added line\n" << std::flush;
  });
  const Ending ending = Run();
  ended = true;
  writer.join();
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.terminal, kBanner + Locale() + Files(kTrace, kReport) + kEnd);
  EXPECT_GT(added, 0);
  const std::string report = Read(kReport);
  const std::string whole = Header(kTrace) + Read(kTrace);
  EXPECT_GE(report.size(), Header(kTrace).size() + start.size());
  EXPECT_EQ(report, whole.substr(0, report.size()));
}

TEST_F(Program, ReadsAnInputThatIsCutOff) {
  Write(kTrace, Repeated("a line\n", 1000000));
  const std::string whole = Header(kTrace) + Read(kTrace);
  Start start;
  const pid_t child = Begin(start);
  fs::resize_file(Path(kTrace), 10);
  EXPECT_EQ(Wait(start, child).status, 0);
  const std::string report = Read(kReport);
  EXPECT_EQ(report, whole.substr(0, report.size()));
}

// --- a report that cannot be closed

TEST_F(Program, TellsThatTheReportCannotBeClosed) {
  if (kAddressSanitizer) GTEST_SKIP() << "the sanitizer has its own fclose, which cannot be replaced";
  Write(kTrace, kText);
  Start start;
  start.environment = {"LD_PRELOAD=" QUILLON_FAILING_CLOSE, "FAILING_CLOSE=trace_reformat.txt"};
  const Ending ending = Run(start);
  EXPECT_EQ(ending.error, "");
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + Locale() + Files(kTrace, kReport) +
                                 FileError(kReport, "fclose", "EIO - Input/output error (5)") + kEnd);
  EXPECT_EQ(Read(kReport), Header(kTrace) + kText);
}

// --- memory that is not there

/// A dump of so many bytes that the trace carries.
void WriteDump(std::ostream& trace, const std::string& name, std::size_t bytes) {
  const std::string line = "00000000:" + Repeated("4F", 490) + "\n";
  trace << name << ":(" << bytes << "=)\n";
  for (std::size_t offset = 0; offset < bytes; offset += 490) trace << line;
}

TEST_F(Program, EndsCleanlyWhenADumpFindsNoMemory) {
  const std::string before = "a line before\n";
  std::ofstream trace(Path(kTrace));
  trace << before;
  WriteDump(trace, "Data", 40000000);
  trace << "a line behind\n";
  trace.close();
  Start start;
  if (kAddressSanitizer) {
    // Its shadow takes more than any limit of the address space allows.
    start.environment = {"ASAN_OPTIONS=allocator_may_return_null=1:max_allocation_size_mb=16"};
  } else {
    start.prepare = [] {
      const rlimit size = {32 << 20, 32 << 20};
      setrlimit(RLIMIT_AS, &size);
    };
  }
  const Ending ending = Run(start);
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.terminal, kBanner + Locale() + Files(kTrace, kReport) + kNoMemory + kEnd);
  EXPECT_EQ(Read(kReport), Header(kTrace) + before + "Data:(40000000=)\n");
}

// From plenty of memory down to where no program starts: each run ends by itself and says what it lacked.
TEST_F(Program, EndsCleanlyWithHoweverLittleMemory) {
  if (kAddressSanitizer) GTEST_SKIP() << "the sanitizer itself needs terabytes of address space";
  Write(kTrace, kText);
  const std::string whole = kBanner + Locale() + Files(kTrace, kReport) + kEnd;
  int refused = 0;
  bool starts = true;
  for (rlim_t most = 10 << 20; starts && most > 0; most -= 16 << 10) {
    Start start;
    start.prepare = [most] {
      const rlimit size = {most, most};
      setrlimit(RLIMIT_AS, &size);
    };
    const Ending ending = Run(start);
    // Without its banner it did not come to its first line: the system could not load it.
    starts = ending.terminal.starts_with(kBanner);
    if (!starts) break;
    ASSERT_TRUE(ending.status == 0 || ending.status == 255) << most << ": " << ending.status << ending.error;
    if (ending.status == 0) {
      EXPECT_EQ(ending.terminal, whole) << most;
      continue;
    }
    ++refused;
    EXPECT_NE(ending.terminal.find(kNoMemory), std::string::npos) << most << ending.terminal;
  }
  EXPECT_FALSE(starts);
  EXPECT_GT(refused, 0) << "no limit was so low that the program started and could not run";
}

// --- memory that is not taken

/// In KiB: what is promised is 32000000 bytes and four times the largest dump; the sanitizers need more of
/// their own.
constexpr long kMostMemory = (kAddressSanitizer ? 256000000 : 32000000) / 1024;

/// A pipe that is filled while the program reads it. What the program takes is measured from its start, when
/// it is still a copy of the test: so the test must not hold whole traces.
class ProgramOnAPipe : public Program {
 protected:
  /// The report goes where nothing is kept.
  Ending RunOn(const std::function<void(std::ostream&)>& writeTrace) const {
    const std::string pipe = Path("pipe").string();
    if (mkfifo(pipe.c_str(), 0600) != 0) throw std::runtime_error("mkfifo");
    std::thread writer([&] {
      std::ofstream file(pipe);
      writeTrace(file);
    });
    Ending ending = Run({"pipe", "-o", "/dev/null"});
    writer.join();
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.terminal.find("Invalid record"), std::string::npos) << "the trace was read to its end";
    EXPECT_TRUE(ending.terminal.ends_with(kEnd)) << ending.terminal;
    return ending;
  }
};

TEST_F(ProgramOnAPipe, TakesNoMemoryForALineOfAGigabyte) {
  const Ending ending = RunOn([](std::ostream& trace) {
    const std::string part(1 << 20, 'x');
    for (int i = 0; i < 1024; ++i) trace << part;
  });
  EXPECT_EQ(ending.status, 0);
  EXPECT_LT(ending.mostMemory, kMostMemory);
}

TEST_F(ProgramOnAPipe, TakesNoMemoryForManySmallDumps) {
  const Ending ending = RunOn([](std::ostream& trace) {
    const std::string call =
        "<ZKGET\n(BEFORE\nHobj:0x00000002\nData:(20=)\n00000000:41424344454647484950515253545556\n"
        "00000010:41424344\n-----\n";
    for (int i = 0; i < (kAddressSanitizer ? 50000 : 500000); ++i) trace << call;
  });
  EXPECT_EQ(ending.status, 0);
  EXPECT_LT(ending.mostMemory, kMostMemory);
}

TEST_F(ProgramOnAPipe, TakesNoMoreThanFourTimesTheLargestDump) {
  // Selectors and integer values are kept while the next dump is read.
  constexpr std::size_t kBytes = 8 << 20;
  const Ending ending = RunOn([](std::ostream& trace) {
    // As many open objects and variable items as are kept take part of the rest.
    trace << "<ZKOPEN\n(BEFORE\n";
    for (int i = 0; i < 131072; ++i) trace << "-\n";
    WriteDump(trace, "SD", 1000);
    for (int item = 0; item < 20; ++item) WriteDump(trace, "Variable-V", 1 << 20);
    for (int i = 0; i < 3; ++i)
      for (const char* const name : {"Selectors", "IntAttrs", "CharAttrs", "Data"})
        WriteDump(trace, name, kBytes);
    trace << "end\n";
  });
  EXPECT_EQ(ending.status, 0);
  EXPECT_LT(ending.mostMemory, kMostMemory + 4 * static_cast<long>(kBytes >> 10));
  EXPECT_GT(ending.mostMemory, static_cast<long>(kBytes >> 10)) << "the dumps were kept";
}

TEST_F(Program, ReadsAFileOfNuls) {
  Write(kTrace, "start\n");
  fs::resize_file(Path(kTrace), 256 << 20);  // takes no room on the disk
  const Ending ending = Run();
  EXPECT_EQ(ending.status, 0);
  EXPECT_LT(ending.mostMemory, kMostMemory);
  EXPECT_EQ(Read(kReport), Header(kTrace) + "start\n");
}

}  // namespace
}  // namespace quillon
