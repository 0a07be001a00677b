#include "platform/windows/views/message_boxes.h"

#include "platform/windows/api/wide_text.h"

namespace platform::windows {
namespace {

UINT FlagOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kNone:
      return 0;
    case MessageIcon::kExclamation:
      return MB_ICONEXCLAMATION;
    case MessageIcon::kCritical:
      break;
  }
  return MB_ICONSTOP;
}

}  // namespace

std::int16_t WindowsMessageBoxes::Show(const std::string& text, const std::string& title,
                                       MessageIcon icon, MessageButtons buttons) {
  const UINT button_flag = buttons == MessageButtons::kYesNo ? MB_YESNO : MB_OK;
  // A window that was left on the screen would stay for as long as the box, and cover it.
  open_.ForgetLeft();
  open_.ShowChanges();
  const HWND owner = open_.MessageOwner();
  const UINT front_flag = owner == nullptr ? MB_SETFOREGROUND : 0;
  return static_cast<std::int16_t>(MessageBoxW(owner, Widen(text).c_str(), Widen(title).c_str(),
                                               FlagOf(icon) | button_flag | front_flag));
}

}  // namespace platform::windows
