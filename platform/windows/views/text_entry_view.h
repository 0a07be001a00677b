// The native window of a text box: its first text is selected when the box is entered first, by the
// keyboard or by a click, and the Tab key leaves it.
#pragma once

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

class TextEntryView {
 public:
  TextEntryView(HWND handle, ui::TextBox& text_box);
  ~TextEntryView();
  TextEntryView(const TextEntryView&) = delete;
  TextEntryView& operator=(const TextEntryView&) = delete;

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);

  HWND handle_;
  ui::TextBox& text_box_;
  WNDPROC system_procedure_;
};

}  // namespace platform::windows
