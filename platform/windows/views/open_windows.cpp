#include "platform/windows/views/open_windows.h"

#include <algorithm>
#include <utility>

#include "platform/windows/views/native_window.h"

namespace platform::windows {

NativeWindow* OpenWindows::Find(HWND handle) const {
  const auto found =
      std::find_if(windows_.begin(), windows_.end(),
                   [&](const NativeWindow* window) { return window->handle() == handle; });
  return found == windows_.end() ? nullptr : *found;
}

bool OpenWindows::AnyVisible() const {
  return std::any_of(windows_.begin(), windows_.end(),
                     [](const NativeWindow* window) { return window->Visible(); });
}

void OpenWindows::Leave(HWND handle) {
  if (AnyVisible() || !IsWindowVisible(handle)) {
    DestroyWindow(handle);
    return;
  }
  ForgetLeft();
  left_ = handle;
}

void OpenWindows::ForgetLeft() {
  if (left_ != nullptr) DestroyWindow(std::exchange(left_, nullptr));
}

void OpenWindows::ShowChanges() const {
  for (NativeWindow* const window : windows_) window->ShowChanges();
}

HWND OpenWindows::MessageOwner() const {
  const HWND active = GetActiveWindow();
  if (active != nullptr && active != left_) return active;
  const auto visible = std::find_if(
      windows_.rbegin(), windows_.rend(),
      [](const NativeWindow* window) { return window->Visible() && window->TakesFocus(); });
  return visible == windows_.rend() ? nullptr : (*visible)->handle();
}

}  // namespace platform::windows
