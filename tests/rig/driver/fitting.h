// Which captions do not fit into their controls.
#pragma once

#include <windows.h>

// The body of the command "cut": prints the captions of a window's controls that do not fit
// at `dpi`; 0 is that of the system.
void PrintCutCaptions(HWND window, int dpi);
