// Libraries of the system that are loaded only when they are needed.
#pragma once

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

// A library of the system's own folder, or null. Never unloaded by anyone.
HMODULE LoadSystemLibrary(const wchar_t* name);

// Null when the library is null or has no such function.
template <typename Function>
Function FunctionOf(HMODULE library, const char* name) {
  if (library == nullptr) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace platform::windows
