#include "platform/windows/views/text_entry_view.h"

namespace platform::windows {

TextEntryView::TextEntryView(HWND handle, ui::TextBox& text_box)
    : handle_(handle),
      text_box_(text_box),
      system_procedure_(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle, GWLP_WNDPROC))) {
  SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
}

TextEntryView::~TextEntryView() {
  // Nothing happens here when the native window is gone already.
  SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_procedure_));
}

LRESULT CALLBACK TextEntryView::Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const self = reinterpret_cast<TextEntryView*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (message == WM_LBUTTONDOWN && GetFocus() != handle && self->text_box_.SelectsAtEntry()) {
    // The system would put the caret where the click is, and nothing would be selected.
    SetFocus(handle);
    return 0;
  }
  const LRESULT result = CallWindowProcW(self->system_procedure_, handle, message, wparam, lparam);
  // A field of several lines would keep the Tab key, and with it everybody who has no mouse.
  if (message == WM_GETDLGCODE && wparam == VK_TAB) {
    return result & ~static_cast<LRESULT>(DLGC_WANTALLKEYS | DLGC_WANTTAB);
  }
  if (message == WM_SETFOCUS && self->text_box_.Enter()) SendMessageW(handle, EM_SETSEL, 0, -1);
  return result;
}

}  // namespace platform::windows
