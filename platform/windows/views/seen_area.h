// What of the screen is left for a window by those that stand before it.
#pragma once

#include "platform/windows/api/handles.h"

namespace platform::windows {

class SeenArea {
 public:
  // Whether any of a control of this top-level window can be seen: the window is on this virtual
  // desktop, and no others cover all of the control. Where that takes looking at every window
  // before it, the answer is a quarter of a second old at most.
  bool Shows(HWND window, HWND control);

 private:
  using Region = std::unique_ptr<std::remove_pointer_t<HRGN>, Releaser<DeleteObject>>;

  void LookAt(HWND window);

  Region left_;  // screen coordinates
  DWORD looked_at_ms_ = 0;
};

}  // namespace platform::windows
