// Any bytes as a language file, read as English, as Dutch and as no language at all.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/field_reader.h"
#include "lang/language_file.h"
#include "tests/fuzz/require.h"

namespace lang {
namespace {

using fuzz::Require;
using Fields = std::vector<std::string>;

constexpr std::size_t kMostEntries = 99;

Fields FieldsOf(std::string_view content) {
  Fields fields;
  base::FieldReader reader(content);
  while (auto field = reader.Next()) fields.push_back(*std::move(field));
  return fields;
}

// Slots 4 to 68 but for 30, 40, 48 and 57 must hold a text.
bool IsWhole(const Fields& fields) {
  if (fields.size() < 68) return false;
  for (std::size_t slot = 4; slot <= 68; ++slot) {
    const std::string& text = fields[slot - 1];
    const bool free = slot == 30 || slot == 40 || slot == 48 || slot == 57;
    if (!free && (text.empty() || text == " ")) return false;
  }
  return true;
}

bool IsFileOf(const Fields& fields, const std::string& language) {
  return IsWhole(fields) && fields[0] == "%valid%" && fields[1] == "lang=" + language &&
         fields[2] == "<1>";
}

void CheckLanguage(std::string_view content, const Fields& fields, const std::string& language) {
  const auto file = LanguageFile::Parse(content, language);
  Require(file.has_value() == IsFileOf(fields, language), "a file is valid by the plain rules");
  if (!file) return;
  for (std::size_t slot = 1; slot <= kMostEntries; ++slot) {
    const std::string expected = slot <= fields.size() ? fields[slot - 1] : "";
    Require(file->Text(slot) == expected, "an entry lands in its slot");
  }
  const std::string longer = std::string(content) + "\r\n" + std::string(200, ',');
  const auto again = LanguageFile::Parse(longer, language);
  Require(again && again->Text(4) == file->Text(4), "more entries do no harm");
  Require(LanguageFile::Parse(std::string(content) + "\n" + std::string(200, ','), language)
              .has_value(),
          "whatever its line ends");
}

void CheckContent(std::string_view content) {
  const Fields fields = FieldsOf(content);
  for (const char* language : {"en", "nl", ""}) CheckLanguage(content, fields, language);
}

}  // namespace
}  // namespace lang

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  lang::CheckContent(bytes);
  return 0;
}
