// The golden-case runner: without switches of its own a test program with one test for each case.

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "golden/golden_case.h"

namespace quillon {
namespace {

constexpr const char* kUsage =
    "golden_runner [--gtest_...]     runs all cases (or those that the filter selects)\n"
    "golden_runner --case NAME       runs one case and leaves its output in NAME/actual\n"
    "golden_runner --accept NAME     makes NAME/actual the expectation of that case\n"
    "golden_runner --list            shows the names of the cases\n"
    "before any of these: --program FILE, --cases FOLDER, --actual FOLDER\n";

struct Invocation {
  GoldenSettings settings = {QUILLON_PROGRAM, QUILLON_CASES_FOLDER, QUILLON_ACTUAL_FOLDER};
  std::string action;
  std::string caseName;
  bool understood = true;
};

class GoldenTest : public testing::Test {
 public:
  GoldenTest(const GoldenSettings& givenSettings, const std::string& givenName)
      : settings(givenSettings), name(givenName) {}
  void TestBody() override {
    for (const std::string& complaint : CheckGoldenCase(settings, name))
      ADD_FAILURE() << name << ": " << complaint;
  }

 private:
  GoldenSettings settings;
  std::string name;
};

/// Stands for a case that cannot be one; also for a cases folder without cases.
class ComplaintTest : public testing::Test {
 public:
  explicit ComplaintTest(const std::string& givenText) : text(givenText) {}
  void TestBody() override { ADD_FAILURE() << text; }

 private:
  std::string text;
};

void RegisterComplaint(const std::string& testName, const std::string& text) {
  testing::RegisterTest("Golden", testName.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                        [text]() -> testing::Test* { return new ComplaintTest(text); });
}

bool IsNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '/';
}

void RegisterCase(const GoldenSettings& settings, const std::string& name) {
  // A test filter gives '-', '*', '?' and ':' a meaning, so a name that holds one would select no test.
  if (!std::all_of(name.begin(), name.end(), IsNameCharacter)) {
    std::string testName = name;
    std::replace_if(
        testName.begin(), testName.end(), [](char c) { return !IsNameCharacter(c); }, '_');
    RegisterComplaint(testName,
                      "the name of the case \"" + name + "\" may hold letters, digits, _ and / only");
    return;
  }
  testing::RegisterTest("Golden", name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                        [settings, name]() -> testing::Test* { return new GoldenTest(settings, name); });
}

/// Takes a switch and its value; false when there is no such switch.
bool TakeSwitch(Invocation& invocation, const std::string& name, const char* value) {
  if (name == "--program") {
    invocation.settings.program = value;
  } else if (name == "--cases") {
    invocation.settings.casesFolder = value;
  } else if (name == "--actual") {
    invocation.settings.actualFolder = value;
  } else if (name == "--case" || name == "--accept") {
    invocation.action = name;
    invocation.caseName = value;
  } else {
    return false;
  }
  return true;
}

Invocation ReadInvocation(int argc, char** argv) {
  Invocation invocation;
  for (int i = 1; i < argc && invocation.understood; ++i) {
    const std::string argument = argv[i];
    if (argument == "--list")
      invocation.action = argument;
    else if (i + 1 < argc)
      invocation.understood = TakeSwitch(invocation, argument, argv[++i]);
    else
      invocation.understood = false;
  }
  return invocation;
}

int RunAllTests(const GoldenSettings& settings) {
  const std::vector<std::string> names = FindGoldenCases(settings.casesFolder);
  for (const std::string& name : names) RegisterCase(settings, name);
  if (names.empty())
    RegisterComplaint("there_are_cases", "no cases beneath " + settings.casesFolder.string());
  const int result = RUN_ALL_TESTS();
  if (testing::GTEST_FLAG(list_tests) || result != 0) return result;
  // A filter that selects nothing must not look like success.
  return testing::UnitTest::GetInstance()->test_to_run_count() > 0 ? 0 : 1;
}

int TryOneCase(const GoldenSettings& settings, const std::string& name) {
  const Complaints complaints = TryGoldenCase(settings, name);
  for (const std::string& complaint : complaints) std::cout << name << ": " << complaint << "\n";
  std::cout << (complaints.empty() ? "passed: " : "failed: ") << name
            << "\nactual output: " << (settings.casesFolder / name / "actual").string() << "\n";
  return complaints.empty() ? 0 : 1;
}

int Perform(const Invocation& invocation) {
  if (invocation.action == "--case") return TryOneCase(invocation.settings, invocation.caseName);
  if (invocation.action == "--accept") {
    AcceptGoldenCase(invocation.settings, invocation.caseName);
    return 0;
  }
  if (invocation.action == "--list") {
    for (const std::string& name : FindGoldenCases(invocation.settings.casesFolder))
      std::cout << name << "\n";
    return 0;
  }
  return RunAllTests(invocation.settings);
}

}  // namespace
}  // namespace quillon

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const quillon::Invocation invocation = quillon::ReadInvocation(argc, argv);
  if (!invocation.understood) {
    std::cout << quillon::kUsage;
    return 2;
  }
  try {
    return quillon::Perform(invocation);
  } catch (const std::exception& problem) {
    std::cout << "golden_runner: " << problem.what() << "\n";
    return 2;
  }
}
