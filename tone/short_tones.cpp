#include "tone/short_tones.h"

#include "tone/quietly.h"
#include "tone/winmm_routes.h"

namespace tone {

void ShortTones::sound(std::int16_t pitch, std::int16_t Duration) {
  Quietly([&] {
    if (state_.SoundBit == "32" || state_.SoundBit == "16") {
      platform_.beeper.Beep(pitch, Duration);
    }
    if (state_.SoundBit == "256" || state_.SoundBit == "128") {
      RouteSupport support(platform_, state_, scene_);
      WinmmRoutes(support).SoundWinmmRNDTMP(pitch, Duration);
    }
  });
}

}  // namespace tone
