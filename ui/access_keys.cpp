#include "ui/access_keys.h"

#include <optional>
#include <set>

#include "base/characters.h"

namespace ui {
namespace {

using Keys = std::set<char>;

std::optional<char> KeyOf(char c) {
  if (base::IsLetter(c) || base::IsDigit(c)) return base::Lower(c);
  return std::nullopt;
}

// A caption on its way to its access key.
struct Candidate {
  explicit Candidate(const std::string& caption)
      : own_choice(caption.size() > 1 && caption[0] == '&' && KeyOf(caption[1])),
        text(own_choice ? caption.substr(1) : caption) {}

  bool own_choice;
  std::string text;
  std::optional<std::size_t> chosen;  // where its key stands
};

// How good a letter is as an access key; better ones are given out first.
enum class Rank { kOwnChoice, kFirstLetter, kStartOfWord, kAnyLetter };

Rank RankOf(const Candidate& caption, std::size_t at) {
  if (at == 0) return caption.own_choice ? Rank::kOwnChoice : Rank::kFirstLetter;
  return caption.text[at - 1] == ' ' ? Rank::kStartOfWord : Rank::kAnyLetter;
}

std::optional<std::size_t> Choose(const Candidate& caption, Rank rank, const Keys& taken) {
  for (std::size_t i = 0; i < caption.text.size(); ++i) {
    const auto key = KeyOf(caption.text[i]);
    if (key && !taken.contains(*key) && RankOf(caption, i) == rank) return i;
  }
  return std::nullopt;
}

std::string Marked(const Candidate& caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.text.size(); ++i) {
    if (i == caption.chosen || caption.text[i] == '&') text += '&';
    text += caption.text[i];
  }
  return text;
}

}  // namespace

std::vector<std::string> WithAccessKeys(const std::vector<std::string>& captions) {
  std::vector<Candidate> candidates(captions.begin(), captions.end());
  Keys taken;
  for (const Rank rank :
       {Rank::kOwnChoice, Rank::kFirstLetter, Rank::kStartOfWord, Rank::kAnyLetter}) {
    for (Candidate& candidate : candidates) {
      if (candidate.chosen) continue;
      candidate.chosen = Choose(candidate, rank, taken);
      if (candidate.chosen) taken.insert(*KeyOf(candidate.text[*candidate.chosen]));
    }
  }
  std::vector<std::string> marked;
  marked.reserve(candidates.size());
  for (const Candidate& candidate : candidates) marked.push_back(Marked(candidate));
  return marked;
}

}  // namespace ui
