#include "platform/windows/views/control_values.h"

#include <algorithm>

#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/combo_box_view.h"
#include "platform/windows/views/control_shape.h"
#include "platform/windows/views/scroll_bar_view.h"
#include "ui/controls.h"
#include "ui/progress_bar.h"

#include <commctrl.h>

namespace platform::windows {
namespace {

using ui::ControlKind;

// The list scrolls as far as its widest item needs.
void ShowListItems(HWND list, const ui::ListBox& list_box, const Appearance& appearance) {
  const DeviceContext context(list);
  const HGDIOBJ before = SelectObject(context.get(), appearance.message_font());
  SendMessageW(list, LB_RESETCONTENT, 0, 0);
  LONG widest = 0;
  for (const std::string& item : list_box.Items()) {
    const std::wstring text = Widen(item);
    SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    SIZE size{};
    GetTextExtentPoint32W(context.get(), text.c_str(), static_cast<int>(text.size()), &size);
    widest = std::max(widest, size.cx);
  }
  SelectObject(context.get(), before);
  const int margin = appearance.Scale(8);
  SendMessageW(list, LB_SETHORIZONTALEXTENT,
               static_cast<WPARAM>(widest) + static_cast<WPARAM>(margin), 0);
}

}  // namespace

std::string TextIn(HWND handle) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle)) + 1, L'\0');
  const int length = GetWindowTextW(handle, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return Narrow(text);
}

void ReadValue(HWND handle, ui::Control& control) {
  if (control.kind() == ControlKind::kTextBox) {
    static_cast<ui::TextBox&>(control).Take(TextIn(handle));
  } else if (control.kind() == ControlKind::kCheckBox) {
    const bool checked = SendMessageW(handle, BM_GETCHECK, 0, 0) == BST_CHECKED;
    static_cast<ui::CheckBox&>(control).SetValue(checked);
  } else if (control.kind() == ControlKind::kComboBox) {
    static_cast<ui::ComboBox&>(control).SetListIndex(ComboChoice(handle));
  }
}

void ShowValue(HWND handle, const ui::Control& control) {
  if (IsOption(control)) {
    const WPARAM value =
        static_cast<const ui::OptionButton&>(control).Value() ? BST_CHECKED : BST_UNCHECKED;
    const bool shows_it = static_cast<WPARAM>(SendMessageW(handle, BM_GETCHECK, 0, 0)) == value;
    if (!shows_it) SendMessageW(handle, BM_SETCHECK, value, 0);
  } else if (control.kind() == ControlKind::kCheckBox) {
    const bool checked = static_cast<const ui::CheckBox&>(control).Value();
    SendMessageW(handle, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
  } else if (control.kind() == ControlKind::kScrollBar) {
    ShowScrollValue(handle, static_cast<const ui::ScrollBar&>(control));
  } else if (control.kind() == ControlKind::kComboBox) {
    ShowComboChoice(handle, static_cast<const ui::ComboBox&>(control));
  } else if (control.kind() == ControlKind::kProgressBar) {
    const auto& bar = static_cast<const ui::ProgressBar&>(control);
    SendMessageW(handle, PBM_SETRANGE32, static_cast<WPARAM>(bar.Minimum()), bar.Maximum());
    SendMessageW(handle, PBM_SETPOS, static_cast<WPARAM>(bar.Value()), 0);
  }
}

void ShowItems(HWND handle, const ui::Control& control, const Appearance& appearance) {
  if (control.kind() == ControlKind::kComboBox) {
    ShowComboItems(handle, static_cast<const ui::ComboBox&>(control));
  } else if (control.kind() == ControlKind::kListBox) {
    ShowListItems(handle, static_cast<const ui::ListBox&>(control), appearance);
  }
}

}  // namespace platform::windows
