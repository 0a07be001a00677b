#include "ui/access_keys.h"

#include <optional>
#include <set>

namespace ui {
namespace {

using Keys = std::set<char>;

std::optional<char> KeyOf(char c) {
  if (c >= 'a' && c <= 'z') return c;
  if (c >= 'A' && c <= 'Z') return static_cast<char>(c - 'A' + 'a');
  if (c >= '0' && c <= '9') return c;
  return std::nullopt;
}

bool StartsWord(const std::string& caption, std::size_t at) {
  return at == 0 || caption[at - 1] == ' ';
}

std::optional<std::size_t> Choose(const std::string& caption, const Keys& taken) {
  for (const bool word_starts_only : {true, false}) {
    for (std::size_t i = 0; i < caption.size(); ++i) {
      const auto key = KeyOf(caption[i]);
      if (!key || taken.count(*key) != 0) continue;
      if (!word_starts_only || StartsWord(caption, i)) return i;
    }
  }
  return std::nullopt;
}

}  // namespace

std::vector<std::string> WithAccessKeys(const std::vector<std::string>& captions) {
  Keys taken;
  std::vector<std::string> marked;
  for (const std::string& caption : captions) {
    const auto chosen = Choose(caption, taken);
    if (chosen) taken.insert(*KeyOf(caption[*chosen]));
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
      if (i == chosen || caption[i] == '&') text += '&';
      text += caption[i];
    }
    marked.push_back(text);
  }
  return marked;
}

}  // namespace ui
