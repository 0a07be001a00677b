// Morse code as a tone program.
#include "tools/morse_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/tools/tones.h"

namespace tools {
namespace {

Tones Sent(const std::string& text, const MorseWishes& wishes = {}) {
  return TonesIn(MorseOf(text, wishes).tones);
}

// Dots and dashes by their lengths.
std::string SymbolsIn(const Tones& tones, int dot_ms, int dash_ms) {
  std::string symbols;
  for (const auto& [pitch, length_ms] : tones) {
    if (pitch == kRest) continue;
    symbols += length_ms == dot_ms ? '.' : length_ms == dash_ms ? '-' : '?';
  }
  return symbols;
}

TEST(MorseTextTest, LengthsAreThoseOfTheMorseTool) {
  EXPECT_EQ(Sent("a"), (Tones{{700, 100}, {kRest, 50}, {700, 200}, {kRest, 95}}));
  EXPECT_EQ(Sent("e e"), (Tones{{700, 100}, {kRest, 95 + 595}, {700, 100}, {kRest, 95}}));
}

TEST(MorseTextTest, SpeedAndPitch) {
  EXPECT_EQ(Sent("a", {.speed = 500, .pitch_hz = 50}),
            (Tones{{50, 350}, {kRest, 50}, {50, 700}, {kRest, 595}}));
  EXPECT_EQ(Sent("e e", {.speed = 5}),
            (Tones{{700, 102}, {kRest, 100 + 605}, {700, 102}, {kRest, 100}}));
}

TEST(MorseTextTest, TheTableIsThatOfTheMorseTool) {
  EXPECT_EQ(SymbolsIn(Sent("O"), 100, 200), "----");
  EXPECT_EQ(SymbolsIn(Sent(";"), 100, 200), "-.-.-");
  EXPECT_EQ(SymbolsIn(Sent("-"), 100, 200), "-....--....-");
  EXPECT_EQ(SymbolsIn(Sent("\x1B"), 100, 200), ".----.");
}

TEST(MorseTextTest, WhatHasNoCodeIsAPause) {
  EXPECT_EQ(Sent("e'e"), (Tones{{700, 100}, {kRest, 190}, {700, 100}, {kRest, 95}}));
  EXPECT_EQ(MorseOf("é'é%", {}).without_code, (std::vector<std::string>{"é", "'", "%"}));
  EXPECT_EQ(MorseOf("sos", {}).without_code, std::vector<std::string>{});
}

// ITU-R M.1677-1: a dash of three dots, one between symbols, three between letters, seven between
// words.
TEST(MorseTextTest, TextbookLengths) {
  EXPECT_EQ(Sent("a e", {.textbook = true}),
            (Tones{{700, 100}, {kRest, 100}, {700, 300}, {kRest, 700}, {700, 100}, {kRest, 300}}));
}

TEST(MorseTextTest, TextbookCode) {
  const auto symbols = [](const std::string& character) { return TextbookSymbolsOf(character); };
  EXPECT_EQ(symbols("o"), "---");
  EXPECT_EQ(symbols("'"), ".----.");
  EXPECT_EQ(symbols("-"), "-....-");
  EXPECT_EQ(symbols("\""), ".-..-.");
  EXPECT_EQ(symbols("+"), ".-.-.");
  EXPECT_EQ(symbols("×"), "-..-");
  EXPECT_EQ(symbols("="), "-...-");
  EXPECT_EQ(symbols("é"), "..-..");
  EXPECT_EQ(symbols("É"), "..-..");
  EXPECT_EQ(symbols(";"), "");
  EXPECT_EQ(symbols("\x1B"), "");
  EXPECT_EQ(Sent("e'", {.textbook = true}).size(), 2u * 7);
  EXPECT_EQ(MorseOf("e;", {.textbook = true}).without_code, (std::vector<std::string>{";"}));
}

TEST(MorseTextTest, ATextThatIsTooLongForAToneProgram) {
  EXPECT_FALSE(MorseOf(std::string(498, 'e'), {}).too_long);
  EXPECT_TRUE(MorseOf(std::string(499, 'e'), {}).too_long);
  EXPECT_FALSE(MorseOf("% %", {}).sounds);
  EXPECT_TRUE(MorseOf("% e", {}).sounds);
}

}  // namespace
}  // namespace tools
