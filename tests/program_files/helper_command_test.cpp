#include "program_files/helper_command.h"

#include <gtest/gtest.h>

namespace program_files {
namespace {

TEST(ClassicHelperCommand, QuotesTheProgram) {
  EXPECT_EQ(ClassicHelperCommand("C:\\Tonmira"), "cmd /c \"C:\\Tonmira\\play16.exe\"");
  EXPECT_EQ(ClassicHelperCommand("C:\\My Tones"), "cmd /c \"C:\\My Tones\\play16.exe\"");
}

TEST(ClassicHelperCommand, HasQuotesToSpareWhereCmdTakesAPairAway) {
  EXPECT_EQ(ClassicHelperCommand("C:\\Program Files (x86)\\T"),
            "cmd /c \"\"C:\\Program Files (x86)\\T\\play16.exe\"\"");
  for (const char c : {'&', '<', '>', '(', ')', '@', '^', '|'}) {
    EXPECT_TRUE(ClassicHelperCommand(std::string("C:\\") + c).starts_with("cmd /c \"\"C:")) << c;
  }
}

}  // namespace
}  // namespace program_files
