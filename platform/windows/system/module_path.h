// Where the program's own executable file is.
#pragma once

#include <string>

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

// Its full path.
std::wstring ModulePath();

// Its folder; a drive's root with the backslash that belongs to it.
std::wstring ModuleFolder();

}  // namespace platform::windows
