// The sound modes: the ways on which a tone leaves the program.
//
// The type is used everywhere inside; its code, a decimal number as text, only in the settings file
// and in what is handed to other programs.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace base {

enum class SoundMode : std::int8_t {
  kNone,  // before the settings are read
  kClassic,
  kSound32,
  kDirectSound,
  kAutomatic,
  kWinmm,
};

// What makes the sound.
enum class Output : std::int8_t {
  kNone,
  kHelper16,     // play16.exe with tone16.dll
  kHelper32,     // tone32.dll
  kDirectSound,  // a DirectSound buffer
  kPlayer,       // the system's multimedia player
};

struct SoundModeFacts {
  SoundMode mode;
  std::string_view code;
  Output output;
  bool plays_tools;         // "Low to high", "Morse tool" and "Hearing age" can be chosen
  bool selects_first_mode;  // choosing it from the menu selects the first tone mode
};

// A row for each sound mode but kNone.
std::span<const SoundModeFacts> SoundModes();

// The row of `mode`; kNone has no code and no output.
const SoundModeFacts& FactsOf(SoundMode mode);

inline Output OutputOf(SoundMode mode) {
  return FactsOf(mode).output;
}

// The sound mode of a code; kNone for any other text.
SoundMode SoundModeOf(std::string_view code);

}  // namespace base
