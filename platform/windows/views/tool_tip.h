// The tool tip of a control.
#pragma once

#include <string>

#include "platform/windows/views/appearance.h"

namespace platform::windows {

class ToolTip {
 public:
  // The tool tip's window ends with `parent`, that of the control.
  ToolTip(HWND parent, HWND control, const Appearance& appearance);

  // Without a text none is shown.
  void SetText(const std::wstring& text) const;

  // The appearance changed.
  void Rescale() const;

 private:
  HWND parent_;
  HWND control_;
  const Appearance& appearance_;
  HWND tip_;
};

}  // namespace platform::windows
