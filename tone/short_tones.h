// One tone of a given length in the current sound mode, for callers that sound many of them.
#pragma once

#include <cstdint>

#include "tone/route_support.h"

namespace tone {

class ShortTones {
 public:
  ShortTones(platform::Platform& platform, base::MainState& state, PlayScene& scene)
      : platform_(platform), state_(state), scene_(scene) {}

  // Sounds `pitch` Hz for `Duration` ms and returns when it is over: the system's own beep in the
  // sound modes "16" and "32", the multimedia player in "128" and "256". In "64" it returns at
  // once, in silence.
  void sound(std::int16_t pitch, std::int16_t Duration);

 private:
  platform::Platform& platform_;
  base::MainState& state_;
  PlayScene& scene_;
};

}  // namespace tone
