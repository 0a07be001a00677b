// Tones put together, and the file made of them.
#include "tools/tone_list.h"

#include <gtest/gtest.h>

#include <string>

#include "program_files/program_reader.h"
#include "tools/code_page.h"

namespace tools {
namespace {

using Result = ToneList::Result;

TEST(ToneListTest, TheFileIsALegalToneProgram) {
  ToneList list;
  EXPECT_EQ(list.Sound(440, 500), Result::kAdded);
  EXPECT_EQ(list.Silence(250.5), Result::kAdded);
  EXPECT_EQ(list.Sound(880, 250.5), Result::kAdded);
  EXPECT_EQ(list.File("A name"),
            "%valid%\r\n[info]\r\n{236}\r\n{A name}\r\n{visible}\r\n[sound]\r\n{1}\r\n"
            "<440>\r\n\\499\r\n<22050>\r\n\\250\r\n<880>\r\n\\249\r\n");
  EXPECT_EQ(list.LengthMs(), 1001);
  EXPECT_TRUE(program_files::ReadToneProgram(list.File("A name")).findings.empty());
}

TEST(ToneListTest, TheNameIsWrittenInTheCodePage) {
  ToneList list;
  list.Sound(440, 500);
  const auto name = [&](const char* utf8) {
    return program_files::ReadToneProgram(list.File(utf8)).program.name;
  };
  EXPECT_EQ(name("Für €5"),
            "{F\xFCr \x80"
            "5}");
  EXPECT_EQ(name("{a}\r\nb"), "{a  b}");
  EXPECT_EQ(name("日本"), "{??}");
}

TEST(ToneListTest, LengthsAtTheirLimits) {
  ToneList list;
  EXPECT_EQ(list.Sound(440, 1.4), Result::kTooShort);
  EXPECT_EQ(list.Sound(440, 2), Result::kAdded);
  EXPECT_EQ(list.Sound(880, 32001), Result::kAdded);
  EXPECT_EQ(list.tones().size(), 2u);
  EXPECT_EQ(list.tones()[1].duration_ms, 32000);
  EXPECT_EQ(list.Sound(440, 32002), Result::kAdded);
  ASSERT_EQ(list.tones().size(), 4u);
  EXPECT_EQ(list.tones()[2].duration_ms, 16000);
  EXPECT_EQ(list.tones()[3].duration_ms, 16000);
}

TEST(ToneListTest, RestsInARowAreOneUnlessTheyAreTooLong) {
  ToneList list;
  EXPECT_EQ(list.Silence(32001), Result::kAdded);
  EXPECT_EQ(list.tones().size(), 1u);
  EXPECT_EQ(list.Silence(1), Result::kAdded);
  EXPECT_EQ(list.tones().size(), 2u);
  EXPECT_EQ(list.LengthMs(), 32002);
}

TEST(ToneListTest, AtMost996Tones) {
  ToneList list;
  for (int i = 0; i < 995; ++i) EXPECT_EQ(list.Sound(440, 10), Result::kAdded);
  EXPECT_EQ(list.Sound(440, 40000), Result::kTooMany);
  EXPECT_EQ(list.Sound(440, 10), Result::kAdded);
  EXPECT_EQ(list.Sound(440, 10), Result::kTooMany);
  EXPECT_TRUE(program_files::ReadToneProgram(list.File("")).findings.empty());
}

TEST(CodePageTest, EveryByteIsACharacterAndBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(ToCodePage(FromCodePage(bytes)), bytes);
  EXPECT_EQ(FromCodePage("\x80\x93\xE9\x9F"), "€“éŸ");
  EXPECT_EQ(ToCodePage("Ω\xFF"), "??");
}

}  // namespace
}  // namespace tools
