#include "lang/language_file.h"

#include "base/field_reader.h"

namespace lang {
namespace {

constexpr std::size_t kMostEntries = 99;

struct SlotRange {
  std::size_t first;
  std::size_t last;
};
// The slots that must hold a text.
constexpr SlotRange kRequired[] = {{4, 29}, {31, 39}, {41, 47}, {49, 56}, {58, 68}};

bool IsText(const std::string& entry) {
  return !entry.empty() && entry != " ";
}

}  // namespace

std::optional<LanguageFile> LanguageFile::Parse(std::string_view content,
                                                const std::string& language) {
  LanguageFile file;
  base::FieldReader reader(content);
  for (std::size_t n = 1; n <= kMostEntries && !reader.AtEnd(); ++n)
    file.slots_[n] = *reader.Next();
  if (!file.Valid(language)) return std::nullopt;
  return file;
}

bool LanguageFile::Valid(const std::string& language) const {
  if (slots_[1] != "%valid%" || slots_[2] != "lang=" + language || slots_[3] != "<1>") return false;
  for (const SlotRange& range : kRequired) {
    for (std::size_t slot = range.first; slot <= range.last; ++slot) {
      if (!IsText(slots_[slot])) return false;
    }
  }
  return true;
}

std::string LanguageFileName(const std::string& language) {
  return "lng_" + language + ".dll";
}

}  // namespace lang
