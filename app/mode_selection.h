// SelectRadio: what choosing a tone mode does to the main window.
#pragma once

#include <cstdint>

#include "base/main_state.h"
#include "lang/language_loader.h"
#include "settings/activity_log.h"
#include "settings/error_notes.h"

namespace app {

// The main window as the choice of a mode needs it.
class ModeDisplay {
 public:
  virtual ~ModeDisplay() = default;

  // Shows mode `mode`, 1 to 9, as the one selected.
  virtual void ShowMode(int mode) = 0;
};

class ModeSelection {
 public:
  ModeSelection(const base::MainState& state, ModeDisplay& display, lang::LanguageLoader& languages,
                settings::ActivityLog& log, settings::ErrorNotes& errors)
      : state_(state), display_(display), languages_(languages), log_(log), errors_(errors) {}

  // Applies the choice of mode `newselected`, 1 to 9, with freshly loaded texts. Error value 1010.
  void SelectRadio(std::int16_t newselected);

 private:
  const base::MainState& state_;
  ModeDisplay& display_;
  lang::LanguageLoader& languages_;
  settings::ActivityLog& log_;
  settings::ErrorNotes& errors_;
};

}  // namespace app
