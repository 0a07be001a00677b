// The monitors of the desktop: which one a window belongs on, its work area and its resolution.
#pragma once

#include "platform/windows/api/windows_api.h"
#include "ui/placing.h"

namespace platform::windows {

struct Monitor {
  ui::Rect work;  // without the task bar, pixels of the screen
  int dpi = ui::kDesignDpi;
};

// Where the user works now: the monitor of the active window, or of the mouse pointer where that
// is the desktop itself.
Monitor MonitorOfUser();

// The one that holds most of the window, or of a place.
Monitor MonitorOf(HWND window);
Monitor MonitorOf(const RECT& place);

// Dots per inch of all monitors as far as the system tells no difference.
int SystemDpi();

}  // namespace platform::windows
