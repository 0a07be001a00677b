#include "platform/windows/api/message_window.h"

#include <utility>

#include "base/errors.h"

namespace platform::windows {
namespace {

constexpr wchar_t kMessageClass[] = L"TonmiraMessages";

}  // namespace

MessageWindow::MessageWindow(std::function<void(UINT)> handler) : handler_(std::move(handler)) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = Procedure;
  window_class.hInstance = instance;
  window_class.lpszClassName = kMessageClass;
  RegisterClassW(&window_class);  // fails when it is registered already
  handle_ = CreateWindowExW(0, kMessageClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, instance,
                            nullptr);
  if (handle_ == nullptr) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

// Messages and timers of the window go with it.
MessageWindow::~MessageWindow() {
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

LRESULT CALLBACK MessageWindow::Procedure(HWND handle, UINT message, WPARAM wparam,
                                          LPARAM lparam) noexcept {
  const auto* const window =
      reinterpret_cast<const MessageWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr || (message != WM_TIMER && message < WM_APP)) {
    return DefWindowProcW(handle, message, wparam, lparam);
  }
  const auto handler = window->handler_;
  handler(message);
  return 0;
}

}  // namespace platform::windows
