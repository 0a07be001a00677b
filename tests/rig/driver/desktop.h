// What of a desktop changes while programs run: its resolution, its fonts.
#pragma once

#include <windows.h>

#include <string>

#include "tests/rig/driver/text.h"

// The bodies of the commands "client", "resolution" and "font".
void PrintClient(HWND window);
void TellResolution(HANDLE process, const Fields& fields);
void ChangeFont(const std::wstring& face, int height);
