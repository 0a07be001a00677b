// play16.exe: starts tone16.dll, which is a program, from its own folder and ends. The exit code is
// not 0 if the hand-over file asks for nothing or tone16.dll could not be started.
#include "helpers/program_paths.h"
#include "helpers/request_file.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

namespace {

using helpers::WideText;

WideText OwnPath() {
  return WideText::FilledBy([](wchar_t* space, std::size_t size) {
    return GetModuleFileNameW(nullptr, space, static_cast<DWORD>(size));
  });
}

bool Start(const WideText& program) {
  WideText line = helpers::CommandLine(program.view());
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_FORCEOFFFEEDBACK;
  startup.wShowWindow = SW_HIDE;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                      nullptr, nullptr, &startup, &process)) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  platform::windows::LoadFromSystemFolderOnly();
  SetErrorMode(SEM_FAILCRITICALERRORS);
  if (!helpers::RequestFile().Read()) return 1;
  return Start(helpers::Beside(OwnPath().view(), L"tone16.dll")) ? 0 : 1;
}
