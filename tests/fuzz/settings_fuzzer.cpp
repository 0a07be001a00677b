// Any bytes as a settings file: its entries by the field reader, and what each means to each
// setting.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "base/errors.h"
#include "base/field_reader.h"
#include "base/numbers.h"
#include "base/text.h"
#include "settings/settings.h"
#include "tests/fuzz/require.h"

namespace settings {
namespace {

using fuzz::Require;

constexpr std::string_view kLevel = "microphone=";
constexpr std::size_t kLongestLevel = 99;

// The settings that an entry changed.
struct Read {
  bool passes = false;
  Settings values;
};

Read Reading(const Setting& setting, std::string_view entry) {
  Read read;
  read.passes = ReadEntry(setting, entry, lang::ShippedLanguages(), read.values);
  return read;
}

// What stands behind "key=" when that is one of `values`; nothing for another.
std::optional<std::string_view> ValueOf(std::string_view entry, std::string_view key,
                                        std::initializer_list<std::string_view> values) {
  if (entry.substr(0, key.size()) != key) return std::nullopt;
  entry.remove_prefix(key.size());
  const bool known = std::find(values.begin(), values.end(), entry) != values.end();
  return known ? std::optional(entry) : std::nullopt;
}

bool CheckFlag(const Setting& setting, std::int16_t Settings::*flag, const std::string& entry,
               const std::string& lower, std::string_view key) {
  const auto value = ValueOf(lower, key, {"y", "n"});
  const Read read = Reading(setting, entry);
  Require(read.passes == value.has_value(), "yes, no or nothing");
  if (value) Require(read.values.*flag == (value == "y" ? 1 : 0), "1 for yes");
  return read.passes;
}

bool CheckFlags(const std::string& entry, const std::string& lower) {
  const bool update = CheckFlag(kAutoUpdate, &Settings::AutoUpdate, entry, lower, "autoupdate=");
  const bool data = CheckFlag(kSendData, &Settings::SendData, entry, lower, "senddata=");
  const bool microphone =
      CheckFlag(kMicrophoneON, &Settings::MicrophoneON, entry, lower, "microphoneon=");
  return update || data || microphone;
}

bool CheckCodes(const std::string& entry, const std::string& lower) {
  const auto mode = ValueOf(lower, "soundbit=", {"16", "32", "64", "128", "256"});
  const Read sound = Reading(kSoundBit, entry);
  Require(sound.passes == mode.has_value(), "one of five sound modes");
  if (mode) Require(base::FactsOf(sound.values.SoundBit).code == *mode, "the one that it names");
  const auto code = ValueOf(lower, "language=", {"en", "nl"});
  const Read language = Reading(kLanguage, entry);
  Require(language.passes == code.has_value(), "one of two languages");
  if (code) Require(language.values.language == *code, "the one that it names");
  return sound.passes || language.passes;
}

// The number that at most nine digits between blanks mean; nothing for other texts.
std::optional<long> PlainLevel(std::string_view value) {
  while (value.starts_with(' ') || value.starts_with('\t')) value.remove_prefix(1);
  while (value.ends_with(' ') || value.ends_with('\t')) value.remove_suffix(1);
  const bool digits =
      std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (value.empty() || value.size() > 9 || !digits) return std::nullopt;
  return std::stol(std::string(value));
}

void CheckLevel(const Read& read, std::string_view value) {
  Require(base::IsNumber(value), "what is no number is an error");
  const auto plain = PlainLevel(value);
  if (plain) Require(read.passes == (*plain >= 1 && *plain <= 20), "every level counts");
  if (!read.passes) return;
  const std::int16_t level = read.values.Microphone;
  Require(level >= 1 && level <= 20, "a level from 1 to 20");
  if (plain) Require(level == *plain, "the level that stands there");
  const std::string again = "MICROPHONE=\t" + base::BareNumber(level) + ".9 ";
  Require(Reading(kMicrophone, again).values.Microphone == level,
          "blanks and what is behind the point do not count");
}

bool CheckMicrophone(const std::string& entry, const std::string& lower) {
  const bool has_key = lower.starts_with(kLevel);
  const std::string value = has_key ? lower.substr(kLevel.size(), kLongestLevel) : "";
  try {
    const Read read = Reading(kMicrophone, entry);
    Require(has_key || !read.passes, "only the key's entry has a level");
    if (has_key) CheckLevel(read, value);
    return read.passes;
  } catch (const base::RuntimeError& error) {
    Require(has_key, "only the key's entry can be an error");
    Require(error.code() == base::ErrorCode::kTypeMismatch ||
                error.code() == base::ErrorCode::kOverflow,
            "no number, or too large a one");
    Require(!PlainLevel(value), "plain digits are no error");
    return false;
  }
}

void CheckEntry(const std::string& entry) {
  const std::string lower = base::ToLower(entry);
  const int meanings = (CheckFlags(entry, lower) ? 1 : 0) + (CheckCodes(entry, lower) ? 1 : 0) +
                       (CheckMicrophone(entry, lower) ? 1 : 0);
  Require(meanings <= 1, "an entry has one meaning at most");
}

}  // namespace
}  // namespace settings

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  base::FieldReader reader(bytes);
  while (const auto entry = reader.Next()) settings::CheckEntry(*entry);
  return 0;
}
