#include "golden/program_run.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr rlim_t kProcessorSeconds = 60;
constexpr rlim_t kWrittenFileBytes = rlim_t{1} << 28;

/// Exit status of a child that could not become the program; a shell gives the same.
constexpr int kCannotExecute = 127;

[[noreturn]] void Fail(const std::string& action, const std::string& what) {
  throw std::runtime_error(action + " " + what + ": " + std::strerror(errno));
}

std::vector<char*> PointersOf(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

bool RedirectTo(int descriptor, const char* file, int flags) {
  const int opened = open(file, flags, 0600);
  return opened >= 0 && dup2(opened, descriptor) >= 0;
}

void Limit(__rlimit_resource resource, rlim_t most) {
  const rlimit limit = {most, most};
  setrlimit(resource, &limit);
}

struct ChildFiles {
  std::string output;
  std::string error;
};

[[noreturn]] void BecomeProgram(const char* program, char* const* arguments, char* const* environment,
                                const char* folder, const ChildFiles& files) {
  constexpr int kCreate = O_WRONLY | O_CREAT | O_TRUNC;
  Limit(RLIMIT_CPU, kProcessorSeconds);
  Limit(RLIMIT_FSIZE, kWrittenFileBytes);
  Limit(RLIMIT_CORE, 0);
  if (RedirectTo(STDIN_FILENO, "/dev/null", O_RDONLY) &&
      RedirectTo(STDOUT_FILENO, files.output.c_str(), kCreate) &&
      RedirectTo(STDERR_FILENO, files.error.c_str(), kCreate) && chdir(folder) == 0)
    execve(program, arguments, environment);
  _exit(kCannotExecute);
}

int WaitForStatus(pid_t child) {
  int state = 0;
  while (waitpid(child, &state, 0) < 0)
    if (errno != EINTR) Fail("waiting for", "the program");
  return WIFSIGNALED(state) ? 128 + WTERMSIG(state) : WEXITSTATUS(state);
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (fs::temp_directory_path() / "quillon-golden-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) Fail("creating", pattern);
  path = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path, ignored);
}

std::string ReadWholeFile(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Fail("reading", file.string());
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void WriteWholeFile(const fs::path& file, const std::string& bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream << bytes;
  stream.close();
  if (!stream) Fail("writing", file.string());
}

ProgramOutcome RunCommand(const ProgramCommand& command, const fs::path& folder) {
  const TemporaryFolder captured;
  const ChildFiles files = {captured.Path() / "output", captured.Path() / "error"};
  std::vector<std::string> argumentTexts = {command.shownName};
  argumentTexts.insert(argumentTexts.end(), command.arguments.begin(), command.arguments.end());
  std::vector<std::string> environmentTexts = command.environment;
  const std::vector<char*> arguments = PointersOf(argumentTexts);
  const std::vector<char*> environment = PointersOf(environmentTexts);
  const std::string program = fs::absolute(command.program).string();

  const pid_t child = fork();
  if (child < 0) Fail("starting", program);
  if (child == 0) BecomeProgram(program.c_str(), arguments.data(), environment.data(), folder.c_str(), files);
  ProgramOutcome outcome;
  outcome.status = WaitForStatus(child);
  outcome.standardOutput = ReadWholeFile(files.output);
  outcome.standardError = ReadWholeFile(files.error);
  return outcome;
}

}  // namespace quillon
