// The built program in surroundings that a golden case cannot give it: odd files, full disks, closed
// terminals.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "program/program_fixture.h"

namespace quillon {
namespace {

// --- the input

TEST_F(Program, ShowsTheUsageUnderItsOwnNameAndEndsWith255) {
  const Ending ending = Run(std::vector<std::string>{});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal.find(kBanner + "\n   Syntax : quillon  input_file [ -c ccsid ]"), 0u);
  EXPECT_EQ(ending.error, "");
}

TEST_F(Program, RefusesAnInputThatIsMissing) {
  const Ending ending = Run();
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + FileError(kTrace, "open", "ENOENT - No such file or directory (2)"));
  EXPECT_FALSE(Exists(kReport));
}

TEST_F(Program, RefusesAnInputWithoutAName) {
  const Ending ending = Run({""});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + FileError("", "open", "ENOENT - No such file or directory (2)"));
}

TEST_F(Program, RefusesAnInputBelowAFile) {
  Write("file", kText);
  const Ending ending = Run({"file/trace.txt"});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + FileError("file/trace.txt", "open", "ENOTDIR - Not a directory (20)"));
}

TEST_F(Program, RefusesADirectory) {
  fs::create_directory(Path("folder"));
  const Ending ending = Run({"folder"});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + FileError("folder", "open", "EISDIR - Is a directory (21)"));
  EXPECT_FALSE(Exists("folder_reformat.txt"));
}

TEST_F(Program, RefusesALinkThatLeadsToItself) {
  fs::create_symlink(kTrace, Path(kTrace));
  const Ending ending = Run();
  EXPECT_EQ(ending.status, 255);
  EXPECT_NE(ending.terminal.find("ELOOP"), std::string::npos);
}

TEST_F(Program, RefusesASocket) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  const std::string name = Path("socket").string();
  ASSERT_LT(name.size(), sizeof(address.sun_path));
  std::memcpy(address.sun_path, name.c_str(), name.size() + 1);
  const int made = socket(AF_UNIX, SOCK_STREAM, 0);
  const int bound = bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof(address));
  const Ending ending = Run({"socket"});
  close(made);
  ASSERT_EQ(bound, 0);
  EXPECT_EQ(ending.status, 255);
  EXPECT_NE(ending.terminal.find("  Operation : open\n"), std::string::npos);
}

TEST_F(Program, ReadsAnEmptyInput) {
  Write(kTrace, "");
  const Ending ending = Run();
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.terminal, kBanner + Locale() + Files(kTrace, kReport) + kEnd);
  EXPECT_EQ(Read(kReport), Header(kTrace));
}

TEST_F(Program, ReadsAPipe) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  const std::string text = Repeated("a line of the pipe\n", 20000);
  std::thread writer([this, &text] { Write("pipe", text); });
  const Ending ending = Run({"pipe"});
  writer.join();
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(Read("pipe_reformat.txt"), Header("pipe") + text);
}

TEST_F(Program, TellsThePlatformOfAPipe) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  const std::string start = "|  Addressing mode    : 64-bit\n";
  const std::string dump =
      "CTLO      :(24 = 0x18 bytes)\n00000000:43544C4F 01000000 00000000 00000000  [CTLO............]\n";
  const std::string rest = Repeated("a line of the pipe\n", 20000);
  std::thread writer([&] {
    Write("pipe", start + dump + "00000010:00100020 7F000000                    [... ....]\n" + rest);
  });
  const Ending ending = Run({"pipe", "-p", "auto"});
  writer.join();
  EXPECT_EQ(ending.status, 0);
  std::string header = Header("pipe");
  header.insert(header.find(": 400\n") + 6, "|     Platform                     : auto (le64)\n");
  const std::string report = Read("pipe_reformat.txt");
  EXPECT_EQ(report.substr(0, header.size() + start.size()), header + start);
  EXPECT_NE(report.find("|> ConnectionArea           : 0x0000007F20001000\n"), std::string::npos);
  EXPECT_EQ(report.substr(report.size() - rest.size() + 19), rest.substr(19));
}

TEST_F(Program, ReadsAPipeWhoseWriterStopsInsideALine) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  std::thread writer([this] { Write("pipe", "Data:(32=)\n00000000:41"); });
  const Ending ending = Run({"pipe"});
  writer.join();
  EXPECT_EQ(ending.status, 0);
  EXPECT_NE(ending.terminal.find("  Operation : read (2)\n"), std::string::npos);
  EXPECT_EQ(Read("pipe_reformat.txt"), Header("pipe") + "Data:(32=)\n");
}

