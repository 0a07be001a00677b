#include "morse/morse_code.h"

#include "base/numbers.h"

namespace morse {
namespace {

struct Entry {
  char character;
  const char* symbols;
};

constexpr Entry kTable[] = {
    {'A', ".-"},    {'B', "-..."},   {'C', "-.-."},   {'D', "-.."},    {'E', "."},
    {'F', "..-."},  {'G', "--."},    {'H', "...."},   {'I', ".."},     {'J', ".---"},
    {'K', "-.-"},   {'L', ".-.."},   {'M', "--"},     {'N', "-."},     {'O', "----"},
    {'P', ".--."},  {'Q', "--.-"},   {'R', ".-."},    {'S', "..."},    {'T', "-"},
    {'U', "..-"},   {'V', "...-"},   {'W', ".--"},    {'X', "-..-"},   {'Y', "-.--"},
    {'Z', "--.."},  {'0', "-----"},  {'1', ".----"},  {'2', "..---"},  {'3', "...--"},
    {'4', "....-"}, {'5', "....."},  {'6', "-...."},  {'7', "--..."},  {'8', "---.."},
    {'9', "----."}, {'.', ".-.-.-"}, {',', "--..--"}, {'?', "..--.."}, {'-', "-....-"},
    {'/', "-..-."}, {':', "---..."}, {27, ".----."},  {'-', "-....-"}, {')', "-.--.-"},
    {';', "-.-.-"}, {'(', "-.--."},  {'=', "-...-"},  {'@', ".--.-."},
};

char UpperCase(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::string SymbolsOf(char character) {
  const char upper = UpperCase(character);
  std::string symbols;
  for (const Entry& entry : kTable) {
    if (entry.character == upper) symbols += entry.symbols;
  }
  return symbols;
}

std::int16_t DotLength(std::int16_t speed) {
  return base::ToInt16((speed + 100) - speed / 2.0);
}

std::int16_t DashLength(std::int16_t speed) {
  return base::ToInt16(speed + 200);
}

std::int16_t WordPause(std::int16_t speed) {
  return base::ToInt16(speed + 500);
}

std::int16_t CharacterPause(std::int16_t speed) {
  return base::ToInt16(speed + 75);
}

}  // namespace morse
