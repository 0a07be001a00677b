#include "app/mode_selection.h"

#include "base/numbers.h"

namespace app {

void ModeSelection::SelectRadio(ToneMode newselected) {
  base::TrapErrors(errors_, base::ErrorValue::kSelectRadio, [&] {
    languages_.LanguageAPI(state_.language, lang::kMainWindow);
    show_mode_(newselected);
    log_.PrintFile("#Option " + base::BareNumber(static_cast<std::int16_t>(newselected)) +
                   " Clicked");
  });
}

}  // namespace app
