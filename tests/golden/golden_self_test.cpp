// Shows that the golden-case runner fails when it must: every kind of mismatch, every incomplete folder.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "golden/golden_case.h"
#include "golden/program_run.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

constexpr const char* kGoodTerminal =
    "argument [quillon]\nargument [trace.txt]\ntime [YYYY/MM/DD hh:mm:ss.uuuuuu]\n";

/// A folder of cases that starts with one good case, "group/good".
class GoldenSelfTest : public testing::Test {
 protected:
  GoldenSelfTest() {
    settings = {GOLDEN_STAND_IN, folder.Path() / "cases", folder.Path() / "actual"};
    Put("about", "shows a copied line\n");
    Put("trace.txt", "first\nsecond\n");
    Put("expected/report.txt", "first\nsecond\n");
    Put("expected/terminal.txt", kGoodTerminal);
    Put("expected/status", "0\n");
  }

  fs::path Good(const std::string& name = "") const { return settings.casesFolder / "group/good" / name; }
  void Put(const std::string& name, const std::string& content) const {
    fs::create_directories(Good(name).parent_path());
    WriteWholeFile(Good(name), content);
  }
  void Remove(const std::string& name) const { fs::remove_all(Good(name)); }
  Complaints Check() const { return CheckGoldenCase(settings, "group/good"); }
  std::string CheckText() const {
    std::string text;
    for (const std::string& complaint : Check()) text += complaint + "\n";
    return text;
  }
  ProgramOutcome Runner(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"--program", settings.program, "--cases", settings.casesFolder,
                                         "--actual", settings.actualFolder});
    return RunCommand({GOLDEN_RUNNER, "golden_runner", arguments, {}}, folder.Path());
  }
  void ExpectComplaint(const std::string& part) const {
    EXPECT_NE(CheckText().find(part), std::string::npos) << CheckText();
    EXPECT_EQ(Runner({}).status, 1);
  }

  TemporaryFolder folder;
  GoldenSettings settings;
};

TEST_F(GoldenSelfTest, GoodCasePasses) {
  EXPECT_EQ(CheckText(), "");
  EXPECT_FALSE(fs::exists(settings.actualFolder / "group/good"));
  const ProgramOutcome outcome = Runner({});
  EXPECT_EQ(outcome.status, 0) << outcome.standardOutput;
  EXPECT_NE(outcome.standardOutput.find("Golden.group/good"), std::string::npos);
}

TEST_F(GoldenSelfTest, AlteredReportFails) {
  Put("expected/report.txt", "first\nother\n");
  ExpectComplaint(
      "the report differs\n  first at line 2\n            first\n  expected: other\n  actual:   second");
  EXPECT_EQ(ReadWholeFile(settings.actualFolder / "group/good/report.txt"), "first\nsecond\n");
}

TEST_F(GoldenSelfTest, ReportWithoutItsLastLineFeedFails) {
  Put("expected/report.txt", "first\nsecond");
  ExpectComplaint("the report differs\n  only in the line feed at the end");
}

TEST_F(GoldenSelfTest, LongerReportFails) {
  Put("expected/report.txt", "first\nsecond\nthird\n");
  ExpectComplaint("expected: third\n  actual:   (the text has ended)");
}

TEST_F(GoldenSelfTest, AlteredTerminalTextFails) {
  Put("expected/terminal.txt", "argument [quillon]\nargument [trace.log]\n");
  ExpectComplaint("the terminal text differs");
}

TEST_F(GoldenSelfTest, AlteredStatusFails) {
  Put("expected/status", "255\n");
  ExpectComplaint("the exit status differs");
}

TEST_F(GoldenSelfTest, MissingExpectationsFail) {
  Remove("expected");
  const std::string text = CheckText();
  EXPECT_NE(text.find("there is no expected/terminal.txt"), std::string::npos) << text;
  EXPECT_NE(text.find("there is no expected/status"), std::string::npos) << text;
  EXPECT_NE(text.find("the report was written, but the case expects none"), std::string::npos) << text;
  EXPECT_EQ(Runner({}).status, 1);
}

