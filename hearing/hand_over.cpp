#include "hearing/hand_over.h"

#include <algorithm>

#include "base/characters.h"
#include "base/sound_mode.h"

namespace hearing {
namespace {

std::string_view Trimmed(std::string_view line) {
  while (!line.empty() && base::IsBlank(line.front())) line.remove_prefix(1);
  while (!line.empty() && base::IsBlank(line.back())) line.remove_suffix(1);
  return line;
}

// Takes the first line from `text`.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  if (text.starts_with('\r')) text.remove_prefix(1);
  if (text.starts_with('\n')) text.remove_prefix(1);
  return Trimmed(line);
}

}  // namespace

Language LanguageOf(std::string_view file) {
  const base::SoundMode mode = base::SoundModeOf(TakeLine(file));
  const std::string_view language = TakeLine(file);
  const bool whole = mode != base::SoundMode::kNone && Trimmed(TakeLine(file)).empty();
  return whole && language == "nl" ? Language::kDutch : Language::kEnglish;
}

}  // namespace hearing
