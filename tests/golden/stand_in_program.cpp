// Stands in for the program when the golden-case runner itself is tested: says what it was given and copies
// its input to the report.

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

void SayWhatWasGiven(int argc, char** argv) {
  for (int i = 0; i < argc; ++i) std::cout << "argument [" << argv[i] << "]\n";
  for (char** variable = environ; *variable != nullptr; ++variable)
    std::cout << "environment [" << *variable << "]\n";
  std::cout << "time [2024/02/29 23:59:58.000001]\n";
}

bool CopyFile(const std::string& from, const std::string& to) {
  std::ifstream input(from, std::ios::binary);
  if (!input) return false;
  std::ofstream output(to, std::ios::binary);
  if (input.peek() != std::ifstream::traits_type::eof()) output << input.rdbuf();
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  SayWhatWasGiven(argc, argv);
  const std::string input = argc > 1 ? argv[1] : "";
  const std::string wish = argc > 2 ? argv[2] : "";
  if (wish == "abort") return -1;
  if (wish == "complain") std::cerr << "a complaint\n";
  if (wish == "stray") std::ofstream("stray.txt") << "stray\n";
  if (wish == "spoil") std::ofstream(input, std::ios::app) << "spoiled\n";
  const std::string report =
      wish == "-o" && argc > 3 ? argv[3] : std::filesystem::path(input).stem().string() + "_reformat.txt";
  return CopyFile(input, report) ? 0 : -1;
}
