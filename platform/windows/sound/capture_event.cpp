#include "platform/windows/sound/capture_event.h"

#include "base/errors.h"

namespace platform::windows {

WindowsCaptureEvent::WindowsCaptureEvent(std::int32_t id,
                                         std::function<void(std::int32_t)> callback)
    : id_(id),
      window_([this, callback = std::move(callback)](UINT) {
        posted_ = false;
        callback(id_);
      }),
      event_(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {
  if (event_ == nullptr || !RegisterWaitForSingleObject(&wait_, event_.get(), Signalled, this,
                                                        INFINITE, WT_EXECUTEINWAITTHREAD)) {
    throw base::RuntimeError(base::ErrorCode::kDeviceError);
  }
}

WindowsCaptureEvent::~WindowsCaptureEvent() {
  // Returns when no callback runs any more.
  UnregisterWaitEx(wait_, INVALID_HANDLE_VALUE);
}

VOID CALLBACK WindowsCaptureEvent::Signalled(PVOID self, BOOLEAN) {
  auto* const event = static_cast<WindowsCaptureEvent*>(self);
  if (!event->posted_.exchange(true)) PostMessageW(event->window_.handle(), WM_APP, 0, 0);
}

}  // namespace platform::windows
