#include "tone/pace.h"

#include <algorithm>
#include <limits>

namespace tone {

// A wait that one call of delay does not hold is made of several.
void Pace::Wait(std::int32_t time_ms) {
  constexpr std::int32_t kLongest = std::numeric_limits<std::int16_t>::max();
  for (; time_ms > 0; time_ms -= kLongest) {
    due_ += std::chrono::milliseconds(std::min(time_ms, kLongest));
    waves_.DelayUntil(due_);
  }
}

void Pace::Apart(const std::function<void()>& work) {
  const platform::Moment begin = pump_.Now();
  work();
  due_ += pump_.Now() - begin;
}

}  // namespace tone
