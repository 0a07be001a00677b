#include "helpers/device_watch.h"

namespace helpers {

bool DeviceWatch::Due(unsigned now_ms) {
  if (tried_ && now_ms - tried_at_ms_ < kTryEvery) return false;
  tried_ = true;
  tried_at_ms_ = now_ms;
  full_ = false;
  return true;
}

bool DeviceWatch::Stalled(unsigned free_buffers, unsigned now_ms) {
  if (free_buffers > 0) {
    full_ = false;
    return false;
  }
  if (!full_) full_since_ms_ = now_ms;
  full_ = true;
  return now_ms - full_since_ms_ >= kStalledAfter;
}

}  // namespace helpers
