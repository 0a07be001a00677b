// Owners of the system's handles: each closes its handle when it goes out of scope.
#pragma once

#include <memory>
#include <type_traits>

#include "platform/windows/api/windows_api.h"

namespace platform::windows {

template <auto Release>
struct Releaser {
  template <typename Handle>
  void operator()(Handle handle) const {
    Release(handle);
  }
};

struct KernelHandleCloser {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using KernelHandle = std::unique_ptr<void, KernelHandleCloser>;

// Some calls answer failure with INVALID_HANDLE_VALUE; here it is null like everywhere else.
inline KernelHandle Own(HANDLE handle) {
  return KernelHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

using Font = std::unique_ptr<std::remove_pointer_t<HFONT>, Releaser<DeleteObject>>;
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, Releaser<DestroyIcon>>;

// A device context that the system lends; `window` null means the screen.
class DeviceContext {
 public:
  explicit DeviceContext(HWND window) : window_(window), context_(GetDC(window)) {}
  ~DeviceContext() { ReleaseDC(window_, context_); }
  DeviceContext(const DeviceContext&) = delete;
  DeviceContext& operator=(const DeviceContext&) = delete;

  HDC get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

}  // namespace platform::windows