TEST_F(Program, ReadsItsStandardInputByName) {
  Write(kTrace, kText);
  Start start;
  start.arguments = {"/dev/stdin", "-o", "out"};
  start.prepare = [] { dup2(open(kTrace, O_RDONLY), STDIN_FILENO); };
  EXPECT_EQ(Run(start).status, 0);
  EXPECT_EQ(Read("out"), Header("/dev/stdin") + kText);
}

// --- the report

TEST_F(Program, ReplacesAnEarlierReport) {
  Write(kTrace, kText);
  Write(kReport, std::string(100000, 'x'));
  EXPECT_EQ(Run().status, 0);
  EXPECT_EQ(Read(kReport), Header(kTrace) + kText);
}

TEST_F(Program, RefusesAReportThatIsAFolder) {
  Write(kTrace, kText);
  fs::create_directory(Path("folder"));
  const Ending ending = Run({kTrace, "-o", "folder"});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal,
            kBanner + Locale() + FileError("folder", "open", "EISDIR - Is a directory (21)"));
  EXPECT_EQ(Read(kTrace), kText);
}

/// The report's name leads to the input: nothing may be written.
class ReportIsInput : public Program, public testing::WithParamInterface<const char*> {};

TEST_P(ReportIsInput, IsRefusedAndTheInputStaysIntact) {
  Write(kTrace, kText);
  fs::create_directory(Path("folder"));
  fs::create_symlink(kTrace, Path("link"));
  fs::create_symlink("link", Path("link_to_link"));
  fs::create_symlink(".", Path("folder_link"));
  fs::create_hard_link(Path(kTrace), Path("hard_link"));
  const std::string name = GetParam();
  const Ending ending = Run({kTrace, "-o", name});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal.find(kBanner + Locale() + "File I/O error. \n  File      : " + name +
                                 "\n  Operation : open\n  Result    : "),
            0u);
  EXPECT_EQ(Read(kTrace), kText);
}

INSTANTIATE_TEST_SUITE_P(Names, ReportIsInput,
                         testing::Values("trace.txt", "./trace.txt", "folder/../trace.txt", "link",
                                         "link_to_link", "hard_link", "folder_link/trace.txt"));

TEST_F(Program, RefusesAReportWhoseOwnNameLeadsToTheInput) {
  Write("trace.log", kText);
  fs::create_symlink("trace.log", Path("trace.log_reformat.txt"));
  EXPECT_EQ(Run({"trace.log"}).status, 255);
  EXPECT_EQ(Read("trace.log"), kText);
}

TEST_F(Program, RefusesAnInputThatLeadsToTheReport) {
  Write(kReport, kText);
  fs::create_symlink(kReport, Path(kTrace));
  EXPECT_EQ(Run().status, 255);
  EXPECT_EQ(Read(kReport), kText);
}

TEST_F(Program, WritesOverACopyOfTheInput) {
  Write(kTrace, kText);
  Write("copy.txt", kText);
  EXPECT_EQ(Run({kTrace, "-o", "copy.txt"}).status, 0);
  EXPECT_EQ(Read("copy.txt"), Header(kTrace) + kText);
}

TEST_F(Program, WritesThroughALink) {
  Write(kTrace, kText);
  fs::create_symlink("target", Path(kReport));
  EXPECT_EQ(Run().status, 0);
  EXPECT_EQ(Read("target"), Header(kTrace) + kText);
}

TEST_F(Program, LeavesAnEarlierReportWhenAnArgumentIsWrong) {
  Write(kTrace, kText);
  Write(kReport, "earlier");
  EXPECT_EQ(Run({kTrace, "-q", "wrong"}).status, 255);
  EXPECT_EQ(Read(kReport), "earlier");
}

// --- writes that fail

TEST_F(Program, TellsThatASmallReportMeetsAFullDisk) {
  Write(kTrace, kText);
  const Ending ending = Run({kTrace, "-o", "/dev/full"});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal, kBanner + Locale() + Files(kTrace, "/dev/full") +
                                 FileError("/dev/full", "fclose", "ENOSPC - No space left on device (28)") +
                                 kEnd);
}

TEST_F(Program, TellsEachWriteThatFailsAndGoesOn) {
  // Far more than any buffer of the report; the option word behind it is still examined.
  Write(kTrace, Repeated(std::string(900, 'x') + "\n", 2000) + "<ZKCLOSE\nOptions:0x00000010\n");
  const Ending ending = Run({kTrace, "-o", "/dev/full"});
  EXPECT_EQ(ending.status, 255);
  const std::string failed = FileError("/dev/full", "fputs", "ENOSPC - No space left on device (28)");
  EXPECT_NE(ending.terminal.find(failed + failed), std::string::npos);
  EXPECT_NE(ending.terminal.find("Unknown API attribute : ZKCLOSE - ZKCO_... value 0x00000010\n"),
            std::string::npos);
  EXPECT_NE(ending.terminal.find(kEnd), std::string::npos);
}

