// The one ordered record of everything observable that happens in a simulation.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace platform::simulated {

enum class Kind {
  kFile,
  kWindow,
  kControl,
  kPicture,
  kSound,
  kProcess,
  kMessage,
  kWait,
  kDownload
};

struct Entry {
  std::int64_t at_ms = 0;
  Kind kind = Kind::kFile;
  std::string text;
};

class Journal {
 public:
  void SetTime(std::int64_t now_ms) { now_ms_ = now_ms; }
  void Add(Kind kind, std::string text) { entries_.push_back({now_ms_, kind, std::move(text)}); }
  void Clear() { entries_.clear(); }

  const std::vector<Entry>& entries() const { return entries_; }

  // The texts of the given kinds, in order.
  std::vector<std::string> Texts(std::initializer_list<Kind> kinds) const {
    std::vector<std::string> texts;
    for (const Entry& entry : entries_) {
      if (std::find(kinds.begin(), kinds.end(), entry.kind) != kinds.end()) {
        texts.push_back(entry.text);
      }
    }
    return texts;
  }

 private:
  std::int64_t now_ms_ = 0;
  std::vector<Entry> entries_;
};

// The simulated program was ended at once. Deliberately no std::exception: no trap catches it.
struct ProcessEnded {};

}  // namespace platform::simulated
