// The built program in a folder of its own, and the texts that its runs have in common.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "golden/program_run.h"

namespace quillon {

namespace fs = std::filesystem;

inline constexpr const char* kTrace = "trace.txt";
inline constexpr const char* kReport = "trace_reformat.txt";
inline constexpr const char* kText = "one\ntwo\n";

struct Start {
  std::vector<std::string> arguments = {kTrace};
  std::vector<std::string> environment;
  std::string output;                     ///< where standard output goes; nothing: a file that is read back
  std::function<void()> prepare = [] {};  ///< runs in the child before the program
  std::string program = QUILLON_PROGRAM;
};

struct Ending {
  int status = 0;        ///< 128 and the signal's number when a signal ended the program
  std::string terminal;  ///< empty when the output went elsewhere
  std::string error;
  long mostMemory = 0;  ///< in KiB
};

/// A folder of its own with a trace in it, and the program to be started there.
class Program : public testing::Test {
 protected:
  /// The program may end before a test has written all of a pipe.
  Program() { std::signal(SIGPIPE, SIG_IGN); }

  fs::path Path(const std::string& name) const { return folder.Path() / name; }
  void Write(const std::string& name, const std::string& text) const { WriteWholeFile(Path(name), text); }
  std::string Read(const std::string& name) const { return ReadWholeFile(Path(name)); }
  bool Exists(const std::string& name) const { return fs::exists(Path(name)); }

  Ending Run(const Start& start) const { return Wait(start, Begin(start)); }
  Ending Run(const std::vector<std::string>& arguments = {kTrace}) const {
    Start start;
    start.arguments = arguments;
    return Run(start);
  }

  /// Starts the program and does not wait for its end.
  pid_t Begin(const Start& start) const {
    const std::string output = OutputOf(start);
    const std::string error = ErrorFile();
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("fork");
    if (child == 0) Become(start, output.c_str(), error.c_str());
    return child;
  }
  Ending Wait(const Start& start, pid_t child) const {
    int state = 0;
    rusage usage = {};
    while (wait4(child, &state, 0, &usage) < 0)
      if (errno != EINTR) throw std::runtime_error("wait4");
    Ending ending;
    ending.status = WIFSIGNALED(state) ? 128 + WTERMSIG(state) : WEXITSTATUS(state);
    ending.terminal = start.output.empty() ? MaskedOutput(OutputOf(start)) : "";
    ending.error = ReadWholeFile(ErrorFile());
    ending.mostMemory = usage.ru_maxrss;
    return ending;
  }

 private:
  std::string OutputOf(const Start& start) const {
    return start.output.empty() ? (captured.Path() / "output").string() : start.output;
  }
  std::string ErrorFile() const { return (captured.Path() / "error").string(); }

  [[noreturn]] void Become(const Start& start, const char* output, const char* error) const {
    std::vector<std::string> words = {"quillon"};
    words.insert(words.end(), start.arguments.begin(), start.arguments.end());
    std::vector<std::string> variables = start.environment;
    std::vector<char*> arguments, environment;
    for (std::string& word : words) arguments.push_back(word.data());
    for (std::string& variable : variables) environment.push_back(variable.data());
    arguments.push_back(nullptr);
    environment.push_back(nullptr);
    const int outputFile = open(output, O_WRONLY | O_CREAT, 0600);
    const int errorFile = open(error, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const rlimit time = {60, 60};
    if (outputFile < 0 || errorFile < 0 || dup2(outputFile, STDOUT_FILENO) < 0 ||
        dup2(errorFile, STDERR_FILENO) < 0 || chdir(folder.Path().c_str()) != 0 ||
        setrlimit(RLIMIT_CPU, &time) != 0)
      _exit(126);
    std::signal(SIGPIPE, SIG_DFL);
    start.prepare();
    execve(start.program.c_str(), arguments.data(), environment.data());
    _exit(127);
  }

  static std::string MaskedOutput(const std::string& file) {
    std::string text = ReadWholeFile(file);
    constexpr std::string_view end = "Process end. ";
    constexpr std::size_t stamp = sizeof("2024/03/01 09:05:00.000123") - 1;
    const std::size_t at = text.find(end);
    if (at != std::string::npos) text.replace(at + end.size(), stamp, "NOW");
    fs::remove(file);
    return text;
  }

  TemporaryFolder folder;
  TemporaryFolder captured;
};

inline std::string Header(const std::string& input, const std::string& ccsid = "0 7-bit ASCII") {
  const std::string rule = "|" + std::string(96, '-') + "\n";
  return rule +
         "|\n|   Valmora ZK API Exit (Fieldkit TR7E)\n|   Quillon (32-bit version) Version 3.52\n|\n"
         "|     Input file                   : " +
         input + "\n|     CCSID                        : " + ccsid +
         "\n|     Max length of ZKCHARV string : 400\n|\n" + rule;
}

inline const std::string kBanner = "\n*** Quillon (32-bit version)  Version 3.52 ***\n\n";

inline std::string FileError(const std::string& file, const std::string& operation,
                             const std::string& result) {
  return "File I/O error. \n  File      : " + file + "\n  Operation : " + operation +
         "\n  Result    : " + result + ".\n";
}

inline std::string Locale(const std::string& name = "C", const std::string& ccsid = "0") {
  return "Locale      : " + name + "   CCSID : " + ccsid + "\n";
}

inline std::string Files(const std::string& input, const std::string& report) {
  return "Input file  : " + input + "\nOutput file : " + report + "\nMax rec len : 100\n";
}

inline constexpr const char* kEnd = "Process end. NOW\n\n";

inline std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

}  // namespace quillon
