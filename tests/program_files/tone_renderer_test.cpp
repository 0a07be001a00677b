#include "program_files/tone_renderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tone/wave_image.h"

namespace program_files {
namespace {

using Samples = std::vector<std::int16_t>;

ToneProgram ProgramOf(std::int16_t extra_time_ms, std::vector<Tone> tones) {
  ToneProgram program;
  program.extra_time_ms = extra_time_ms;
  program.tones = std::move(tones);
  return program;
}

std::int64_t FramesOf(std::int16_t extra_time_ms, std::vector<Tone> tones) {
  const ToneProgram program = ProgramOf(extra_time_ms, std::move(tones));
  const auto rendered = static_cast<std::int64_t>(RenderProgram(program).size() / 2);
  EXPECT_EQ(ToneRenderer(program).Frames(), rendered);
  return rendered;
}

// One channel of frames `first` to `first` + `count` - 1; both channels are the same.
Samples Frames(const Samples& samples, std::size_t first, std::size_t count) {
  Samples frames;
  for (std::size_t frame = first; frame < first + count; ++frame) {
    EXPECT_EQ(samples.at(2 * frame), samples.at(2 * frame + 1));
    frames.push_back(samples.at(2 * frame));
  }
  return frames;
}

TEST(ToneRenderer, AToneLasts44Point1FramesAMillisecondToTheNearestFrame) {
  EXPECT_EQ(FramesOf(1, {{440, 0}}), 44);               // 44.1
  EXPECT_EQ(FramesOf(1, {{440, 1}}), 88);               // 88.2
  EXPECT_EQ(FramesOf(1, {{440, 4}}), 221);              // 220.5
  EXPECT_EQ(FramesOf(2, {{440, 4}}), 265);              // 264.6
  EXPECT_EQ(FramesOf(10, {{440, 990}}), 44100);         // a second
  EXPECT_EQ(FramesOf(32000, {{440, 32000}}), 2822400);  // 64 seconds
}

TEST(ToneRenderer, RoundingDoesNotAddUp) {
  EXPECT_EQ(FramesOf(1, std::vector<Tone>(10, {440, 0})), 441);
  EXPECT_EQ(FramesOf(1, std::vector<Tone>(996, {440, 0})), 43924);  // 43923.6
}

// 11025 Hz is a quarter of the sampling rate, so a tone begins 0, 30000, 0, -30000.
TEST(ToneRenderer, EveryToneBeginsAtItsBorder) {
  const Samples samples = RenderProgram(ProgramOf(1, std::vector<Tone>(10, {11025, 0})));
  const std::vector<std::size_t> borders{0, 44, 88, 132, 176, 221, 265, 309, 353, 397};
  for (const std::size_t border : borders) {
    EXPECT_EQ(Frames(samples, border, 4), (Samples{0, 30000, 0, -30000})) << border;
  }
  // 221 frames lie before the sixth tone: 44 more than those before the fifth would put it on 220.
  EXPECT_EQ(Frames(samples, 219, 3), (Samples{-30000, 0, 0}));
}

// By hand: 30000 * sin(440 * n * 0.00014247585204429924), and so on.
TEST(ToneRenderer, TheSamplesAreThoseOfTheSine) {
  const Samples samples = RenderProgram(ProgramOf(10, {{440, 990}, {32000, 10}, {2, 10}}));
  ASSERT_EQ(samples.size(), 2u * (44100 + 882 + 882));
  EXPECT_EQ(Frames(samples, 0, 8), (Samples{0, 1879, 3752, 5609, 7444, 9250, 11020, 12746}));
  EXPECT_EQ(Frames(samples, 44098, 2), (Samples{-3755, -1883}));
  EXPECT_EQ(Frames(samples, 44100, 4), (Samples{0, -29649, 9047, 26888}));
  EXPECT_EQ(Frames(samples, 44982, 4), (Samples{0, 9, 17, 26}));
}

// By the 44098th sample the quarter wave has drifted to 77; the loop begins again at 0.
TEST(ToneRenderer, ALongToneIsItsSecondLooped) {
  const Samples samples = RenderProgram(ProgramOf(500, {{11025, 2000}}));
  ASSERT_EQ(samples.size(), 2u * 110250);
  EXPECT_EQ(Frames(samples, 44098, 5), (Samples{77, -30000, 0, 30000, 0}));
  EXPECT_EQ(Frames(samples, 88198, 5), (Samples{77, -30000, 0, 30000, 0}));
}

TEST(ToneRenderer, TheSamplesAreThoseOfTheGeneratedWaveFile) {
  const std::string image = tone::WaveImage(tone::SineSecond(4711), 44100, 16);
  const Samples samples = RenderProgram(ProgramOf(10, {{4711, 1990}}));
  std::string bytes;
  for (const std::int16_t sample : samples) {
    bytes += static_cast<char>(sample & 0xFF);
    bytes += static_cast<char>(sample >> 8);
  }
  const std::string second = image.substr(tone::kWaveHeaderBytes);
  EXPECT_TRUE(bytes == second + second);
}

TEST(ToneRenderer, PiecesOfAnySizeMakeTheSameWhole) {
  const ToneProgram program = ProgramOf(3, {{440, 1200}, {440, 2}, {31999, 70}, {0, 0}, {5, 1}});
  const Samples whole = RenderProgram(program);
  for (const std::size_t frames : {1u, 7u, 441u, 44099u, 44101u, 100000u}) {
    ToneRenderer renderer(program);
    Samples piece(2 * frames, 1234);
    Samples all;
    while (const std::size_t count = renderer.Render(piece)) {
      all.insert(all.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(2 * count));
    }
    EXPECT_TRUE(all == whole) << frames;
    EXPECT_EQ(renderer.Render(piece), 0u);
  }
}

TEST(ToneRenderer, WhatIsNotRenderedIsNotTouched) {
  ToneRenderer renderer(ProgramOf(1, {{11025, 0}}));
  Samples samples(2 * 50, 1234);
  EXPECT_EQ(renderer.Render(samples), 44u);
  EXPECT_EQ(Frames(samples, 42, 4), (Samples{0, -30000, 1234, 1234}));
}

TEST(ToneRenderer, AProgramWithoutTonesIsSilentForTheExtraTime) {
  const Samples samples = RenderProgram(ProgramOf(50, {}));
  EXPECT_EQ(samples, Samples(2 * 2205, 0));
}

TEST(ToneRenderer, TonesWithoutLengthHaveNoFrames) {
  EXPECT_EQ(FramesOf(0, {{440, 0}, {880, 0}}), 0);
  EXPECT_EQ(FramesOf(0, {{440, 0}, {11025, 10}, {880, 0}}), 441);
}

Samples Smoothed(const ToneProgram& program, std::size_t piece_frames) {
  ToneRenderer renderer(program, ToneRenderer::Edges::kSmooth);
  Samples piece(2 * piece_frames);
  Samples all;
  while (const std::size_t count = renderer.Render(piece)) {
    all.insert(all.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(2 * count));
  }
  return all;
}

// A quarter wave, so that every other sample is a peak: by hand, 30000 * (1 - cos(pi * (n + 0.5) /
// 220)) / 2 for the peaks n = 1, 3, 109 and 111 from either end.
TEST(ToneRenderer, SmoothEdgesRiseAndFallByHalfAWaveOfACosine) {
  const ToneProgram program = ProgramOf(10, {{11025, 90}});
  const Samples samples = Smoothed(program, 1000);
  ASSERT_EQ(samples.size(), 2u * 4410);
  EXPECT_EQ(Frames(samples, 0, 4), (Samples{0, 3, 0, -19}));
  EXPECT_EQ(Frames(samples, 109, 3), (Samples{14893, 0, -15321}));
  EXPECT_EQ(Frames(samples, 219, 3), (Samples{-30000, 0, 30000}));
  EXPECT_EQ(Frames(samples, 4188, 3), Frames(RenderProgram(program), 4188, 3));
  EXPECT_EQ(std::abs(samples[2 * 4409]), 0);
  EXPECT_LT(std::abs(samples[2 * 4407]), 30);
}

TEST(ToneRenderer, SmoothEdgesOfAShortToneMeetInItsMiddle) {
  const Samples samples = Smoothed(ProgramOf(1, {{11025, 4}, {11025, 4}}), 1000);
  ASSERT_EQ(samples.size(), 2u * 441);
  EXPECT_LT(std::abs(samples[2 * 1]), 30);
  EXPECT_GT(std::abs(samples[2 * 109]), 29000);
  EXPECT_LT(std::abs(samples[2 * 219]), 30);
  EXPECT_LT(std::abs(samples[2 * 222]), 30);
}

TEST(ToneRenderer, SmoothPiecesOfAnySizeMakeTheSameWhole) {
  const ToneProgram program = ProgramOf(3, {{440, 120}, {440, 2}, {31999, 70}, {0, 0}});
  const Samples whole = Smoothed(program, 100000);
  for (const std::size_t frames : {1u, 7u, 441u}) {
    EXPECT_TRUE(Smoothed(program, frames) == whole) << frames;
  }
}

TEST(ToneRenderer, TheLongestProgramLastsAlmost18Hours) {
  const ToneRenderer renderer(ProgramOf(32000, std::vector<Tone>(996, {440, 32000})));
  EXPECT_EQ(renderer.LengthMs(), 63744000);
  EXPECT_EQ(renderer.Frames(), 2811110400);
}

}  // namespace
}  // namespace program_files
