// LanguageAPI: replaces the captions of one window, and the message texts, by those of a language
// file in the current folder.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "lang/language_file.h"
#include "lang/texts.h"
#include "platform/platform.h"
#include "settings/error_notes.h"
#include "ui/window.h"

namespace lang {

// Which caption takes the text of a slot.
struct CaptionSlot {
  std::size_t slot = 0;
  std::variant<ui::Control*, ui::MenuItem*, ui::Window*> target;
  bool optional = false;  // an empty slot leaves the caption as it is
};

// Window numbers.
inline constexpr std::int16_t kMainWindow = 1;
inline constexpr std::int16_t kHelpWindow = 2;
inline constexpr std::int16_t kMorseWindow = 4;
inline constexpr std::int16_t kAboutBox = 99;

class CaptionScene {
 public:
  virtual ~CaptionScene() = default;

  // The captions of window `formval`, in the order in which they are set; none for a number without
  // a window.
  virtual std::vector<CaptionSlot> CaptionsOf(std::int16_t formval) = 0;

  // Takes over the message texts, which came with the captions of window `formval`.
  virtual void UseTexts(const Texts& texts, std::int16_t formval) = 0;
};

class LanguageLoader {
 public:
  LanguageLoader(platform::Platform& platform, CaptionScene& scene, settings::ErrorNotes& errors)
      : platform_(platform), scene_(scene), errors_(errors) {}

  // Loads "lng_" + language + ".dll" and applies it to window `formval`. A missing or invalid file
  // changes nothing. Error value 1015.
  void LanguageAPI(const std::string& language, std::int16_t formval);

  // Stores the language code of this object.
  void setLang(const std::string& newlang) { language_ = newlang; }

 private:
  platform::Platform& platform_;
  CaptionScene& scene_;
  settings::ErrorNotes& errors_;
  std::string language_;
};

}  // namespace lang
