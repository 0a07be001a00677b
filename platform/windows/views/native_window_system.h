// Makes native windows for the portable ones.
#pragma once

#include "platform/windows/views/accessible_texts.h"
#include "platform/windows/views/open_windows.h"
#include "ui/window_system.h"

namespace platform::windows {

class NativeWindowSystem final : public ui::WindowSystem {
 public:
  NativeWindowSystem(HINSTANCE instance, OpenWindows& open);

  std::unique_ptr<ui::WindowView> Open(ui::Window& window) override;

 private:
  HINSTANCE instance_;
  AccessibleTexts texts_;
  OpenWindows& open_;
};

}  // namespace platform::windows
