// The rows of the languages.
#include "lang/languages.h"

#include <gtest/gtest.h>

#include <array>

namespace lang {
namespace {

TEST(LanguagesTest, ALanguageIsFoundByItsCode) {
  std::array<Language, 2> rows;
  rows[0].code = "en";
  rows[1].code = "fr";
  EXPECT_EQ(Find(rows, "en"), &rows[0]);
  EXPECT_EQ(Find(rows, "fr"), &rows[1]);
  EXPECT_EQ(Find(rows, "nl"), nullptr);
  EXPECT_EQ(Find(rows, ""), nullptr);
}

TEST(LanguagesTest, TheWindowsAreDesignedInTheFirstOfThoseThatShip) {
  ASSERT_EQ(ShippedLanguages().size(), 2u);
  EXPECT_EQ(ShippedLanguages()[0].code, "en");
  EXPECT_EQ(ShippedLanguages()[1].code, "nl");
}

TEST(LanguagesTest, EveryLanguageButThatOfTheDesignIsATranslation) {
  EXPECT_FALSE(IsTranslated("en"));
  EXPECT_FALSE(IsTranslated(""));
  EXPECT_TRUE(IsTranslated("nl"));
  EXPECT_TRUE(IsTranslated("fr"));
}

}  // namespace
}  // namespace lang
