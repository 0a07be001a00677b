#include "platform/windows/system/environment.h"

#include <algorithm>

#include "base/command_line.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/api/windows_api.h"
#include "platform/windows/system/file_errors.h"
#include "platform/windows/system/module_path.h"

namespace platform::windows {
namespace {

// The text that `fill(buffer, size)` writes; it returns the length, or a larger size that it needs.
template <typename Fill>
std::wstring Filled(Fill fill) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
    if (length < text.size()) {
      text.resize(length);
      return text;
    }
    text.resize(std::max<std::size_t>(length + 1, text.size() * 2));
  }
}

}  // namespace

std::wstring ModulePath() {
  return Filled(
      [](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(nullptr, buffer, size); });
}

std::wstring ModuleFolder() {
  std::wstring path = ModulePath();
  path.resize(path.find_last_of(L'\\'));
  // A drive's name alone would mean the folder that is current on it, not its root.
  if (path.ends_with(L':')) path += L'\\';
  return path;
}

std::string WindowsEnvironment::Get(const std::string& name) {
  const std::wstring wide_name = Widen(name);
  return Narrow(Filled([&](wchar_t* buffer, DWORD size) {
    return GetEnvironmentVariableW(wide_name.c_str(), buffer, size);
  }));
}

std::string WindowsEnvironment::Arguments() {
  return std::string(base::Arguments(Narrow(GetCommandLineW()), Narrow(ModulePath())));
}

std::string WindowsEnvironment::SystemFolder() {
  return Narrow(
      Filled([](wchar_t* buffer, DWORD size) { return GetSystemDirectoryW(buffer, size); }));
}

std::string WindowsEnvironment::ProgramFolder() {
  std::wstring path = ModulePath();
  path.resize(path.find_last_of(L'\\'));
  return Narrow(path);
}

std::string WindowsEnvironment::ProgramName() {
  const std::wstring path = ModulePath();
  const std::wstring file = path.substr(path.find_last_of(L'\\') + 1);
  return Narrow(file.substr(0, file.find_last_of(L'.')));
}

std::string WindowsEnvironment::FullPath(const std::string& path) {
  const std::wstring wide_path = Widen(path);
  return Narrow(Filled([&](wchar_t* buffer, DWORD size) {
    return GetFullPathNameW(wide_path.c_str(), size, buffer, nullptr);
  }));
}

void WindowsEnvironment::SetCurrentFolder(const std::string& path) {
  std::wstring folder = Widen(path);
  // A drive's name alone would mean the folder that is current on it, not its root.
  if (folder.ends_with(L':')) folder += L'\\';
  if (!SetCurrentDirectoryW(folder.c_str())) ThrowFileError(GetLastError(), folder);
}

// One that is no single ASCII character cannot be typed into a field that takes those only.
char WindowsEnvironment::DecimalSign() {
  wchar_t sign[8] = L"";
  const int size = GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sign, 8);
  return size == 2 && sign[0] < 128 ? static_cast<char>(sign[0]) : '.';
}

}  // namespace platform::windows
