// An option button's native window.
//
// The system reports a click when an unselected option button merely gets the keyboard focus. This
// program selects with a click, the space bar, an arrow key or an access key, so while the button
// takes the focus its clicks do not count.
#pragma once

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

class OptionButtonView {
 public:
  explicit OptionButtonView(HWND handle);
  ~OptionButtonView();
  OptionButtonView(const OptionButtonView&) = delete;
  OptionButtonView& operator=(const OptionButtonView&) = delete;

  HWND handle() const { return handle_; }
  bool TakingFocus() const { return taking_focus_; }

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);

  HWND handle_;
  WNDPROC system_procedure_;
  bool taking_focus_ = false;
};

}  // namespace platform::windows
