#include "base/command_line.h"

#include <gtest/gtest.h>

namespace base {
namespace {

constexpr char kProgram[] = "C:\\Program Files\\Tonmira\\tonmira.exe";

TEST(Arguments, StandBehindTheProgramsName) {
  EXPECT_EQ(Arguments("tonmira.exe C:\\a.tnf", kProgram), "C:\\a.tnf");
  EXPECT_EQ(Arguments("tonmira.exe", kProgram), "");
  EXPECT_EQ(Arguments("", kProgram), "");
  EXPECT_EQ(Arguments("tonmira \t C:\\My Tones\\a.tnf ", kProgram), "C:\\My Tones\\a.tnf ");
}

TEST(Arguments, AQuotedNameMayHoldBlanks) {
  EXPECT_EQ(Arguments("\"C:\\Program Files\\Tonmira\\tonmira.exe\" \"C:\\a b.tnf\"", kProgram),
            "\"C:\\a b.tnf\"");
  EXPECT_EQ(Arguments("C:\\\"Program Files\"\\tonmira.exe x", kProgram), "x");
}

TEST(Arguments, TheWholePathIsTheNameEvenWithBlanksAndWithoutQuotes) {
  EXPECT_EQ(Arguments("c:\\program files\\tonmira\\Tonmira.exe C:\\a b.tnf", kProgram),
            "C:\\a b.tnf");
  EXPECT_EQ(Arguments("C:\\Program Files\\Tonmira\\tonmira.exe", kProgram), "");
  EXPECT_EQ(Arguments("C:\\Program Files\\Tonmira\\tonmira.exes x", kProgram),
            "Files\\Tonmira\\tonmira.exes x");
}

TEST(InterpreterCommand, QuotesTheProgram) {
  EXPECT_EQ(InterpreterCommand("C:\\Tonmira", "play16.exe"), "cmd /c \"C:\\Tonmira\\play16.exe\"");
  EXPECT_EQ(InterpreterCommand("C:\\My Tones", "upsend.exe"),
            "cmd /c \"C:\\My Tones\\upsend.exe\"");
}

TEST(InterpreterCommand, HasQuotesToSpareWhereCmdTakesAPairAway) {
  EXPECT_EQ(InterpreterCommand("C:\\Program Files (x86)\\T", "play16.exe"),
            "cmd /c \"\"C:\\Program Files (x86)\\T\\play16.exe\"\"");
  for (const char c : {'&', '<', '>', '(', ')', '@', '^', '|'}) {
    const std::string folder = std::string("C:\\Tom ") + c;
    EXPECT_EQ(InterpreterCommand(folder, "upsend.exe"),
              "cmd /c \"\"" + folder + "\\upsend.exe\"\"");
  }
}

TEST(InterpreterCommand, KeepsOfTheFolderWhateverElseCmdActsOn) {
  for (const char c : std::string(",;='`~+[]{}#$")) {
    const std::string folder = std::string("C:\\Tom") + c + "Jerry";
    EXPECT_EQ(InterpreterCommand(folder, "upsend.exe"),
              "cmd /c \"\"" + folder + "\\upsend.exe\"\"");
  }
  EXPECT_EQ(InterpreterCommand("C:\\Zo\xC3\xAB", "play16.exe"),
            "cmd /c \"\"C:\\Zo\xC3\xAB\\play16.exe\"\"");
}

TEST(InterpreterCommand, DoesNotNameAFolderInWhichCmdWouldPutAVariable) {
  for (const std::string folder :
       {"C:\\%TEMP%\\Tonmira", "C:\\100%", "C:\\Tonmira!", "C:\\!PATH!"}) {
    EXPECT_EQ(InterpreterCommand(folder, "play16.exe"), "cmd /c .\\play16.exe");
  }
}

}  // namespace
}  // namespace base
