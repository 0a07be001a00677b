#include "tools/sounding.h"

#include <algorithm>

#include "tone/sine.h"
#include "tools/diagnosis.h"

namespace tools {
namespace {

using program_files::Tone;

constexpr std::int64_t kClassicStartMs = 1000;

std::string Padded(std::int64_t number, std::size_t digits) {
  std::string text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

void AddPitch(const Tone& tone, Sounding& sounding) {
  if (tone.pitch_hz == kRestHz) {
    ++sounding.rests;
    return;
  }
  const std::int32_t pitch = tone.pitch_hz;
  sounding.lowest_hz = sounding.lowest_hz == 0 ? pitch : std::min(sounding.lowest_hz, pitch);
  sounding.highest_hz = std::max(sounding.highest_hz, pitch);
  if (pitch > kRestHz) sounding.mirrored.push_back(tone);
}

}  // namespace

std::int32_t HeardPitch(std::int32_t pitch_hz) {
  return pitch_hz > kRestHz ? tone::kSampleRate - pitch_hz : pitch_hz;
}

Sounding SoundingOf(const program_files::ToneProgram& program) {
  Sounding sounding;
  sounding.tones = program.ToneCount();
  // Without a tone one of 0 Hz and 0 ms is played.
  const std::vector<Tone> silence{Tone{}};
  for (const Tone& tone : program.tones.empty() ? silence : program.tones) {
    const std::int32_t length_ms = tone.duration_ms + program.extra_time_ms;
    sounding.length_ms += length_ms;
    sounding.classic_length_ms += length_ms + kClassicStartMs;
    if (length_ms > kLongestPlayedMs && !sounding.ends_before) sounding.ends_before = tone;
    if (!sounding.ends_before) sounding.played_ms += length_ms;
    if (tone.pitch_hz > 0) AddPitch(tone, sounding);
  }
  return sounding;
}

std::string TimeText(std::int64_t time_ms) {
  const std::int64_t seconds = time_ms / 1000;
  const std::int64_t minutes = seconds / 60;
  const std::string rest = ":" + Padded(seconds % 60, 2) + "." + Padded(time_ms % 1000, 3);
  if (minutes < 60) return std::to_string(minutes) + rest;
  return std::to_string(minutes / 60) + ":" + Padded(minutes % 60, 2) + rest;
}

}  // namespace tools
