#include "tests/rig/driver/system.h"

#include <algorithm>
#include <cwchar>
#include <stdexcept>
#include <vector>

namespace {

// The table of all handles of the session, as NtQuerySystemInformation gives it.
struct HandleTable {
  struct Entry {
    void* object;
    ULONG_PTR process;
    ULONG_PTR handle;
    ULONG access;
    USHORT trace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
  };
  ULONG_PTR count;
  ULONG_PTR reserved;
  Entry entries[1];
};

}  // namespace

// Wine always answers 0 to GetProcessHandleCount.
std::ptrdiff_t HandlesOf(DWORD process) {
  using Query = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);
  constexpr ULONG kAllHandles = 64;
  constexpr LONG kTooSmall = static_cast<LONG>(0xC0000004);
  const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
  std::vector<char> buffer(1 << 16);
  LONG status = kTooSmall;
  while ((status = query(kAllHandles, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr)) ==
         kTooSmall) {
    buffer.resize(buffer.size() * 2);
  }
  if (status != 0) throw std::runtime_error("no table of handles");
  const auto* const table = reinterpret_cast<const HandleTable*>(buffer.data());
  return std::count_if(table->entries, table->entries + table->count,
                       [&](const auto& entry) { return entry.process == process; });
}

void StoreValue(const std::wstring& key, const std::wstring& name, DWORD type,
                const std::string& bytes) {
  HKEY handle = nullptr;
  if (RegCreateKeyW(HKEY_LOCAL_MACHINE, key.c_str(), &handle) != ERROR_SUCCESS) {
    throw std::runtime_error("no key");
  }
  const LONG result =
      RegSetValueExW(handle, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                     static_cast<DWORD>(bytes.size()));
  RegCloseKey(handle);
  if (result != ERROR_SUCCESS) throw std::runtime_error("no value");
}

void ForgetKey(const std::wstring& key) {
  RegDeleteKeyW(HKEY_LOCAL_MACHINE, key.c_str());
}

std::wstring EnvironmentWith(const std::map<std::wstring, std::wstring>& replaced) {
  std::wstring block;
  wchar_t* const own = GetEnvironmentStringsW();
  for (const wchar_t* entry = own; *entry != L'\0'; entry += std::wcslen(entry) + 1) {
    const std::wstring text(entry);
    if (!replaced.contains(text.substr(0, text.find(L'=', 1)))) block += text + L'\0';
  }
  FreeEnvironmentStringsW(own);
  for (const auto& [name, value] : replaced) block += name + L'=' + value + L'\0';
  return block + L'\0';
}