TEST_F(Program, SurvivesALimitOfFileSize) {
  Write(kTrace, Repeated(std::string(900, 'x') + "\n", 2000));
  Start start;
  start.prepare = [] {
    const rlimit size = {4096, 4096};
    setrlimit(RLIMIT_FSIZE, &size);
  };
  start.output = "/dev/null";
  EXPECT_EQ(Run(start).status, 255);
  const std::string report = Read(kReport);
  EXPECT_EQ(report.size(), 4096u);
  EXPECT_EQ(report.substr(0, Header(kTrace).size()), Header(kTrace));
}

TEST_F(Program, SurvivesALimitOfFileSizeThatTheEndMeets) {
  Write(kTrace, Repeated("x\n", 2500));
  Start start;
  start.prepare = [] {
    const rlimit size = {4096, 4096};
    setrlimit(RLIMIT_FSIZE, &size);
  };
  const Ending ending = Run(start);
  EXPECT_EQ(ending.status, 255);
  EXPECT_NE(ending.terminal.find(FileError(kReport, "fclose", "EFBIG - File too large (27)")),
            std::string::npos);
}

// --- the terminal

TEST_F(Program, CompletesTheReportWhenTheTerminalHasGone) {
  // So many messages that they cannot wait in a buffer.
  const std::string call = "<ZKCLOSE\nOptions:0x00000010\n";
  Write(kTrace, Repeated(call, 5000) + "end\n");
  Start start;
  start.prepare = [] {
    int ends[2];
    if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0) _exit(126);
    close(ends[0]);
    close(ends[1]);
  };
  start.output = "/dev/null";
  EXPECT_EQ(Run(start).status, 0);
  const std::string report = Read(kReport);
  EXPECT_NE(report.find("\nend\n\n|*****"), std::string::npos);
  EXPECT_TRUE(report.ends_with("*\n\n"));
}

TEST_F(Program, CompletesTheReportWhenTheTerminalIsFull) {
  Write(kTrace, Repeated("<ZKCLOSE\nOptions:0x00000010\n", 5000) + "end\n");
  Start start;
  start.output = "/dev/full";
  const Ending ending = Run(start);
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.error, "");
  EXPECT_NE(Read(kReport).find("\nend\n\n|*****"), std::string::npos);
}

TEST_F(Program, WritesNoMessagesIntoTheReportWhenTheStandardStreamsAreClosed) {
  const std::string call = "<ZKCLOSE\nOptions:0x00000010\n";
  Write(kTrace, Repeated(call, 5000) + "end\n");
  ASSERT_EQ(Run().status, 0);
  const std::string report = Read(kReport);
  fs::remove(Path(kReport));
  Start start;
  start.prepare = [] {
    close(STDIN_FILENO);
    close(STDOUT_FILENO);
    close(STDERR_FILENO);
  };
  start.output = "/dev/null";
  EXPECT_EQ(Run(start).status, 0);
  EXPECT_EQ(Read(kReport), report);
}

// --- names

TEST_F(Program, TakesNamesOfAnyLength) {
  const std::string folderName(200, 'd');
  std::string name;
  for (int i = 0; i < 12; ++i) name += folderName + "/";
  fs::create_directories(Path(name));
  name += "trace.txt";
  Write(name, kText);
  const std::string report = name.substr(0, name.size() - 4) + "_reformat.txt";
  const Ending ending = Run({name});
  EXPECT_EQ(ending.status, 0);
  EXPECT_EQ(ending.terminal, kBanner + Locale() + Files(name, report) + kEnd);
  EXPECT_EQ(Read(report), Header(name) + kText);
}

TEST_F(Program, NamesALongFileInFullWhenADumpIsBroken) {
  const std::string name(250, 'n');
  Write(name, "Data\n00000000:41\n");
  const Ending ending = Run({name, "-o", "out"});
  EXPECT_EQ(ending.status, 0);
  EXPECT_NE(
      ending.terminal.find("Invalid record in input file.  (File " + name + ", Line 1, Data \"Data\n\")\n"),
      std::string::npos);
}

TEST_F(Program, RefusesAReportWhoseNameIsTooLong) {
  const std::string name = std::string(250, 'n') + ".log";
  Write(name, kText);
  const Ending ending = Run({name});
  EXPECT_EQ(ending.status, 255);
  EXPECT_EQ(ending.terminal,
            kBanner + Locale() +
                FileError(name + "_reformat.txt", "open", "ENAMETOOLONG - File name too long (36)"));
}

