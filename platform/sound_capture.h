// Recording through DirectSound capture: a root object knows the devices, a device makes a buffer,
// which is filled over and over and tells by events when it is filled up to given positions.
// Dropping an object releases it.
//
// Calls that set capture up throw base::RuntimeError when they fail: 70 permission denied where the
// user's privacy settings keep programs from recording, else 57 device error. Those of a buffer
// that was set up return false instead: a device may be unplugged at any moment.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/direct_sound.h"

namespace platform {

// Flag of a capture buffer's Start call, and the position that stands for the end of capturing, as
// documented for DirectX 8.
inline constexpr std::uint32_t kCaptureLooping = 1;
inline constexpr std::uint32_t kCaptureStopPosition = 0xFFFFFFFF;

// An event that a capture buffer signals; its callback runs from the message pump. No callback
// comes any more once the event is destroyed.
class CaptureEvent {
 public:
  virtual ~CaptureEvent() = default;

  virtual std::int32_t Id() const = 0;
};

struct CapturePosition {
  std::uint32_t offset = 0;  // bytes
  const CaptureEvent* event = nullptr;
};

class CaptureBuffer {
 public:
  virtual ~CaptureBuffer() = default;

  // The events are signalled when the position of capture passes the offsets. Only while the
  // buffer is stopped.
  virtual void SetPositions(std::span<const CapturePosition> positions) = 0;

  virtual bool Start(std::uint32_t flags) = 0;
  virtual bool Stop() = 0;

  // Fills `bytes` from the buffer, from `offset` on.
  virtual bool Read(std::uint32_t offset, std::span<std::uint8_t> bytes) = 0;
};

class CaptureDevice {
 public:
  virtual ~CaptureDevice() = default;

  virtual std::unique_ptr<CaptureBuffer> CreateBuffer(const WaveFormat& format,
                                                      std::uint32_t size_bytes) = 0;
};

class CaptureRoot {
 public:
  virtual ~CaptureRoot() = default;

  // Identifiers of the devices, the default one first.
  virtual std::vector<std::string> Devices() = 0;

  virtual std::unique_ptr<CaptureDevice> CreateDevice(const std::string& identifier) = 0;

  // `callback` is given the event's id.
  virtual std::unique_ptr<CaptureEvent> MakeEvent(std::function<void(std::int32_t)> callback) = 0;
};

class SoundCapture {
 public:
  virtual ~SoundCapture() = default;

  virtual std::unique_ptr<CaptureRoot> Create() = 0;
};

}  // namespace platform
