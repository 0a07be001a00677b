#include "base/text.h"

namespace base {

std::string ToLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string RemoveAll(std::string_view text, char marker) {
  std::string rest;
  for (const char c : text) {
    if (c != marker) rest += c;
  }
  return rest;
}

bool EndsWith(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

std::string Line(std::string_view text) {
  return std::string(text) + "\r\n";
}

}  // namespace base
