// Libraries of the system: they come from the system's own folder and from nowhere else, and but
// for the few that no folder can stand in for (tests/check_imports.py) they are loaded when needed.
#pragma once

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

// To be called before anything else: from then on no library, nor any that one needs or loads
// itself, is looked for in the program's folder, in the current one or in those of PATH. Systems
// before Windows 8 that lack update KB2533623 can leave out the current folder at most (XP), or
// nothing (2000); LoadSystemLibrary does not need this.
void LoadFromSystemFolderOnly();

// A library of the system's own folder, or null. Never unloaded by anyone.
HMODULE LoadSystemLibrary(const wchar_t* name);

// The version of a library that the program's manifest asks for; where the system keeps but one,
// that of its own folder. Null when there is none.
HMODULE LoadVersionedLibrary(const wchar_t* name);

// Null when the library is null or has no such function.
template <typename Function>
Function FunctionOf(HMODULE library, const char* name) {
  if (library == nullptr) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace platform::windows
