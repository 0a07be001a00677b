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

// How good a letter is as an access key; better ones are given out first.
enum class Rank { kFirstLetter, kStartOfWord, kAnyLetter };

Rank RankOf(const std::string& caption, std::size_t at) {
  if (at == 0) return Rank::kFirstLetter;
  return caption[at - 1] == ' ' ? Rank::kStartOfWord : Rank::kAnyLetter;
}

std::optional<std::size_t> Choose(const std::string& caption, Rank rank, const Keys& taken) {
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const auto key = KeyOf(caption[i]);
    if (key && taken.count(*key) == 0 && RankOf(caption, i) == rank) return i;
  }
  return std::nullopt;
}

std::string Marked(const std::string& caption, std::optional<std::size_t> chosen) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (i == chosen || caption[i] == '&') text += '&';
    text += caption[i];
  }
  return text;
}

}  // namespace

std::vector<std::string> WithAccessKeys(const std::vector<std::string>& captions) {
  Keys taken;
  std::vector<std::optional<std::size_t>> chosen(captions.size());
  for (const Rank rank : {Rank::kFirstLetter, Rank::kStartOfWord, Rank::kAnyLetter}) {
    for (std::size_t i = 0; i < captions.size(); ++i) {
      if (chosen[i]) continue;
      chosen[i] = Choose(captions[i], rank, taken);
      if (chosen[i]) taken.insert(*KeyOf(captions[i][*chosen[i]]));
    }
  }
  std::vector<std::string> marked;
  for (std::size_t i = 0; i < captions.size(); ++i)
    marked.push_back(Marked(captions[i], chosen[i]));
  return marked;
}

}  // namespace ui
