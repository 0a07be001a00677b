// The texts that are not captions of one control: what the windows show as the user goes on.
#pragma once

#include <array>
#include <string>
#include <utility>

#include "lang/language_file.h"
#include "lang/slots.h"

namespace lang {

// A fresh object holds the English texts the program is designed with, as far as no window has
// them; all others are empty.
class Texts {
 public:
  const std::string& Of(Slot slot) const { return texts_[static_cast<std::size_t>(slot)]; }
  void Set(Slot slot, std::string text) {
    texts_[static_cast<std::size_t>(slot)] = std::move(text);
  }

  // Takes over all texts of a file. One that may be missing, and is, stays as it was.
  void Take(const LanguageFile& file);

  std::string microphone_prefix = "Microphone input, sensitivity:";
  std::string status = "Actual pitch (Hertz):";

 private:
  std::array<std::string, kSlots> texts_;
};

}  // namespace lang
