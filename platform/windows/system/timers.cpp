#include "platform/windows/system/timers.h"

#include <utility>

#include "base/errors.h"
#include "platform/windows/api/message_window.h"

namespace platform::windows {
namespace {

constexpr UINT_PTR kTimerId = 1;

class WindowTimer final : public Timer {
 public:
  WindowTimer(int period_ms, std::function<void()> tick)
      : window_([tick = std::move(tick)](UINT) { tick(); }) {
    if (SetTimer(window_.handle(), kTimerId, static_cast<UINT>(period_ms), nullptr) == 0) {
      throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
    }
  }

 private:
  MessageWindow window_;
};

}  // namespace

std::unique_ptr<Timer> WindowsTimers::Start(int period_ms, std::function<void()> tick) {
  return std::make_unique<WindowTimer>(period_ms, std::move(tick));
}

}  // namespace platform::windows
