// The frame of a native window: its style, and where it stands with which size.
#pragma once

#include "platform/windows/views/appearance.h"
#include "ui/window.h"

namespace platform::windows {

inline constexpr wchar_t kWindowClass[] = L"TonmiraWindow";

// Makes the window, not yet visible, on the monitor where the user works: no larger than its work
// area, and with its corner where no other window of the program's, this copy's or another's, has
// one. `appearance` takes what it needs of that monitor.
HWND CreateFrame(const ui::Window& window, HMENU menu, Appearance& appearance);

// Gives an existing window the size that it has on `monitor`. It keeps its corner as far as it then
// lies inside the work area, or stands around the middle of `suggested`, where that is given.
// Whether anything of its appearance changed.
bool RefitFrame(HWND handle, const ui::Window& window, const Monitor& monitor,
                const RECT* suggested, Appearance& appearance);

}  // namespace platform::windows
