// Names for files that nobody can foresee.
#pragma once

#include <string>

namespace platform::windows {

// `path`, a point, 32 digits of the system's random numbers and ".tmp". Throws base::RuntimeError
// when the system has none.
std::wstring RandomNameBeside(const std::wstring& path);

}  // namespace platform::windows
