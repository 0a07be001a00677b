// What the system's error codes mean to the program.
#pragma once

#include <string>

#include "base/errors.h"
#include "platform/windows/api/windows_api.h"

namespace platform::windows {

// The program's error for `system_error`, met while working on the file `path`.
base::ErrorCode FileErrorCode(DWORD system_error, const std::wstring& path);

[[noreturn]] void ThrowFileError(DWORD system_error, const std::wstring& path);

// Whether trying again in a moment can help: another running copy or a virus scanner may hold a
// file for an instant.
bool MayPass(DWORD system_error, const std::wstring& path);

}  // namespace platform::windows
