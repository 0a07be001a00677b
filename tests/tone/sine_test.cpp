#include "tone/sine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/errors.h"

namespace tone {
namespace {

TEST(Sine, TheFirstSamplesOf440Hz) {
  const SampleBuffer buffer = SineSecond(440);
  EXPECT_EQ(buffer.channels(), 2u);
  EXPECT_EQ(buffer.samples(), 44100u);
  EXPECT_EQ(buffer.At(0, 0), 0);
  EXPECT_EQ(buffer.At(0, 1), 1879);
  EXPECT_EQ(buffer.At(1, 1), 1879);
}

TEST(Sine, BothChannelsHoldTheSame) {
  const SampleBuffer buffer = SineSecond(1234);
  for (std::size_t i = 0; i < buffer.samples(); ++i) {
    ASSERT_EQ(buffer.At(0, i), buffer.At(1, i)) << i;
  }
}

// The sine of the phase that double precision gives, in long double: so much more exact than the
// rounding needs that only a value this near to the middle of two samples would leave a doubt.
constexpr long double kDoubt = 1e-9L;

class PitchTest : public testing::TestWithParam<int> {};

TEST_P(PitchTest, EverySampleIsTheCorrectlyRoundedSine) {
  const SampleBuffer buffer = SineSecond(GetParam());
  for (int i = 0; i < 44100; ++i) {
    const double phase = static_cast<double>(GetParam() * i) * 0.00014247585204429924;
    const long double exact = std::sin(static_cast<long double>(phase)) * 30000;
    ASSERT_GT(std::abs(std::abs(exact - std::trunc(exact)) - 0.5L), kDoubt) << i;
    ASSERT_EQ(buffer.At(0, static_cast<std::size_t>(i)), std::lround(exact)) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Pitches, PitchTest,
                         testing::Values(1, 4, 5, 50, 100, 261, 440, 441, 700, 1000, 1001, 2205,
                                         4500, 7777, 10000, 11025, 15000, 16600, 19999, 21000,
                                         22050, 22051, 30000, 31999, 32000));

TEST(Sine, APitchWhoseProductLeaves32BitsOverflows) {
  EXPECT_NO_THROW(SineSecond(32000));
  EXPECT_NO_THROW(SineSecond(48696));
  try {
    SineSecond(48697);
    FAIL() << "no error";
  } catch (const base::RuntimeError& error) {
    EXPECT_EQ(error.code(), base::ErrorCode::kOverflow);
  }
}

}  // namespace
}  // namespace tone
