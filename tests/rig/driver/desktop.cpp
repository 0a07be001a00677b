#include "tests/rig/driver/desktop.h"

#include <tlhelp32.h>

#include <cstdint>
#include <iostream>
#include <stdexcept>

#include "tests/rig/driver/programs.h"
#include "tests/rig/driver/windows.h"

namespace {

constexpr UINT kDpiChanged = 0x02E0;
constexpr wchar_t kAgent[] = L"name_service.dll";
constexpr DWORD kPatienceMs = 20000;

// Where the rig's library lies in the memory of a process.
BYTE* AgentOf(DWORD process) {
  const UniqueHandle modules(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process));
  MODULEENTRY32W module = {};
  module.dwSize = sizeof(module);
  for (BOOL more = Module32FirstW(modules.get(), &module); more;
       more = Module32NextW(modules.get(), &module)) {
    if (lstrcmpiW(module.szModule, kAgent) == 0) return module.modBaseAddr;
  }
  throw std::runtime_error("the program has not loaded the rig's library");
}

}  // namespace

void PrintClient(HWND window) {
  RECT area = {};
  POINT corner = {};
  GetClientRect(window, &area);
  ClientToScreen(window, &corner);
  std::cout << corner.x << '\t' << corner.y << '\t' << area.right << '\t' << area.bottom << '\n';
}

// The message names a place in the memory of the window's own process, where the system would put
// it.
void TellResolution(HANDLE process, const Fields& fields) {
  const HWND window = Window(fields.at(2));
  const auto dpi = static_cast<WORD>(std::stoi(fields.at(3)));
  const LONG x = std::stoi(fields.at(4));
  const LONG y = std::stoi(fields.at(5));
  const RECT place = {x, y, x + std::stoi(fields.at(6)), y + std::stoi(fields.at(7))};
  void* const there =
      VirtualAllocEx(process, nullptr, sizeof(place), MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
  if (there == nullptr || !WriteProcessMemory(process, there, &place, sizeof(place), nullptr)) {
    throw std::runtime_error("the program's memory cannot be written");
  }
  Ask(window, kDpiChanged, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(there));
  VirtualFreeEx(process, there, 0, MEM_RELEASE);
}

void CallInside(HANDLE process, const Fields& fields) {
  const HMODULE own = LoadLibraryW(kAgent);
  const auto* const function = reinterpret_cast<const BYTE*>(
      reinterpret_cast<void*>(GetProcAddress(own, fields.at(2).c_str())));
  if (function == nullptr) throw std::runtime_error("no such function");
  BYTE* const there =
      AgentOf(std::stoul(fields.at(1))) + (function - reinterpret_cast<const BYTE*>(own));
  const UniqueHandle thread(CreateRemoteThread(
      process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(there)),
      reinterpret_cast<void*>(static_cast<std::uintptr_t>(std::stoull(fields.at(3)))), 0, nullptr));
  DWORD done = 0;
  if (!thread || WaitForSingleObject(thread.get(), kPatienceMs) != WAIT_OBJECT_0 ||
      !GetExitCodeThread(thread.get(), &done) || done != 1) {
    throw std::runtime_error("the program did not do it");
  }
}
