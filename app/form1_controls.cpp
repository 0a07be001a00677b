#include "app/form1_controls.h"

#include <string>

namespace app {

std::vector<std::unique_ptr<ui::MenuItem>> Form1Controls::LanguageItems() {
  std::vector<std::unique_ptr<ui::MenuItem>> items;
  for (const lang::Language& row : languages_) {
    items.push_back(std::make_unique<ui::MenuItem>(
        language, row.menu_id, std::string(row.menu_name), std::string(row.menu_caption)));
  }
  return items;
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
