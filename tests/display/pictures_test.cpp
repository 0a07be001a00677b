// What is drawn, as pictures.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "display/pictures.h"
#include "display/sine_preview.h"
#include "display/waveform.h"
#include "tests/ui/checked_picture.h"

namespace display {
namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr int kMicrophoneWidth = 242;  // pixels at 96 DPI, as in the main window
constexpr int kSineWidth = 278;
constexpr int kHeight = 88;

// 100 ms of stereo with a tone on each channel.
std::vector<std::int16_t> Block(double left_hz, double right_hz, double amplitude) {
  std::vector<std::int16_t> samples;
  for (int frame = 0; frame < 4410; ++frame) {
    for (const double hz : {left_hz, right_hz}) {
      samples.push_back(
          static_cast<std::int16_t>(amplitude * std::sin(kTwoPi * hz * frame / 44100)));
    }
  }
  return samples;
}

void ExpectWave(const std::string& name, const std::vector<std::int16_t>& samples, int sensitivity,
                bool stereo, double scale = 1) {
  ui::Canvas canvas(static_cast<int>(kMicrophoneWidth * scale), static_cast<int>(kHeight * scale));
  const WaveView view{kMicrophoneWidth * kTwipsPerPixel, sensitivity, stereo};
  Draw(DrawSamples(samples, view), canvas);
  ui::ExpectPicture(canvas, TONMIRA_PICTURES, name);
}

void ExpectSine(const std::string& name, std::int16_t pitch, std::int32_t phase, double scale = 1) {
  ui::Canvas canvas(static_cast<int>(kSineWidth * scale), static_cast<int>(kHeight * scale));
  const TwipSize size{kSineWidth * kTwipsPerPixel, kHeight * kTwipsPerPixel};
  Draw(SineFrame(AngularStep(pitch), phase, size), size, canvas);
  ui::ExpectPicture(canvas, TONMIRA_PICTURES, name);
}

TEST(Pictures, TwoTonesOneAboveTheOther) {
  ExpectWave("tones", Block(500, 1500, 8000), 1, true);
  ExpectWave("tones-144dpi", Block(500, 1500, 8000), 1, true, 1.5);
}

TEST(Pictures, SilenceIsTwoFlatLines) {
  ExpectWave("silence", Block(0, 0, 0), 20, true);
}

TEST(Pictures, LoudInputLeavesItsHalf) {
  ExpectWave("loud", Block(100, 200, 32767), 1, true);
  ExpectWave("louder", Block(100, 0, 32767), 20, true);
}

TEST(Pictures, AMonoBlockIsOneTraceInTheMiddle) {
  ExpectWave("mono", Block(100, 100, 8000), 1, false);
}

TEST(Pictures, TheSinePreview) {
  ExpectSine("sine-1000", 1000, 0);
  ExpectSine("sine-10000", 10000, 100);
  ExpectSine("sine-10000-144dpi", 10000, 100, 1.5);
  ExpectSine("sine-4", 4, 0);
  ExpectSine("sine-32000", 32000, 0);
}

}  // namespace
}  // namespace display
