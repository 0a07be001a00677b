// Tone programs by their lines, and what became of them, for tests.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "program_files/program_checks.h"
#include "program_files/tone_program.h"

namespace program_files {

using Lines = std::vector<std::string>;
using Tones = std::vector<std::pair<int, int>>;  // pitch in Hz, duration in ms

// Lines 1 to 7 of a visible program with 50 ms of extra time.
inline Lines GoodHead() {
  return {"%valid%", "[info]", "{236}", "{My tune}", "{visible}", "[sound]", "{50}"};
}

inline ParseState StateOf(const Lines& lines) {
  ParseState state;
  std::int16_t index = 1;
  for (const std::string& line : lines) state.lines[index++] = line;
  return state;
}

inline Lines LinesOf(const ParseState& state, std::int16_t count) {
  Lines lines;
  for (std::int16_t index = 1; index <= count; ++index) lines.push_back(state.lines[index]);
  return lines;
}

inline Tones TonesOf(const ToneProgram& program) {
  Tones tones;
  for (const Tone& tone : program.tones) tones.emplace_back(tone.pitch_hz, tone.duration_ms);
  return tones;
}

// Lines, and what the checks made of them.
struct Checked {
  ParseState state;
  ToneProgram program;
  std::vector<Finding> findings;
};

inline Checked Check(const Lines& lines, std::int32_t lines_in_file) {
  Checked checked{StateOf(lines), {}, {}};
  checked.findings = CheckProgram(checked.state, checked.program, lines_in_file);
  return checked;
}

// "i" for a report of an illegal file, "v" for one of the version.
inline std::string Letters(const std::vector<Finding>& findings) {
  std::string letters;
  for (const Finding& finding : findings) letters += finding.report == Report::kVersion ? 'v' : 'i';
  return letters;
}

}  // namespace program_files
