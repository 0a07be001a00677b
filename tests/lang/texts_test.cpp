#include "lang/texts.h"

#include <gtest/gtest.h>

#include "tests/lang/file_of.h"

namespace lang {
namespace {

TEST(TextsTest, OneThatMayBeMissingStaysAsItWasAndAnyOtherIsTakenOver) {
  Texts texts;
  texts.Set(Slot::kInfo, "info");
  texts.Set(Slot::kWebPage, "web page");
  texts.Set(Slot::kUpdateTitle, "title");
  const auto file = LanguageFile::Parse(FileOf("nl", 75, {{75, ""}}), "nl");
  ASSERT_TRUE(file);
  texts.Take(*file);
  EXPECT_EQ(texts.Of(Slot::kInfo), "info");
  EXPECT_EQ(texts.Of(Slot::kWebPage), "web page");
  EXPECT_EQ(texts.Of(Slot::kNoInformation), "text 74");
  EXPECT_EQ(texts.Of(Slot::kUpdateTitle),
            "text " + std::to_string(static_cast<int>(Slot::kUpdateTitle)));
}

TEST(TextsTest, AnUncheckedTextThatIsEmptyIsTakenOver) {
  Texts texts;
  texts.Set(static_cast<Slot>(57), "old");
  const auto file = LanguageFile::Parse(FileOf("nl", 82, {{57, ""}}), "nl");
  ASSERT_TRUE(file);
  texts.Take(*file);
  EXPECT_EQ(texts.Of(static_cast<Slot>(57)), "");
}

}  // namespace
}  // namespace lang
