#include "platform/windows/views/option_button_view.h"

namespace platform::windows {

OptionButtonView::OptionButtonView(HWND handle)
    : handle_(handle),
      system_procedure_(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle, GWLP_WNDPROC))) {
  SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
}

OptionButtonView::~OptionButtonView() {
  // Nothing happens here when the native window is gone already.
  SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_procedure_));
}

LRESULT CALLBACK OptionButtonView::Procedure(HWND handle, UINT message, WPARAM wparam,
                                             LPARAM lparam) {
  auto* const self = reinterpret_cast<OptionButtonView*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  const bool before = self->taking_focus_;
  if (message == WM_SETFOCUS) self->taking_focus_ = true;
  const LRESULT result = CallWindowProcW(self->system_procedure_, handle, message, wparam, lparam);
  self->taking_focus_ = before;
  return result;
}

}  // namespace platform::windows
