// Tones through the system's multimedia player: WAV files, generated or prepared, looped.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tone/route_support.h"

namespace tone {

class WinmmRoutes {
 public:
  explicit WinmmRoutes(RouteSupport& support) : support_(support) {}

  // A generated tone, until it is stopped. `pitch` in Hz.
  void SoundWinmmRND(std::int16_t pitch);

  // A generated tone of `Duration` ms. Messages wait until it is over. Returns, at once, what keeps
  // it from being played, if anything.
  std::optional<base::RuntimeError> SoundWinmmRNDTMP(std::int16_t pitch, std::int32_t Duration);

  // When the time of the last SoundWinmmRNDTMP was over. It returns some milliseconds later: so
  // long the system takes to end a sound, most of them in silence.
  platform::Moment ToneEnded() const { return tone_ended_; }

  // The prepared file "tonedx" + modeval + ".dll" (a WAV file) of the current folder.
  void SoundWinmm(std::int16_t pitch, const std::string& modeval);

  // Tones that climb from 200 Hz to 32000 Hz in steps of 200 Hz, 75 ms each, over and over.
  void SoundWinmmLTH();

 private:
  void StartTone(std::int32_t pitch);
  void StartOrStaySilent(std::int32_t pitch);

  RouteSupport& support_;
  platform::Moment tone_ended_{};
};

}  // namespace tone
