#include "platform/windows/views/combo_box_view.h"

#include "platform/windows/api/wide_text.h"

namespace platform::windows {

void ShowComboItems(HWND handle, const ui::ComboBox& combo_box) {
  SendMessageW(handle, CB_RESETCONTENT, 0, 0);
  for (const std::string& item : combo_box.Items()) {
    SendMessageW(handle, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(item).c_str()));
  }
  ShowComboChoice(handle, combo_box);
}

void ShowComboChoice(HWND handle, const ui::ComboBox& combo_box) {
  if (ComboChoice(handle) == combo_box.ListIndex()) return;
  // An index of -1 takes the choice away.
  SendMessageW(handle, CB_SETCURSEL, static_cast<WPARAM>(combo_box.ListIndex()), 0);
}

int ComboChoice(HWND handle) {
  const LRESULT chosen = SendMessageW(handle, CB_GETCURSEL, 0, 0);
  return chosen == CB_ERR ? ui::ComboBox::kNone : static_cast<int>(chosen);
}

bool TellsComboChoice(UINT code) {
  return code == CBN_SELCHANGE || code == CBN_CLOSEUP;
}

}  // namespace platform::windows
