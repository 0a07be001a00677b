#include "helpers/upload.h"

#include <algorithm>

#include "base/characters.h"

namespace helpers {
namespace {

constexpr std::size_t kMostDigits = 5;  // of a 16-bit number

std::string_view TakeLine(std::string_view& text) {
  std::string_view line(text.data(), std::min(text.find('\n'), text.size()));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

char Folded(char c) {
  return c == '/' ? '\\' : base::Lower(c);
}

bool SamePath(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return Folded(a) == Folded(b); });
}

// Takes the folder and the slash after it off `path`, if they are there.
void TakeFolder(std::string_view& path, std::string_view folder) {
  if (path.size() <= folder.size() || Folded(path[folder.size()]) != '\\') return;
  if (SamePath({path.data(), folder.size()}, folder)) path.remove_prefix(folder.size() + 1);
}

std::string_view EndingOnServer(Log log) {
  return log == Log::kActivity ? ".txt" : "error.log";
}

bool IsNumbered(std::string_view name, std::string_view ending) {
  if (!name.ends_with(ending)) return false;
  name.remove_suffix(ending.size());
  return !name.empty() && name.size() <= kMostDigits &&
         std::all_of(name.begin(), name.end(), base::IsDigit);
}

}  // namespace

std::string_view FileName(Log log) {
  return log == Log::kActivity ? "userdata.txt" : "error.log";
}

std::optional<Upload> ParseUpload(std::string_view text, std::string_view folder) {
  if (text.size() > kLongestHandOver || folder.empty()) return std::nullopt;
  std::string_view file = TakeLine(text);
  const std::string_view name = TakeLine(text);
  if (!text.empty()) return std::nullopt;
  TakeFolder(file, folder);
  for (const Log log : {Log::kActivity, Log::kError}) {
    if (SamePath(file, FileName(log)) && IsNumbered(name, EndingOnServer(log))) {
      return Upload{log, name};
    }
  }
  return std::nullopt;
}

}  // namespace helpers
