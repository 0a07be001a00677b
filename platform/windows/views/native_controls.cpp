#include "platform/windows/views/native_controls.h"

#include <algorithm>
#include <utility>

#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/combo_box_view.h"
#include "platform/windows/views/picture_view.h"
#include "platform/windows/views/scroll_bar_view.h"
#include "ui/progress_bar.h"

#include <commctrl.h>

namespace platform::windows {
namespace {

using ui::ControlKind;

struct Shape {
  const wchar_t* window_class;
  DWORD style;
  DWORD extended_style;
  bool has_text;
};

DWORD TextStyle(const ui::TextBox& text_box) {
  return text_box.lines() == ui::TextBox::Lines::kMany ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL
                                                       : ES_AUTOHSCROLL;
}

bool IsPath(const ui::Control& control) {
  return control.kind() == ControlKind::kLabel &&
         static_cast<const ui::Label&>(control).style() == ui::Label::Style::kPath;
}

DWORD LabelStyle(const ui::Control& label) {
  // Only a static control that notifies gets the mouse, which a tool tip needs.
  return SS_NOPREFIX | (IsPath(label) ? SS_PATHELLIPSIS | SS_NOTIFY : SS_LEFT);
}

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

bool HasAccessKey(const ui::Control& control) {
  return control.kind() == ControlKind::kButton || control.kind() == ControlKind::kOptionButton ||
         control.kind() == ControlKind::kCheckBox;
}

bool IsOption(const ui::Control& control) {
  return control.kind() == ControlKind::kOptionButton;
}

// Arrow keys stay within a group; option buttons never share one with other controls.
bool StartsGroup(const std::vector<ui::Control*>& controls, std::size_t index) {
  return index == 0 || controls[index]->StartsGroup() ||
         IsOption(*controls[index]) != IsOption(*controls[index - 1]);
}

std::string WithoutPrefixes(const std::string& caption) {
  std::string text;
  for (const char c : caption) {
    if (c == '&') text += '&';
    text += c;
  }
  return text;
}

}  // namespace

NativeControls::NativeControls(const ui::Window& window, const Appearance& appearance)
    : window_(window), appearance_(appearance), marked_captions_(window.Controls().size()) {}

NativeControls::~NativeControls() {
  // The native windows may stay for a moment, but no longer know the controls.
  for (const HWND handle : handles_) DetachPicture(handle);
}

void NativeControls::Create(HWND parent) {
  const auto& controls = window_.Controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    handles_.push_back(CreateOne(parent, i));
    if (IsOption(*controls[i])) {
      option_views_.push_back(std::make_unique<OptionButtonView>(handles_[i]));
    } else if (controls[i]->kind() == ControlKind::kWebBrowser) {
      browser_views_.push_back(std::make_unique<WebBrowserView>(
          handles_[i], static_cast<ui::WebBrowser&>(*controls[i])));
    }
    if (IsPath(*controls[i])) {
      path_tips_.push_back(std::make_unique<PathTip>(parent, handles_[i], appearance_));
    }
    ShowValue(i);
    ShowItems(i);
  }
  UpdateTabStops();
}

HWND NativeControls::CreateOne(HWND parent, std::size_t index) {
  ui::Control& made = control(index);
  const Shape shape = ShapeOf(made);
  DWORD style = shape.style | WS_CHILD;
  if (StartsGroup(window_.Controls(), index)) style |= WS_GROUP;
  if (!made.Enabled()) style |= WS_DISABLED;
  if (made.Visible()) style |= WS_VISIBLE;
  RECT area = appearance_.Scale(made.Bounds());
  if (made.kind() == ControlKind::kPictureBox) {
    // The picture fills the bounds; its border lies around them.
    const int border = PictureBorder(static_cast<const ui::PictureBox&>(made));
    static_cast<ui::PictureBox&>(made).SetResolution(area.right - area.left,
                                                     area.bottom - area.top);
    InflateRect(&area, border, border);
  }
  if (made.kind() == ControlKind::kComboBox) area.bottom += appearance_.Scale(kDropDownRoom);
  const HWND handle = CreateWindowExW(
      shape.extended_style, shape.window_class, Text(index).c_str(), style, area.left, area.top,
      std::max<LONG>(area.right - area.left, 1), std::max<LONG>(area.bottom - area.top, 1), parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(ControlId(index))), appearance_.instance(),
      &control(index));
  if (handle == nullptr) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  if (shape.has_text) {
    const bool heading = made.kind() == ControlKind::kLabel &&
                         static_cast<const ui::Label&>(made).style() == ui::Label::Style::kHeading;
    const HFONT font = heading ? appearance_.heading_font() : appearance_.message_font();
    SendMessageW(handle, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  }
  if (made.kind() == ControlKind::kStatusBar) SendMessageW(handle, WM_SIZE, 0, 0);
  return handle;
}

