#include "platform/windows/system/processes.h"

#include <utility>

#include "base/errors.h"
#include "base/owner_text.h"
#include "platform/start_errors.h"
#include "platform/windows/api/handles.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/api/windows_api.h"
#include "platform/windows/system/module_path.h"

#include <tlhelp32.h>

namespace platform::windows {
namespace {

// All rights that a process object has on NT 5; newer systems know more and would refuse those.
constexpr DWORD kAllProcessRights = 0x1F0FFF;

// Without `program` the system finds it at the beginning of the command.
void StartCommand(const wchar_t* program, const std::string& command, WORD show) {
  // CreateProcessW may write into the command line.
  std::wstring line = Widen(command);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = show;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      ModuleFolder().c_str(), &startup, &process)) {
    throw base::RuntimeError(StartErrorCode(GetLastError()));
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

base::Owner ThisProcess() {
  FILETIME began{};
  FILETIME ignored{};
  GetProcessTimes(GetCurrentProcess(), &began, &ignored, &ignored, &ignored);
  return {GetCurrentProcessId(),
          static_cast<std::uint64_t>(began.dwHighDateTime) << 32 | began.dwLowDateTime};
}

}  // namespace

WindowsProcesses::WindowsProcesses(std::function<void()> at_end) : at_end_(std::move(at_end)) {
  SetEnvironmentVariableA(base::kOwner, base::OwnerText(ThisProcess()).c_str());
}

std::vector<ProcessEntry> WindowsProcesses::Snapshot() {
  std::vector<ProcessEntry> processes;
  const KernelHandle snapshot = Own(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!snapshot) return processes;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(snapshot.get(), &entry); more;
       more = Process32NextW(snapshot.get(), &entry)) {
    processes.push_back({entry.th32ProcessID, Narrow(entry.szExeFile)});
  }
  return processes;
}

bool WindowsProcesses::Terminate(std::uint32_t id) {
  const KernelHandle process = Own(OpenProcess(kAllProcessRights, FALSE, id));
  return process && TerminateProcess(process.get(), 0);
}

void WindowsProcesses::Start(const std::string& command) {
  StartCommand(nullptr, command, SW_SHOWNORMAL);
}

void WindowsProcesses::StartHidden(const std::string& program, const std::string& command) {
  StartCommand(Widen(program).c_str(), command, SW_HIDE);
}

void WindowsProcesses::StartProgram(const std::string& program, const std::string& arguments) {
  StartCommand(Widen(program).c_str(), program + " " + arguments, SW_SHOWNORMAL);
}

void WindowsProcesses::EndProcess() {
  at_end_();
  ExitProcess(0);
}

}  // namespace platform::windows
