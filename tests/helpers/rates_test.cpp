#include "helpers/rates.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace helpers {
namespace {

TEST(Rates, CarryWhatIsBelowTheirHalf) {
  EXPECT_TRUE(Carries(44100, 22049));
  EXPECT_FALSE(Carries(44100, 22050));
  EXPECT_FALSE(Carries(44100, 32000));
  EXPECT_TRUE(Carries(48000, 23999));
  EXPECT_FALSE(Carries(48000, 24000));
  EXPECT_TRUE(Carries(96000, 32000));
}

TEST(Rates, TheMixerIsAskedForASweepAndForWhatATelephoneWouldNotCarry) {
  EXPECT_TRUE(DependsOnMixer(1));
  EXPECT_FALSE(DependsOnMixer(2));
  EXPECT_FALSE(DependsOnMixer(1000));
  EXPECT_FALSE(DependsOnMixer(3999));
  EXPECT_TRUE(DependsOnMixer(4000));
  EXPECT_TRUE(DependsOnMixer(32000));
}

struct Choice {
  std::uint32_t request;
  std::set<std::uint32_t> openable;
  std::optional<std::uint32_t> rate;
  std::optional<std::uint32_t> mixer_hz = std::nullopt;
};

class ChooseRateTest : public testing::TestWithParam<Choice> {};

TEST_P(ChooseRateTest, TakesTheBestThatOpens) {
  const auto open = [](std::uint32_t rate_hz) { return GetParam().openable.contains(rate_hz); };
  EXPECT_EQ(ChooseRate(GetParam().request, GetParam().mixer_hz, open), GetParam().rate);
}

const std::set<std::uint32_t> kAll{44100, 48000, 96000, 192000};

INSTANTIATE_TEST_SUITE_P(
    Tone, ChooseRateTest,
    testing::Values(Choice{2, kAll, 44100}, Choice{440, kAll, 44100}, Choice{22049, kAll, 44100},
                    Choice{22050, kAll, 96000}, Choice{23000, kAll, 96000},
                    Choice{32000, kAll, 96000}, Choice{23000, {44100, 192000}, 192000},
                    Choice{23000, {44100, 48000}, 48000}, Choice{24000, {44100, 48000}, {}},
                    Choice{23000, {44100}, {}}, Choice{22050, {44100}, {}},
                    Choice{32000, {44100, 48000}, {}}, Choice{440, {96000, 48000}, 96000},
                    Choice{440, {48000}, 48000}, Choice{440, {}, {}}));

INSTANTIATE_TEST_SUITE_P(Sweep, ChooseRateTest,
                         testing::Values(Choice{1, kAll, 96000},
                                         Choice{1, {44100, 48000, 192000}, 192000},
                                         Choice{1, {44100, 48000}, 48000},
                                         Choice{1, {44100}, 44100}, Choice{1, {}, {}}));

INSTANTIATE_TEST_SUITE_P(
    ToneWithAKnownMixer, ChooseRateTest,
    testing::Values(Choice{440, kAll, 44100, 48000}, Choice{440, kAll, 44100, 192000},
                    Choice{23000, kAll, 48000, 48000}, Choice{23000, kAll, 96000, 96000},
                    Choice{23000, kAll, 192000, 192000}, Choice{23000, kAll, 96000, 88200},
                    Choice{23000, {44100, 96000}, 96000, 48000},
                    Choice{23000, {44100, 96000}, {}, 44100}, Choice{22050, kAll, {}, 44100},
                    Choice{24000, kAll, {}, 48000}, Choice{10000, kAll, {}, 16000},
                    Choice{7999, kAll, 44100, 16000}));

INSTANTIATE_TEST_SUITE_P(SweepWithAKnownMixer, ChooseRateTest,
                         testing::Values(Choice{1, kAll, 44100, 44100},
                                         Choice{1, kAll, 48000, 48000},
                                         Choice{1, kAll, 192000, 192000},
                                         Choice{1, kAll, 96000, 16000},
                                         Choice{1, {44100, 96000}, 96000, 48000}));

TEST(ChooseRate, TriesNoRateThatWouldPlayALowerTone) {
  std::vector<std::uint32_t> tried;
  ChooseRate(30000, std::nullopt, [&](std::uint32_t rate_hz) {
    tried.push_back(rate_hz);
    return false;
  });
  EXPECT_EQ(tried, (std::vector<std::uint32_t>{96000, 192000}));
}

TEST(ChooseRate, OpensNoSecondRate) {
  int opened = 0;
  ChooseRate(440, std::nullopt, [&](std::uint32_t) { return ++opened > 0; });
  EXPECT_EQ(opened, 1);
}

}  // namespace
}  // namespace helpers
