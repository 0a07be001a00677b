#include <gtest/gtest.h>

#include "ui/typed_number.h"

namespace ui {
namespace {

void Type(TypedNumber& number, const std::u32string& keys, std::uint32_t at_ms) {
  for (const char32_t key : keys) EXPECT_TRUE(number.Press(key, at_ms));
}

TEST(TypedNumberTest, EveryDigitCountsAtOnce) {
  TypedNumber number;
  EXPECT_EQ(number.Number(), std::nullopt);
  Type(number, U"4", 100);
  EXPECT_EQ(number.Number(), 4);
  Type(number, U"4", 300);
  EXPECT_EQ(number.Number(), 44);
  Type(number, U"0", 500);
  EXPECT_EQ(number.Number(), 440);
}

TEST(TypedNumberTest, AfterAPauseTheNextDigitBeginsANewNumber) {
  TypedNumber number;
  Type(number, U"44", 1000);
  Type(number, U"1", 3000);
  EXPECT_EQ(number.Number(), 441);
  Type(number, U"7", 5001);
  EXPECT_EQ(number.Number(), 7);
}

TEST(TypedNumberTest, TheRunningTimeMayBeginAnew) {
  TypedNumber number;
  Type(number, U"4", 0xFFFFFF00);
  Type(number, U"4", 0x00000010);
  EXPECT_EQ(number.Number(), 44);
}

TEST(TypedNumberTest, BackspaceTakesTheLastDigitBack) {
  TypedNumber number;
  Type(number, U"445\b", 0);
  EXPECT_EQ(number.Number(), 44);
  Type(number, U"0", 0);
  EXPECT_EQ(number.Number(), 440);
  Type(number, U"\b\b\b\b", 0);
  EXPECT_EQ(number.Number(), std::nullopt);
}

TEST(TypedNumberTest, OtherCharactersAreNotItsOwn) {
  TypedNumber number;
  for (const char32_t key : std::u32string(U"a-+., \r\x663/:")) {
    EXPECT_FALSE(number.Press(key, 0));
  }
  EXPECT_EQ(number.Number(), std::nullopt);
}

TEST(TypedNumberTest, ALongNumberStaysANumber) {
  TypedNumber number;
  Type(number, U"99999999999999999999", 0);
  EXPECT_EQ(number.Number(), 999999999);
}

}  // namespace
}  // namespace ui
