// Makes native windows for the portable ones.
#pragma once

#include "platform/windows/views/appearance.h"
#include "platform/windows/views/open_windows.h"
#include "ui/window_system.h"

namespace platform::windows {

class NativeWindowSystem final : public ui::WindowSystem {
 public:
  NativeWindowSystem(HINSTANCE instance, OpenWindows& open);

  std::unique_ptr<ui::WindowView> Open(ui::Window& window) override;

 private:
  Appearance appearance_;
  OpenWindows& open_;
};

}  // namespace platform::windows
