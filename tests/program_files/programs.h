// Tone programs by their lines, and what became of them, for tests.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "program_files/tone_program.h"

namespace program_files {

using Lines = std::vector<std::string>;
using Tones = std::vector<std::pair<int, int>>;  // pitch in Hz, duration in ms

// Lines 1 to 7 of a visible program with 50 ms of extra time.
inline Lines GoodHead() {
  return {"%valid%", "[info]", "{236}", "{My tune}", "{visible}", "[sound]", "{50}"};
}

inline ToneProgram ProgramOf(const Lines& lines) {
  ToneProgram program;
  std::int16_t index = 1;
  for (const std::string& line : lines) program.lines[index++] = line;
  return program;
}

inline Lines LinesOf(const ToneProgram& program, std::int16_t count) {
  Lines lines;
  for (std::int16_t index = 1; index <= count; ++index) lines.push_back(program.lines[index]);
  return lines;
}

inline Tones TonesOf(const ToneProgram& program) {
  Tones tones;
  for (std::int16_t tone = 1; tone <= program.tone_count; ++tone) {
    tones.emplace_back(program.pitch_hz[tone], program.duration_ms[tone]);
  }
  return tones;
}

// "i" for a report of an illegal file, "v" for one of the version.
inline std::string Letters(const std::vector<Report>& reports) {
  std::string letters;
  for (const Report report : reports) letters += report == Report::kVersion ? 'v' : 'i';
  return letters;
}

}  // namespace program_files
