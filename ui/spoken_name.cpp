#include "ui/spoken_name.h"

#include <algorithm>

#include "ui/window.h"

namespace ui {
namespace {

// Systems take the label directly before a field for its name.
std::string LabelBefore(const Control& control) {
  const auto& all = control.Owner().Controls();
  const auto place = std::find(all.begin(), all.end(), &control);
  if (place == all.begin()) return "";
  const Control& before = **(place - 1);
  return before.kind() == ControlKind::kLabel ? before.Caption() : "";
}

}  // namespace

std::string SpokenNameOf(const Control& control) {
  if (!control.SpokenName().empty()) return control.SpokenName();
  switch (control.kind()) {
    case ControlKind::kTextBox:
    case ControlKind::kListBox:
    case ControlKind::kComboBox:
      return LabelBefore(control);
    case ControlKind::kWebBrowser:
      return control.Owner().Caption();
    default:
      return control.Caption();
  }
}

bool ShowsCaption(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kButton:
    case ControlKind::kOptionButton:
    case ControlKind::kCheckBox:
    case ControlKind::kTextBox:
    case ControlKind::kStatusBar:
      return true;
    default:
      return false;
  }
}

}  // namespace ui
