// An event of the system that a device signals, and whose callback runs from the message pump.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>

#include "platform/sound_capture.h"
#include "platform/windows/api/handles.h"
#include "platform/windows/api/message_window.h"

namespace platform::windows {

// A thread of the system waits for the event and posts a message; one is under way at most.
class WindowsCaptureEvent final : public CaptureEvent {
 public:
  // Throws base::RuntimeError kDeviceError.
  WindowsCaptureEvent(std::int32_t id, std::function<void(std::int32_t)> callback);
  ~WindowsCaptureEvent() override;
  WindowsCaptureEvent(const WindowsCaptureEvent&) = delete;
  WindowsCaptureEvent& operator=(const WindowsCaptureEvent&) = delete;

  std::int32_t Id() const override { return id_; }
  HANDLE handle() const { return event_.get(); }

 private:
  static VOID CALLBACK Signalled(PVOID self, BOOLEAN timed_out);

  std::int32_t id_;
  std::atomic<bool> posted_ = false;
  MessageWindow window_;
  KernelHandle event_;
  HANDLE wait_ = nullptr;
};

}  // namespace platform::windows
