// The sound of a trial, as samples.
#include "hearing/trial_sound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace hearing {
namespace {

using Samples = std::vector<std::int16_t>;

int Loudest(const Samples& samples, std::size_t from_frame, std::size_t to_frame) {
  int loudest = 0;
  for (std::size_t at = 2 * from_frame; at < 2 * to_frame; ++at) {
    loudest = std::max(loudest, std::abs(samples[at]));
  }
  return loudest;
}

// How much of a pitch is in the left channel, as an amplitude (Goertzel's sum, written out).
double AmountOf(double pitch_hz, const Samples& samples, double rate_hz) {
  double real = 0;
  double imaginary = 0;
  for (std::size_t frame = 0; frame < samples.size() / 2; ++frame) {
    const double angle =
        2 * 3.14159265358979323846 * pitch_hz * static_cast<double>(frame) / rate_hz;
    real += samples[2 * frame] * std::cos(angle);
    imaginary += samples[2 * frame] * std::sin(angle);
  }
  return 2 * std::hypot(real, imaginary) / (0.76 * rate_hz);
}

TEST(TrialSound, IsSilenceAToneAndSilence) {
  const Samples samples = TrialSound(1000, 48000);
  ASSERT_EQ(samples.size(), 2U * 72000);
  EXPECT_EQ(Loudest(samples, 0, 24000), 0);
  EXPECT_GT(Loudest(samples, 24000, 24500), 0);
  EXPECT_GT(Loudest(samples, 61900, 62400), 0);
  EXPECT_EQ(Loudest(samples, 62400, 72000), 0);
}

TEST(TrialSound, IsNeverLouderThanTwentyDecibelsBelowFullScale) {
  for (const std::uint32_t rate : {44100U, 48000U, 96000U, 192000U}) {
    for (const int pitch : {1000, 8000, 8100, 15300, 19800}) {
      const int loudest = Loudest(TrialSound(pitch, rate), 0, rate * 3 / 2);
      EXPECT_LE(loudest, 3276) << pitch << " at " << rate;
      EXPECT_GT(loudest, 2800) << pitch << " at " << rate;
    }
  }
}

TEST(TrialSound, RisesAndFallsFortyMillisecondsAlongACosine) {
  const Samples samples = TrialSound(1000, 48000);
  // 1000 Hz is at its greatest 12 frames after each of its beginnings, every 48 frames.
  constexpr std::size_t kLead = 24000;
  for (const auto& [frame, part] : {std::pair{12U, 0.0001}, std::pair{492U, 0.15336},
                                    std::pair{972U, 0.50982}, std::pair{1452U, 0.86030}}) {
    EXPECT_NEAR(samples[2 * (kLead + frame)], 3276 * part, 3276 * 0.003) << frame;
    EXPECT_NEAR(std::abs(samples[2 * (kLead + 38399 - frame)]), 3276 * part, 3276 * 0.015) << frame;
  }
  EXPECT_EQ(samples[2 * (kLead + 2028)], 3276);
}

TEST(TrialSound, IsThePitchAndNoOtherOnBothSides) {
  for (const int pitch : {1000, 8000, 12300, 19800}) {
    const Samples samples = TrialSound(pitch, 44100);
    EXPECT_NEAR(AmountOf(pitch, samples, 44100), 3276, 30) << pitch;
    EXPECT_LT(AmountOf(pitch / 2.0, samples, 44100), 3) << pitch;
    EXPECT_LT(AmountOf(pitch - 900, samples, 44100), 3) << pitch;
    for (std::size_t at = 0; at < samples.size(); at += 2) ASSERT_EQ(samples[at], samples[at + 1]);
  }
}

TEST(TrialSound, WithoutAToneIsAsLongAndSilent) {
  const Samples samples = TrialSound(0, 44100);
  EXPECT_EQ(samples.size(), TrialSound(8000, 44100).size());
  EXPECT_EQ(Loudest(samples, 0, samples.size() / 2), 0);
}

TEST(HighestPitchAt, IsNineTwentiethsOfTheRateAndAtMostTwentyThousand) {
  EXPECT_EQ(HighestPitchAt(8000), 3600);
  EXPECT_EQ(HighestPitchAt(16000), 7200);
  EXPECT_EQ(HighestPitchAt(22050), 9900);  // of 9922.5
  EXPECT_EQ(HighestPitchAt(32000), 14400);
  EXPECT_EQ(HighestPitchAt(44100), 19800);  // of 19845
  EXPECT_EQ(HighestPitchAt(44444), 19900);  // of 19999.8
  EXPECT_EQ(HighestPitchAt(44445), 20000);
  EXPECT_EQ(HighestPitchAt(48000), 20000);
  EXPECT_EQ(HighestPitchAt(4294967295U), 20000);
}

}  // namespace
}  // namespace hearing
