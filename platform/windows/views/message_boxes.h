// The system's message box.
#pragma once

#include "platform/system.h"
#include "platform/windows/views/open_windows.h"

namespace platform::windows {

class WindowsMessageBoxes final : public MessageBoxes {
 public:
  explicit WindowsMessageBoxes(OpenWindows& open) : open_(open) {}

  std::int16_t Show(const std::string& text, const std::string& title, MessageIcon icon,
                    MessageButtons buttons) override;

 private:
  OpenWindows& open_;
};

}  // namespace platform::windows
