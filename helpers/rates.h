// The rates that a tone can be played at, in frames per second.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "helpers/request.h"

namespace helpers {

using Rates = std::array<std::uint32_t, 4>;

// In the order in which they are wanted.
inline constexpr Rates kToneRates{44100, 96000, 192000, 48000};
inline constexpr Rates kSweepRates{96000, 192000, 48000, 44100};
inline constexpr std::uint32_t kHighestRate = 192000;

// A rate carries the pitches below half of it. A higher pitch would be heard as a lower one.
constexpr bool Carries(std::uint32_t rate_hz, std::uint32_t pitch_hz) {
  return 2 * pitch_hz < rate_hz;
}

// The lowest rate that a device is mixed at: that of a telephone headset.
inline constexpr std::uint32_t kLowestMixerRate = 8000;

// Whether the mixer's rate makes a difference to a request. Asking for it takes a fifth of the time
// from Play to the first sound.
constexpr bool DependsOnMixer(std::uint32_t request) {
  return request == kSweep || !Carries(kLowestMixerRate, request);
}

// The first rate that `open(rate_hz)` accepts, of those that serve the request. A sweep is content
// with every rate, a tone only with one that carries it. `mixer_hz` is the rate of what the stream
// is mixed into, as far as it is known (helpers/mixer.h): it must carry the tone, too, and is
// the best rate for what 44100 does not carry. Nothing where no rate is left.
template <typename Open>
std::optional<std::uint32_t> ChooseRate(std::uint32_t request,
                                        std::optional<std::uint32_t> mixer_hz, Open open) {
  const auto serves = [&](std::uint32_t rate_hz) {
    return Carries(rate_hz, request) && open(rate_hz);
  };
  const Rates& rates = request == kSweep ? kSweepRates : kToneRates;
  if (mixer_hz) {
    if (!Carries(*mixer_hz, request)) return std::nullopt;
    const bool possible = std::find(rates.begin(), rates.end(), *mixer_hz) != rates.end();
    const bool high = request == kSweep || !Carries(44100, request);
    if (possible && high && serves(*mixer_hz)) return mixer_hz;
  }
  const auto chosen = std::find_if(rates.begin(), rates.end(), serves);
  return chosen == rates.end() ? std::nullopt : std::optional(*chosen);
}

}  // namespace helpers
