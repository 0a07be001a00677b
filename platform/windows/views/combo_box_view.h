// A drop-down list's native window: its items, its choice and its size.
#pragma once

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

// How tall the native window is made beyond the closed box: room for the list that drops down.
inline constexpr int kDropDownRoom = 160;  // pixels at 96 DPI

void ShowComboItems(HWND handle, const ui::ComboBox& combo_box);
void ShowComboChoice(HWND handle, const ui::ComboBox& combo_box);

// The chosen item as the native window has it, or ui::ComboBox::kNone.
int ComboChoice(HWND handle);

// Whether a notification of the native window says that the choice may have changed. Leaving the
// open list by Esc takes a choice back without saying so otherwise.
bool TellsComboChoice(UINT code);

}  // namespace platform::windows
