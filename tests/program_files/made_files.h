// Tone program files by the hundred, for tests that compare two readers of them.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "tests/program_files/tone_files.h"

namespace program_files {

inline std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

// The program of these tones, of which lines, up to `most_changes`, are missing, doubled, or other
// ones, and some line ends, too.
inline std::string ChangedFile(std::mt19937& random, const Tones& tones, unsigned most_changes) {
  static const Lines others{
      "",        "%valid%", "[info]",  "{237}", "{invisible}", "{VISIBLE}", "{visible}",
      "{0}",     "{50",     "[sound]", "<440>", " <440>",      "<1>",       "<1.5>",
      "<32001>", "\\500",   "\\0",     "\\1e9", "500",         "x",         "; a comment"};
  static const Lines ends{"\r\n", "\r", "\n", "\r\n\r\n", ""};
  const auto one_of = [&](const Lines& texts) { return texts[random() % texts.size()]; };
  Lines lines = ProgramWith(tones);
  for (auto changes = random() % (most_changes + 1); changes > 0 && !lines.empty(); --changes) {
    const auto at = lines.begin() + static_cast<std::ptrdiff_t>(random() % lines.size());
    if (random() % 3 == 0) {
      lines.erase(at);
    } else if (random() % 2 == 0) {
      lines.insert(at, one_of(others));
    } else {
      *at = one_of(others);
    }
  }
  std::string bytes;
  for (const std::string& line : lines)
    bytes += line + (random() % 40 == 0 ? one_of(ends) : "\r\n");
  return bytes;
}

}  // namespace program_files
