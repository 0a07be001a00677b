// Visual styles that would make a control unreadable.
#pragma once

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

// Whether controls have to be drawn without visual styles now: the user wants high contrast, or has
// colours that the texts of the visual style do not stand out from.
bool NeedsPlainControls(HWND window);

// Leaves visual styles off for the control, or uses them again.
void DrawPlain(HWND control, bool plain);

}  // namespace platform::windows
