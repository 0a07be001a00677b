// From the highest pitch heard to the ages that it is typical of.
//
// How far the quietest tone that half of the people hear rises with age is published for 411 people
// of 16 to 70 years with healthy ears: a * (age - 18)^2 dB up to 11200 Hz and b * (age - 18)^1.5 dB
// from 12500 Hz on, with the a and b of each pitch up to 16000 Hz (M. Jilek, D. Suta, J. Syka,
// "Reference hearing thresholds in an extended frequency range as a function of age", J. Acoust.
// Soc. Am. 136, 2014, pp. 1821 to 1830, doi 10.1121/1.4894719).
//
// How far the tones of a loudspeaker stand above what a young ear just hears cannot be known here.
// So an age is typical of a pitch when that rise is between 20 and 60 dB there. Pitches between
// those of the study are interpolated. It ends at 16000 Hz: who hears more has no lowest age. Below
// 9000 Hz and above the age of 70 it says nothing: there the range has no highest age. (Another
// study found the same at both ends: everybody of up to 30 years heard 16000 Hz, nobody above 60
// heard 18000 Hz; M. Wang and others, J. Otolaryngol. Head Neck Surg. 50, 2021,
// doi 10.1186/s40463-021-00534-w.)
#pragma once

#include <optional>

namespace hearing {

struct AgeRange {
  std::optional<int> from;  // years; none: any age up to `to`
  std::optional<int> to;    // none: any age from `from` on

  bool operator==(const AgeRange&) const = default;
};

// Of a pitch in Hz, kLowestPitch to kHighestPitch.
AgeRange AgesOf(int pitch_hz);

bool Holds(const AgeRange& range, int age);

}  // namespace hearing
