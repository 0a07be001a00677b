// The samples that a tone helper plays, one after the other.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/pitches.h"
#include "helpers/rates.h"
#include "helpers/request.h"

namespace helpers {

inline constexpr std::int32_t kAmplitude = 30000;              // of 32767
inline constexpr std::uint32_t kSweepStep = base::kSweepStep;  // Hz; the sweep's first pitch, too
inline constexpr std::uint32_t kSweepStepsPerSecond = 1000 / base::kHelperStepMs;
// From the bottom to the top.
inline constexpr std::uint32_t kSweepSeconds = kHighestPitch / kSweepStep / kSweepStepsPerSecond;
inline constexpr std::uint32_t kFadesPerSecond = 200;  // a fade is 5 ms long

struct Frame {
  std::int16_t left;
  std::int16_t right;
};

// A continuous sine, or a sweep that rises by kSweepStep Hz with every step up to kHighestPitch and
// is silent from then on.
//
// The phase is an integer. At R frames per second a pitch of P Hz turns the circle by P / R per
// frame; with U the greatest common divisor of R and P (the sweep's step there), the circle has
// R / U points and a frame advances by P / U of them. So frame n of a tone is exactly point
// P * n mod R: the frequency never drifts, and there is no seam. Every point is the nearest
// integer to kAmplitude * sin. The sweep goes on from its phase when its pitch changes.
//
// A pitch that cannot be carried is silence. Sound begins and, in a sweep, ends with a fade.
class ToneStream {
 public:
  // `request` is a pitch in Hz or kSweep, `rate_hz` the stream's frames per second, one of
  // helpers/rates.h. No pitch of half of `carried_rate_hz` or more is heard; it is `rate_hz` or,
  // where that is known to be lower, the rate of what the stream is mixed into.
  ToneStream(std::uint32_t request, std::uint32_t rate_hz, std::uint32_t carried_rate_hz);

  void Fill(std::span<Frame> frames);

  // Puts a sweep at the beginning of the step that it plays this long after its own beginning; a
  // tone has no such steps.
  void SkipTo(std::uint32_t elapsed_ms);

  // The last step of a sweep is over.
  bool AtTop() const { return at_top_; }

 private:
  bool Heard(std::uint32_t pitch_hz) const;
  bool Ending() const;
  void NextStep();
  Frame Next();

  std::uint32_t rate_hz_;
  std::uint32_t carried_rate_hz_;
  bool sweep_;
  bool at_top_ = false;
  std::uint32_t pitch_hz_;
  std::uint32_t unit_hz_;  // pitch of one point per frame
  std::uint32_t points_;
  std::array<std::int16_t, kHighestRate> circle_;  // the sine at points_ phases
  std::uint32_t phase_ = 0;                        // a point of the circle
  std::uint32_t step_frames_left_;
  std::int32_t fade_frames_;
  std::int32_t gain_ = 0;  // of fade_frames_
};

}  // namespace helpers
