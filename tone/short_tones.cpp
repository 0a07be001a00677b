#include "tone/short_tones.h"

#include "base/error_trap.h"
#include "tone/winmm_routes.h"

namespace tone {

bool ShortTones::Audible() const {
  const base::Output output = base::OutputOf(state_.SoundBit);
  return output != base::Output::kDirectSound && output != base::Output::kNone;
}

void ShortTones::sound(std::int16_t pitch, std::int16_t Duration) {
  base::Quietly([&] {
    switch (base::OutputOf(state_.SoundBit)) {
      case base::Output::kHelper16:
      case base::Output::kHelper32:
        platform_.beeper.Beep(pitch, Duration);
        break;
      case base::Output::kPlayer: {
        RouteSupport support(platform_, state_, scene_);
        WinmmRoutes(support).SoundWinmmRNDTMP(pitch, Duration);
        break;
      }
      case base::Output::kDirectSound:
      case base::Output::kNone:
        break;
    }
  });
}

}  // namespace tone
