// The local time, and chance.
#pragma once

#include "platform/system.h"

namespace platform::windows {

class WindowsClock final : public Clock {
 public:
  LocalTime Now() override;
  std::string ShortDate() override;
  std::string ShortTime() override;
};

// The SplitMix64 generator, started from the time and the process.
class WindowsRandom final : public Random {
 public:
  WindowsRandom();
  double Next() override;

 private:
  std::uint64_t state_;
};

}  // namespace platform::windows
