#include "lang/language_file.h"

#include <gtest/gtest.h>

#include "tests/lang/file_of.h"

namespace lang {
namespace {

TEST(LanguageFileTest, SixtyEightEntriesAreEnough) {
  EXPECT_TRUE(LanguageFile::Parse(FileOf("nl", 68), "nl"));
  EXPECT_FALSE(LanguageFile::Parse(FileOf("nl", 67), "nl"));
}

TEST(LanguageFileTest, UncheckedSlotsMayBeEmpty) {
  EXPECT_TRUE(LanguageFile::Parse(
      FileOf("nl", 79, {{30, ""}, {40, ""}, {48, ""}, {57, ""}, {69, ""}, {70, ""}}), "nl"));
}

TEST(LanguageFileTest, EveryCheckedSlotMustHoldAText) {
  for (std::size_t slot = 4; slot <= 68; ++slot) {
    const bool checked = slot != 30 && slot != 40 && slot != 48 && slot != 57;
    for (const char* blank : {"", "\" \""}) {
      EXPECT_EQ(LanguageFile::Parse(FileOf("nl", 79, {{slot, blank}}), "nl").has_value(), !checked)
          << slot;
    }
  }
}

TEST(LanguageFileTest, AFileOf70EntriesHasNoTextForSlot72) {
  const auto file = LanguageFile::Parse(FileOf("nl", 70), "nl");
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Text(70), "text 70");
  EXPECT_EQ(file->Text(72), "");
}

TEST(LanguageFileTest, AtMost99EntriesAreRead) {
  for (const std::size_t entries : {99u, 100u, 1000u}) {
    const auto file = LanguageFile::Parse(FileOf("nl", entries), "nl");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->Text(99), "text 99");
    EXPECT_EQ(file->Text(100), "");
  }
}

TEST(LanguageFileTest, ACommaInATextShiftsWhatFollows) {
  const auto file = LanguageFile::Parse(FileOf("nl", 79, {{10, "a, b"}}), "nl");
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Text(10), "a");
  EXPECT_EQ(file->Text(11), "b");
  EXPECT_EQ(file->Text(12), "text 11");
}

TEST(LanguageFileTest, QuotesKeepACommaInItsText) {
  const auto file = LanguageFile::Parse(FileOf("nl", 79, {{10, "\"a, b \""}}), "nl");
  ASSERT_TRUE(file);
  EXPECT_EQ(file->Text(10), "a, b ");
}

std::string WithLineEnds(std::string content, const std::string& line_end) {
  for (std::size_t at = 0; (at = content.find("\r\n", at)) != std::string::npos;
       at += line_end.size()) {
    content.replace(at, 2, line_end);
  }
  return content;
}

TEST(LanguageFileTest, LinesMayEndAsThoseOfEveryTextFile) {
  for (const char* line_end : {"\r\n", "\n", "\r"}) {
    const auto file = LanguageFile::Parse(WithLineEnds(FileOf("nl", 79), line_end), "nl");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->Text(4), "text 4");
    EXPECT_EQ(file->Text(79), "text 79");
    EXPECT_EQ(file->Text(80), "");
  }
}

TEST(LanguageFileTest, ALineEndTooManyIsAnEmptyText) {
  std::string content = FileOf("nl", 79);
  content.insert(content.find("text 50"), "\n");
  EXPECT_FALSE(LanguageFile::Parse(content, "nl"));
}

}  // namespace
}  // namespace lang
