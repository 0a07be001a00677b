#include "platform/windows/views/scroll_bar_view.h"

#include <algorithm>

namespace platform::windows {

namespace {

// A scroll bar shows the keyboard focus as a caret on its thumb; not every system moves it along.
void MoveCaretToThumb(HWND handle) {
  SCROLLBARINFO info{};
  info.cbSize = sizeof(info);
  if (GetScrollBarInfo(handle, OBJID_CLIENT, &info)) SetCaretPos(info.xyThumbTop + 1, 1);
}

}  // namespace

void ShowScrollValue(HWND handle, const ui::ScrollBar& scroll_bar) {
  const ui::ScrollBar::Range& range = scroll_bar.range();
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMin = range.minimum;
  // The system takes the page off the end of the range.
  info.nMax = range.maximum + range.large_step - 1;
  info.nPage = static_cast<UINT>(range.large_step);
  info.nPos = scroll_bar.Value();
  SetScrollInfo(handle, SB_CTL, &info, TRUE);
  if (GetFocus() == handle) MoveCaretToThumb(handle);
}

std::int32_t ThumbPosition(HWND handle, WORD position) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(handle, SB_CTL, &info);
  // The message has only the lower half; a message that another program sent has nothing else.
  const bool own = static_cast<WORD>(info.nTrackPos) == position;
  return own ? info.nTrackPos : static_cast<std::int32_t>(position);
}

WORD HeldNow() {
  using Held = ui::ScrollBar::HeldKey;
  if (GetKeyState(VK_CONTROL) < 0) return static_cast<WORD>(Held::kCtrl);
  return static_cast<WORD>(GetKeyState(VK_SHIFT) < 0 ? Held::kShift : Held::kNone);
}

bool IsStep(WORD code) {
  return code == SB_LINELEFT || code == SB_LINERIGHT;
}

void Scroll(ui::ScrollBar& scroll_bar, WORD code, std::int32_t position) {
  const ui::ScrollBar::Range& range = scroll_bar.range();
  std::int64_t target = scroll_bar.Value();
  switch (code) {
    case SB_LINELEFT:
    case SB_LINERIGHT:
      scroll_bar.Step(code == SB_LINELEFT ? -1 : 1, static_cast<ui::ScrollBar::HeldKey>(position));
      return;
    case SB_PAGELEFT:
      target -= range.large_step;
      break;
    case SB_PAGERIGHT:
      target += range.large_step;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      target = position;
      break;
    case SB_LEFT:
      target = range.minimum;
      break;
    case SB_RIGHT:
      target = range.maximum;
      break;
    default:
      return;
  }
  target = std::clamp<std::int64_t>(target, range.minimum, range.maximum);
  scroll_bar.ScrollTo(static_cast<std::int32_t>(target));
}

}  // namespace platform::windows
