#include "tests/rig/driver/programs.h"

#include <iostream>
#include <stdexcept>

#include "tests/rig/driver/system.h"

namespace {

std::wstring EnvironmentOfUser(const std::string& temp, const std::string& appdata) {
  return EnvironmentWith(
      {{L"TEMP", Wide(temp)}, {L"TMP", Wide(temp)}, {L"APPDATA", Wide(appdata)}});
}

}  // namespace

DWORD Programs::Start(const std::string& exe, const std::string& folder, std::wstring environment,
                      const std::string& arguments) {
  std::wstring command = L"\"" + Wide(exe) + L"\" " + Wide(arguments);
  const std::wstring wide_folder = Wide(folder);
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION started = {};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_UNICODE_ENVIRONMENT,
                      environment.data(), folder.empty() ? nullptr : wide_folder.c_str(), &startup,
                      &started)) {
    throw std::runtime_error("cannot start " + exe + ": " + std::to_string(GetLastError()));
  }
  CloseHandle(started.hThread);
  processes_[started.dwProcessId] = UniqueHandle(started.hProcess);
  return started.dwProcessId;
}

void Programs::Adopt(const std::string& pid) {
  const DWORD id = static_cast<DWORD>(std::stoul(pid));
  UniqueHandle process(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id));
  if (!process) throw std::runtime_error("no process " + pid);
  processes_[id] = std::move(process);
}

HANDLE Programs::Get(const std::string& pid) const {
  return processes_.at(static_cast<DWORD>(std::stoul(pid))).get();
}

void Start(Programs& programs, const Fields& fields) {
  std::cout << programs.Start(fields.at(1), fields.at(2),
                              EnvironmentOfUser(fields.at(3), fields.at(4)),
                              fields.size() > 5 ? fields[5] : "")
            << '\n';
}

void Launch(Programs& programs, const Fields& fields) {
  const std::wstring title = Wide(fields.at(2));
  const std::wstring environment = EnvironmentOfUser(fields.at(3), fields.at(4));
  LARGE_INTEGER begin = {}, end = {}, frequency = {};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&begin);
  const DWORD pid = programs.Start(fields.at(1), "", environment);
  for (;;) {
    const HWND window = FindWindowW(nullptr, title.c_str());
    QueryPerformanceCounter(&end);
    if (window != nullptr && IsWindowVisible(window)) break;
    if ((end.QuadPart - begin.QuadPart) / frequency.QuadPart > 30) {
      throw std::runtime_error("no window");
    }
    Sleep(1);
  }
  std::cout << 1000.0 * static_cast<double>(end.QuadPart - begin.QuadPart) /
                   static_cast<double>(frequency.QuadPart)
            << '\t' << pid << '\n';
}
