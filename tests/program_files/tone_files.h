// Tone program files for tests of the player: their bytes, and what is said of bad ones.
#pragma once

#include <string>

#include "tests/program_files/programs.h"

namespace program_files {

inline constexpr char kFile[] = "C:\\My Tones\\a.tnf";
inline const std::string kIllegal = "critical [Error] C:\\My Tones\\a.tnf is not a legal tnf file!";
inline const std::string kIncompatible =
    "exclamation [Error] Your Tonmira version is not compatible with this file!";

// The file of the lines, each with CR LF.
inline std::string FileOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// Lines of a visible program: 50 ms of extra time, and the given tones.
inline Lines ProgramWith(const Tones& tones) {
  Lines lines = GoodHead();
  for (const auto& [pitch, duration] : tones) {
    lines.push_back("<" + std::to_string(pitch) + ">");
    lines.push_back("\\" + std::to_string(duration));
  }
  return lines;
}

inline Lines Invisible(Lines lines) {
  lines[4] = "{invisible}";
  return lines;
}

}  // namespace program_files
