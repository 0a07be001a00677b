// The default sound device as a stream of small buffers.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "helpers/rates.h"
#include "helpers/tone_stream.h"
#include "platform/windows/api/handles.h"
#include "platform/windows/api/wave_out_functions.h"

namespace helpers {

// Owns the device, once opened, and its buffers: kBuffers of 50 ms each, so that sound begins at
// once and a busy machine has 200 ms of grace. 16 bit stereo.
class WaveDevice {
 public:
  WaveDevice();
  ~WaveDevice();
  WaveDevice(const WaveDevice&) = delete;
  WaveDevice& operator=(const WaveDevice&) = delete;

  // Opens it for frames at this rate, which the device or the system's mixer must take itself: the
  // converters that the system may else put between them play high pitches as lower ones. False
  // if that cannot be had; another rate may be tried then.
  bool Open(std::uint32_t rate_hz);

  // Fills every buffer that is free and plays it; how many these were. Nothing if the device
  // refuses (it was unplugged).
  std::optional<std::uint32_t> Feed(ToneStream& stream);

  // What has not been played yet is lost.
  void Close();

  // All that was fed has been played.
  bool Played() const;

  // Returns when a buffer has become free, after `timeout_ms` at the latest.
  void Wait(DWORD timeout_ms) const;

 private:
  static constexpr std::uint32_t kBuffers = 4;
  static constexpr std::uint32_t kBuffersPerSecond = 20;

  struct Buffer {
    WAVEHDR header{};
    std::array<Frame, kHighestRate / kBuffersPerSecond> frames;
  };

  bool Prepare(std::uint32_t rate_hz);

  platform::windows::WaveOutFunctions wave_out_;
  platform::windows::KernelHandle freed_;  // event: a buffer was played
  HWAVEOUT device_ = nullptr;
  std::array<Buffer, kBuffers> buffers_;
};

}  // namespace helpers
