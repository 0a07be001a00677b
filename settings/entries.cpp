#include "settings/entries.h"

#include <array>

#include "base/numbers.h"
#include "base/text.h"

namespace settings {
namespace {

constexpr std::size_t kLongestLevel = 99;  // characters

// What follows "key=" in `entry`, in lower case.
std::optional<std::string> ValueOf(std::string_view entry, std::string_view key) {
  const std::string lower = base::ToLower(entry);
  const std::string start = std::string(key) + "=";
  if (!lower.starts_with(start)) return std::nullopt;
  return lower.substr(start.size());
}

}  // namespace

std::optional<bool> YesNo(std::string_view entry, std::string_view key) {
  const auto value = ValueOf(entry, key);
  if (value == "y") return true;
  if (value == "n") return false;
  return std::nullopt;
}

std::optional<std::string> SoundBitCode(std::string_view entry) {
  const auto value = ValueOf(entry, "soundbit");
  for (const char* code : {"16", "32", "64", "128", "256"}) {
    if (value == code) return value;
  }
  return std::nullopt;
}

std::optional<std::string> LanguageCode(std::string_view entry) {
  const auto value = ValueOf(entry, "language");
  if (value == "en" || value == "nl") return value;
  return std::nullopt;
}

std::optional<std::int16_t> MicrophoneLevel(std::string_view entry) {
  const auto value = ValueOf(entry, "microphone");
  if (!value) return std::nullopt;
  const double level = base::WholePart(base::NumberFromText(value->substr(0, kLongestLevel)));
  if (level < 1 || level > 20) return std::nullopt;
  return base::ToInt16(level);
}

std::string FirstSettings(const FirstChoices& choices) {
  // "Soundbit" is spelled differently from what the menus write; case does not matter.
  return base::Line("AutoUpdate=y") + base::Line("Soundbit=128") +
         base::Line(choices.dutch ? "Language=NL" : "Language=EN") +
         base::Line(choices.send_data ? "SendData=y" : "SendData=n") + base::Line("Microphone=1") +
         base::Line("MicrophoneON=y");
}

}  // namespace settings