TEST_F(Program, TakesNamesAsTheyStand) {
  for (const std::string name :
       {"%s%n%d.txt", "a name", "two\nlines.txt", "\xC3\xA9\xFF.txt", "[$1d].txt", "-q"}) {
    Write(name, kText);
    EXPECT_EQ(Run({name, "-o", "out"}).status, 0) << name;
    EXPECT_EQ(Read("out"), Header(name) + kText);
  }
}

TEST_F(Program, WritesBesideAnInputInAnotherFolder) {
  fs::create_directory(Path("folder"));
  Write("folder/trace.txt", kText);
  EXPECT_EQ(Run({"folder/trace.txt"}).status, 0);
  EXPECT_EQ(Read("folder/trace_reformat.txt"), Header("folder/trace.txt") + kText);
  const std::string whole = Path("folder/trace.txt").string();
  EXPECT_EQ(Run({whole}).status, 0);
  EXPECT_EQ(Read("folder/trace_reformat.txt"), Header(whole) + kText);
}

// --- the environment

TEST_F(Program, ShowsNumbersAlikeInEveryLocale) {
  Write(kTrace, "Data:(1000=)\n00000000:41\n \n");
  EXPECT_EQ(Run({kTrace, "-c", "0"}).status, 0);
  const std::string report = Read(kReport);
  for (const std::string locale : {"C.UTF-8", "de_DE.UTF-8", "ja_JP.UTF-8", "tr_TR.UTF-8"}) {
    Start start;
    start.arguments = {kTrace, "-c", "0"};
    start.environment = {"LC_ALL=" + locale};
    EXPECT_EQ(Run(start).status, 0);
    EXPECT_EQ(Read(kReport), report) << locale;
  }
}

TEST_F(Program, TakesALocaleWhetherItIsInstalledOrNot) {
  Write(kTrace, kText);
  for (const std::string locale : {"C.UTF-8", "de_DE.UTF-8", "xx_YY.utf8"}) {
    Start start;
    start.environment = {"LANG=" + locale};
    const Ending ending = Run(start);
    EXPECT_EQ(ending.terminal, kBanner + Locale(locale, "1208") + Files(kTrace, kReport) + kEnd);
  }
}

// --- memory

constexpr long kMostMemory = 256L * 1024;  // in KiB; the sanitizers need some of it

TEST_F(Program, TakesNoMemoryForBytesThatAreOnlyDeclared) {
  std::string trace;
  for (int i = 0; i < 30; ++i) trace += "Data:(2147483647=)\n00000000:41\n \n";
  trace += "CTLO:(20=)\n00000000:43\n \n";
  for (int i = 0; i < 20; ++i) trace += "Variable-A:(2147483647=)\n00000000:41\n \n";
  Write(kTrace, trace + "end\n");
  const Ending ending = Run();
  EXPECT_EQ(ending.status, 0);
  EXPECT_LT(ending.mostMemory, kMostMemory);
  EXPECT_TRUE(Read(kReport).ends_with("end\n"));
}

TEST_F(Program, TakesNoMemoryForRepeatLines) {
  const std::string data = "00000000:000102030405060708090A0B0C0D0E0F\n";
  for (const std::string repeat : {"00000000-7FFFFFFF\n", "00000000-00010000\n", "00000000-00000100\n"}) {
    Write(kTrace, "Data:(2147483647=)\n" + data + Repeated(repeat, 33000) + " \nend\n");
    const Ending ending = Run();
    EXPECT_EQ(ending.status, 0) << repeat;
    EXPECT_LT(ending.mostMemory, kMostMemory) << repeat;
    EXPECT_LT(fs::file_size(Path(kReport)), 1000000u) << repeat;
  }
}

TEST_F(Program, WritesNoEndlessReportForRecordsThatAreOnlyDeclared) {
  // A distribution list of two thousand million records, of which the trace holds one byte.
  const std::string count = "7FFFFFFF";
  Write(kTrace,
        "OD:(200=)\n00000000:4F442020000000020000000100000000\n" +
            std::string("00000010:00000000000000000000000000000000\n00000020-000000A0\n") +
            "000000A0:0000000000000000" + count + "00000000\n000000B0:\n000000B0-000000C8\n" +
            "between\nOD->OR:(2000000000=)\n00000000:41\n \nOD->RR:(2000000000=)\n00000000:41\n \nend\n");
  const Ending ending = Run();
  EXPECT_EQ(ending.status, 0);
  const std::string report = Read(kReport);
  EXPECT_NE(report.find("|> RecsPresent              : 2147483647\n"), std::string::npos);
  EXPECT_TRUE(report.ends_with("end\n"));
  EXPECT_LT(report.size(), 50u * 1024 * 1024);
}

}  // namespace
}  // namespace quillon
