#include "golden/golden_case.h"

#include <sys/utsname.h>

#include <algorithm>
#include <array>
#include <set>
#include <stdexcept>

#include "golden/program_run.h"

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr const char* kAbout = "about";
constexpr const char* kInput = "trace.txt";
constexpr const char* kArguments = "args";
constexpr const char* kCommand = "command";
constexpr const char* kEnvironment = "env";
constexpr const char* kExpected = "expected";
constexpr const char* kActual = "actual";
constexpr const char* kReport = "report.txt";
constexpr const char* kTerminal = "terminal.txt";
constexpr const char* kStatus = "status";

/// The system that the cases are written for.
constexpr std::string_view kWrittenForSystem = "Linux";

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::optional<std::string> ReadIfThere(const fs::path& file) {
  if (!fs::is_regular_file(file)) return std::nullopt;
  return ReadWholeFile(file);
}

std::vector<std::string> ReadLinesIfThere(const fs::path& file) {
  const std::string text = ReadIfThere(file).value_or("");
  std::vector<std::string> lines;
  for (const std::string_view line : LinesOf(text)) lines.emplace_back(line);
  return lines;
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

/// On another system than the one the cases are written for, the places that name the local system change.
void NameLocalSystem(std::optional<std::string>& text) {
  utsname names = {};
  if (!text || uname(&names) != 0 || kWrittenForSystem == names.sysname) return;
  for (const std::string before :
       {"|  Operating system   : ", "program is running on ", "| Reformat trace program : "})
    ReplaceAll(*text, before + std::string(kWrittenForSystem), before + names.sysname);
}

bool LooksLikeCase(const fs::path& folder) {
  const std::array parts = {kAbout, kInput, kArguments, kCommand, kEnvironment, kExpected, kActual};
  return std::any_of(parts.begin(), parts.end(),
                     [&folder](const char* part) { return fs::exists(folder / part); });
}

void ComplainAboutStrangers(const fs::path& folder, const std::set<std::string>& known,
                            Complaints& complaints) {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const std::string name = entry.path().filename().string();
    if (!known.contains(name)) complaints.push_back("the case holds \"" + name + "\", which means nothing");
  }
}

void CheckAbout(const fs::path& folder, Complaints& complaints) {
  const std::optional<std::string> about = ReadIfThere(folder / kAbout);
  if (!about) {
    complaints.emplace_back("the folder has no file \"about\"");
    return;
  }
  const std::vector<std::string_view> lines = LinesOf(*about);
  if (lines.size() != 1 || lines[0].find_first_not_of(' ') == std::string_view::npos)
    complaints.emplace_back("the file \"about\" must hold one line that tells what the case shows");
}

bool IsStatus(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  return !text.empty() && text.size() <= 3 &&
         text.find_first_not_of("0123456789") == std::string_view::npos &&
         std::stoi(std::string(text)) <= 255;
}

GoldenOutput LoadExpected(const fs::path& folder, Complaints& complaints) {
  GoldenOutput expected = {ReadIfThere(folder / kReport), ReadIfThere(folder / kTerminal),
                           ReadIfThere(folder / kStatus)};
  if (!expected.terminal) complaints.emplace_back("there is no expected/terminal.txt");
  if (!expected.status) complaints.emplace_back("there is no expected/status");
  if (expected.status && !IsStatus(*expected.status))
    complaints.emplace_back("expected/status must be a decimal exit status from 0 to 255");
  if (expected.status && !expected.status->ends_with('\n')) *expected.status += '\n';
  NameLocalSystem(expected.report);
  NameLocalSystem(expected.terminal);
  return expected;
}

bool IsSwitch(std::string_view argument) {
  const std::array<std::string_view, 7> switches = {"-c", "-v", "-x", "-o", "-p", "-q", "-nc"};
  return std::find(switches.begin(), switches.end(), argument) != switches.end();
}

/// The report as the run left it. The input file is never a report, even when it was named as one.
std::optional<std::string> ReadReport(const fs::path& report, const fs::path& input) {
  if (!fs::is_regular_file(report)) return std::nullopt;
  if (fs::exists(input) && fs::equivalent(report, input)) return std::nullopt;
  return ReadWholeFile(report);
}

void CheckFolderAfterRun(const fs::path& folder, const std::set<fs::path>& allowed, Complaints& complaints) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    const fs::path name = entry.path().lexically_relative(folder);
    if (!allowed.contains(name)) complaints.push_back("the run left a file \"" + name.string() + "\"");
  }
}

