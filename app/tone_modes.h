// The nine tone modes, as data, and what Play does with each.
#pragma once

#include <cstdint>
#include <string>

namespace app {

inline constexpr int kModes = 9;
inline constexpr int kSweepMode = 6;
inline constexpr int kCustomMode = 7;
inline constexpr int kMorseMode = 8;
inline constexpr int kHearingMode = 9;

// What Play takes for a pitch in modes that have none of their own.
inline constexpr std::int16_t kNoPitch = 0;
inline constexpr std::int16_t kSweepMarker = 1;
inline constexpr std::int16_t kUnusedMarker = 2;
inline constexpr std::int16_t kMorseMarker = 3;

// The pitch of a fixed-pitch mode (1 to 5) in Hz, the marker of modes 6 and 8, kNoPitch for the
// others.
std::int16_t ModePitch(int mode);

// Whether the mode is one of the fixed-pitch modes.
bool HasOwnPitch(int mode);

// Whether the slider belongs to the mode, and whether it has a sine preview.
bool UsesSlider(int mode);
bool ShowsSine(int mode);

// Whether the play button opens a tool instead of sounding a tone.
bool OpensTool(int mode);

// The route a tone takes, by the sound mode code.
enum class Route {
  kNone,
  kSound16,
  kSound32,
  kToneDXRND,
  kSoundWinmmRND,
  kLowToHigh,
  kSoundWinmmLTH,
};
Route RouteOf(std::int16_t pitch, const std::string& sound_bit);

}  // namespace app
