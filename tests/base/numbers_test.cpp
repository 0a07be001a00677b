#include "base/numbers.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "base/errors.h"

namespace base {
namespace {

void ExpectError(ErrorCode code, const std::function<void()>& body) {
  try {
    body();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.code(), code);
  }
}

TEST(Numbers, PlacedIntoTextsCarryABlankForTheSign) {
  EXPECT_EQ(SignedNumber(440), " 440");
  EXPECT_EQ(SignedNumber(0), " 0");
  EXPECT_EQ(SignedNumber(-5), "-5");
  EXPECT_EQ(SignedNumber(2147483647), " 2147483647");
}

TEST(Numbers, BareDigitsHaveNoBlank) {
  EXPECT_EQ(BareNumber(4500), "4500");
  EXPECT_EQ(BareNumber(-1), "-1");
}

TEST(Numbers, LeadingNumberTakesTheLongestPrefix) {
  struct {
    const char* text;
    double value;
  } const cases[] = {
      {"237", 237}, {"2.3.7", 2.3},  {"  12abc", 12}, {"", 0},       {"abc", 0},
      {"-4", -4},   {"+4", 4},       {"-", 0},        {".5", 0.5},   {"5.", 5},
      {".", 0},     {"1e3", 1000},   {"1e", 1},       {"1e+", 1},    {"1d2", 100},
      {"1D2", 100}, {"1E-2x", 0.01}, {"0x10", 0},     {"12 34", 12}, {"32000.5", 32000.5},
      {"- 4", 0},   {"1,5", 1},
  };
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(LeadingNumber(c.text), c.value) << c.text;
}

TEST(Numbers, ALeadingNumberTooLargeForADoubleOverflows) {
  ExpectError(ErrorCode::kOverflow, [] { LeadingNumber("1e309"); });
}

TEST(Numbers, AWholeTextMustBeANumber) {
  EXPECT_DOUBLE_EQ(NumberFromText(" 440"), 440);
  EXPECT_DOUBLE_EQ(NumberFromText("7 "), 7);
  EXPECT_DOUBLE_EQ(NumberFromText("20.9"), 20.9);
  for (const char* text : {"", " ", "abc", "7x", "1 2", "--1", "1e", "&H10", "nan", "inf"}) {
    ExpectError(ErrorCode::kTypeMismatch, [text] { NumberFromText(text); });
  }
  ExpectError(ErrorCode::kOverflow, [] { NumberFromText("1e999"); });
}

TEST(Numbers, WholePartIsTheFloor) {
  EXPECT_EQ(WholePart(20.9), 20);
  EXPECT_EQ(WholePart(-0.5), -1);
  EXPECT_EQ(WholePart(3), 3);
}

TEST(Numbers, TiesRoundToEven) {
  EXPECT_EQ(RoundToEven(0.5), 0);
  EXPECT_EQ(RoundToEven(1.5), 2);
  EXPECT_EQ(RoundToEven(2.5), 2);
  EXPECT_EQ(RoundToEven(102.5), 102);
  EXPECT_EQ(RoundToEven(-0.5), 0);
  EXPECT_EQ(RoundToEven(-1.5), -2);
  EXPECT_EQ(RoundToEven(2.4999), 2);
  EXPECT_EQ(RoundToEven(2.5001), 3);
}

TEST(Numbers, SixteenBitsAreChecked) {
  EXPECT_EQ(ToInt16(32767.4), 32767);
  EXPECT_EQ(ToInt16(-32768.5), -32768);
  EXPECT_EQ(ToInt16(2.5), 2);
  ExpectError(ErrorCode::kOverflow, [] { ToInt16(32767.5); });
  ExpectError(ErrorCode::kOverflow, [] { ToInt16(-32769); });
  ExpectError(ErrorCode::kOverflow, [] { ToInt16(std::numeric_limits<double>::quiet_NaN()); });
}

TEST(Numbers, ThirtyTwoBitsAreChecked) {
  EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
  ExpectError(ErrorCode::kOverflow, [] { ToInt32(2147483648.0); });
  EXPECT_EQ(MultiplyInt32(32000, 44099), 1411168000);
  EXPECT_EQ(MultiplyInt32(-65536, 32768), -2147483647 - 1);
  ExpectError(ErrorCode::kOverflow, [] { MultiplyInt32(65536, 32768); });
  EXPECT_EQ(AddInt32(2147483646, 1), 2147483647);
  ExpectError(ErrorCode::kOverflow, [] { AddInt32(2147483647, 1); });
}

TEST(WithPoint, TurnsTheLocalesNumberIntoOneWithAPoint) {
  EXPECT_EQ(WithPoint("-1,5e3", ','), "-1.5e3");
  EXPECT_EQ(WithPoint("1.5", '.'), "1.5");
  EXPECT_FALSE(IsNumber(WithPoint("1.5", ',')));
  EXPECT_FALSE(IsNumber(WithPoint("1,5", '.')));
}

}  // namespace
}  // namespace base
