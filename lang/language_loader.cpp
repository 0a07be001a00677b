#include "lang/language_loader.h"

namespace lang {
namespace {

struct Setter {
  const std::string& text;

  void operator()(auto* captioned) const { captioned->SetCaption(text); }
  void operator()(SpokenName name) const { name.control->SetSpokenName(text); }
  void operator()(Tip tip) const { tip.control->SetTip(text); }
};

}  // namespace

void LanguageLoader::LanguageAPI(const std::string& language, std::int16_t formval) {
  base::TrapErrors(errors_, base::ErrorValue::kLanguageAPI, [&] {
    const auto content = platform_.Texts().Read(LanguageFileName(language));
    if (!content) return;
    const auto file = LanguageFile::Parse(*content, language);
    if (!file) return;
    for (const CaptionSlot& caption : captions_.of_window(formval)) {
      const std::string& text = file->Text(caption.slot);
      if (text.empty() && MayBeMissing(caption.slot)) continue;
      std::visit(Setter{text}, caption.target);
    }
    captions_.take_texts(*file, formval);
  });
}

}  // namespace lang
