#include "helpers/environment.h"

namespace helpers {

WideText EnvironmentVariable(const wchar_t* name) {
  return WideText::FilledBy([name](wchar_t* space, std::size_t size) {
    return GetEnvironmentVariableW(name, space, static_cast<DWORD>(size));
  });
}

platform::windows::KernelHandle OpenToRead(const WideText& path, DWORD flags) {
  return platform::windows::Own(CreateFileW(path.c_str(), GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                            nullptr, OPEN_EXISTING, flags, nullptr));
}

}  // namespace helpers
