#include "platform/windows/views/control_layout.h"

#include <algorithm>

#include "platform/windows/views/combo_box_view.h"
#include "platform/windows/views/control_shape.h"
#include "platform/windows/views/control_values.h"
#include "platform/windows/views/picture_view.h"

namespace platform::windows {

using ui::ControlKind;

RECT AreaOf(const ui::Control& control, const Appearance& appearance) {
  RECT area = appearance.Scale(control.Bounds());
  if (control.kind() == ControlKind::kPictureBox) {
    // The picture fills the bounds; its border lies around them.
    const int border = PictureBorder(static_cast<const ui::PictureBox&>(control));
    InflateRect(&area, border, border);
  }
  if (control.kind() == ControlKind::kComboBox) area.bottom += appearance.Scale(kDropDownRoom);
  area.right = std::max(area.right, area.left + 1);
  area.bottom = std::max(area.bottom, area.top + 1);
  return area;
}

void Dress(HWND handle, const ui::Control& control, const Appearance& appearance) {
  if (ShapeOf(control).has_text) {
    const bool heading =
        control.kind() == ControlKind::kLabel &&
        static_cast<const ui::Label&>(control).style() == ui::Label::Style::kHeading;
    const HFONT font = heading ? appearance.heading_font() : appearance.message_font();
    SendMessageW(handle, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  }
  if (control.kind() == ControlKind::kStatusBar) SendMessageW(handle, WM_SIZE, 0, 0);
}

void Rearrange(HWND handle, ui::Control& control, const Appearance& appearance) {
  if (control.kind() == ControlKind::kPictureBox) {
    const RECT bounds = appearance.Scale(control.Bounds());
    static_cast<ui::PictureBox&>(control).ChangeResolution(bounds.right - bounds.left,
                                                           bounds.bottom - bounds.top);
  }
  Dress(handle, control, appearance);
  // These two have a size of their own, by the window's.
  if (control.kind() == ControlKind::kStatusBar || control.kind() == ControlKind::kWebBrowser) {
    return;
  }
  const RECT area = AreaOf(control, appearance);
  SetWindowPos(handle, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  if (control.kind() == ControlKind::kListBox) ShowItems(handle, control, appearance);
}

}  // namespace platform::windows
