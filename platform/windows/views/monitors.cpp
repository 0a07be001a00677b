#include "platform/windows/views/monitors.h"

#include "platform/windows/api/handles.h"
#include "platform/windows/api/system_library.h"

namespace platform::windows {
namespace {

// MDT_EFFECTIVE_DPI of shellscalingapi.h, which older systems lack.
constexpr int kEffectiveDpi = 0;

// Windows 8.1 and later know a resolution for each monitor.
int DpiOf(HMONITOR monitor) {
  using Ask = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
  static const auto ask = FunctionOf<Ask>(LoadSystemLibrary(L"shcore.dll"), "GetDpiForMonitor");
  UINT across = 0;
  UINT down = 0;
  if (ask != nullptr && SUCCEEDED(ask(monitor, kEffectiveDpi, &across, &down)) && across > 0) {
    return static_cast<int>(across);
  }
  return SystemDpi();
}

Monitor Describe(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  if (!GetMonitorInfoW(monitor, &info)) SystemParametersInfoW(SPI_GETWORKAREA, 0, &info.rcWork, 0);
  const RECT& work = info.rcWork;
  return {{work.left, work.top, work.right - work.left, work.bottom - work.top}, DpiOf(monitor)};
}

// The desktop lies over all monitors and tells nothing of where the user is.
bool IsDesktop(HWND window) {
  RECT place{};
  if (window == nullptr || !GetWindowRect(window, &place)) return true;
  return place.right - place.left >= GetSystemMetrics(SM_CXVIRTUALSCREEN) &&
         place.bottom - place.top >= GetSystemMetrics(SM_CYVIRTUALSCREEN);
}

}  // namespace

Monitor MonitorOfUser() {
  const HWND window = GetForegroundWindow();
  if (!IsDesktop(window)) return MonitorOf(window);
  POINT pointer{};
  GetCursorPos(&pointer);
  return Describe(MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST));
}

Monitor MonitorOf(HWND window) {
  return Describe(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

Monitor MonitorOf(const RECT& place) {
  return Describe(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST));
}

int SystemDpi() {
  const DeviceContext screen(nullptr);
  return GetDeviceCaps(screen.get(), LOGPIXELSX);
}

}  // namespace platform::windows
