// Any bytes as ring tone text; what becomes of it, and that written as ring tone text again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "program_files/program_reader.h"
#include "tests/fuzz/require.h"
#include "tools/diagnosis.h"
#include "tools/rtttl.h"
#include "tools/rtttl_writer.h"

namespace tools {
namespace {

using fuzz::Require;
using program_files::Tone;

bool HasError(const RingTone& tune) {
  return std::any_of(tune.problems.begin(), tune.problems.end(),
                     [](const Problem& p) { return p.severity == Severity::kError; });
}

void CheckProblems(const RingTone& tune, std::string_view text) {
  Require(tune.problems.size() <= kMostProblems, "not endlessly many problems");
  const auto breaks =
      std::count_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; });
  for (const Problem& problem : tune.problems) {
    Require(problem.line >= 1 && problem.line <= breaks + 1, "a line of the text");
    Require(problem.column >= 1 && problem.column <= std::ssize(text) + 1, "a column of it");
  }
}

std::vector<std::int16_t> PitchesOf(const std::vector<Tone>& tones) {
  std::vector<std::int16_t> pitches;
  for (const Tone& tone : tones) {
    if (tone.pitch_hz != kRestHz) pitches.push_back(tone.pitch_hz);
  }
  return pitches;
}

// With continuous style no rests are put in, so what fitted into a program fits again.
void CheckWritten(const program_files::ToneProgram& program) {
  const RingToneText written = WriteRingTone(program, 4);
  Require(written.text.empty() != written.problems.empty(), "a text or problems");
  if (written.text.empty()) return;
  std::string text = written.text;
  text.insert(text.find(':') + 1, "s=c,");
  const RingTone again = ReadRingTone(text, 4);
  Require(!HasError(again), "what is written can be read");
  Require(PitchesOf(again.tones.tones()) == PitchesOf(program.tones),
          "written and read, the pitches are the same");
}

void CheckTune(std::string_view text, std::int32_t octave_of_a440) {
  const RingTone tune = ReadRingTone(text, octave_of_a440);
  CheckProblems(tune, text);
  Require(std::ssize(tune.tones.tones()) <= ToneList::kMostTones, "tones that fit into a program");
  if (HasError(tune)) return;
  const auto read = program_files::ReadToneProgram(tune.tones.File(tune.name));
  Require(read.findings.empty(), "what is made of it is legal");
  Require(read.program.ToneCount() == std::ssize(tune.tones.tones()), "and has all its tones");
  std::int64_t length_ms = 0;
  for (const Tone& tone : read.program.tones) {
    Require(tone.pitch_hz >= 131 && tone.pitch_hz <= kRestHz, "a note of the octaves, or a rest");
    length_ms += tone.duration_ms + read.program.extra_time_ms;
  }
  Require(length_ms == tune.tones.LengthMs(), "and lasts as long");
  // For speed: all tempos are tried.
  if (text.size() % 16 == 0 && octave_of_a440 == 4) CheckWritten(read.program);
}

}  // namespace
}  // namespace tools

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  tools::CheckTune(bytes, 4);
  tools::CheckTune(bytes, 5);
  return 0;
}
