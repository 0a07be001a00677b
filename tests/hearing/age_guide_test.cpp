// The ages that a pitch is typical of, worked out by hand from the figures of the study.
#include "hearing/age_guide.h"

#include <gtest/gtest.h>

#include "hearing/procedure.h"

namespace hearing {
namespace {

TEST(AgeGuide, AtThePitchesOfTheStudy) {
  EXPECT_EQ(AgesOf(9000), (AgeRange{49, {}}));   // 18 + sqrt(20 / 0.021) = 48.9; 71.5
  EXPECT_EQ(AgesOf(10000), (AgeRange{47, 68}));  // 46.9; 18 + sqrt(60 / 0.024) = 68
  EXPECT_EQ(AgesOf(11200), (AgeRange{44, 63}));  // 44.3; 63.49
  EXPECT_EQ(AgesOf(12500), (AgeRange{37, 58}));  // 18 + (20 / 0.24)^(2/3) = 37.1; 57.7
  EXPECT_EQ(AgesOf(14000), (AgeRange{34, 51}));  // 33.7; 50.8
  EXPECT_EQ(AgesOf(16000), (AgeRange{33, 48}));  // 32.6; 48.3
}

TEST(AgeGuide, BetweenThemItIsInTheMiddle) {
  EXPECT_EQ(AgesOf(15000), (AgeRange{33, 50}));  // of 33.75 and 32.56; of 50.76 and 48.29
  EXPECT_EQ(AgesOf(13250), (AgeRange{35, 54}));  // of 37.08 and 33.75; of 57.69 and 50.76
}

TEST(AgeGuide, AboveTheStudyThereIsNoLowestAgeAndBelowItNoHighest) {
  EXPECT_EQ(AgesOf(16100), (AgeRange{{}, 48}));
  EXPECT_EQ(AgesOf(20000), (AgeRange{{}, 48}));
  EXPECT_EQ(AgesOf(8900), (AgeRange{49, {}}));
  EXPECT_EQ(AgesOf(8000), (AgeRange{49, {}}));
}

TEST(AgeGuide, AHigherPitchIsNeverTypicalOfOlderPeople) {
  AgeRange before = AgesOf(kLowestPitch);
  for (int pitch = kLowestPitch; pitch <= kHighestPitch; pitch += kPitchStep) {
    const AgeRange ages = AgesOf(pitch);
    EXPECT_LE(ages.from.value_or(0), before.from.value_or(0)) << pitch;
    EXPECT_LE(ages.to.value_or(200), before.to.value_or(200)) << pitch;
    before = ages;
  }
}

TEST(AgeGuide, ARangeHoldsItsEnds) {
  EXPECT_TRUE(Holds({33, 48}, 33));
  EXPECT_TRUE(Holds({33, 48}, 48));
  EXPECT_FALSE(Holds({33, 48}, 32));
  EXPECT_FALSE(Holds({33, 48}, 49));
  EXPECT_TRUE(Holds({{}, 48}, 5));
  EXPECT_TRUE(Holds({49, {}}, 90));
  EXPECT_FALSE(Holds({49, {}}, 48));
}

}  // namespace
}  // namespace hearing
