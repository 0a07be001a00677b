#include "platform/windows/api/system_library.h"

#include <string>

namespace platform::windows {

// By its full path: a file of that name in the folder of the program must not be taken instead.
HMODULE LoadSystemLibrary(const wchar_t* name) {
  wchar_t folder[MAX_PATH] = L"";
  const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  return LoadLibraryW((std::wstring(folder, length) + L"\\" + name).c_str());
}

}  // namespace platform::windows
