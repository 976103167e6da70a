// Gives saved inputs to a fuzz target without a fuzzing engine: every file of the folders that it is started
// with, each in a block of exactly its size.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using std::filesystem::path;

std::vector<path> FilesOf(const path& folder) {
  std::vector<path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.is_regular_file()) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

bool Replay(const path& file) {
  const auto size = static_cast<std::size_t>(std::filesystem::file_size(file));
  const std::unique_ptr<std::uint8_t[]> block(new std::uint8_t[size]);
  std::ifstream stream(file, std::ios::binary);
  if (!stream.read(reinterpret_cast<char*>(block.get()), static_cast<std::streamsize>(size))) return false;
  // A target that fails ends the process: the last name that was printed is that of the input.
  std::printf("%s\n", file.c_str());
  std::fflush(stdout);
  LLVMFuzzerTestOneInput(block.get(), size);
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  std::size_t replayed = 0;
  for (int i = 1; i < count; ++i) {
    const path name = arguments[i];
    const std::vector<path> files = std::filesystem::is_directory(name) ? FilesOf(name) : std::vector{name};
    for (const path& file : files) {
      if (!Replay(file)) {
        std::fprintf(stderr, "%s cannot be read\n", file.c_str());
        return 1;
      }
      ++replayed;
    }
  }
  if (replayed == 0) std::fputs("no inputs\n", stderr);
  return replayed == 0 ? 1 : 0;
}
