// The Morse code of a character, and the lengths of its symbols.
//
// The table is International Morse (Recommendation ITU-R M.1677-1) with the program's own
// departures: O has four dashes, the semicolon five symbols, ".----." belongs to the character
// with code 27, and the hyphen stands in the table twice.
#pragma once

#include <cstdint>
#include <string>

namespace morse {

// The symbols to sound for a character, '.' and '-', in order; empty for a character without a
// code. Letters may be of either case. The hyphen's code comes twice.
std::string SymbolsOf(char character);

// Lengths in ms at a speed of 0 to 500 (ms added, 0 = fastest). Throw base::RuntimeError kOverflow
// when a sum leaves 16 bits.
std::int16_t DotLength(std::int16_t speed);       // speed + 100 - speed / 2, ties to even
std::int16_t DashLength(std::int16_t speed);      // speed + 200
std::int16_t WordPause(std::int16_t speed);       // speed + 500
std::int16_t CharacterPause(std::int16_t speed);  // speed + 75

}  // namespace morse
