// When to open the sound device (again), as clockwork: the device may be missing when the helper
// starts, may go away while it plays and may come back. Clocks are in ms and may wrap around.
#pragma once

namespace helpers {

class DeviceWatch {
 public:
  static constexpr unsigned kTryEvery = 1000;      // ms
  static constexpr unsigned kStalledAfter = 2000;  // ms

  // Whether to try now: at once the first time, and from then on kTryEvery after the last try.
  bool Due(unsigned now_ms);

  // Takes how many buffers an open device had free and says whether it takes no more: an unplugged
  // one may keep all that it has for ever instead of refusing what comes next.
  bool Stalled(unsigned free_buffers, unsigned now_ms);

 private:
  bool tried_ = false;
  unsigned tried_at_ms_ = 0;
  bool full_ = false;
  unsigned full_since_ms_ = 0;
};

}  // namespace helpers
