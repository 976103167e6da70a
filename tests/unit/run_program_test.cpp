#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

// A caller may start a program without even its name.
TEST(RunProgram, WithoutAnyArgumentShowsTheUsageUnderTheProgramsName) {
  char* noArguments[] = {nullptr};
  testing::internal::CaptureStdout();
  EXPECT_EQ(RunProgram(0, noArguments), -1);
  const std::string terminal = testing::internal::GetCapturedStdout();
  EXPECT_EQ(terminal.find("\n*** Quillon (32-bit version)  Version 3.52 ***\n\n"
                          "\n   Syntax : Quillon  input_file [ -c ccsid ]"),
            0u)
      << terminal;
}

}  // namespace
}  // namespace quillon
