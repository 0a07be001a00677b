#include "program_files/tone_program.h"

namespace program_files {

Tone ToneProgram::ToneAt(std::int16_t number) const {
  const int index = number - 1;
  if (index >= 0 && index < ToneCount()) return tones[static_cast<std::size_t>(index)];
  return index == ToneCount() ? unfinished : Tone{};
}

const char* Description(Expected expected) {
  switch (expected) {
    case Expected::kValid:
      return "%valid%";
    case Expected::kInfo:
      return "[info]";
    case Expected::kVersion:
      return "a format version of at most 236";
    case Expected::kVisibility:
      return "{visible} or {invisible}";
    case Expected::kSound:
      return "[sound]";
    case Expected::kExtraTime:
      return "an extra time above 0 and at most 32000 ms";
    case Expected::kPitchMark:
      return "a line that begins with \"<\" and a pitch";
    case Expected::kPitch:
      return "a pitch above 1 and at most 32000 Hz";
    case Expected::kDurationMark:
      return "a line that begins with \"\\\" and a duration";
    case Expected::kDuration:
      return "a duration above 0 and at most 32000 ms";
    case Expected::kFewerLines:
      return "at most 1999 lines";
    case Expected::kLessText:
      return "at most 16 MiB of text";
  }
  return "";
}

}  // namespace program_files
