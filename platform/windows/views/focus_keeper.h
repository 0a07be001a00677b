// Keeps the keyboard focus of one window on a control that can be used, and the look of the button
// that Enter presses where it belongs. The keyboard is never dead: when the control with the focus
// is disabled or hidden, the default button gets it, else the cancel button, else the next control.
#pragma once

#include <optional>

#include "platform/windows/views/native_controls.h"

namespace platform::windows {

class FocusKeeper {
 public:
  FocusKeeper(const ui::Window& window, const NativeControls& controls)
      : window_(window), controls_(controls) {}

  // Called between messages while the window is the active one.
  void Settle(HWND handle);

  // The window itself got the focus: hands it to the control that had it last.
  void HandOn();

 private:
  std::optional<std::size_t> Choose() const;
  std::optional<std::size_t> NextTabStop() const;
  void Emphasise(std::optional<std::size_t> focus) const;

  const ui::Window& window_;
  const NativeControls& controls_;
  std::optional<std::size_t> last_;
  const ui::Button* shown_default_ = nullptr;
};

}  // namespace platform::windows
