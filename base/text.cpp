#include "base/text.h"

#include "base/characters.h"

namespace base {

std::string ToLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    c = Lower(c);
  }
  return lower;
}

std::string ToUpper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

std::string RemoveAll(std::string_view text, char marker) {
  std::string rest(text);
  std::erase(rest, marker);
  return rest;
}

bool EndsWith(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

std::vector<std::string> Characters(std::string_view text) {
  std::vector<std::string> characters;
  for (const char c : text) {
    const bool continues = (c & 0xC0) == 0x80;
    if (continues && !characters.empty()) {
      characters.back() += c;
    } else {
      characters.emplace_back(1, c);
    }
  }
  return characters;
}

std::string Line(std::string_view text) {
  return std::string(text) + "\r\n";
}

}  // namespace base
