#include "tools/morse_text.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "morse/morse_code.h"

namespace tools {
namespace {

constexpr std::int32_t kTickMs = 20;  // of the tool, at every character
constexpr std::int32_t kSymbolGapMs = 50;

// What the textbook has otherwise than the tool's table, or besides.
constexpr std::pair<std::string_view, const char*> kTextbook[] = {
    {"O", "---"},   {"'", ".----."},      {"-", "-....-"},       {"\"", ".-..-."},
    {"+", ".-.-."}, {"\xC3\x97", "-..-"}, {"\xC3\xA9", "..-.."}, {"\xC3\x89", "..-.."},
    {";", ""},      {"\x1B", ""},
};

struct Lengths {
  std::int32_t dot, dash, symbol_gap;
  std::int32_t character, space;  // pauses: behind a character, and for a space
};

Lengths LengthsFor(const MorseWishes& wishes) {
  const std::int16_t speed = wishes.speed;
  const std::int32_t dot = morse::DotLength(speed);
  // A space stands between two characters, behind the pause of the first.
  if (wishes.textbook) return {dot, 3 * dot, dot, 3 * dot, 4 * dot};
  const std::int32_t pause = kTickMs + morse::CharacterPause(speed);
  return {dot, morse::DashLength(speed), kSymbolGapMs, pause, pause + morse::WordPause(speed)};
}

std::string ToolSymbolsOf(const std::string& character) {
  return character.size() == 1 ? morse::SymbolsOf(character.front()) : std::string();
}

class MorseWriter {
 public:
  explicit MorseWriter(const MorseWishes& wishes) : wishes_(wishes), lengths_(LengthsFor(wishes)) {}

  MorseTones Write(std::string_view utf8) {
    for (const std::string& character : base::Characters(utf8)) {
      if (morse_.too_long) break;
      WriteCharacter(character);
    }
    return std::move(morse_);
  }

 private:
  void WriteCharacter(const std::string& character) {
    if (character == " ") return Rest(lengths_.space);
    const std::string symbols =
        wishes_.textbook ? TextbookSymbolsOf(character) : ToolSymbolsOf(character);
    if (symbols.empty()) NoteMissing(character);
    if (!symbols.empty()) morse_.sounds = true;
    for (std::size_t i = 0; i < symbols.size(); ++i) {
      if (i > 0) Rest(lengths_.symbol_gap);
      Check(morse_.tones.Sound(wishes_.pitch_hz, symbols[i] == '.' ? lengths_.dot : lengths_.dash));
    }
    // In the textbook what has no code takes no time.
    if (!symbols.empty() || !wishes_.textbook) Rest(lengths_.character);
  }

  void NoteMissing(const std::string& character) {
    auto& missing = morse_.without_code;
    if (std::find(missing.begin(), missing.end(), character) == missing.end()) {
      missing.push_back(character);
    }
  }

  void Rest(std::int32_t length_ms) { Check(morse_.tones.Silence(length_ms)); }

  void Check(ToneList::Result result) {
    if (result != ToneList::Result::kAdded) morse_.too_long = true;
  }

  MorseWishes wishes_;
  Lengths lengths_;
  MorseTones morse_;
};

}  // namespace

std::string TextbookSymbolsOf(std::string_view character) {
  const std::string upper = base::ToUpper(character);
  for (const auto& [known, symbols] : kTextbook) {
    if (known == upper) return symbols;
  }
  return ToolSymbolsOf(upper);
}

MorseTones MorseOf(std::string_view utf8, const MorseWishes& wishes) {
  return MorseWriter(wishes).Write(utf8);
}

}  // namespace tools
