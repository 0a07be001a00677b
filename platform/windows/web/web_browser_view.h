// The native window of a web browser control: a host of the system's browser object.
//
// The object is made when the control is first told something, and lives as long as the view.
// Without one (a system that has none) the window stays blank.
#pragma once

#include <memory>

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

inline constexpr wchar_t kBrowserClass[] = L"TonmiraBrowser";

void RegisterBrowserClass(HINSTANCE instance);

class WebBrowserView {
 public:
  // `handle` is a window of the class; the view must go before it is destroyed.
  WebBrowserView(HWND handle, ui::WebBrowser& browser);
  ~WebBrowserView();
  WebBrowserView(const WebBrowserView&) = delete;
  WebBrowserView& operator=(const WebBrowserView&) = delete;

  HWND handle() const { return handle_; }

  // Shows a changed property.
  void Changed(ui::Property property);

  // The window has a new size; it has the keyboard focus.
  void Resize();
  void TakeFocus();

  // Offers a keyboard message to the page; true when that was all.
  bool TranslateKey(MSG& message);

 private:
  class Object;

  HWND handle_;
  ui::WebBrowser& browser_;
  bool tried_ = false;
  std::unique_ptr<Object> object_;
};

}  // namespace platform::windows
