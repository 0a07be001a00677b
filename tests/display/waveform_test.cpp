#include "display/pictures.h"

#include <gtest/gtest.h>

#include <vector>

namespace display {
namespace {

using Samples = std::vector<std::int16_t>;
using Heights = std::vector<std::pair<double, double>>;

constexpr int kBoxTwips = 4500;  // 300 pixels

// The ends of every second line from `first` on: of one trace of a stereo drawing.
Heights TraceOf(const WaveDrawing& drawing, std::size_t first, std::size_t step = 2) {
  Heights ends;
  for (std::size_t i = first; i < drawing.lines.size(); i += step) {
    ends.emplace_back(drawing.lines[i].to.x, drawing.lines[i].to.y);
  }
  return ends;
}

TEST(Waveform, BytesAreReadAsLittleEndianSamples) {
  const std::vector<std::uint8_t> block{0x00, 0x80, 0xFF, 0x7F, 0x01, 0x00, 0xFE, 0xFF};
  EXPECT_EQ(Samples16(block), (Samples{-32768, 32767, 1, -2}));
}

TEST(Waveform, ABlockOfAnOddSizeLosesItsLastByte) {
  EXPECT_EQ(Samples16(std::vector<std::uint8_t>{0x34, 0x12, 0x56}), (Samples{0x1234}));
  EXPECT_TRUE(Samples16(std::vector<std::uint8_t>{0x34}).empty());
  EXPECT_TRUE(Samples16({}).empty());
}

TEST(Waveform, AStereoBlockOf100MsIsDrawnToItsHalfAPixelAtATime) {
  const WaveDrawing drawing = DrawSamples(Samples(8820, 0), {kBoxTwips, 1, true});
  EXPECT_EQ(drawing.right, 4409);
  EXPECT_EQ(drawing.top, 1);
  EXPECT_EQ(drawing.bottom, -1);
  // 4409 / 300 = 14.6967 samples a pixel; 300 of those steps end before sample 4407.
  const Heights upper = TraceOf(drawing, 1);
  ASSERT_EQ(upper.size(), 300u);
  EXPECT_EQ(upper[0].first, 0);
  EXPECT_EQ(upper[1].first, 14);  // 14.70: nearest 15, made even
  EXPECT_EQ(upper[2].first, 28);  // 29.39: nearest 29
  EXPECT_EQ(upper[3].first, 44);  // 44.09: nearest 44
  EXPECT_EQ(upper[150].first, 2204);
  EXPECT_EQ(upper[299].first, 4394);
}

TEST(Waveform, TheFirstChannelIsDrawnAboveAndTheSecondBelow) {
  const Samples samples{2000, -4000, 20000, 0, -20000, 20000, 0, 0, 0, 0, 0, 0, 0};
  // n = 6, and a step of 2 samples.
  const WaveDrawing drawing = DrawSamples(samples, {3 * kTwipsPerPixel, 1, true});
  EXPECT_EQ(drawing.right, 6);
  ASSERT_EQ(drawing.lines.size(), 6u);
  EXPECT_EQ(TraceOf(drawing, 0), (Heights{{0, -0.7}, {2, -0.5}, {4, 0.5}}));
  EXPECT_EQ(TraceOf(drawing, 1), (Heights{{0, 0.6}, {2, 1.5}, {4, -0.5}}));
  // Both begin at the left edge, in the middle of their half.
  EXPECT_EQ(drawing.lines[0].from.x, 0);
  EXPECT_EQ(drawing.lines[0].from.y, -0.5);
  EXPECT_EQ(drawing.lines[1].from.x, 0);
  EXPECT_EQ(drawing.lines[1].from.y, 0.5);
}

TEST(Waveform, EachLineBeginsWhereTheOneBeforeOfItsTraceEnded) {
  const Samples samples{2000, -4000, 20000, 0, -20000, 20000, 0, 0, 0, 0, 0, 0, 0};
  const WaveDrawing drawing = DrawSamples(samples, {3 * kTwipsPerPixel, 1, true});
  ASSERT_EQ(drawing.lines.size(), 6u);
  EXPECT_EQ(drawing.lines[0].from.x, 0);
  EXPECT_EQ(drawing.lines[0].from.y, -0.5);
  EXPECT_EQ(drawing.lines[1].from.y, 0.5);
  EXPECT_EQ(drawing.lines[2].from.y, -0.7);
  EXPECT_EQ(drawing.lines[3].from.y, 0.6);
  EXPECT_EQ(drawing.lines[4].from.x, 2);
  EXPECT_EQ(drawing.lines[5].from.y, 1.5);
}

TEST(Waveform, TheSensitivityMultipliesTheAmplitude) {
  const Samples samples{1000, -500, 0, 0, 0};
  const WaveDrawing drawing = DrawSamples(samples, {kTwipsPerPixel, 20, true});
  ASSERT_EQ(drawing.lines.size(), 2u);
  EXPECT_EQ(drawing.lines[0].to.y, -1.0);
  EXPECT_EQ(drawing.lines[1].to.y, 1.5);
}

TEST(Waveform, AFullScaleSampleReachesOutOfItsHalf) {
  const WaveDrawing drawing = DrawSamples(Samples{32767, -32768, 0, 0, 0}, {15, 1, true});
  ASSERT_EQ(drawing.lines.size(), 2u);
  EXPECT_DOUBLE_EQ(drawing.lines[1].to.y, 1.63835 + 0.5);
  EXPECT_DOUBLE_EQ(drawing.lines[0].to.y, -1.6384 - 0.5);
}

TEST(Waveform, AMonoBlockIsOneTraceOfAllItsSamples) {
  const Samples samples{0, 1000, -2000, 3000, -4000, 5000, 6000};
  // n = 6, a step of 1.5 samples: positions 0, 1.5 and 3, of which the whole part counts.
  const WaveDrawing drawing = DrawSamples(samples, {4 * kTwipsPerPixel, 2, false});
  EXPECT_EQ(drawing.right, 6);
  EXPECT_EQ(drawing.top, 0.5);
  EXPECT_EQ(drawing.bottom, -0.5);
  EXPECT_EQ(TraceOf(drawing, 0, 1), (Heights{{0, 0}, {1, 0.1}, {3, 0.3}}));
  EXPECT_EQ(drawing.lines[0].from.x, 0);
  EXPECT_EQ(drawing.lines[0].from.y, 0);
  EXPECT_EQ(drawing.lines[2].from.x, 1);
}

TEST(Waveform, EightBitSamplesAreDrawnUnsignedOnAScaleOf256) {
  const std::vector<std::uint8_t> samples{128, 128, 255, 0, 0, 0, 0, 0, 0};
  // n = 4, a step of 2 samples.
  const WaveDrawing stereo = DrawSamples8(samples, {2 * kTwipsPerPixel, 1, true});
  EXPECT_EQ(stereo.top, 256);
  EXPECT_EQ(stereo.bottom, -256);
  EXPECT_EQ(TraceOf(stereo, 0), (Heights{{0, -128}, {2, -256}}));
  EXPECT_EQ(TraceOf(stereo, 1), (Heights{{0, 128}, {2, 255}}));
  const WaveDrawing mono = DrawSamples8(samples, {4 * kTwipsPerPixel, 2, false});
  EXPECT_EQ(TraceOf(mono, 0, 1), (Heights{{0, 256}, {2, 510}, {4, 0}, {6, 0}}));
}

TEST(Waveform, BlocksTooShortForALineGiveNone) {
  for (std::size_t count = 0; count <= 4; ++count) {
    EXPECT_TRUE(DrawSamples(Samples(count, 9), {kBoxTwips, 1, true}).lines.empty()) << count;
  }
  EXPECT_FALSE(DrawSamples(Samples(5, 9), {kBoxTwips, 1, true}).lines.empty());
  for (std::size_t count = 0; count <= 2; ++count) {
    EXPECT_TRUE(DrawSamples(Samples(count, 9), {kBoxTwips, 1, false}).lines.empty()) << count;
  }
}

TEST(Waveform, NoBlockIsReadBeyondItsEnd) {
  for (std::size_t count = 0; count < 300; ++count) {
    for (const bool stereo : {false, true}) {
      for (const int pixels : {1, 7, 300, 1000}) {
        const Samples samples(count, 20000);
        const WaveDrawing drawing = DrawSamples(samples, {pixels * kTwipsPerPixel, 20, stereo});
        ui::Canvas canvas(pixels, 20);
        Draw(drawing, canvas);
        EXPECT_LE(drawing.lines.size(), static_cast<std::size_t>(2 * pixels));
      }
    }
  }
}

}  // namespace
}  // namespace display
