// A language file: the texts of one language, by slot.
//
// "lng_" + language code + ".dll" is a plain text file in the system's single-byte code page, read
// with the free-format field reader: entry K lands in slot K, at most 99 entries. docs/languages.md
// says what each slot is for.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "lang/slots.h"

namespace lang {

inline constexpr std::size_t kSlots = 101;

class LanguageFile {
 public:
  // The texts in `content`, or nothing when it is no valid file of the language `language`.
  static std::optional<LanguageFile> Parse(std::string_view content, const std::string& language);

  // The text of a slot, 1 to 99; empty where the file has none.
  const std::string& Text(std::size_t slot) const { return slots_[slot]; }
  const std::string& Text(Slot slot) const { return Text(static_cast<std::size_t>(slot)); }

 private:
  LanguageFile() = default;

  bool Valid(const std::string& language) const;

  std::array<std::string, kSlots> slots_;
};

// The file's name, without a folder.
std::string LanguageFileName(const std::string& language);

}  // namespace lang
