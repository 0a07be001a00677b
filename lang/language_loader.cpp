#include "lang/language_loader.h"

namespace lang {
namespace {

Texts TextsOf(const LanguageFile& file) {
  Texts texts;
  for (std::size_t i = 1; i <= 6; ++i) texts.messages[i] = file.Text(48 + i);
  texts.microphone_prefix = file.Text(56) + ", " + file.Text(57);
  texts.messages[8] = file.Text(56);
  texts.status = file.Text(29);
  for (std::size_t i = 10; i <= 20; ++i) texts.messages[i] = file.Text(50 + i);
  return texts;
}

}  // namespace

void LanguageLoader::LanguageAPI(const std::string& language, std::int16_t formval) {
  settings::TrapErrors(errors_, 1015, [&] {
    const auto content = platform_.Texts().Read(LanguageFileName(language));
    if (!content) return;
    const auto file = LanguageFile::Parse(*content, language);
    if (!file) return;
    for (const CaptionSlot& caption : scene_.CaptionsOf(formval)) {
      const std::string& text = file->Text(caption.slot);
      if (caption.optional && text.empty()) continue;
      std::visit([&text](auto* target) { target->SetCaption(text); }, caption.target);
    }
    scene_.UseTexts(TextsOf(*file), formval);
  });
}

}  // namespace lang
