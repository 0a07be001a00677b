#include "tools/warnings.h"

#include "program_files/tone_program.h"
#include "tools/diagnosis.h"
#include "tools/sounding.h"

namespace tools {
namespace {

using program_files::Tone;

std::string Hz(std::int32_t pitch) {
  return std::to_string(pitch) + " Hz";
}

std::string Ms(std::int32_t time) {
  return std::to_string(time) + " ms";
}

// Of a tone that lasts `length_ms`, extra time included.
void WarnOfTone(const Tone& tone, std::int32_t length_ms, std::vector<Problem>& warnings) {
  const auto warn = [&](std::string text) {
    warnings.push_back({Severity::kWarning, tone.line, 1, std::move(text)});
  };
  if (tone.pitch_hz < kLowestHeardHz) {
    warn(Hz(tone.pitch_hz) + " is not heard but clicks at both ends; a rest is <22050>");
  } else if (tone.pitch_hz > kRestHz) {
    warn(Hz(tone.pitch_hz) + " sounds as " + Hz(HeardPitch(tone.pitch_hz)) +
         " in Winmm, Automatic and DirectSound");
  } else if (tone.pitch_hz < kRestHz && length_ms < kShortestHeardMs) {
    warn(Ms(length_ms) + " are too short to be heard as a tone");
  }
  if (length_ms > kLongestPlayedMs) {
    warn(Ms(length_ms) + " are more than " + Ms(kLongestPlayedMs) +
         ": in Winmm, Automatic and DirectSound the play ends before this tone");
  }
}

}  // namespace

std::vector<Problem> WarningsOf(const program_files::ReadProgram& read) {
  std::vector<Problem> warnings;
  const program_files::ToneProgram& program = read.program;
  for (const Tone& tone : program.tones) {
    // What failed its check is an error already.
    if (tone.pitch_hz == 0 || tone.duration_ms == 0) continue;
    WarnOfTone(tone, tone.duration_ms + program.extra_time_ms, warnings);
  }
  // Behind a faulty line it is what is left of that mistake.
  const bool follows = !read.findings.empty() && read.findings.back().line == read.lines - 1;
  if (read.ignored_line && !read.ignored_line->empty() && !follows) {
    warnings.push_back({Severity::kWarning, read.lines, 1,
                        "the last line is ignored, as no duration follows: " +
                            Quoted(read.ignored_line->substr(0, program_files::kLongestFound))});
  }
  if (read.lines > program_files::kMostLines) {
    warnings.push_back({Severity::kWarning, read.lines, 1,
                        read.given_up
                            ? "more than 2000 lines: nothing of the file is played"
                            : "more than 1999 lines: the player reads them all the same"});
  }
  return warnings;
}

}  // namespace tools
