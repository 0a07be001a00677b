#include "tools/windows/wide.h"

#include <windows.h>

namespace tools::native {

std::wstring Wide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int count = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring utf16(static_cast<std::size_t>(count), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, utf16.data(), count);
  return utf16;
}

std::string Narrow(std::wstring_view utf16) {
  const int size = static_cast<int>(utf16.size());
  const int count =
      WideCharToMultiByte(CP_UTF8, 0, utf16.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(count), '\0');
  WideCharToMultiByte(CP_UTF8, 0, utf16.data(), size, utf8.data(), count, nullptr, nullptr);
  return utf8;
}

}  // namespace tools::native
