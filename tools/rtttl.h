// Ring tone text (RTTTL, Ring Tone Text Transfer Language; Nokia, Smart Messaging 3.0.0, 2000):
// "name : defaults : notes".
//
// Defaults: d=, o= and b=, separated by commas; duration 4, octave 6 and 63 beats a minute where
// nothing is said.
//
// A note: [1|2|4|8|16|32|64] a..h|p [#] [.] [octave 4..8] [.]; B and H are the same, P is a rest, a
// dot makes a note half as long again.
//
// Between the notes the defaults may be set anew. Besides, s= is the style (s staccato, n natural,
// c continuous) and l= how often the tune is repeated, which a tone program cannot do. Any case,
// and blanks and line ends anywhere.
//
// A quarter lasts a beat. In equal temperament A of octave 4 is 440 Hz, or that of octave 5 as in
// older tables. Natural style sets two notes of the same pitch apart by a rest of 20 ms, or a
// quarter of the note if that is shorter; staccato lets every note sound for half its time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/problem.h"
#include "tools/tone_list.h"

namespace tools {

inline constexpr std::size_t kMostRingToneText = 1024UL * 1024;  // bytes

struct RingTone {
  std::string name;  // UTF-8
  ToneList tones;
  std::vector<Problem> problems;  // with an error among them the tones are not all
};

// Columns count characters. At most kMostProblems problems are told. A text longer than
// kMostRingToneText is not read.
inline constexpr std::size_t kMostProblems = 20;
RingTone ReadRingTone(std::string_view text, std::int32_t octave_of_a440);

// The nearest whole Hz of a note: `semitone` from 0 (C) to 12 (C of the next octave).
std::int16_t PitchOfNote(std::int32_t semitone, std::int32_t octave, std::int32_t octave_of_a440);

}  // namespace tools
