// The settings: what they are while the program runs, and one row for each of how it is read from
// the settings file, applied, and written there.
//
// The file has one entry a line, "key=value", whose place says which setting it is. Keys and values
// are matched without regard to case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/sound_mode.h"
#include "base/text.h"
#include "lang/languages.h"

namespace settings {

// Flags are 16-bit integers, 1 = yes.
struct Settings {
  std::int16_t AutoUpdate = 0;
  base::SoundMode SoundBit = base::SoundMode::kNone;
  std::string language;  // the code of a language; empty before it is known
  std::int16_t SendData = 0;
  std::int16_t Microphone = 1;  // sensitivity, 1 to 20
  std::int16_t MicrophoneON = 0;
};

inline constexpr std::int16_t kLowestSensitivity = 1;
inline constexpr std::int16_t kHighestSensitivity = 20;

// A flag as it stands in the file: "y" or "n".
std::string YesNo(bool on);

struct Setting;

// What applying settings does to the main window.
class SettingsDisplay {
 public:
  virtual ~SettingsDisplay() = default;

  // A setting that is a check mark.
  virtual void ShowChecked(const Setting& setting, bool on) = 0;

  virtual void ShowLanguage(const std::string& language) = 0;
  virtual void LoadCaptions(const std::string& language) = 0;
  virtual void ShowMicrophoneLevel(std::int16_t level) = 0;
  virtual void ShowFirstRun() = 0;  // the dialog for a user without settings
  virtual void HideMainWindow() = 0;
};

// What the user chose in the first-run dialog.
struct FirstChoices {
  std::string_view language;
  bool send_data = true;
};

// When a value that was read takes effect.
enum class Applied : std::int8_t { kAtOnce, kWhenAllAreRead };

struct Setting {
  std::int16_t line;
  std::string_view key;  // as the menus write it

  // The value with which the first-run dialog writes it.
  std::string (*first_value)(const FirstChoices& choices);

  // Stores `value`, in lower case, in `read`; false when the setting cannot have it. Throws
  // base::RuntimeError where it must be a number and is none.
  bool (*read)(std::string_view value, lang::Languages languages, Settings& read);

  Applied applied;
  void (*apply)(const Setting& setting, const Settings& read, Settings& settings,
                SettingsDisplay& display);

  std::string_view first_key = key;  // as the first-run dialog writes it
};

// How flags are read, "y" or "n", and how those that are a check mark of the menu are applied.
template <std::int16_t Settings::*kFlag>
bool ReadFlag(std::string_view value, lang::Languages, Settings& read) {
  read.*kFlag = value == "y" ? 1 : 0;
  return value == "y" || value == "n";
}
template <std::int16_t Settings::*kFlag>
void ApplyFlag(const Setting&, const Settings& read, Settings& settings, SettingsDisplay&) {
  settings.*kFlag = read.*kFlag;
}
template <std::int16_t Settings::*kFlag>
void ApplyCheckMark(const Setting& setting, const Settings& read, Settings& settings,
                    SettingsDisplay& display) {
  settings.*kFlag = read.*kFlag;
  display.ShowChecked(setting, read.*kFlag == 1);
}

// The others.
bool ReadSoundMode(std::string_view value, lang::Languages, Settings& read);
void ApplySoundMode(const Setting&, const Settings& read, Settings& settings, SettingsDisplay&);
bool ReadLanguage(std::string_view value, lang::Languages languages, Settings& read);
void ApplyLanguage(const Setting&, const Settings& read, Settings& settings,
                   SettingsDisplay& display);
bool ReadSensitivity(std::string_view value, lang::Languages, Settings& read);
void ApplySensitivity(const Setting&, const Settings& read, Settings& settings,
                      SettingsDisplay& display);

inline constexpr Setting kAutoUpdate{
    .line = 1,
    .key = "AutoUpdate",
    .first_value = [](const FirstChoices&) { return std::string("y"); },
    .read = ReadFlag<&Settings::AutoUpdate>,
    .applied = Applied::kAtOnce,
    .apply = ApplyCheckMark<&Settings::AutoUpdate>};

inline constexpr Setting kSoundBit{
    .line = 2,
    .key = "SoundBit",
    .first_value = [](const FirstChoices&) { return std::string("128"); },
    .read = ReadSoundMode,
    .applied = Applied::kWhenAllAreRead,
    .apply = ApplySoundMode,
    .first_key = "Soundbit"};

inline constexpr Setting kLanguage{
    .line = 3,
    .key = "Language",
    .first_value = [](const FirstChoices& choices) { return base::ToUpper(choices.language); },
    .read = ReadLanguage,
    .applied = Applied::kAtOnce,
    .apply = ApplyLanguage};

inline constexpr Setting kSendData{
    .line = 4,
    .key = "SendData",
    .first_value = [](const FirstChoices& choices) { return YesNo(choices.send_data); },
    .read = ReadFlag<&Settings::SendData>,
    .applied = Applied::kWhenAllAreRead,
    .apply = ApplyFlag<&Settings::SendData>};

inline constexpr Setting kMicrophone{
    .line = 5,
    .key = "Microphone",
    .first_value = [](const FirstChoices&) { return std::string("1"); },
    .read = ReadSensitivity,
    .applied = Applied::kWhenAllAreRead,
    .apply = ApplySensitivity};

inline constexpr Setting kMicrophoneON{
    .line = 6,
    .key = "MicrophoneON",
    .first_value = [](const FirstChoices&) { return std::string("y"); },
    .read = ReadFlag<&Settings::MicrophoneON>,
    .applied = Applied::kAtOnce,
    .apply = ApplyCheckMark<&Settings::MicrophoneON>};

// In the order of their lines. What is applied when all are read is so in the opposite order.
inline constexpr const Setting* kAllSettings[] = {&kAutoUpdate, &kSoundBit,   &kLanguage,
                                                  &kSendData,   &kMicrophone, &kMicrophoneON};

// Reads the whole line `entry` into `read`; false when it is none of `setting`. Throws
// base::RuntimeError as the setting's reading does.
bool ReadEntry(const Setting& setting, std::string_view entry, lang::Languages languages,
               Settings& read);

// The whole line, "key=value".
std::string Entry(const Setting& setting, std::string_view value);

// The content of a first settings file.
std::string FirstSettings(const FirstChoices& choices);

}  // namespace settings
