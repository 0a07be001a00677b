#include "lang/texts.h"

namespace lang {

void Texts::Take(const LanguageFile& file) {
  for (std::size_t n = 1; n < kSlots; ++n) {
    const std::string& text = file.Text(n);
    if (!text.empty() || !MayBeMissing(static_cast<Slot>(n))) texts_[n] = text;
  }
  microphone_prefix = file.Text(Slot::kMicrophone) + ", " + file.Text(Slot::kMicrophoneSensitivity);
  status = file.Text(Slot::kStatus);
}

}  // namespace lang
