#include "app/form1_controls.h"

namespace app {

int Form1Controls::SelectedMode() const {
  for (std::size_t i = 0; i < options_.size(); ++i) {
    if (options_[i]->Value()) return static_cast<int>(i) + 1;
  }
  return 0;
}

void Form1Controls::EnableToolModes(bool enabled) {
  Option9.SetEnabled(enabled);
  Option8.SetEnabled(enabled);
  Option6.SetEnabled(enabled);
}

void Form1Controls::DesignState() {
  EnableCustomPitch(false);
  Command1.SetEnabled(true);
  Command3.SetEnabled(false);
}

void Form1Controls::EnableCustomPitch(bool enabled) {
  const std::array<ui::Control*, 7> group{&Label9, &Command1, &Label3,  &Label10,
                                          &Label5, &Label6,   &HScroll1};
  for (ui::Control* control : group) control->SetEnabled(enabled);
}

}  // namespace app
