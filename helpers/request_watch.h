// Notices that the hand-over file is gone, or is another one by now.
#pragma once

namespace helpers {

// The file may be missing for a moment while it is rewritten, so it is gone only when two looks in
// a row, `kLookEvery` apart or more, have missed it. One with another request is not the one that
// was read, and missed, too.
class RequestWatch {
 public:
  static constexpr unsigned kLookEvery = 50;  // ms

  // Takes one look's result at `now_ms` (a clock that may wrap around) and says whether the file is
  // gone. A look that comes too soon after the last one does not count.
  bool Gone(bool missing, unsigned now_ms);

 private:
  bool missed_ = false;
  unsigned missed_at_ms_ = 0;
};

}  // namespace helpers
