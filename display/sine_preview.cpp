#include "display/sine_preview.h"

#include <cmath>

#include "base/numbers.h"

namespace display {
namespace {

constexpr std::int32_t kMargin = 100;  // above and below the wave
constexpr std::int32_t kPhaseStep = 100;
constexpr std::int32_t kLastPhase = 100000;

}  // namespace

float AngularStep(std::int16_t pitch) {
  return static_cast<float>(pitch / 500.0 * 0.001);
}

std::int32_t NextPhase(std::int32_t phase) {
  return phase >= kLastPhase ? kPhaseStep : phase + kPhaseStep;
}

std::vector<TwipPoint> SineFrame(float angular_step, std::int32_t phase, TwipSize size) {
  const double amplitude = base::RoundToEven(size.height / 2.0 - kMargin);
  std::vector<TwipPoint> points;
  points.reserve(static_cast<std::size_t>(size.width) + 1);
  for (std::int32_t x = 0; x <= size.width; ++x) {
    const double angle = static_cast<double>(angular_step) * x + phase;
    const double y = base::RoundToEven(std::sin(angle) * amplitude);
    points.push_back({x, static_cast<std::int32_t>(amplitude + y) + kMargin});
  }
  return points;
}

}  // namespace display
