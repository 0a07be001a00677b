// The formula of a tone's samples, as it stands: what the fast synthesis must equal.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

namespace tone {

inline std::vector<std::int32_t> PlainSine(std::int32_t pitch_hz) {
  std::vector<std::int32_t> samples(44100);
  for (std::int32_t i = 0; i < 44100; ++i) {
    const double phase = static_cast<double>(pitch_hz * i) * 0.00014247585204429924;
    samples[static_cast<std::size_t>(i)] =
        static_cast<std::int32_t>(std::nearbyint(std::sin(phase) * 30000.0));
  }
  return samples;
}

}  // namespace tone
