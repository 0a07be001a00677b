// What a native control shows beside its caption: a value, a choice, items.
#pragma once

#include <string>

#include "platform/windows/views/appearance.h"
#include "ui/control.h"

namespace platform::windows {

// The value of an option button, check box, scroll bar or progress bar, the choice of a drop-down
// list. Nothing for other controls.
void ShowValue(HWND handle, const ui::Control& control);

// The other way round: text boxes, check boxes and drop-down lists take what stands on the screen.
void ReadValue(HWND handle, ui::Control& control);

// What stands in the control, in the system's code page.
std::string TextIn(HWND handle);

// The items of a list or drop-down list. Nothing for other controls.
void ShowItems(HWND handle, const ui::Control& control, const Appearance& appearance);

}  // namespace platform::windows
