// Playback through DirectSound: a root object makes a device, a device makes buffers. Dropping an
// object releases it. Every call throws base::RuntimeError (57 device error) when it fails.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/wave_format.h"

namespace ui {
class WindowView;
}

namespace platform {

using base::WaveFormat;

// Flags of a DirectSound buffer and of its Play call, and the normal cooperative level, as
// documented for DirectX 8.
inline constexpr std::uint32_t kBufferControlFrequency = 0x20;
inline constexpr std::uint32_t kBufferControlVolume = 0x80;
inline constexpr std::uint32_t kBufferLooping = 1;
inline constexpr std::uint32_t kLevelNormal = 1;

class DirectSoundBuffer {
 public:
  virtual ~DirectSoundBuffer() = default;

  virtual void Play(std::uint32_t flags) = 0;
  // Silences it at once, whatever is mixed already. It and its device are of no more use then.
  virtual void Stop() = 0;

  // Frames per second.
  virtual void SetFrequency(std::uint32_t frequency) = 0;
};

class DirectSoundDevice {
 public:
  virtual ~DirectSoundDevice() = default;

  virtual void SetCooperativeLevel(ui::WindowView& window, std::uint32_t level) = 0;

  // A secondary buffer that holds `data`, whole frames of `format`.
  virtual std::unique_ptr<DirectSoundBuffer> CreateBuffer(const WaveFormat& format,
                                                          const std::string& data,
                                                          std::uint32_t flags) = 0;
};

class DirectSoundRoot {
 public:
  virtual ~DirectSoundRoot() = default;

  // The default playback device.
  virtual std::unique_ptr<DirectSoundDevice> CreateDevice() = 0;
};

class DirectSound {
 public:
  virtual ~DirectSound() = default;

  virtual std::unique_ptr<DirectSoundRoot> Create() = 0;
};

}  // namespace platform
