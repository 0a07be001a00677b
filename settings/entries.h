// The meaning of the entries of the settings file, as pure rules. Keys and values are matched
// without regard to case; nothing is returned for an entry that fails its test.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace settings {

// "key=y" is true, "key=n" is false. `key` is in lower case.
std::optional<bool> YesNo(std::string_view entry, std::string_view key);

// "SoundBit=" and "16", "32", "64", "128" or "256": the code.
std::optional<std::string> SoundBitCode(std::string_view entry);

// "Language=EN" or "Language=NL": the code "en" or "nl".
std::optional<std::string> LanguageCode(std::string_view entry);

// "Microphone=" and a number whose whole part is 1 to 20. Throws base::RuntimeError kTypeMismatch
// when what follows the key is no number, kOverflow when it is one beyond the range of double.
std::optional<std::int16_t> MicrophoneLevel(std::string_view entry);

// The content of a first settings file: the defaults, and what the user chose.
struct FirstChoices {
  bool dutch = false;
  bool send_data = true;
};
std::string FirstSettings(const FirstChoices& choices);

}  // namespace settings
