#include "hearing/trial_sound.h"

#include <algorithm>
#include <cmath>

#include "hearing/procedure.h"

namespace hearing {
namespace {

constexpr double kPi = 3.14159265358979323846;

std::uint32_t Frames(int milliseconds, std::uint32_t rate_hz) {
  return static_cast<std::uint32_t>(milliseconds) * rate_hz / 1000;
}

}  // namespace

int HighestPitchAt(std::uint32_t rate_hz) {
  const std::uint32_t carried = rate_hz / 20 * 9 + rate_hz % 20 * 9 / 20;
  const auto highest = static_cast<std::uint32_t>(kHighestPitch);
  return static_cast<int>(std::min(carried, highest)) / kPitchStep * kPitchStep;
}

std::vector<std::int16_t> TrialSound(int pitch_hz, std::uint32_t rate_hz) {
  const std::uint32_t lead = Frames(kLeadMs, rate_hz);
  const std::uint32_t tone = Frames(kToneMs, rate_hz);
  const std::uint32_t edge = Frames(kEdgeMs, rate_hz);
  std::vector<std::int16_t> samples(2 * std::size_t{Frames(kTrialMs, rate_hz)});
  if (pitch_hz == kSilence) return samples;
  for (std::uint32_t frame = 0; frame < tone; ++frame) {
    const std::uint32_t from_end = std::min(frame, tone - 1 - frame);
    const double rise =
        from_end < edge ? (1 - std::cos(kPi * from_end / static_cast<double>(edge))) / 2 : 1;
    const double sine = std::sin(2 * kPi * pitch_hz * frame / rate_hz);
    const auto sample = static_cast<std::int16_t>(std::lround(kPeak * rise * sine));
    const std::size_t at = 2 * (std::size_t{lead} + frame);
    samples[at] = sample;
    samples[at + 1] = sample;
  }
  return samples;
}

}  // namespace hearing
