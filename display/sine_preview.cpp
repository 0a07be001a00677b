#include "display/sine_preview.h"

#include <cmath>

#include "base/numbers.h"

namespace display {
namespace {

constexpr std::int32_t kMargin = 100;  // above and below the wave
constexpr std::int32_t kPhaseStep = 100;
constexpr std::int32_t kLastPhase = 100000;

// So many points are reckoned from one sine.
constexpr std::int32_t kRun = 64;
// Far more than the error of a point at the end of a run.
constexpr double kDoubt = 1e-6;

bool IsNearTie(double y) {
  return std::abs(y - std::floor(y) - 0.5) < kDoubt;
}

}  // namespace

float AngularStep(std::int16_t pitch) {
  return static_cast<float>(pitch / 500.0 * 0.001);
}

std::int32_t NextPhase(std::int32_t phase) {
  return phase >= kLastPhase ? kPhaseStep : phase + kPhaseStep;
}

std::vector<TwipPoint> SineFrame(float angular_step, std::int32_t phase, TwipSize size) {
  const double amplitude = base::RoundToEven(size.height / 2.0 - kMargin);
  const double step = static_cast<double>(angular_step);
  const double turn_sine = std::sin(step);
  const double turn_cosine = std::cos(step);
  double sine = 0;
  double cosine = 0;
  std::vector<TwipPoint> points;
  points.reserve(static_cast<std::size_t>(size.width) + 1);
  for (std::int32_t x = 0; x <= size.width; ++x) {
    const double angle = step * x + phase;
    if (x % kRun == 0) {
      sine = std::sin(angle);
      cosine = std::cos(angle);
    } else {
      const double turned = sine * turn_cosine + cosine * turn_sine;
      cosine = cosine * turn_cosine - sine * turn_sine;
      sine = turned;
    }
    double y = sine * amplitude;
    if (IsNearTie(y)) y = std::sin(angle) * amplitude;
    points.push_back({x, static_cast<std::int32_t>(amplitude + base::RoundToEven(y)) + kMargin});
  }
  return points;
}

}  // namespace display
