// One tone of a given length in the current sound mode, for callers that sound many of them.
#pragma once

#include <cstdint>

#include "tone/route_support.h"

namespace tone {

class ShortTones {
 public:
  ShortTones(platform::Platform& platform, settings::MainState& state, PlayScene& scene)
      : platform_(platform), state_(state), scene_(scene) {}

  // Sounds `pitch` Hz for `Duration` ms and returns when it is over: the system's own beep in the
  // sound modes with a helper program, the multimedia player in its own. In DirectSound it returns
  // at once, in silence. Returns when the tone was over (see WinmmRoutes::ToneEnded).
  platform::Moment sound(std::int16_t pitch, std::int16_t Duration);

  // Whether tones are heard in the current sound mode.
  bool Audible() const;

 private:
  platform::Platform& platform_;
  settings::MainState& state_;
  PlayScene& scene_;
};

}  // namespace tone
