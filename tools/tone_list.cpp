#include "tools/tone_list.h"

#include <cmath>

#include "base/text.h"
#include "tools/code_page.h"
#include "tools/diagnosis.h"

namespace tools {
namespace {

constexpr std::int32_t kShortestToneMs = 2;
constexpr std::int32_t kLongestToneMs = program_files::kLargestValue + 1;

std::string NameLine(std::string_view name) {
  std::string line;
  for (const char c : ToCodePage(name)) {
    if (c == '{' || c == '}') continue;
    line += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  }
  return base::Line("{" + line + "}");
}

}  // namespace

ToneList::Result ToneList::Sound(std::int16_t pitch_hz, double length_ms) {
  return Add(pitch_hz, length_ms);
}

ToneList::Result ToneList::Silence(double length_ms) {
  return Add(static_cast<std::int16_t>(kRestHz), length_ms);
}

ToneList::Result ToneList::Add(std::int16_t pitch_hz, double length_ms) {
  const auto border_ms = static_cast<std::int64_t>(std::floor(end_ms_ + length_ms + 0.5));
  std::int64_t rest_ms = border_ms - border_ms_;
  if (pitch_hz == kRestHz && !tones_.empty() && tones_.back().pitch_hz == kRestHz) {
    rest_ms += tones_.back().duration_ms + kExtraTimeMs;
    tones_.pop_back();
  }
  if (rest_ms < kShortestToneMs) return Result::kTooShort;
  const std::int64_t pieces = (rest_ms + kLongestToneMs - 1) / kLongestToneMs;
  if (pieces > kMostTones - std::ssize(tones_)) return Result::kTooMany;
  for (std::int64_t left = pieces; left > 0; --left) {
    const std::int64_t piece_ms = rest_ms / left;
    tones_.push_back({pitch_hz, static_cast<std::int16_t>(piece_ms - kExtraTimeMs), 0});
    rest_ms -= piece_ms;
  }
  end_ms_ += length_ms;
  border_ms_ = border_ms;
  return Result::kAdded;
}

std::string ToneList::File(std::string_view name) const {
  std::string file = base::Line("%valid%") + base::Line("[info]") +
                     base::Line("{" + std::to_string(program_files::kLatestVersion) + "}") +
                     NameLine(name) + base::Line("{visible}") + base::Line("[sound]") +
                     base::Line("{" + std::to_string(kExtraTimeMs) + "}");
  for (const program_files::Tone& tone : tones_) {
    file += base::Line("<" + std::to_string(tone.pitch_hz) + ">");
    file += base::Line("\\" + std::to_string(tone.duration_ms));
  }
  return file;
}

}  // namespace tools
