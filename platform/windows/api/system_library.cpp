#include "platform/windows/api/system_library.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>

namespace platform::windows {
namespace {

using SetDirectoriesFunction = BOOL(WINAPI*)(DWORD);
using SetDirectoryFunction = BOOL(WINAPI*)(LPCWSTR);

constexpr DWORD kSearchSystemFolder = 0x800;  // LOAD_LIBRARY_SEARCH_SYSTEM32
constexpr std::size_t kLongestName = 32;

template <typename Function>
Function Kernel(const char* name) {
  return FunctionOf<Function>(GetModuleHandleW(L"kernel32.dll"), name);
}

// Came together with the flags that name folders to search.
SetDirectoriesFunction SetDirectories() {
  return Kernel<SetDirectoriesFunction>("SetDefaultDllDirectories");
}

bool KeepsSeveralVersions() {
  return Kernel<FARPROC>("CreateActCtxW") != nullptr;
}

}  // namespace

void LoadFromSystemFolderOnly() {
  if (const auto set_directories = SetDirectories()) {
    set_directories(kSearchSystemFolder);
  } else if (const auto set_directory = Kernel<SetDirectoryFunction>("SetDllDirectoryW")) {
    set_directory(L"");
  }
}

// By its full path. The flags are for what the library itself needs: the system's folder, or where
// they are unknown that of the library, before any other.
HMODULE LoadSystemLibrary(const wchar_t* name) {
  wchar_t path[MAX_PATH + kLongestName + 1];
  const UINT length = GetSystemDirectoryW(path, MAX_PATH);
  const std::size_t name_length = std::wcslen(name);
  if (length == 0 || length >= MAX_PATH || name_length >= kLongestName) return nullptr;
  path[length] = L'\\';
  std::copy_n(name, name_length + 1, path + length + 1);
  return LoadLibraryExW(path, nullptr,
                        SetDirectories() ? kSearchSystemFolder : LOAD_WITH_ALTERED_SEARCH_PATH);
}

// The manifest speaks for bare names only, and before any folder is looked at.
HMODULE LoadVersionedLibrary(const wchar_t* name) {
  if (!KeepsSeveralVersions()) return LoadSystemLibrary(name);
  return LoadLibraryExW(name, nullptr, SetDirectories() ? kSearchSystemFolder : 0);
}

}  // namespace platform::windows