void ComparePart(const char* part, const std::optional<std::string>& expected,
                 const std::optional<std::string>& actual, Complaints& complaints) {
  if (expected == actual) return;
  if (!expected)
    complaints.push_back(std::string(part) + " was written, but the case expects none");
  else if (!actual)
    complaints.push_back(std::string(part) + " is expected, but none was written");
  else
    complaints.push_back(std::string(part) + " differs\n" + DescribeDifference(*expected, *actual));
}

void WriteOrRemove(const fs::path& file, const std::optional<std::string>& content) {
  if (content)
    WriteWholeFile(file, *content);
  else
    fs::remove(file);
}

void WriteOutput(const fs::path& folder, const GoldenOutput& output) {
  fs::create_directories(folder);
  WriteOrRemove(folder / kReport, output.report);
  WriteOrRemove(folder / kTerminal, output.terminal);
  WriteOrRemove(folder / kStatus, output.status);
}

GoldenOutput RunAndCompare(const GoldenSettings& settings, const std::string& name, Complaints& complaints) {
  const GoldenCase goldenCase = LoadGoldenCase(settings.casesFolder / name, complaints);
  GoldenOutput actual = RunGoldenCase(settings.program, goldenCase, complaints);
  CompareGoldenOutput(goldenCase.expected, actual, complaints);
  return actual;
}

std::string Printable(std::string_view line) {
  constexpr std::size_t kMost = 240;
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string shown;
  for (const char c : line.substr(0, kMost)) {
    const unsigned byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte <= 0x7E)
      shown += c;
    else
      shown.append("\\x").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
  }
  return line.size() > kMost ? shown + "..." : shown;
}

std::string LineAt(const std::vector<std::string_view>& lines, std::size_t index) {
  return index < lines.size() ? Printable(lines[index]) : "(the text has ended)";
}

/// Whether a time stamp of the program's form stands at `at`: `0` in the form is any digit.
bool IsTimeStampAt(std::string_view text, std::size_t at, std::string_view form) {
  if (text.size() - at < form.size()) return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const char c = text[at + i];
    const bool digit = c >= '0' && c <= '9';
    if (form[i] == '0' ? !digit : c != form[i]) return false;
  }
  return true;
}

}  // namespace

