#include "platform/windows/views/native_window_system.h"

#include "platform/windows/api/system_library.h"
#include "platform/windows/views/native_window.h"
#include "platform/windows/views/picture_view.h"
#include "platform/windows/web/web_browser_view.h"

#include <commctrl.h>

namespace platform::windows {

NativeWindowSystem::NativeWindowSystem(HINSTANCE instance, OpenWindows& open)
    : instance_(instance), open_(open) {
  // Visual styles need the library of common controls to be loaded; the bars are of it.
  INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_BAR_CLASSES | ICC_PROGRESS_CLASS};
  const auto initialize = FunctionOf<decltype(&InitCommonControlsEx)>(
      LoadVersionedLibrary(L"comctl32.dll"), "InitCommonControlsEx");
  if (initialize != nullptr) initialize(&wanted);
  RegisterWindowClass(instance);
  RegisterPictureClass(instance);
  RegisterBrowserClass(instance);
}

std::unique_ptr<ui::WindowView> NativeWindowSystem::Open(ui::Window& window) {
  return std::make_unique<NativeWindow>(window, instance_, texts_, open_);
}

}  // namespace platform::windows
