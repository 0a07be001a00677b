// Which captions do not fit into their controls.
#pragma once

#include <windows.h>

// The body of the command "cut": prints the captions of a window's controls that do not fit.
void PrintCutCaptions(HWND window);
