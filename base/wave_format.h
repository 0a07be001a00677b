// The format of PCM sound, as the format block of a WAV file says it.
#pragma once

#include <cstdint>

namespace base {

struct WaveFormat {
  std::int32_t sample_rate = 0;  // frames per second
  std::int16_t channels = 0;
  std::int16_t bits_per_sample = 0;
};

}  // namespace base
