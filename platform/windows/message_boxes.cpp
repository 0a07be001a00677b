#include "platform/windows/message_boxes.h"

#include "platform/windows/wide_text.h"

namespace platform::windows {

std::int16_t WindowsMessageBoxes::Show(const std::string& text, const std::string& title,
                                       MessageIcon icon, MessageButtons buttons) {
  const UINT icon_flag = icon == MessageIcon::kCritical ? MB_ICONSTOP : MB_ICONEXCLAMATION;
  const UINT button_flag = buttons == MessageButtons::kYesNo ? MB_YESNO : MB_OK;
  return static_cast<std::int16_t>(MessageBoxW(open_.MessageOwner(), Widen(text).c_str(),
                                               Widen(title).c_str(), icon_flag | button_flag));
}

}  // namespace platform::windows
