#include "app/mode_selection.h"

#include "base/numbers.h"

namespace app {

void ModeSelection::SelectRadio(std::int16_t newselected) {
  settings::TrapErrors(errors_, 1010, [&] {
    languages_.LanguageAPI(state_.language, lang::kMainWindow);
    display_.ShowMode(newselected);
    log_.PrintFile("#Option " + base::BareNumber(newselected) + " Clicked");
  });
}

}  // namespace app