std::optional<std::size_t> NativeControls::IndexOf(HWND handle) const {
  for (; handle != nullptr; handle = browser_views_.empty() ? nullptr : GetParent(handle)) {
    const auto found = std::find(handles_.begin(), handles_.end(), handle);
    if (found != handles_.end()) return static_cast<std::size_t>(found - handles_.begin());
  }
  return std::nullopt;
}

std::optional<std::size_t> NativeControls::IndexOf(const ui::Control* control) const {
  const auto& controls = window_.Controls();
  const auto found = std::find(controls.begin(), controls.end(), control);
  if (found == controls.end()) return std::nullopt;
  return static_cast<std::size_t>(found - controls.begin());
}

bool NativeControls::CanHaveFocus(std::size_t index) const {
  switch (control(index).kind()) {
    case ControlKind::kButton:
    case ControlKind::kOptionButton:
    case ControlKind::kScrollBar:
    case ControlKind::kListBox:
    case ControlKind::kTextBox:
    case ControlKind::kCheckBox:
    case ControlKind::kComboBox:
    case ControlKind::kWebBrowser:
      return control(index).Enabled() && control(index).Visible();
    default:
      return false;
  }
}

bool NativeControls::IsTabStop(std::size_t index) const {
  return CanHaveFocus(index) && (GetWindowLongW(handles_[index], GWL_STYLE) & WS_TABSTOP) != 0;
}

bool NativeControls::TakingFocus(std::size_t index) const {
  return std::any_of(option_views_.begin(), option_views_.end(), [&](const auto& view) {
    return view->handle() == handles_[index] && view->TakingFocus();
  });
}

std::vector<std::string> NativeControls::KeyCaptions() const {
  std::vector<std::string> captions;
  for (const ui::Control* control : window_.Controls()) {
    if (HasAccessKey(*control)) captions.push_back(control->Caption());
  }
  return captions;
}

void NativeControls::SetMarkedCaptions(const std::vector<std::string>& marked) {
  auto next = marked.begin();
  for (std::size_t i = 0; i < marked_captions_.size(); ++i) {
    if (!HasAccessKey(control(i))) continue;
    const bool changed = marked_captions_[i] != *next;
    marked_captions_[i] = *next++;
    if (changed && i < handles_.size()) ShowCaption(i);
  }
}

void NativeControls::Changed(const ui::Control& control, ui::Property property) {
  const auto index = IndexOf(&control);
  if (!index || *index >= handles_.size()) return;
  switch (property) {
    case ui::Property::kCaption:
      if (!HasAccessKey(control)) ShowCaption(*index);
      break;
    case ui::Property::kEnabled:
      EnableWindow(handles_[*index], control.Enabled());
      UpdateTabStops();
      break;
    case ui::Property::kVisible:
      ShowVisible(*index);
      UpdateTabStops();
      break;
    case ui::Property::kValue:
      ShowValue(*index);
      UpdateTabStops();
      break;
    case ui::Property::kItems:
      ShowItems(*index);
      break;
    case ui::Property::kPicture:
      InvalidateRect(handles_[*index], nullptr, FALSE);
      break;
    case ui::Property::kSilent:
    case ui::Property::kAddress:
      if (WebBrowserView* const view = BrowserAt(*index)) view->Changed(property);
      break;
    case ui::Property::kChecked:
      break;
  }
}

void NativeControls::Fit(int width, int height) {
  for (const auto& view : browser_views_) MoveWindow(view->handle(), 0, 0, width, height, TRUE);
}

bool NativeControls::TranslateKey(MSG& message) {
  const auto index = IndexOf(message.hwnd);
  WebBrowserView* const view = index ? BrowserAt(*index) : nullptr;
  return view != nullptr && view->TranslateKey(message);
}

WebBrowserView* NativeControls::BrowserAt(std::size_t index) const {
  for (const auto& view : browser_views_) {
    if (view->handle() == handles_[index]) return view.get();
  }
  return nullptr;
}

std::wstring NativeControls::Text(std::size_t index) const {
  const ui::Control& shown = control(index);
  switch (shown.kind()) {
    case ControlKind::kButton:
    case ControlKind::kOptionButton:
    case ControlKind::kCheckBox:
      return Widen(marked_captions_[index]);
    case ControlKind::kFrame:
      return Widen(WithoutPrefixes(shown.Caption()));
    case ControlKind::kScrollBar:
      return Widen(LabelBefore(index));
    case ControlKind::kPictureBox:
      return Widen(shown.Name());
    default:
      return Widen(shown.Caption());
  }
}

