// Where the keyboard goes in a window: the tab key from group to group, the arrow keys within one.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/windows/api/windows_api.h"
#include "ui/control.h"

namespace platform::windows {

// Whether the keyboard focus may be on the control.
bool CanHaveFocus(const ui::Control& control);

// Whether a group begins at `index`. Option buttons never share one with other controls.
bool StartsGroup(const std::vector<ui::Control*>& controls, std::size_t index);

// The tab key stops in a group of option buttons once: at the selected one, else the first.
// `handles` are the native windows of `controls`, as far as they are made.
void UpdateTabStops(const std::vector<ui::Control*>& controls, const std::vector<HWND>& handles);

// Enables and disables the native windows as their controls are: first what can be used then, so
// that the keyboard has where to go.
void ShowEnabled(const std::vector<ui::Control*>& controls, const std::vector<HWND>& handles);

}  // namespace platform::windows
