// One run of a program in a fresh folder with a clean environment, and what it left behind.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillon {

/// What is to be run. `arguments` does not hold the program's own name.
struct ProgramCommand {
  std::filesystem::path program;
  std::string shownName;  ///< argv[0]
  std::vector<std::string> arguments;
  std::vector<std::string> environment;  ///< the whole environment, NAME=VALUE each
};

struct ProgramOutcome {
  std::string standardOutput;
  std::string standardError;
  int status = 0;  ///< as the shell sees it: 0 to 255, 128 + n after signal n
};

/// A new, empty folder that is removed with its content at the end of the object's life.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();
  const std::filesystem::path& Path() const { return path; }

 private:
  std::filesystem::path path;
};

/// The file's bytes. Throws std::runtime_error when it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& file);

/// Writes the bytes, replacing the file. Throws std::runtime_error when it cannot be written.
void WriteWholeFile(const std::filesystem::path& file, const std::string& bytes);

/// Runs the command in `folder` with an empty standard input. Processor time and the size of written files
/// are limited, so that a program that does not end fails its case only. Throws std::runtime_error when no
/// process can be started.
ProgramOutcome RunCommand(const ProgramCommand& command, const std::filesystem::path& folder);

}  // namespace quillon
