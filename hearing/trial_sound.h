// The sound of one trial: a moment of silence, a tone or none, and silence again. Trials with and
// without a tone are equally long.
#pragma once

#include <cstdint>
#include <vector>

namespace hearing {

inline constexpr int kLeadMs = 500;
inline constexpr int kToneMs = 800;  // with its edges
inline constexpr int kEdgeMs = 40;   // each a half period of a cosine (a raised-cosine ramp)
inline constexpr int kTailMs = 200;
inline constexpr int kTrialMs = kLeadMs + kToneMs + kTailMs;
inline constexpr std::int16_t kPeak = 3276;  // 20 dB below full scale (32767)

// The highest pitch that a test may ask of a device with so many frames per second: 0.45 of them at
// most, a multiple of 100 Hz and never above kHighestPitch.
int HighestPitchAt(std::uint32_t rate_hz);

// 16 bit stereo, left before right. `pitch_hz` is kSilence for a trial without a tone, else below
// half of `rate_hz`.
std::vector<std::int16_t> TrialSound(int pitch_hz, std::uint32_t rate_hz);

}  // namespace hearing
