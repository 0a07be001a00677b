// Pitches that more than one part of the program goes by, in Hz.
#pragma once

#include <cstdint>

namespace base {

// The highest that the slider and the Morse tool take, where the rising sweeps end, and what a
// helper accepts. That the numbers of a tone program end there, too, is that format's own rule.
inline constexpr std::int16_t kHighestPitch = 32000;

// The rising sweep begins with one step.
inline constexpr std::int16_t kSweepStep = 200;

// How long a helper plays each step, in ms; the main window counts along with it.
inline constexpr std::int16_t kHelperStepMs = 200;

// What a helper is handed over in place of a pitch when it shall sweep.
inline constexpr std::int16_t kHelperSweep = 1;

}  // namespace base
