// The native windows of the program that are open now.
#pragma once

#include <vector>

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

class NativeWindow;

class OpenWindows {
 public:
  OpenWindows() = default;
  ~OpenWindows() { ForgetLeft(); }
  OpenWindows(const OpenWindows&) = delete;
  OpenWindows& operator=(const OpenWindows&) = delete;

  void Add(NativeWindow& window) { windows_.push_back(&window); }
  void Remove(NativeWindow& window) { std::erase(windows_, &window); }

  // The one with this handle, or null.
  NativeWindow* Find(HWND handle) const;

  bool AnyVisible() const;

  // Takes a window off the screen. The last visible one stays until the next is shown or messages
  // are handled: with nothing of the program on the screen, the system would activate another
  // program, and the next window would open behind that.
  void Leave(HWND handle);
  void ForgetLeft();

  // NativeWindow::ShowChanges of all of them.
  void ShowChanges() const;

  // The window that a message box belongs to: the active one, else a visible one that can be used,
  // or null.
  HWND MessageOwner() const;

 private:
  std::vector<NativeWindow*> windows_;
  HWND left_ = nullptr;
};

}  // namespace platform::windows