TEST_F(GoldenSelfTest, MissingTerminalExpectationFails) {
  Remove("expected/terminal.txt");
  ExpectComplaint("there is no expected/terminal.txt");
}

TEST_F(GoldenSelfTest, MissingStatusExpectationFails) {
  Remove("expected/status");
  ExpectComplaint("there is no expected/status");
}

TEST_F(GoldenSelfTest, StatusThatIsNoNumberFails) {
  Put("expected/status", "-1\n");
  ExpectComplaint("expected/status must be a decimal exit status");
}

TEST_F(GoldenSelfTest, MissingReportExpectationFails) {
  Remove("expected/report.txt");
  ExpectComplaint("the report was written, but the case expects none");
}

TEST_F(GoldenSelfTest, ReportThatWasNotWrittenFails) {
  Put("args", "abort\n");
  ExpectComplaint("the report is expected, but none was written");
}

TEST_F(GoldenSelfTest, FolderWithoutAboutFails) {
  Remove("about");
  ExpectComplaint("the folder has no file \"about\"");
  Remove("trace.txt");
  ExpectComplaint("the folder has no file \"about\"");
}

TEST_F(GoldenSelfTest, AboutOfTwoLinesFails) {
  Put("about", "one\ntwo\n");
  ExpectComplaint("the file \"about\" must hold one line");
}

TEST_F(GoldenSelfTest, MisnamedFileFails) {
  Put("arguments", "-q\n");
  ExpectComplaint("the case holds \"arguments\"");
  Remove("arguments");
  Put("expected/reports.txt", "first\n");
  ExpectComplaint("the case holds \"reports.txt\"");
}

TEST_F(GoldenSelfTest, NameThatAFilterWouldMisreadFails) {
  fs::rename(Good(), settings.casesFolder / "group/a-case");
  const ProgramOutcome outcome = Runner({});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.standardOutput.find("may hold letters, digits, _ and / only"), std::string::npos);
}

TEST_F(GoldenSelfTest, FolderWithoutCasesFails) {
  fs::remove_all(settings.casesFolder);
  EXPECT_EQ(Runner({}).status, 1);
}

TEST_F(GoldenSelfTest, FilterThatSelectsNothingFails) {
  EXPECT_EQ(Runner({"--gtest_filter=Golden.group/good"}).status, 0);
  EXPECT_EQ(Runner({"--gtest_filter=Golden.group/bad"}).status, 1);
}

TEST_F(GoldenSelfTest, TextOnStandardErrorFails) {
  Put("args", "complain\n");
  Put("expected/terminal.txt",
      "argument [quillon]\nargument [trace.txt]\nargument [complain]\ntime [YYYY/MM/DD hh:mm:ss.uuuuuu]\n");
  ExpectComplaint("the program wrote to standard error\na complaint");
}

TEST_F(GoldenSelfTest, StrayFileFails) {
  Put("args", "stray\n");
  ExpectComplaint("the run left a file \"stray.txt\"");
}

TEST_F(GoldenSelfTest, ChangedInputFails) {
  Put("args", "spoil\n");
  ExpectComplaint("the run changed its input");
}

TEST_F(GoldenSelfTest, MissingProgramFails) {
  settings.program = folder.Path() / "missing";
  ExpectComplaint("the exit status differs");
}

TEST_F(GoldenSelfTest, ArgumentsAndEnvironmentReachTheProgram) {
  Put("args", "-o\nmy report.txt\n\n");
  Put("env", "ZKCCSID=943\nLANG=de DE\n");
  Put("expected/terminal.txt",
      "argument [quillon]\nargument [trace.txt]\nargument [-o]\nargument [my report.txt]\nargument []\n"
      "environment [ZKCCSID=943]\nenvironment [LANG=de DE]\ntime [YYYY/MM/DD hh:mm:ss.uuuuuu]\n");
  EXPECT_EQ(CheckText(), "");
}

TEST_F(GoldenSelfTest, CommandReplacesInputNameAndArguments) {
  Put("command", "other.txt\n");
  Put("expected/terminal.txt",
      "argument [quillon]\nargument [other.txt]\ntime [YYYY/MM/DD hh:mm:ss.uuuuuu]\n");
  EXPECT_EQ(CheckText(), "");
}

