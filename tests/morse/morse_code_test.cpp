#include "morse/morse_code.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace morse {
namespace {

TEST(MorseCode, EveryCharacterOfTheTable) {
  const std::vector<std::pair<char, std::string>> table{
      {'A', ".-"},     {'B', "-..."},   {'C', "-.-."},   {'D', "-.."},    {'E', "."},
      {'F', "..-."},   {'G', "--."},    {'H', "...."},   {'I', ".."},     {'J', ".---"},
      {'K', "-.-"},    {'L', ".-.."},   {'M', "--"},     {'N', "-."},     {'O', "----"},
      {'P', ".--."},   {'Q', "--.-"},   {'R', ".-."},    {'S', "..."},    {'T', "-"},
      {'U', "..-"},    {'V', "...-"},   {'W', ".--"},    {'X', "-..-"},   {'Y', "-.--"},
      {'Z', "--.."},   {'0', "-----"},  {'1', ".----"},  {'2', "..---"},  {'3', "...--"},
      {'4', "....-"},  {'5', "....."},  {'6', "-...."},  {'7', "--..."},  {'8', "---.."},
      {'9', "----."},  {'.', ".-.-.-"}, {',', "--..--"}, {'?', "..--.."}, {'/', "-..-."},
      {':', "---..."}, {27, ".----."},  {')', "-.--.-"}, {';', "-.-.-"},  {'(', "-.--."},
      {'=', "-...-"},  {'@', ".--.-."}};
  for (const auto& [character, symbols] : table) {
    EXPECT_EQ(SymbolsOf(character), symbols) << character;
    if (character >= 'A' && character <= 'Z') {
      EXPECT_EQ(SymbolsOf(static_cast<char>(character + 32)), symbols) << character;
    }
  }
}

TEST(MorseCode, TheDeparturesFromTheTextbook) {
  EXPECT_EQ(SymbolsOf('o'), "----");
  EXPECT_EQ(SymbolsOf(';'), "-.-.-");
  EXPECT_EQ(SymbolsOf('\''), "");
  EXPECT_EQ(SymbolsOf('-'), "-....--....-");
  EXPECT_EQ(SymbolsOf('%'), "");
  EXPECT_EQ(SymbolsOf(' '), "");
}

TEST(MorseCode, LengthsAtEverySpeed) {
  const std::vector<std::pair<int, int>> dots{{0, 100}, {1, 100}, {2, 101},   {3, 102},
                                              {5, 102}, {7, 104}, {499, 350}, {500, 350}};
  for (const auto& [speed, length] : dots) {
    EXPECT_EQ(DotLength(static_cast<std::int16_t>(speed)), length) << speed;
  }
  EXPECT_EQ(DashLength(0), 200);
  EXPECT_EQ(DashLength(500), 700);
  EXPECT_EQ(WordPause(0), 500);
  EXPECT_EQ(WordPause(500), 1000);
  EXPECT_EQ(CharacterPause(0), 75);
  EXPECT_EQ(CharacterPause(500), 575);
}

}  // namespace
}  // namespace morse
