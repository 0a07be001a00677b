// What screen readers are told of the controls of other programs.
#pragma once

#include <windows.h>

// The body of the command "names".
void PrintNames(HWND window);
