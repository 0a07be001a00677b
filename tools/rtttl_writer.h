// A tone program as ring tone text (tools/rtttl.h), where its tones are notes.
//
// A pitch is a note if it is the nearest whole Hz to one; 22050 Hz is a rest. A length is a note's,
// with or without a dot, if it nearly is (tools/note_lengths.h) at the tempo that suits the most
// tones. A tone and a rest behind it that is not longer than 100 ms may be one note together: as a
// tune sets two notes of the same pitch apart.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "program_files/tone_program.h"
#include "tools/problem.h"

namespace tools {

struct RingToneText {
  std::string text;               // "name:d=4,o=5,b=120:c,d,e", UTF-8, without a line end
  std::vector<Problem> problems;  // the lines whose tones do not fit; then there is no text
};

RingToneText WriteRingTone(const program_files::ToneProgram& program, std::int32_t octave_of_a440);

}  // namespace tools
