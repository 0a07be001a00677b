// Timers: functions that the message pump calls again and again.
#pragma once

#include <functional>
#include <memory>

namespace platform {

// A running timer; destroying it stops it, also from within its own function.
class Timer {
 public:
  virtual ~Timer() = default;
};

class Timers {
 public:
  virtual ~Timers() = default;

  // Calls `tick` about every `period_ms` milliseconds, whichever loop handles messages then. Calls
  // that were missed while no loop did are not made up for.
  virtual std::unique_ptr<Timer> Start(int period_ms, std::function<void()> tick) = 0;
};

}  // namespace platform
