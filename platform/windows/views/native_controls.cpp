#include "platform/windows/views/native_controls.h"

#include <algorithm>

#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/control_layout.h"
#include "platform/windows/views/control_shape.h"
#include "platform/windows/views/control_theme.h"
#include "platform/windows/views/control_values.h"
#include "platform/windows/views/picture_view.h"
#include "ui/spoken_name.h"

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

NativeControls::NativeControls(const ui::Window& window, const Appearance& appearance,
                               AccessibleTexts& texts)
    : window_(window),
      appearance_(appearance),
      texts_(texts),
      marked_captions_(window.Controls().size()) {}

NativeControls::~NativeControls() {
  // The native windows may stay for a moment, but no longer know the controls.
  for (const HWND handle : handles_) {
    DetachPicture(handle);
    texts_.Forget(handle);
  }
}

void NativeControls::Create(HWND parent) {
  for (std::size_t i = 0; i < window_.Controls().size(); ++i) {
    handles_.push_back(CreateOne(parent, i));
    AddView(parent, i);
    ShowName(i);
    ShowTip(i);
    ShowValueOf(i);
    ShowItems(handles_[i], control(i), appearance_);
  }
  UpdateTabStops(window_.Controls(), handles_);
  ShowColors(parent);
}

HWND NativeControls::CreateOne(HWND parent, std::size_t index) {
  ui::Control& made = control(index);
  const Shape shape = ShapeOf(made);
  DWORD style = shape.style | WS_CHILD;
  if (StartsGroup(window_.Controls(), index)) style |= WS_GROUP;
  if (!made.Enabled()) style |= WS_DISABLED;
  if (made.Visible()) style |= WS_VISIBLE;
  if (made.kind() == ControlKind::kPictureBox) {
    const RECT bounds = appearance_.Scale(made.Bounds());
    static_cast<ui::PictureBox&>(made).SetResolution(bounds.right - bounds.left,
                                                     bounds.bottom - bounds.top);
  }
  const RECT area = AreaOf(made, appearance_);
  const HWND handle = CreateWindowExW(
      shape.extended_style, shape.window_class, Text(index).c_str(), style, area.left, area.top,
      area.right - area.left, area.bottom - area.top, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(made.Id())), appearance_.instance(), &made);
  if (handle == nullptr) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  Dress(handle, made, appearance_);
  return handle;
}

void NativeControls::AddView(HWND parent, std::size_t index) {
  ui::Control& made = control(index);
  const HWND handle = handles_[index];
  if (IsOption(made)) {
    option_views_.push_back(std::make_unique<OptionButtonView>(handle));
  } else if (made.kind() == ControlKind::kWebBrowser) {
    browser_views_.push_back(
        std::make_unique<WebBrowserView>(handle, static_cast<ui::WebBrowser&>(made)));
  } else if (made.kind() == ControlKind::kTextBox) {
    entry_views_.push_back(
        std::make_unique<TextEntryView>(handle, static_cast<ui::TextBox&>(made)));
  }
  if (IsPath(made) || !made.Tip().empty()) {
    tips_[index] = std::make_unique<ToolTip>(parent, handle, appearance_);
  }
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
      enabling_changed_ = true;
      break;
    case ui::Property::kVisible:
      ShowVisible(*index);
      UpdateTabStops(window_.Controls(), handles_);
      break;
    case ui::Property::kValue:
      ShowValueOf(*index);
      UpdateTabStops(window_.Controls(), handles_);
      break;
    case ui::Property::kItems:
      ShowItems(handles_[*index], control, appearance_);
      break;
    case ui::Property::kPicture:
      ShowChange(handles_[*index], static_cast<const ui::PictureBox&>(control));
      break;
    case ui::Property::kSilent:
    case ui::Property::kAddress:
      if (WebBrowserView* const view = BrowserAt(*index)) view->Changed(property);
      break;
    case ui::Property::kSpokenName:
      ShowName(*index);
      break;
    case ui::Property::kTip:
      ShowTip(*index);
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
    case ControlKind::kPictureBox:
    case ControlKind::kProgressBar:
    case ControlKind::kWebBrowser:
      // It shows no text; what it has is for screen readers.
      return Widen(ui::SpokenNameOf(shown));
    default:
      return Widen(shown.Caption());
  }
}

void NativeControls::ShowCaption(std::size_t index) {
  SetWindowTextW(handles_[index], Text(index).c_str());
  ShowTip(index);
}

void NativeControls::ShowName(std::size_t index) {
  const ui::Control& named = control(index);
  if (named.SpokenName().empty()) return;
  if (!ui::ShowsCaption(named)) SetWindowTextW(handles_[index], Text(index).c_str());
  texts_.SetName(handles_[index], Widen(named.SpokenName()));
}

void NativeControls::ShowTip(std::size_t index) {
  const auto found = tips_.find(index);
  if (found == tips_.end()) return;
  const ui::Control& tipped = control(index);
  found->second->SetText(Widen(IsPath(tipped) ? tipped.Caption() : tipped.Tip()));
}

void NativeControls::ShowValueOf(std::size_t index) {
  const ui::Control& shown = control(index);
  ShowValue(handles_[index], shown);
  if (shown.kind() != ControlKind::kScrollBar) return;
  // The system would tell how far along the range it is, in per cent.
  texts_.SetValue(handles_[index],
                  std::to_wstring(static_cast<const ui::ScrollBar&>(shown).Value()));
}

void NativeControls::Rearrange() {
  for (std::size_t i = 0; i < handles_.size(); ++i) {
    platform::windows::Rearrange(handles_[i], control(i), appearance_);
  }
  for (const auto& [index, tip] : tips_) tip->Rescale();
}

void NativeControls::ShowColors(HWND parent) {
  const bool plain = NeedsPlainControls(parent);
  if (plain != plain_) {
    for (const HWND handle : handles_) DrawPlain(handle, plain);
  }
  plain_ = plain;
}

void NativeControls::WindowCaptionChanged() {
  for (std::size_t i = 0; i < handles_.size(); ++i) {
    if (control(i).kind() == ControlKind::kWebBrowser) ShowCaption(i);
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
