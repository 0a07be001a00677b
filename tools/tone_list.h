// Tones put one behind the other to a tone program, without their lengths' rounding adding up: each
// border lies at the nearest whole ms of its exact time.
//
// A rest is a tone of 22050 Hz; rests that follow each other are one. What is longer than a
// duration can be becomes several tones. The extra time is 1 ms, the least there is, and taken from
// each duration: so a tone has at least 2 ms.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "program_files/tone_program.h"

namespace tools {

class ToneList {
 public:
  static constexpr std::int32_t kMostTones = 996;  // that fit into 1999 lines

  enum class Result { kAdded, kTooShort, kTooMany };

  // Lengths in ms, above 0.
  Result Sound(std::int16_t pitch_hz, double length_ms);
  Result Silence(double length_ms);

  bool empty() const { return tones_.empty(); }
  const std::vector<program_files::Tone>& tones() const { return tones_; }
  std::int64_t LengthMs() const { return border_ms_; }

  // The tone program file, visible; `name` is UTF-8. Braces of the name are dropped, a control
  // character is a blank.
  std::string File(std::string_view name) const;

 private:
  static constexpr std::int32_t kExtraTimeMs = 1;

  Result Add(std::int16_t pitch_hz, double length_ms);

  std::vector<program_files::Tone> tones_;
  double end_ms_ = 0;           // exact
  std::int64_t border_ms_ = 0;  // rounded
};

}  // namespace tools
