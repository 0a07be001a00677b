#include "tone/short_tones.h"

#include <optional>

#include "base/error_trap.h"
#include "tone/winmm_routes.h"

namespace tone {

bool ShortTones::Audible() const {
  const base::Output output = base::OutputOf(state_.SoundBit);
  return output != base::Output::kDirectSound && output != base::Output::kNone;
}

platform::Moment ShortTones::sound(std::int16_t pitch, std::int16_t Duration) {
  std::optional<platform::Moment> ended;
  base::Quietly([&] {
    switch (base::OutputOf(state_.SoundBit)) {
      case base::Output::kHelper16:
      case base::Output::kHelper32:
        platform_.beeper.Beep(pitch, Duration);
        break;
      case base::Output::kPlayer: {
        RouteSupport support(platform_, state_, scene_);
        WinmmRoutes routes(support);
        routes.SoundWinmmRNDTMP(pitch, Duration);
        ended = routes.ToneEnded();
        break;
      }
      case base::Output::kDirectSound:
      case base::Output::kNone:
        break;
    }
  });
  return ended.value_or(platform_.pump.Now());
}

}  // namespace tone