std::vector<std::string> FindGoldenCases(const fs::path& casesFolder) {
  std::vector<std::string> names;
  if (!fs::is_directory(casesFolder)) return names;
  for (fs::recursive_directory_iterator it(casesFolder), end; it != end; ++it) {
    if (!it->is_directory()) continue;
    if (LooksLikeCase(it->path())) {
      names.push_back(it->path().lexically_relative(casesFolder).generic_string());
      it.disable_recursion_pending();
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

GoldenCase LoadGoldenCase(const fs::path& folder, Complaints& complaints) {
  GoldenCase goldenCase;
  if (!fs::is_directory(folder)) throw std::runtime_error("no such case: " + folder.string());
  ComplainAboutStrangers(folder, {kAbout, kInput, kArguments, kCommand, kEnvironment, kExpected, kActual},
                         complaints);
  CheckAbout(folder, complaints);
  if (fs::exists(folder / kCommand)) {
    goldenCase.arguments = ReadLinesIfThere(folder / kCommand);
    if (fs::exists(folder / kArguments))
      complaints.emplace_back("a case has \"args\" or \"command\", not both");
  } else {
    goldenCase.arguments = ReadLinesIfThere(folder / kArguments);
    goldenCase.arguments.insert(goldenCase.arguments.begin(), kInput);
  }
  goldenCase.environment = ReadLinesIfThere(folder / kEnvironment);
  goldenCase.input = ReadIfThere(folder / kInput);
  NameLocalSystem(goldenCase.input);
  if (fs::is_directory(folder / kExpected))
    ComplainAboutStrangers(folder / kExpected, {kReport, kTerminal, kStatus}, complaints);
  goldenCase.expected = LoadExpected(folder / kExpected, complaints);
  return goldenCase;
}

GoldenOutput RunGoldenCase(const fs::path& program, const GoldenCase& goldenCase, Complaints& complaints) {
  const TemporaryFolder folder;
  const std::string inputName = goldenCase.arguments.empty() ? kInput : goldenCase.arguments[0];
  const fs::path input = folder.Path() / inputName;
  if (goldenCase.input) WriteWholeFile(input, *goldenCase.input);

  const ProgramOutcome outcome =
      RunCommand({program, "quillon", goldenCase.arguments, goldenCase.environment}, folder.Path());

  const fs::path reportName = ReportNameFor(goldenCase.arguments);
  if (!outcome.standardError.empty())
    complaints.push_back("the program wrote to standard error\n" + outcome.standardError);
  if (goldenCase.input && ReadIfThere(input) != goldenCase.input)
    complaints.emplace_back("the run changed its input");
  CheckFolderAfterRun(folder.Path(), {fs::path(inputName).lexically_normal(), reportName.lexically_normal()},
                      complaints);
  return {ReadReport(folder.Path() / reportName, input), MaskTimeStamps(outcome.standardOutput),
          std::to_string(outcome.status) + "\n"};
}

void CompareGoldenOutput(const GoldenOutput& expected, const GoldenOutput& actual, Complaints& complaints) {
  ComparePart("the exit status", expected.status, actual.status, complaints);
  ComparePart("the terminal text", expected.terminal, actual.terminal, complaints);
  ComparePart("the report", expected.report, actual.report, complaints);
}

Complaints CheckGoldenCase(const GoldenSettings& settings, const std::string& name) {
  Complaints complaints;
  const fs::path actualFolder = settings.actualFolder / name;
  fs::remove_all(actualFolder);
  const GoldenOutput actual = RunAndCompare(settings, name, complaints);
  if (complaints.empty()) return complaints;
  WriteOutput(actualFolder, actual);
  complaints.push_back("the actual output is in " + actualFolder.string());
  return complaints;
}

Complaints TryGoldenCase(const GoldenSettings& settings, const std::string& name) {
  Complaints complaints;
  const GoldenOutput actual = RunAndCompare(settings, name, complaints);
  WriteOutput(settings.casesFolder / name / kActual, actual);
  return complaints;
}

void AcceptGoldenCase(const GoldenSettings& settings, const std::string& name) {
  const fs::path folder = settings.casesFolder / name;
  const GoldenOutput actual = {ReadIfThere(folder / kActual / kReport),
                               ReadIfThere(folder / kActual / kTerminal),
                               ReadIfThere(folder / kActual / kStatus)};
  if (!actual.terminal || !actual.status)
    throw std::runtime_error("no actual output in " + folder.string() + "; run the case with --case first");
  WriteOutput(folder / kExpected, actual);
  fs::remove_all(folder / kActual);
}

std::string MaskTimeStamps(std::string text) {
  constexpr std::string_view kForm = "0000/00/00 00:00:00.000000";
  constexpr std::string_view kMask = "YYYY/MM/DD hh:mm:ss.uuuuuu";
  for (std::size_t at = 0; at < text.size(); ++at)
    if (IsTimeStampAt(text, at, kForm)) text.replace(at, kForm.size(), kMask);
  return text;
}

std::string ReportNameFor(const std::vector<std::string>& arguments) {
  std::string name = arguments.empty() ? kInput : arguments[0];
  constexpr std::string_view kTail = ".txt";
  if (name.size() > kTail.size() && name.ends_with(kTail)) name.resize(name.size() - kTail.size());
  name += "_reformat.txt";
  for (std::size_t i = 2; i < arguments.size(); ++i)
    if (arguments[i - 1] == "-o" && !IsSwitch(arguments[i]) && !arguments[i].empty()) name = arguments[i];
  return name;
}

std::string DescribeDifference(std::string_view expected, std::string_view actual) {
  constexpr std::size_t kContext = 3;
  const std::vector<std::string_view> expectedLines = LinesOf(expected);
  const std::vector<std::string_view> actualLines = LinesOf(actual);
  const std::size_t most = std::min(expectedLines.size(), actualLines.size());
  std::size_t line = 0;
  while (line < most && expectedLines[line] == actualLines[line]) ++line;
  if (line == expectedLines.size() && line == actualLines.size()) return "  only in the line feed at the end";

  std::string text = "  first at line " + std::to_string(line + 1) + "\n";
  for (std::size_t before = line - std::min(line, kContext); before < line; ++before)
    text += "            " + LineAt(expectedLines, before) + "\n";
  text += "  expected: " + LineAt(expectedLines, line) + "\n";
  text += "  actual:   " + LineAt(actualLines, line);
  return text;
}

}  // namespace quillon
