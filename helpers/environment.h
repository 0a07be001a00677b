// What a helper finds in its surroundings: environment variables, and files that others may write
// and delete at any moment.
#pragma once

#include "helpers/wide_text.h"
#include "platform/windows/api/handles.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {

// Empty if there is no such variable.
WideText EnvironmentVariable(const wchar_t* name);

// Opens a file to read it and gets in nobody's way; `flags` are those of CreateFileW. Null if it
// cannot be opened.
platform::windows::KernelHandle OpenToRead(const WideText& path, DWORD flags);

}  // namespace helpers
