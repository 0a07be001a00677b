#include "platform/windows/system/random_name.h"

#include "base/errors.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

#include <objbase.h>

namespace platform::windows {

// A new identifier is 122 random bits from Windows 2000 on, and the one source of such that all
// systems since have.
std::wstring RandomNameBeside(const std::wstring& path) {
  const auto create =
      FunctionOf<decltype(&CoCreateGuid)>(LoadSystemLibrary(L"ole32.dll"), "CoCreateGuid");
  GUID id{};
  if (create == nullptr || FAILED(create(&id))) {
    throw base::RuntimeError(base::ErrorCode::kDeviceError);
  }
  std::wstring name = path + L".";
  for (const unsigned char* byte = reinterpret_cast<const unsigned char*>(&id);
       byte != reinterpret_cast<const unsigned char*>(&id + 1); ++byte) {
    name += L"0123456789abcdef"[*byte >> 4];
    name += L"0123456789abcdef"[*byte & 0xF];
  }
  return name + L".tmp";
}

}  // namespace platform::windows
