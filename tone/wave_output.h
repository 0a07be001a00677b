// WAV files and their playback through the system's multimedia player, and the one blocking wait.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/errors.h"
#include "platform/platform.h"
#include "tone/sine.h"

namespace tone {

class WaveOutput {
 public:
  explicit WaveOutput(platform::Platform& platform) : platform_(platform) {}

  // The image of a WAV file (tone/wave_image.h). Ends the program at once when `bits_per_sample`
  // is neither 8 nor 16. Throws base::RuntimeError kOverflow.
  std::string CreateWaveArray(const SampleBuffer& samples, std::int32_t sample_rate,
                              std::int16_t bits_per_sample);

  // Writes the image, replacing the file whole, and returns what kept it from that, if anything. A
  // file that could not be written whole is not left behind.
  std::optional<base::RuntimeError> WriteWave(const std::string& file_name,
                                              const std::string& image);

  // Starts a file without waiting for its end, in a loop if asked, or with `kill_all` stops
  // whatever is playing (the path is ignored then). Errors are ignored.
  void WavPlay(const std::string& path, bool loop_sound, bool kill_all);

  // Blocks the thread without handling messages.
  void delay(std::int16_t timems);
  void DelayUntil(platform::Moment end);

  // As delay, but messages are handled as they come until `stopped` holds; what is left then passes
  // without, so that the input that follows is left to an outer loop.
  void Pause(std::int16_t timems, const std::function<bool()>& stopped);

 private:
  platform::Platform& platform_;
};

}  // namespace tone
