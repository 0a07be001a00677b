// Timers on those of the system's windows. Their grain is 10 to 16 ms.
#pragma once

#include "platform/timers.h"

namespace platform::windows {

class WindowsTimers final : public Timers {
 public:
  std::unique_ptr<Timer> Start(int period_ms, std::function<void()> tick) override;
};

}  // namespace platform::windows
