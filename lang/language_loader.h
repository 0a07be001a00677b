// LanguageAPI: replaces the captions of one window, and the message texts, by those of a language
// file in the current folder.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "base/error_trap.h"
#include "lang/language_file.h"
#include "lang/slots.h"
#include "platform/platform.h"
#include "ui/window.h"

namespace lang {

// The texts of a control beside its caption.
struct SpokenName {
  ui::Control* control;
};
struct Tip {
  ui::Control* control;
};

// Which caption, spoken name or tool tip takes the text of a slot.
struct CaptionSlot {
  Slot slot;
  std::variant<ui::Control*, ui::MenuItem*, ui::Window*, SpokenName, Tip> target;
};

// Window numbers.
inline constexpr std::int16_t kMainWindow = 1;
inline constexpr std::int16_t kHelpWindow = 2;
inline constexpr std::int16_t kMorseWindow = 4;
inline constexpr std::int16_t kAboutBox = 99;

// Where the texts of a file go.
struct Captions {
  // The captions of window `formval`, in the order in which they are set; none for a number without
  // a window.
  std::function<std::vector<CaptionSlot>(std::int16_t formval)> of_window;

  // Takes over the message texts of a file that was loaded for window `formval`.
  std::function<void(const LanguageFile& file, std::int16_t formval)> take_texts;
};

class LanguageLoader {
 public:
  LanguageLoader(platform::Platform& platform, const Captions& captions,
                 base::ErrorReporter& errors)
      : platform_(platform), captions_(captions), errors_(errors) {}

  // Loads "lng_" + language + ".dll" and applies it to window `formval`. A missing or invalid file
  // changes nothing. Error value kLanguageAPI.
  void LanguageAPI(const std::string& language, std::int16_t formval);

 private:
  platform::Platform& platform_;
  const Captions& captions_;
  base::ErrorReporter& errors_;
};

}  // namespace lang
