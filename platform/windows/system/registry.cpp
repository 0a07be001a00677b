#include "platform/windows/system/registry.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/wide_text.h"

namespace platform::windows {
namespace {

constexpr std::size_t kUsualSize = 1024;  // bytes; longer values are asked for once more

struct RawValue {
  DWORD type = REG_NONE;
  std::string bytes;
};

HKEY HandleOf(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::kClassesRoot:
      return HKEY_CLASSES_ROOT;
    case RegistryRoot::kCurrentUser:
      return HKEY_CURRENT_USER;
    case RegistryRoot::kLocalMachine:
      return HKEY_LOCAL_MACHINE;
    case RegistryRoot::kUsers:
      break;
  }
  return HKEY_USERS;
}

template <typename Query>
std::optional<RawValue> QueryValue(Query query, HKEY key, const std::wstring& name) {
  RawValue value;
  value.bytes.resize(kUsualSize);
  for (;;) {
    DWORD size = static_cast<DWORD>(value.bytes.size());
    const LONG result = query(key, name.c_str(), nullptr, &value.type,
                              reinterpret_cast<BYTE*>(value.bytes.data()), &size);
    if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA) return std::nullopt;
    const bool whole = result == ERROR_SUCCESS && size <= value.bytes.size();
    // The value may grow while it is being asked for.
    value.bytes.resize(whole ? size : std::max<std::size_t>(size, value.bytes.size() * 2));
    if (whole) return value;
  }
}

// The stored size need not be a whole number of characters, nor need there be a terminating zero.
std::wstring WideText(const std::string& bytes) {
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
  return text;
}

// `text` ends at its first zero, for the system's function takes it so.
std::wstring Expanded(const std::wstring& text) {
  std::wstring expanded(text.size() + MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = ExpandEnvironmentStringsW(text.c_str(), expanded.data(),
                                                 static_cast<DWORD>(expanded.size()));
    if (size == 0) return text;
    const bool whole = size <= expanded.size();
    expanded.resize(whole ? size - 1 : size);
    if (whole) return expanded;
  }
}

RegistryValue ValueOf(RawValue raw) {
  switch (raw.type) {
    case REG_SZ:
      return {RegistryType::kText, Narrow(WideText(raw.bytes))};
    case REG_EXPAND_SZ:
      return {RegistryType::kText, Narrow(Expanded(WideText(raw.bytes)))};
    case REG_DWORD:
      if (raw.bytes.size() == sizeof(DWORD)) return {RegistryType::kNumber, std::move(raw.bytes)};
      break;
    default:
      break;
  }
  return {RegistryType::kOther, std::move(raw.bytes)};
}

}  // namespace

std::optional<RegistryValue> WindowsRegistry::Read(RegistryRoot root, const std::string& key,
                                                   const std::string& value) {
  if (!Load()) return std::nullopt;
  HKEY handle = nullptr;
  if (open_(HandleOf(root), Widen(key).c_str(), 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  const std::unique_ptr<std::remove_pointer_t<HKEY>, CloseFunction> owner(handle, close_);
  auto raw = QueryValue(query_, handle, Widen(value));
  if (!raw) return std::nullopt;
  return ValueOf(std::move(*raw));
}

bool WindowsRegistry::Load() {
  if (!tried_) {
    tried_ = true;
    const HMODULE library = LoadSystemLibrary(L"advapi32.dll");
    open_ = FunctionOf<OpenFunction>(library, "RegOpenKeyExW");
    query_ = FunctionOf<QueryFunction>(library, "RegQueryValueExW");
    close_ = FunctionOf<CloseFunction>(library, "RegCloseKey");
  }
  return open_ != nullptr && query_ != nullptr && close_ != nullptr;
}

}  // namespace platform::windows
