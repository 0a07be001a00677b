// What a WAV file holds: its PCM format and its samples.
//
// Any chunks may stand between the format and the data; a data chunk that says more than there is
// gives what there is, in whole frames.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/wave_format.h"

namespace tone {

struct WaveFile {
  base::WaveFormat format;
  std::string data;
};

// Nothing when `image` is no PCM WAV file of 8 or 16 bits, or holds no frame.
std::optional<WaveFile> ParseWaveFile(std::string_view image);

}  // namespace tone
