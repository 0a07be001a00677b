// What the system tells screen readers of a control in place of what the control shows. On a system
// without that service nothing happens.
#pragma once

#include <string>

#include "platform/windows/api/windows_api.h"

struct IAccPropServices;

namespace platform::windows {

class AccessibleTexts {
 public:
  AccessibleTexts() = default;
  ~AccessibleTexts();
  AccessibleTexts(const AccessibleTexts&) = delete;
  AccessibleTexts& operator=(const AccessibleTexts&) = delete;

  void SetName(HWND control, const std::wstring& name);
  void SetValue(HWND control, const std::wstring& value);

  // The control is about to go.
  void Forget(HWND control);

 private:
  IAccPropServices* Service();

  IAccPropServices* service_ = nullptr;
  bool tried_ = false;
};

}  // namespace platform::windows
