// Language files that a test can tell the entries of.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lang {

// A language file whose entry K is "text K", with a good head.
inline std::string FileOf(const std::string& language, std::size_t entries,
                          const std::vector<std::pair<std::size_t, std::string>>& changes = {}) {
  std::vector<std::string> lines(entries + 1);
  for (std::size_t k = 1; k <= entries; ++k) lines[k] = "text " + std::to_string(k);
  const std::string head[] = {"", "%valid%", "lang=" + language, "<1>"};
  for (std::size_t k = 1; k <= 3 && k <= entries; ++k) lines[k] = head[k];
  for (const auto& [slot, text] : changes) lines[slot] = text;
  std::string content;
  for (std::size_t k = 1; k <= entries; ++k) content += lines[k] + "\r\n";
  return content;
}

}  // namespace lang
