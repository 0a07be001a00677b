#include "helpers/tone_stream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <numbers>
#include <vector>

#include "helpers/request.h"

namespace helpers {
namespace {

using Samples = std::vector<int>;

Samples Take(ToneStream& stream, std::size_t count) {
  std::vector<Frame> frames(count);
  stream.Fill(frames);
  Samples samples;
  for (const Frame& frame : frames) samples.push_back(frame.left);
  return samples;
}

std::unique_ptr<ToneStream> Stream(std::uint32_t request, std::uint32_t rate_hz) {
  return std::make_unique<ToneStream>(request, rate_hz, rate_hz);
}

int Loudest(const Samples& samples, std::size_t from, std::size_t to) {
  int loudest = 0;
  for (std::size_t i = from; i < to; ++i) loudest = std::max(loudest, std::abs(samples[i]));
  return loudest;
}

// 30000 * sin(2 pi * pitch * n / rate) without rounding: whole turns are taken off the phase, in
// integers of 64 bits, before it becomes a number with a point.
long double Sine(std::int64_t pitch_hz, std::int64_t rate_hz, std::int64_t n) {
  const long double turns = static_cast<long double>(pitch_hz * n % rate_hz) / rate_hz;
  return 30000 * std::sin(2 * std::numbers::pi_v<long double> * turns);
}

struct Tone {
  std::uint32_t pitch_hz;
  std::uint32_t rate_hz;
};

class ToneTest : public testing::TestWithParam<Tone> {};

TEST_P(ToneTest, IsTheExactSineForTenSeconds) {
  const auto [pitch_hz, rate_hz] = GetParam();
  const auto stream = Stream(pitch_hz, rate_hz);
  const std::size_t fade = rate_hz / 200;
  const Samples samples = Take(*stream, 10 * rate_hz);
  for (std::size_t n = fade; n < samples.size(); ++n) {
    const long double exact = Sine(pitch_hz, rate_hz, static_cast<std::int64_t>(n));
    ASSERT_LE(std::abs(samples[n] - exact), 0.5L + 1e-6L) << n;
  }
}

TEST_P(ToneTest, IsExactAfterAMinute) {
  const auto [pitch_hz, rate_hz] = GetParam();
  const auto stream = Stream(pitch_hz, rate_hz);
  std::vector<Frame> second(rate_hz);
  for (int i = 0; i < 60; ++i) stream->Fill(second);
  const std::int64_t begun = std::int64_t{rate_hz} * 60;
  const Samples samples = Take(*stream, rate_hz);
  for (std::size_t n = 0; n < samples.size(); ++n) {
    const long double exact = Sine(pitch_hz, rate_hz, begun + static_cast<std::int64_t>(n));
    ASSERT_LE(std::abs(samples[n] - exact), 0.5L + 1e-6L) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(Pitches, ToneTest,
                         testing::Values(Tone{2, 44100}, Tone{4, 44100}, Tone{440, 44100},
                                         Tone{1000, 44100}, Tone{10000, 44100}, Tone{10007, 44100},
                                         Tone{15000, 44100}, Tone{22049, 44100}, Tone{23000, 96000},
                                         Tone{31999, 96000}, Tone{32000, 96000},
                                         Tone{31999, 192000}, Tone{23999, 48000}));

TEST(ToneStream, KnownSamplesOf440Hz) {
  const auto stream = Stream(440, 44100);
  const Samples samples = Take(*stream, 44104);
  EXPECT_EQ(samples[0], 0);
  EXPECT_EQ(samples[44100], 0);
  EXPECT_EQ(samples[44101], 1879);
  EXPECT_EQ(samples[44102], 3752);
  EXPECT_EQ(samples[44103], 5609);
}

TEST(ToneStream, BothSidesHoldTheSame) {
  const auto stream = Stream(1234, 44100);
  std::vector<Frame> frames(44100);
  stream->Fill(frames);
  for (const Frame& frame : frames) ASSERT_EQ(frame.left, frame.right);
}

TEST(ToneStream, RisesTheExactNumberOfTimes) {
  const auto stream = Stream(10007, 44100);
  const Samples samples = Take(*stream, 44100 * 20 + 1);
  int rises = 0;
  for (std::size_t n = 1; n < samples.size(); ++n) rises += samples[n - 1] < 0 && samples[n] >= 0;
  EXPECT_EQ(rises, 200140);
}

TEST(ToneStream, IsTheSameInBuffersOfAnySize) {
  for (const std::uint32_t request : {440u, 10007u, kSweep}) {
    const Samples whole = Take(*Stream(request, 44100), 100000);
    const auto stream = Stream(request, 44100);
    Samples parts;
    for (std::size_t size = 1; parts.size() < whole.size(); size = size % 2205 + 97) {
      const Samples part = Take(*stream, std::min(size, whole.size() - parts.size()));
      parts.insert(parts.end(), part.begin(), part.end());
    }
    EXPECT_EQ(parts, whole) << request;
  }
}

TEST(ToneStream, ASweepThatLostItsDeviceGoesOnWhereItWouldBe) {
  // 5 s at 5 steps a second are 25 steps above 200 Hz: 5200 Hz, one rise for each turn.
  const auto stream = Stream(kSweep, 96000);
  stream->SkipTo(5100);
  const Samples samples = Take(*stream, 96000 / 5);
  int rises = 0;
  for (std::size_t n = 1; n < samples.size(); ++n) rises += samples[n - 1] < 0 && samples[n] >= 0;
  EXPECT_NEAR(rises, 5200 / 5, 1);
}

TEST(ToneStream, ASweepWhoseTimeIsOverIsAtItsTop) {
  const auto stream = Stream(kSweep, 96000);
  stream->SkipTo(31999);
  EXPECT_FALSE(stream->AtTop());
  stream->SkipTo(0xFFFFFFFF);
  EXPECT_TRUE(stream->AtTop());
}

TEST(ToneStream, AToneKnowsNoTime) {
  const auto stream = Stream(440, 44100);
  stream->SkipTo(5000);
  EXPECT_EQ(Take(*stream, 1000), Take(*Stream(440, 44100), 1000));
}

TEST(ToneStream, BeginsSoftly) {
  const auto stream = Stream(11025, 44100);  // a quarter turn per frame: 0, 30000, 0, -30000
  const Samples samples = Take(*stream, 230);
  EXPECT_EQ(samples[0], 0);
  EXPECT_EQ(samples[1], 136);   // 30000 * 1 / 220
  EXPECT_EQ(samples[3], -409);  // 30000 * 3 / 220
  EXPECT_EQ(samples[109], 14863);
  EXPECT_EQ(samples[219], -29863);
  EXPECT_EQ(samples[221], 30000);
  EXPECT_EQ(samples[223], -30000);
}

TEST(ToneStream, APitchThatTheRateCannotCarryIsSilence) {
  for (const std::uint32_t pitch_hz : {22050u, 23000u, 32000u}) {
    const Samples samples = Take(*Stream(pitch_hz, 44100), 44100);
    EXPECT_EQ(Loudest(samples, 0, samples.size()), 0) << pitch_hz;
  }
  const Samples samples = Take(*Stream(24000, 48000), 48000);
  EXPECT_EQ(Loudest(samples, 0, samples.size()), 0);
}

TEST(ToneStream, APitchThatTheMixerCannotCarryIsSilence) {
  const auto stream = std::make_unique<ToneStream>(23000, 96000, 44100);
  const Samples samples = Take(*stream, 96000);
  EXPECT_EQ(Loudest(samples, 0, samples.size()), 0);
}

TEST(ToneStream, AMixerOfAHigherRateChangesNothing) {
  const auto stream = std::make_unique<ToneStream>(23000, 44100, 96000);
  const Samples samples = Take(*stream, 44100);
  EXPECT_EQ(Loudest(samples, 0, samples.size()), 0);
}

TEST(ToneStream, AToneNeverEnds) {
  const auto stream = Stream(440, 44100);
  std::vector<Frame> second(44100);
  for (int i = 0; i < 40; ++i) {
    stream->Fill(second);
    ASSERT_FALSE(stream->AtTop());
  }
}

struct Sweep {
  std::uint32_t rate_hz;
  std::uint32_t carried_hz;
  std::size_t step_frames;
  int heard_steps;
};

class SweepTest : public testing::TestWithParam<Sweep> {
 protected:
  // All 160 steps and half a second more.
  static Samples Play() {
    const auto stream =
        std::make_unique<ToneStream>(kSweep, GetParam().rate_hz, GetParam().carried_hz);
    return Take(*stream, 160 * GetParam().step_frames + GetParam().rate_hz / 2);
  }
};

// Independent of the stream's way: the phase is the exact sum of 200, 400, 600, ... over the
// frames.
TEST_P(SweepTest, RisesBy200HzEvery200MsWithoutASeam) {
  const Samples samples = Play();
  const std::size_t fade = GetParam().rate_hz / 200;
  const auto heard = static_cast<std::size_t>(GetParam().heard_steps);
  std::int64_t turned = 0;  // in 1 / rate_hz turns
  for (std::size_t n = 0; n < heard * GetParam().step_frames - fade; ++n) {
    if (n >= fade) {
      const long double exact = Sine(1, GetParam().rate_hz, turned);
      ASSERT_LE(std::abs(samples[n] - exact), 0.5L + 1e-6L) << n;
    }
    turned += 200 * (1 + static_cast<std::int64_t>(n / GetParam().step_frames));
  }
}

TEST_P(SweepTest, IsSilentWhereItsPitchCannotBeCarriedAndAtTheTop) {
  const Samples samples = Play();
  const std::size_t end = static_cast<std::size_t>(GetParam().heard_steps) * GetParam().step_frames;
  // 32000 Hz at 96000 frames per second has its samples at 0 and +-25981.
  EXPECT_GT(Loudest(samples, end - GetParam().step_frames, end), 25000);
  EXPECT_EQ(Loudest(samples, end, samples.size()), 0);
}

TEST_P(SweepTest, EndsSoftly) {
  const Samples samples = Play();
  const std::size_t fade = GetParam().rate_hz / 200;
  const std::size_t end = static_cast<std::size_t>(GetParam().heard_steps) * GetParam().step_frames;
  EXPECT_LE(Loudest(samples, end - fade / 2, end), 15100);
  EXPECT_LE(Loudest(samples, end - fade / 10, end), 3100);
}

TEST_P(SweepTest, IsAtItsTopAfterItsLastFrame) {
  const auto stream =
      std::make_unique<ToneStream>(kSweep, GetParam().rate_hz, GetParam().carried_hz);
  std::vector<Frame> frames(160 * GetParam().step_frames - 1);
  stream->Fill(frames);
  EXPECT_FALSE(stream->AtTop());
  frames.resize(1);
  stream->Fill(frames);
  EXPECT_TRUE(stream->AtTop());
}

// 32000 Hz is heard at 96000 and above. Below, the last step is the one below half of the rate.
INSTANTIATE_TEST_SUITE_P(
    Rates, SweepTest,
    testing::Values(Sweep{96000, 96000, 19200, 160}, Sweep{192000, 192000, 38400, 160},
                    Sweep{48000, 48000, 9600, 119}, Sweep{44100, 44100, 8820, 110},
                    Sweep{96000, 48000, 19200, 119}, Sweep{96000, 44100, 19200, 110}));

TEST(SweepSeconds, AreTheSweepsLength) {
  EXPECT_EQ(kSweepSeconds, 32u);
}

}  // namespace
}  // namespace helpers
