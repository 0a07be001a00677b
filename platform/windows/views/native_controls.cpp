#include "platform/windows/views/native_controls.h"

#include <algorithm>

#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/combo_box_view.h"
#include "platform/windows/views/control_shape.h"
#include "platform/windows/views/control_values.h"
#include "platform/windows/views/picture_view.h"
#include "platform/windows/views/tab_groups.h"

namespace platform::windows {
namespace {

using ui::ControlKind;

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
    ShowValue(handles_[i], *controls[i]);
    ShowItems(handles_[i], *controls[i], appearance_);
  }
  UpdateTabStops(window_.Controls(), handles_);
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
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(made.Id())), appearance_.instance(),
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

std::optional<std::size_t> NativeControls::IndexOfId(UINT id) const {
  for (std::size_t i = 0; i < handles_.size(); ++i) {
    if (static_cast<UINT>(control(i).Id()) == id) return i;
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
  return windows::CanHaveFocus(control(index));
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
      UpdateTabStops(window_.Controls(), handles_);
      break;
    case ui::Property::kVisible:
      ShowVisible(*index);
      UpdateTabStops(window_.Controls(), handles_);
      break;
    case ui::Property::kValue:
      ShowValue(handles_[*index], control);
      UpdateTabStops(window_.Controls(), handles_);
      break;
    case ui::Property::kItems:
      ShowItems(handles_[*index], control, appearance_);
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

void NativeControls::ReadFields() const {
  for (std::size_t i = 0; i < handles_.size(); ++i) ReadValue(handles_[i], control(i));
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

void NativeControls::ShowVisible(std::size_t index) {
  ShowWindow(handles_[index], control(index).Visible() ? SW_SHOWNA : SW_HIDE);
  if (control(index).kind() != ControlKind::kLine) return;
  // A picture behind a line has to fill the gap that it leaves.
  for (std::size_t i = 0; i < handles_.size(); ++i) {
    if (control(i).kind() == ControlKind::kPictureBox) InvalidateRect(handles_[i], nullptr, FALSE);
  }
}

}  // namespace platform::windows
