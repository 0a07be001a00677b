#include "helpers/request_watch.h"

namespace helpers {

bool RequestWatch::Gone(bool missing, unsigned now_ms) {
  if (missing && missed_) return now_ms - missed_at_ms_ >= kLookEvery;
  missed_ = missing;
  missed_at_ms_ = now_ms;
  return false;
}

}  // namespace helpers
