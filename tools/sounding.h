// How long a tone program lasts in each sound mode, and what of it is heard.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "program_files/tone_program.h"

namespace tools {

// What is heard of a pitch at 44100 samples a second: above half of that the mirrored one.
std::int32_t HeardPitch(std::int32_t pitch_hz);

struct Sounding {
  int tones = 0;
  int rests = 0;               // tones of 22050 Hz
  std::int32_t lowest_hz = 0;  // without rests; 0 if there is none
  std::int32_t highest_hz = 0;
  std::int64_t length_ms = 0;          // in Sound32, and in the modes below if they play it all
  std::int64_t classic_length_ms = 0;  // a second more for every tone
  // In Winmm, Automatic and DirectSound: the tone before which the play ends, and its length.
  std::optional<program_files::Tone> ends_before;
  std::int64_t played_ms = 0;
  std::vector<program_files::Tone> mirrored;  // that sound as another pitch
};

Sounding SoundingOf(const program_files::ToneProgram& program);

// "0:02.000", "17:42:24.000".
std::string TimeText(std::int64_t time_ms);

}  // namespace tools
