// What of a desktop changes while programs run: its resolution, its colours, its fonts.
#pragma once

#include <windows.h>

#include <string>

#include "tests/rig/driver/text.h"

// The bodies of the commands "client", "resolution" and "inside".
void PrintClient(HWND window);
void TellResolution(HANDLE process, const Fields& fields);
void CallInside(HANDLE process, const Fields& fields);
