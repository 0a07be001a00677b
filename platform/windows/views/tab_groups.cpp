#include "platform/windows/views/tab_groups.h"

#include "platform/windows/views/control_shape.h"
#include "ui/controls.h"

namespace platform::windows {

using ui::ControlKind;

bool CanHaveFocus(const ui::Control& control) {
  switch (control.kind()) {
    case ControlKind::kButton:
    case ControlKind::kOptionButton:
    case ControlKind::kScrollBar:
    case ControlKind::kListBox:
    case ControlKind::kTextBox:
    case ControlKind::kCheckBox:
    case ControlKind::kComboBox:
    case ControlKind::kWebBrowser:
      return control.Enabled() && control.Visible();
    default:
      return false;
  }
}

bool StartsGroup(const std::vector<ui::Control*>& controls, std::size_t index) {
  return index == 0 || controls[index]->StartsGroup() ||
         IsOption(*controls[index]) != IsOption(*controls[index - 1]);
}

void UpdateTabStops(const std::vector<ui::Control*>& controls, const std::vector<HWND>& handles) {
  std::size_t begin = 0;
  while (begin < handles.size()) {
    std::size_t end = begin + 1;
    while (end < handles.size() && !StartsGroup(controls, end)) ++end;
    std::size_t stop = end;
    for (std::size_t i = begin; i < end && IsOption(*controls[i]); ++i) {
      if (!CanHaveFocus(*controls[i])) continue;
      if (stop == end || static_cast<const ui::OptionButton&>(*controls[i]).Value()) stop = i;
    }
    for (std::size_t i = begin; i < end && IsOption(*controls[i]); ++i) {
      const LONG style = GetWindowLongW(handles[i], GWL_STYLE);
      const LONG wanted = i == stop ? (style | WS_TABSTOP) : (style & ~LONG{WS_TABSTOP});
      if (wanted != style) SetWindowLongW(handles[i], GWL_STYLE, wanted);
    }
    begin = end;
  }
}

void ShowEnabled(const std::vector<ui::Control*>& controls, const std::vector<HWND>& handles) {
  for (const bool enabled : {true, false}) {
    for (std::size_t i = 0; i < handles.size(); ++i) {
      const bool shown = IsWindowEnabled(handles[i]) != FALSE;
      if (controls[i]->Enabled() == enabled && shown != enabled) EnableWindow(handles[i], enabled);
    }
  }
  UpdateTabStops(controls, handles);
}

}  // namespace platform::windows
