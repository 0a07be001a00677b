// Tones through the helper programs, which read their pitch from the hand-over file "sound.ini" in
// the temporary folder: one line, the pitch in Hz between blanks, or "1" for a rising sweep.
#pragma once

#include <cstdint>

#include "base/sound_mode.h"
#include "tone/helper_programs.h"
#include "tone/route_support.h"

namespace tone {

class HelperRoutes {
 public:
  HelperRoutes(platform::Platform& platform, RouteSupport& support)
      : helpers_(platform), support_(support) {}

  // A tone by play16.exe or by tone32.dll, until it is stopped. A helper that cannot be started
  // leaves silence.
  void Sound16(std::int16_t pitch);
  void Sound32(std::int16_t pitch);

  // The helper's rising sweep; the status panel keeps pace with it by 200 Hz each 200 ms. `mode`
  // is Classic or Sound32; in any other nothing sounds.
  void LowToHigh(base::SoundMode mode);

 private:
  void PlayByHelper(std::int16_t pitch, base::Output output);
  void StartHelper(base::Output output);
  void Restart(base::Output output);
  void ShowSweep(base::Output output);

  HelperPrograms helpers_;
  RouteSupport& support_;
  std::int16_t sweep_pitch_ = 0;
};

}  // namespace tone
