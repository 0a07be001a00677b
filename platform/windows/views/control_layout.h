// Where the native windows of controls stand, and with which font.
#pragma once

#include "platform/windows/views/appearance.h"
#include "ui/control.h"

namespace platform::windows {

// In the client area of the parent, at least one pixel large. A picture box and a drop-down list
// take more than their bounds.
RECT AreaOf(const ui::Control& control, const Appearance& appearance);

// Gives the control its font; a status bar takes its place by itself, too.
void Dress(HWND handle, const ui::Control& control, const Appearance& appearance);

// The appearance changed: moves the control and gives it its new font.
void Rearrange(HWND handle, ui::Control& control, const Appearance& appearance);

}  // namespace platform::windows
