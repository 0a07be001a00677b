// Windows and controls of other programs: what they show, and what a user does with them. A window
// is named by its handle as a decimal number. Failures are exceptions.
#pragma once

#include <windows.h>

#include <string>

#include "tests/rig/driver/text.h"

HWND Window(const std::string& field);
std::string ClassOf(HWND window);

// Sends a message; throws when it is not answered for ten seconds.
LRESULT Ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0);

void Post(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0);

// A window's text, as the window itself tells it.
std::string TextOf(HWND window);

// The bodies of the commands of the same names.
void PrintWindows();
void PrintControls(HWND parent);
void PrintStyles(HWND parent);
void PrintItems(HWND list);
void PrintFocus(HWND window);
void Clicks(const Fields& fields);
void Slide(const Fields& fields);
void Select(const Fields& fields);

// The system's question and its answer at the end of a session; throws when the window objects. The
// program may end before it returns from the second.
void EndSession(HWND window);

// What a field holds, with no notification to its window where the system sends none.
void PutText(HWND field, const std::wstring& text);
void PutChoice(HWND field, WPARAM choice);
