// A stranger's library or program: whoever loads or starts it leaves a file beside it, of its name
// and
// ".ran".
#include <windows.h>

#include <cwchar>

static void Leave(HMODULE module) {
  constexpr wchar_t kEnding[] = L".ran";
  wchar_t path[MAX_PATH + 5] = L"";
  GetModuleFileNameW(module, path, MAX_PATH);
  std::wcscat(path, kEnding);
  CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
}

#ifdef MARKER_IS_LIBRARY
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) Leave(module);
  return TRUE;
}
#else
int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  Leave(nullptr);
  return 0;
}
#endif
