// frmDX_Record: records from a sound device and hands over what it recorded, half a buffer at a
// time. Never seen, so it has no window.
//
// The capture buffer is filled over and over. Three events tell where capture is: the first that
// it has begun the first half (so the second is complete), the second that it has begun the second
// half (so the first is complete), the third that it has stopped.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "base/error_trap.h"
#include "platform/platform.h"
#include "ui/window.h"

namespace display {

inline constexpr std::int16_t kFormatPcm = 1;

struct CaptureFormat {
  std::int16_t format_tag = 0;
  std::int16_t channels = 0;
  std::int32_t samples_per_second = 0;
  std::int32_t average_bytes_per_second = 0;
  std::int16_t block_alignment = 0;  // bytes of one sample of every channel
  std::int16_t bits_per_sample = 0;
};

class frmDX_Record {
 public:
  // Notifications are handled as events of `owner`.
  frmDX_Record(platform::Platform& platform, base::ErrorReporter& errors, ui::Window& owner)
      : capture_(platform.sound_capture), errors_(errors), owner_(owner) {}
  ~frmDX_Record() { Form_QueryUnload(); }
  frmDX_Record(const frmDX_Record&) = delete;
  frmDX_Record& operator=(const frmDX_Record&) = delete;

  // Bytes of one half of the buffer, bits per sample, channels.
  std::function<void(std::span<const std::uint8_t>, std::int16_t, std::int16_t)> GotWaveData;

  // Prepares recording. Without a half-buffer size (less than 1) the buffer holds two times 100 ms;
  // an empty device identifier means the default device. Returns why it failed, or nothing.
  std::string Initialize(std::int32_t samples_per_second, std::int16_t bits_per_sample,
                         std::int16_t channels, std::int32_t half_buffer_size,
                         const std::string& device);

  // Both do nothing without a buffer, and return true.
  bool SoundPlay();
  bool SoundStop();

  void UninitializeSound();

  // A notification. Unknown events, and all of them without a buffer, are ignored. Error value
  // 9901.
  void DirectXEvent8_DXCallback(std::int32_t event);

  void Form_QueryUnload() { UninitializeSound(); }

  const CaptureFormat& Format() const { return format_; }
  std::int32_t HalfBufferSize() const { return half_buffer_size_; }
  std::int32_t BufferSize() const { return buffer_size_; }

 private:
  std::string DefaultDevice();
  void SetFormat(std::int32_t samples_per_second, std::int16_t bits_per_sample,
                 std::int16_t channels);
  void SetBufferSize(std::int32_t half_buffer_size);
  void CreateBuffer();
  void CreateEvents();

  platform::SoundCapture& capture_;
  base::ErrorReporter& errors_;
  ui::Window& owner_;

  std::unique_ptr<platform::CaptureRoot> root_;
  std::unique_ptr<platform::CaptureDevice> device_;
  std::array<std::unique_ptr<platform::CaptureEvent>, 3> events_;
  std::unique_ptr<platform::CaptureBuffer> buffer_;
  CaptureFormat format_;
  std::int32_t half_buffer_size_ = 0;  // bytes
  std::int32_t buffer_size_ = 0;       // bytes
  std::array<platform::CapturePosition, 3> positions_;
};

}  // namespace display
