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

}  // namespace
}  // namespace base
