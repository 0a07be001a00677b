// SelectRadio: what choosing a tone mode does to the main window.
#pragma once

#include <functional>

#include "app/tone_modes.h"
#include "base/error_trap.h"
#include "lang/language_loader.h"
#include "settings/activity_log.h"
#include "settings/main_state.h"

namespace app {

class ModeSelection {
 public:
  // `show_mode` shows a mode as the one selected.
  ModeSelection(const settings::MainState& state, const std::function<void(ToneMode)>& show_mode,
                lang::LanguageLoader& languages, settings::ActivityLog& log,
                base::ErrorReporter& errors)
      : state_(state), show_mode_(show_mode), languages_(languages), log_(log), errors_(errors) {}

  // Applies the choice of a mode, with freshly loaded texts. Error value kSelectRadio.
  void SelectRadio(ToneMode newselected);

 private:
  const settings::MainState& state_;
  const std::function<void(ToneMode)>& show_mode_;
  lang::LanguageLoader& languages_;
  settings::ActivityLog& log_;
  base::ErrorReporter& errors_;
};

}  // namespace app
