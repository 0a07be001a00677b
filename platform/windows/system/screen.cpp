#include "platform/windows/system/screen.h"

#include "platform/windows/api/handles.h"
#include "platform/windows/api/windows_api.h"

namespace platform::windows {

Screen::PixelsPerInch WindowsScreen::LogicalPixelsPerInch() {
  const DeviceContext screen(nullptr);
  return {GetDeviceCaps(screen.get(), LOGPIXELSX), GetDeviceCaps(screen.get(), LOGPIXELSY)};
}

Screen::Size WindowsScreen::Pixels() {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

VersionRecord WindowsVersion::Query() {
  OSVERSIONINFOA version{};
  static_assert(sizeof(version) == 148);
  version.dwOSVersionInfoSize = sizeof(version);
#ifdef _MSC_VER
#pragma warning(suppress : 4996)  // the older function is the one wanted here
#endif
  const BOOL success = GetVersionExA(&version);
  return {success, static_cast<std::int32_t>(version.dwPlatformId),
          static_cast<std::int32_t>(version.dwMajorVersion),
          static_cast<std::int32_t>(version.dwMinorVersion)};
}

}  // namespace platform::windows
