// The system's file dialog. Its library (comdlg32) is loaded when it is first needed.
#pragma once

#include "platform/file_dialogs.h"
#include "platform/windows/views/open_windows.h"

namespace platform::windows {

class WindowsFileDialogs final : public FileDialogs {
 public:
  explicit WindowsFileDialogs(const OpenWindows& open) : open_(open) {}

  std::string Open(const OpenDialog& dialog) override;

 private:
  const OpenWindows& open_;
};

}  // namespace platform::windows
