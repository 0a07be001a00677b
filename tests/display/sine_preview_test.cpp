#include "display/pictures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace display {
namespace {

constexpr TwipSize kBox{4170, 1320};  // 278 x 88 pixels

TEST(SinePreview, TheAngularStepIsAFiveHundredThousandthOfThePitchInSinglePrecision) {
  EXPECT_EQ(AngularStep(1000), 0.002f);
  EXPECT_EQ(AngularStep(10000), 0.02f);
  EXPECT_EQ(AngularStep(4), 0.000008f);
  EXPECT_EQ(AngularStep(32000), 0.064f);
}

TEST(SinePreview, ThePhaseRunsInStepsOf100UpTo100000AndBeginsAgain) {
  std::int32_t phase = 0;
  std::vector<std::int32_t> phases;
  for (int frame = 0; frame < 1002; ++frame) phases.push_back(phase = NextPhase(phase));
  EXPECT_EQ(phases[0], 100);
  EXPECT_EQ(phases[1], 200);
  EXPECT_EQ(phases[998], 99900);
  EXPECT_EQ(phases[999], 100000);
  EXPECT_EQ(phases[1000], 100);
  EXPECT_EQ(phases[1001], 200);
}

TEST(SinePreview, OnePointStandsAtEveryTwipOfTheWidth) {
  const auto points = SineFrame(AngularStep(1000), 0, kBox);
  ASSERT_EQ(points.size(), 4171u);
  for (std::int32_t x = 0; x <= 4170; ++x) EXPECT_EQ(points[static_cast<std::size_t>(x)].x, x);
}

TEST(SinePreview, TheWaveKeeps100TwipsFromBothEdges) {
  // Half the height less 100: an amplitude of 560 around 660.
  const auto points = SineFrame(AngularStep(1000), 0, kBox);
  EXPECT_EQ(points[0].y, 660);
  EXPECT_EQ(points[100].y, 771);   // sin(0.2) = 0.19867
  EXPECT_EQ(points[785].y, 1220);  // a quarter period: downwards
  EXPECT_EQ(points[2356].y, 100);  // three quarters
  EXPECT_EQ(points[3141].y, 659);  // sin(6.282) = -0.0011853
}

TEST(SinePreview, ThePhaseMovesTheWave) {
  // sin(100) = -0.506366, sin(100.2) = -0.324933
  const auto points = SineFrame(AngularStep(1000), 100, kBox);
  EXPECT_EQ(points[0].y, 660 - 284);
  EXPECT_EQ(points[100].y, 660 - 182);
}

TEST(SinePreview, AnOddHeightRoundsItsAmplitudeToEven) {
  // 301 / 2 - 100 = 50.5, to even 50; 303 / 2 - 100 = 51.5, to even 52.
  const float quarter = 1.57079632679f;
  EXPECT_EQ(SineFrame(quarter, 0, {1, 301})[1].y, 200);
  EXPECT_EQ(SineFrame(quarter, 0, {1, 303})[1].y, 204);
}

TEST(SinePreview, PointsAreDrawnOnTheWholeCanvasWhateverItsResolution) {
  const std::vector<TwipPoint> points{{0, 0}, {30, 15}, {59, 29}, {60, 30}};
  for (const int scale : {1, 3}) {
    ui::Canvas canvas(4 * scale, 2 * scale);
    Draw(points, {60, 30}, canvas);
    EXPECT_EQ(canvas.At(0, 0), ui::Canvas::kForeground);
    EXPECT_EQ(canvas.At(2 * scale, scale), ui::Canvas::kForeground);
    EXPECT_EQ(canvas.At(4 * scale - 1, 2 * scale - 1), ui::Canvas::kForeground);
    EXPECT_EQ(canvas.At(4 * scale - 1, 0), ui::Canvas::kBackground);
  }
}

TEST(SinePreview, EveryPointIsThePlainFormulasAtAllPitchesAndPhases) {
  for (const int pitch : {4, 5, 440, 1000, 4500, 10000, 15000, 21000, 31999, 32000}) {
    const double step = static_cast<double>(static_cast<float>(pitch / 500.0 * 0.001));
    for (const int phase : {0, 100, 1000, 31400, 99900, 100000}) {
      const auto points = SineFrame(AngularStep(static_cast<std::int16_t>(pitch)), phase, kBox);
      for (std::int32_t x = 0; x <= kBox.width; ++x) {
        const double y = std::nearbyint(std::sin(step * x + phase) * 560);
        ASSERT_EQ(points[static_cast<std::size_t>(x)],
                  (TwipPoint{x, 660 + static_cast<std::int32_t>(y)}))
            << pitch << " " << phase;
      }
    }
  }
}

}  // namespace
}  // namespace display
