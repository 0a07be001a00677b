#include "app/tone_modes.h"

namespace app {

std::int16_t ModePitch(int mode) {
  switch (mode) {
    case 1:
      return 1000;
    case 2:
      return 4500;
    case 3:
      return 10000;
    case 4:
      return 16600;
    case 5:
      return 21000;
    case kSweepMode:
      return kSweepMarker;
    case kMorseMode:
      return kMorseMarker;
    default:
      return kNoPitch;
  }
}

bool HasOwnPitch(int mode) {
  return mode >= 1 && mode < kSweepMode;
}

bool UsesSlider(int mode) {
  return mode == kCustomMode;
}

bool ShowsSine(int mode) {
  return !OpensTool(mode);
}

bool OpensTool(int mode) {
  return mode == kMorseMode || mode == kHearingMode;
}

Route RouteOf(std::int16_t pitch, const std::string& sound_bit) {
  const bool winmm = sound_bit == "128" || sound_bit == "256";
  if (pitch == kSweepMarker) return winmm ? Route::kSoundWinmmLTH : Route::kLowToHigh;
  if (sound_bit == "16") return Route::kSound16;
  if (sound_bit == "32") return Route::kSound32;
  if (sound_bit == "64") return Route::kToneDXRND;
  return winmm ? Route::kSoundWinmmRND : Route::kNone;
}

}  // namespace app
