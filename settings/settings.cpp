#include "settings/settings.h"

#include "base/numbers.h"

namespace settings {
namespace {

constexpr std::size_t kLongestNumber = 99;  // characters

}  // namespace

std::string YesNo(bool on) {
  return on ? "y" : "n";
}

bool ReadSoundMode(std::string_view value, lang::Languages, Settings& read) {
  read.SoundBit = base::SoundModeOf(value);
  return read.SoundBit != base::SoundMode::kNone;
}

void ApplySoundMode(const Setting&, const Settings& read, Settings& settings, SettingsDisplay&) {
  settings.SoundBit = read.SoundBit;
}

bool ReadLanguage(std::string_view value, lang::Languages languages, Settings& read) {
  read.language = value;
  return lang::Find(languages, value) != nullptr;
}

void ApplyLanguage(const Setting&, const Settings& read, Settings& settings,
                   SettingsDisplay& display) {
  settings.language = read.language;
  display.ShowLanguage(read.language);
  display.LoadCaptions(read.language);
}

bool ReadSensitivity(std::string_view value, lang::Languages, Settings& read) {
  const double level = base::WholePart(base::NumberFromText(value.substr(0, kLongestNumber)));
  if (level < kLowestSensitivity || level > kHighestSensitivity) return false;
  read.Microphone = base::ToInt16(level);
  return true;
}

void ApplySensitivity(const Setting&, const Settings& read, Settings& settings,
                      SettingsDisplay& display) {
  settings.Microphone = read.Microphone;
  display.ShowMicrophoneLevel(read.Microphone);
}

bool ReadEntry(const Setting& setting, std::string_view entry, lang::Languages languages,
               Settings& read) {
  const std::string lower = base::ToLower(entry);
  const std::string start = base::ToLower(setting.key) + "=";
  if (!lower.starts_with(start)) return false;
  return setting.read(std::string_view(lower).substr(start.size()), languages, read);
}

std::string Entry(const Setting& setting, std::string_view value) {
  return std::string(setting.key) + "=" + std::string(value);
}

std::string FirstSettings(const FirstChoices& choices) {
  std::string content;
  for (const Setting* setting : kAllSettings) {
    content += base::Line(std::string(setting->first_key) + "=" + setting->first_value(choices));
  }
  return content;
}

}  // namespace settings
