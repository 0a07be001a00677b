#include "helpers/tone_stream.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "helpers/rates.h"
#include "helpers/request.h"

namespace helpers {
namespace {

std::int16_t SineAt(std::uint32_t point, std::uint32_t points) {
  const double angle = 2 * std::numbers::pi * point / points;
  return static_cast<std::int16_t>(std::lround(kAmplitude * std::sin(angle)));
}

}  // namespace

ToneStream::ToneStream(std::uint32_t request, std::uint32_t rate_hz, std::uint32_t carried_rate_hz)
    : rate_hz_(rate_hz),
      carried_rate_hz_(std::min(rate_hz, carried_rate_hz)),
      sweep_(request == kSweep),
      pitch_hz_(sweep_ ? kSweepStep : request),
      unit_hz_(std::gcd(pitch_hz_, rate_hz)),
      points_(rate_hz / unit_hz_),
      step_frames_left_(rate_hz / kSweepStepsPerSecond),
      fade_frames_(static_cast<std::int32_t>(rate_hz / kFadesPerSecond)) {
  for (std::uint32_t i = 0; i < points_; ++i) circle_[i] = SineAt(i, points_);
}

void ToneStream::Fill(std::span<Frame> frames) {
  for (Frame& frame : frames) frame = Next();
}

void ToneStream::SkipTo(std::uint32_t elapsed_ms) {
  if (!sweep_) return;
  const std::uint32_t steps =
      elapsed_ms / 1000 * kSweepStepsPerSecond + elapsed_ms % 1000 * kSweepStepsPerSecond / 1000;
  for (std::uint32_t step = 0; step < steps && !at_top_; ++step) NextStep();
}

bool ToneStream::Heard(std::uint32_t pitch_hz) const {
  return !at_top_ && pitch_hz <= kHighestPitch && Carries(carried_rate_hz_, pitch_hz);
}

// The last moments of the sweep's last step that is heard.
bool ToneStream::Ending() const {
  return sweep_ && step_frames_left_ <= static_cast<std::uint32_t>(fade_frames_) &&
         !Heard(pitch_hz_ + kSweepStep);
}

void ToneStream::NextStep() {
  if (pitch_hz_ == kHighestPitch) {
    at_top_ = true;
    return;
  }
  pitch_hz_ += kSweepStep;
  step_frames_left_ = rate_hz_ / kSweepStepsPerSecond;
}

Frame ToneStream::Next() {
  if (!Heard(pitch_hz_)) gain_ = 0;
  const auto value = static_cast<std::int16_t>(circle_[phase_] * gain_ / fade_frames_);
  phase_ += pitch_hz_ / unit_hz_;
  if (phase_ >= points_) phase_ -= points_;
  gain_ = Ending() ? std::max(gain_ - 1, 0) : std::min(gain_ + 1, fade_frames_);
  if (sweep_ && !at_top_ && --step_frames_left_ == 0) NextStep();
  return {value, value};
}

}  // namespace helpers
