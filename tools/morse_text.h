// A text as Morse code, in tones.
//
// As in the Morse tool: its table and its lengths (morse/morse_code.h). A character takes its
// symbols, one after the other, and 95 ms + speed; a space 595 ms + 2 speeds; one without a code is
// a pause like any other. Between the symbols of a character the tool has what its sound mode needs
// to begin a tone; here it is a rest of 50 ms.
//
// Textbook: the characters and lengths of Recommendation ITU-R M.1677-1, a dash of three dots, one
// dot between symbols, three between characters, seven between words; a dot lasts as in the tool.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tone_list.h"

namespace tools {

struct MorseWishes {
  std::int16_t speed = 0;  // ms added, 0 to 500
  std::int16_t pitch_hz = 700;
  bool textbook = false;
};

struct MorseTones {
  ToneList tones;
  std::vector<std::string> without_code;  // characters of the text, each once
  bool sounds = false;                    // not of pauses alone
  bool too_long = false;                  // for a tone program: the tones are not all
};

MorseTones MorseOf(std::string_view utf8, const MorseWishes& wishes);

// The symbols of the textbook; empty for a character without any.
std::string TextbookSymbolsOf(std::string_view character);

}  // namespace tools
