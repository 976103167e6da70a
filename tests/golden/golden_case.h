// A golden case: a folder with an input and the report, terminal text and exit status that must come of it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// What the runner works on.
struct GoldenSettings {
  std::filesystem::path program;      ///< the program under test
  std::filesystem::path casesFolder;  ///< cases lie anywhere beneath it
  std::filesystem::path
      actualFolder;  ///< where the output of failed cases goes, in folders named as the case
};

/// What a run leaves, or what is expected of it. A missing part is not there as a file.
struct GoldenOutput {
  std::optional<std::string> report;
  std::optional<std::string> terminal;  ///< time stamps masked
  std::optional<std::string> status;    ///< the decimal exit status and a line feed
};

/// What a case's folder says.
struct GoldenCase {
  std::vector<std::string> arguments;  ///< the input's name first, unless `command` says otherwise
  std::vector<std::string> environment;
  std::optional<std::string> input;  ///< nothing: the program finds no input file
  GoldenOutput expected;
};

/// Sentences for the person who reads the test's failure; none when all is well.
using Complaints = std::vector<std::string>;

/// The names (paths beneath the cases folder, with "/") of all folders that are cases or that look like a
/// case in the making, sorted.
std::vector<std::string> FindGoldenCases(const std::filesystem::path& casesFolder);

/// Reads a case's folder. Whatever is missing or not understood is added to `complaints`.
GoldenCase LoadGoldenCase(const std::filesystem::path& folder, Complaints& complaints);

/// Runs the program on the case in a fresh folder. What is wrong whatever the case expects (text on standard
/// error, a file that is not the report, a changed input) is added to `complaints`.
GoldenOutput RunGoldenCase(const std::filesystem::path& program, const GoldenCase& goldenCase,
                           Complaints& complaints);

/// Adds a complaint for every part in which the two differ.
void CompareGoldenOutput(const GoldenOutput& expected, const GoldenOutput& actual, Complaints& complaints);

/// Loads, runs and compares one case. Its actual output goes to the actual folder when there is a complaint.
Complaints CheckGoldenCase(const GoldenSettings& settings, const std::string& name);

/// The same, but the actual output always goes to the folder `actual` beside `expected`.
Complaints TryGoldenCase(const GoldenSettings& settings, const std::string& name);

/// Makes what TryGoldenCase left in `actual` the case's expectation and removes `actual`. Throws
/// std::runtime_error when there is no such output.
void AcceptGoldenCase(const GoldenSettings& settings, const std::string& name);

/// The text with every time stamp (dddd/dd/dd dd:dd:dd.dddddd) replaced by "YYYY/MM/DD hh:mm:ss.uuuuuu".
std::string MaskTimeStamps(std::string text);

/// The name of the report file for a command line, as the program chooses it.
std::string ReportNameFor(const std::vector<std::string>& arguments);

/// The first line in which two texts differ, with the lines before it.
std::string DescribeDifference(std::string_view expected, std::string_view actual);

}  // namespace quillon
