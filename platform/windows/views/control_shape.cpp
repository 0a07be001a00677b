#include "platform/windows/views/control_shape.h"

#include "platform/windows/views/picture_view.h"
#include "platform/windows/web/web_browser_view.h"

#include <commctrl.h>

namespace platform::windows {
namespace {

using ui::ControlKind;

DWORD TextStyle(const ui::TextBox& text_box) {
  return text_box.lines() == ui::TextBox::Lines::kMany ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL
                                                       : ES_AUTOHSCROLL;
}

DWORD LabelStyle(const ui::Control& label) {
  // Only a static control that notifies gets the mouse, which a tool tip needs.
  return SS_NOPREFIX | (IsPath(label) ? SS_PATHELLIPSIS | SS_NOTIFY : SS_LEFT);
}

}  // namespace

Shape ShapeOf(const ui::Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
      return {L"STATIC", LabelStyle(control), 0, true};
    case ControlKind::kFrame:
      return {L"BUTTON", BS_GROUPBOX, 0, true};
    case ControlKind::kButton:
      return {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, true};
    case ControlKind::kOptionButton:
      return {L"BUTTON", BS_RADIOBUTTON, 0, true};
    case ControlKind::kScrollBar:
      return {L"SCROLLBAR", SBS_HORZ | WS_TABSTOP, 0, false};
    case ControlKind::kPictureBox:
      return {kPictureClass, 0, 0, false};
    case ControlKind::kLine:
      return {L"STATIC", SS_GRAYRECT, 0, false};
    case ControlKind::kListBox:
      return {L"LISTBOX", LBS_NOINTEGRALHEIGHT | WS_HSCROLL | WS_VSCROLL | WS_TABSTOP,
              WS_EX_CLIENTEDGE, true};
    case ControlKind::kTextBox:
      return {L"EDIT", TextStyle(static_cast<const ui::TextBox&>(control)) | WS_TABSTOP,
              WS_EX_CLIENTEDGE, true};
    case ControlKind::kCheckBox:
      return {L"BUTTON", BS_CHECKBOX | WS_TABSTOP, 0, true};
    case ControlKind::kComboBox:
      return {L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 0, true};
    case ControlKind::kProgressBar:
      return {PROGRESS_CLASSW, PBS_SMOOTH, 0, false};
    case ControlKind::kWebBrowser:
      return {kBrowserClass, WS_CLIPCHILDREN | WS_TABSTOP, 0, false};
    case ControlKind::kStatusBar:
      break;
  }
  return {STATUSCLASSNAMEW, 0, 0, true};
}

bool IsOption(const ui::Control& control) {
  return control.kind() == ControlKind::kOptionButton;
}

bool IsPath(const ui::Control& control) {
  return control.kind() == ControlKind::kLabel &&
         static_cast<const ui::Label&>(control).style() == ui::Label::Style::kPath;
}

bool HasAccessKey(const ui::Control& control) {
  return control.kind() == ControlKind::kButton || control.kind() == ControlKind::kOptionButton ||
         control.kind() == ControlKind::kCheckBox;
}

}  // namespace platform::windows
