// An invisible window that only receives messages; whichever loop handles messages delivers them.
#pragma once

#include <functional>

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

class MessageWindow {
 public:
  // Calls `handler` for every message of the kinds WM_TIMER and from WM_APP on. It may destroy the
  // window. Throws base::RuntimeError when the system has no window left.
  explicit MessageWindow(std::function<void(UINT)> handler);
  ~MessageWindow();
  MessageWindow(const MessageWindow&) = delete;
  MessageWindow& operator=(const MessageWindow&) = delete;

  HWND handle() const { return handle_; }

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam,
                                    LPARAM lparam) noexcept;

  std::function<void(UINT)> handler_;
  HWND handle_ = nullptr;
};

}  // namespace platform::windows
