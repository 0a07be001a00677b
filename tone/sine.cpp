#include "tone/sine.h"

#include <cmath>

#include "base/numbers.h"

namespace tone {
namespace {

constexpr double kRadiansPerSample = 0.00014247585204429924;
constexpr double kAmplitude = 30000.0;

}  // namespace

SampleBuffer SineSecond(std::int32_t pitch_hz) {
  SampleBuffer buffer(kChannels, static_cast<std::size_t>(kSampleRate));
  for (std::int32_t i = 0; i < kSampleRate; ++i) {
    const double phase = base::MultiplyInt32(pitch_hz, i) * kRadiansPerSample;
    const auto value = static_cast<std::int32_t>(std::nearbyint(std::sin(phase) * kAmplitude));
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
      buffer.Set(channel, static_cast<std::size_t>(i), value);
    }
  }
  return buffer;
}

}  // namespace tone
