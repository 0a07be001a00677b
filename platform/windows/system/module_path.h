// Where the program's own executable file is.
#pragma once

#include <string>

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

// Its full path.
std::wstring ModulePath();

}  // namespace platform::windows