TEST_F(GoldenSelfTest, EmptyCommandMeansNoArguments) {
  Put("command", "");
  Remove("expected/report.txt");
  Put("expected/terminal.txt", "argument [quillon]\ntime [YYYY/MM/DD hh:mm:ss.uuuuuu]\n");
  Put("expected/status", "255\n");
  EXPECT_EQ(CheckText(), "");
}

TEST_F(GoldenSelfTest, CaseWithoutInputRunsOnAMissingFile) {
  Remove("trace.txt");
  Remove("expected/report.txt");
  Put("expected/status", "255");
  EXPECT_EQ(CheckText(), "");
}

TEST_F(GoldenSelfTest, InputNamedAsReportIsNoReport) {
  Put("args", "-o\n./trace.txt\n");
  const Complaints complaints = Check();
  ASSERT_FALSE(complaints.empty());
  EXPECT_NE(CheckText().find("the report is expected, but none was written"), std::string::npos);
}

TEST_F(GoldenSelfTest, OneCaseLeavesItsOutputAndIsAccepted) {
  Put("expected/report.txt", "old\n");
  EXPECT_EQ(Runner({"--accept", "group/good"}).status, 2) << "nothing to accept yet";
  EXPECT_EQ(Runner({"--case", "group/good"}).status, 1);
  EXPECT_EQ(ReadWholeFile(Good("actual/report.txt")), "first\nsecond\n");
  EXPECT_EQ(ReadWholeFile(Good("expected/report.txt")), "old\n");
  EXPECT_EQ(Runner({"--accept", "group/good"}).status, 0);
  EXPECT_EQ(ReadWholeFile(Good("expected/report.txt")), "first\nsecond\n");
  EXPECT_FALSE(fs::exists(Good("actual")));
  EXPECT_EQ(Runner({"--case", "group/good"}).status, 0);
}

TEST_F(GoldenSelfTest, AcceptingARunWithoutReportRemovesTheExpectedReport) {
  Put("args", "abort\n");
  EXPECT_EQ(Runner({"--case", "group/good"}).status, 1);
  EXPECT_EQ(Runner({"--accept", "group/good"}).status, 0);
  EXPECT_FALSE(fs::exists(Good("expected/report.txt")));
  EXPECT_EQ(CheckText(), "");
}

TEST_F(GoldenSelfTest, UnknownCaseFails) {
  EXPECT_EQ(Runner({"--case", "group/none"}).status, 2);
}

TEST(MaskTimeStamps, MasksWholeStampsOnly) {
  EXPECT_EQ(MaskTimeStamps("a 2024/01/02 03:04:05.678901 b 2024/01/02 03:04:05.67890"),
            "a YYYY/MM/DD hh:mm:ss.uuuuuu b 2024/01/02 03:04:05.67890");
  EXPECT_EQ(MaskTimeStamps("12024/01/02 03:04:05.678901"), "1YYYY/MM/DD hh:mm:ss.uuuuuu");
  EXPECT_EQ(MaskTimeStamps(""), "");
}

TEST(DescribeDifference, ShowsUnprintableBytes) {
  EXPECT_EQ(DescribeDifference("a\tb\n", "a\x80z\n"),
            "  first at line 1\n  expected: a\\x09b\n  actual:   a\\x80z");
}

TEST(ReportNameFor, FollowsTheProgramsRule) {
  EXPECT_EQ(ReportNameFor({"trace.txt"}), "trace_reformat.txt");
  EXPECT_EQ(ReportNameFor({"trace.log"}), "trace.log_reformat.txt");
  EXPECT_EQ(ReportNameFor({".txt"}), ".txt_reformat.txt");
  EXPECT_EQ(ReportNameFor({"trace.txt", "-o", "out.txt"}), "out.txt");
  EXPECT_EQ(ReportNameFor({"trace.txt", "-o", "-q"}), "trace_reformat.txt");
  EXPECT_EQ(ReportNameFor({"trace.txt", "-o", "-p", "auto"}), "trace_reformat.txt");
  EXPECT_EQ(ReportNameFor({"trace.txt", "-o"}), "trace_reformat.txt");
}

}  // namespace
}  // namespace quillon