// A scroll bar has no caption of its own; screen readers say this text instead.
std::string NativeControls::LabelBefore(std::size_t index) const {
  while (index-- > 0) {
    if (control(index).kind() == ControlKind::kLabel) return control(index).Caption();
  }
  return "";
}

void NativeControls::ShowCaption(std::size_t index) {
  SetWindowTextW(handles_[index], Text(index).c_str());
  if (control(index).kind() != ControlKind::kLabel) return;
  for (const auto& tip : path_tips_) tip->Refresh();
  for (std::size_t i = index + 1; i < handles_.size(); ++i) {
    if (control(i).kind() == ControlKind::kLabel) break;
    if (control(i).kind() == ControlKind::kScrollBar) ShowCaption(i);
  }
}

void NativeControls::ShowValue(std::size_t index) {
  const ui::Control& shown = control(index);
  if (IsOption(shown)) {
    const WPARAM value =
        static_cast<const ui::OptionButton&>(shown).Value() ? BST_CHECKED : BST_UNCHECKED;
    const bool shows_it =
        static_cast<WPARAM>(SendMessageW(handles_[index], BM_GETCHECK, 0, 0)) == value;
    if (!shows_it) SendMessageW(handles_[index], BM_SETCHECK, value, 0);
  } else if (shown.kind() == ControlKind::kCheckBox) {
    const bool checked = static_cast<const ui::CheckBox&>(shown).Value();
    SendMessageW(handles_[index], BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
  } else if (shown.kind() == ControlKind::kScrollBar) {
    ShowScrollValue(handles_[index], static_cast<const ui::ScrollBar&>(shown));
  } else if (shown.kind() == ControlKind::kComboBox) {
    ShowComboChoice(handles_[index], static_cast<const ui::ComboBox&>(shown));
  } else if (shown.kind() == ControlKind::kProgressBar) {
    const auto& bar = static_cast<const ui::ProgressBar&>(shown);
    SendMessageW(handles_[index], PBM_SETRANGE32, static_cast<WPARAM>(bar.Minimum()),
                 bar.Maximum());
    SendMessageW(handles_[index], PBM_SETPOS, static_cast<WPARAM>(bar.Value()), 0);
  }
}

void NativeControls::ShowItems(std::size_t index) {
  if (control(index).kind() == ControlKind::kComboBox) {
    ShowComboItems(handles_[index], static_cast<const ui::ComboBox&>(control(index)));
  }
  if (control(index).kind() != ControlKind::kListBox) return;
  const HWND list = handles_[index];
  const DeviceContext context(list);
  const HGDIOBJ before = SelectObject(context.get(), appearance_.message_font());
  SendMessageW(list, LB_RESETCONTENT, 0, 0);
  LONG widest = 0;
  for (const std::string& item : static_cast<const ui::ListBox&>(control(index)).Items()) {
    const std::wstring text = Widen(item);
    SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    SIZE size{};
    GetTextExtentPoint32W(context.get(), text.c_str(), static_cast<int>(text.size()), &size);
    widest = std::max(widest, size.cx);
  }
  SelectObject(context.get(), before);
  const int margin = appearance_.Scale(8);
  SendMessageW(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest + margin), 0);
}

void NativeControls::ShowVisible(std::size_t index) {
  ShowWindow(handles_[index], control(index).Visible() ? SW_SHOWNA : SW_HIDE);
  if (control(index).kind() != ControlKind::kLine) return;
  // A picture behind a line has to fill the gap that it leaves.
  for (std::size_t i = 0; i < handles_.size(); ++i) {
    if (control(i).kind() == ControlKind::kPictureBox) InvalidateRect(handles_[i], nullptr, FALSE);
  }
}

void NativeControls::UpdateTabStops() {
  // The tab key stops in a group of option buttons once: at the selected one, else the first.
  const auto& controls = window_.Controls();
  std::size_t begin = 0;
  while (begin < handles_.size()) {
    std::size_t end = begin + 1;
    while (end < handles_.size() && !StartsGroup(controls, end)) ++end;
    std::size_t stop = end;
    for (std::size_t i = begin; i < end && IsOption(*controls[i]); ++i) {
      if (!CanHaveFocus(i)) continue;
      if (stop == end || static_cast<const ui::OptionButton&>(*controls[i]).Value()) stop = i;
    }
    for (std::size_t i = begin; i < end && IsOption(*controls[i]); ++i) {
      const LONG style = GetWindowLongW(handles_[i], GWL_STYLE);
      const LONG wanted = i == stop ? (style | WS_TABSTOP) : (style & ~LONG{WS_TABSTOP});
      if (wanted != style) SetWindowLongW(handles_[i], GWL_STYLE, wanted);
    }
    begin = end;
  }
}

}  // namespace platform::windows
