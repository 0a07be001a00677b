// Any bytes as a settings file: its entries by the field reader, and what each may mean.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/errors.h"
#include "base/field_reader.h"
#include "base/numbers.h"
#include "base/text.h"
#include "settings/entries.h"
#include "tests/fuzz/require.h"

namespace settings {
namespace {

using fuzz::Require;

constexpr std::array<std::string_view, 3> kFlags{"autoupdate", "senddata", "microphoneon"};
constexpr std::string_view kLevel = "microphone=";

// How many of "key=value" the entry is, whatever its case.
int CountOf(const std::string& entry, std::string_view key,
            std::initializer_list<std::string_view> values) {
  return static_cast<int>(std::count_if(values.begin(), values.end(), [&](std::string_view value) {
    return entry == std::string(key) + "=" + std::string(value);
  }));
}

bool CheckFlags(const std::string& entry, const std::string& lower) {
  bool known = false;
  for (const std::string_view key : kFlags) {
    const auto flag = YesNo(entry, key);
    Require(flag.has_value() == (CountOf(lower, key, {"y", "n"}) == 1), "yes, no or nothing");
    if (flag) Require(*flag == lower.ends_with('y'), "yes is true");
    known = known || flag;
  }
  return known;
}

bool CheckCodes(const std::string& entry, const std::string& lower) {
  const auto sound = SoundBitCode(entry);
  Require(sound.has_value() == (CountOf(lower, "soundbit", {"16", "32", "64", "128", "256"}) == 1),
          "one of five sound modes");
  if (sound) Require(lower == "soundbit=" + *sound, "the code that stands there");
  const auto language = LanguageCode(entry);
  Require(language.has_value() == (CountOf(lower, "language", {"en", "nl"}) == 1),
          "one of two languages");
  if (language) Require(lower == "language=" + *language, "the code that stands there");
  return sound || language;
}

// The level that an entry of blanks, at most nine digits and blanks means; nothing for others.
std::optional<long> PlainLevel(std::string_view value) {
  while (value.starts_with(' ') || value.starts_with('\t')) value.remove_prefix(1);
  while (value.ends_with(' ') || value.ends_with('\t')) value.remove_suffix(1);
  const bool digits =
      std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (value.empty() || value.size() > 9 || !digits) return std::nullopt;
  return std::stol(std::string(value));
}

bool CheckLevel(const std::string& entry, const std::string& lower) {
  const bool has_key = lower.starts_with(kLevel);
  const std::string value = has_key ? lower.substr(kLevel.size()) : "";
  try {
    const auto level = MicrophoneLevel(entry);
    Require(!level || has_key, "only the key's entry has a level");
    Require(!has_key || base::IsNumber(value.substr(0, 99)), "what is no number is an error");
    if (level) {
      Require(*level >= 1 && *level <= 20, "a level from 1 to 20");
      const std::string again = "MICROPHONE=\t" + base::BareNumber(*level) + ".9 ";
      Require(MicrophoneLevel(again) == level, "blanks and what is behind the point do not count");
    }
    const auto plain = value.size() <= 99 ? PlainLevel(value) : std::nullopt;
    if (plain) {
      Require(level.has_value() == (*plain >= 1 && *plain <= 20), "every level counts");
      if (level) Require(*level == *plain, "the level that stands there");
    }
    return level.has_value();
  } catch (const base::RuntimeError& error) {
    Require(has_key, "only the key's entry can be an error");
    Require(error.code() == base::ErrorCode::kTypeMismatch ||
                error.code() == base::ErrorCode::kOverflow,
            "no number, or too large a one");
    Require(!PlainLevel(value.substr(0, 99)), "plain digits are no error");
    return false;
  }
}

void CheckEntry(const std::string& entry) {
  const std::string lower = base::ToLower(entry);
  const int meanings = (CheckFlags(entry, lower) ? 1 : 0) + (CheckCodes(entry, lower) ? 1 : 0) +
                       (CheckLevel(entry, lower) ? 1 : 0);
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
