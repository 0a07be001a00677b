// Tones that were put together, as tests write them.
#pragma once

#include <utility>
#include <vector>

#include "tools/tone_list.h"

namespace tools {

using Tones = std::vector<std::pair<int, int>>;  // pitch in Hz, whole length in ms

inline constexpr int kRest = 22050;

inline Tones TonesIn(const ToneList& list) {
  Tones tones;
  for (const auto& tone : list.tones()) tones.emplace_back(tone.pitch_hz, tone.duration_ms + 1);
  return tones;
}

}  // namespace tools
