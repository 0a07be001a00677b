// Tones through the helper programs, which read their pitch from the hand-over file "sound.ini" in
// the temporary folder: one line, the pitch in Hz between blanks, or "1" for a rising sweep.
#pragma once

#include <cstdint>
#include <string>

#include "tone/route_support.h"

namespace tone {

class HelperRoutes {
 public:
  explicit HelperRoutes(RouteSupport& support) : support_(support) {}

  // A tone by play16.exe or by tone32.dll, until it is stopped. A helper that cannot be started
  // leaves silence.
  void Sound16(std::int16_t pitch);
  void Sound32(std::int16_t pitch);

  // The helper's rising sweep; the status panel keeps pace with it by 200 Hz each 200 ms. `bit` is
  // "16" or "32".
  void LowToHigh(const std::string& bit);

 private:
  void PlayByHelper(std::int16_t pitch, const std::string& bit);
  void StartHelper(const std::string& bit);
  void Restart(const std::string& bit);
  void ShowSweep(const std::string& bit);

  RouteSupport& support_;
  std::int16_t sweep_pitch_ = 0;
};

}  // namespace tone
