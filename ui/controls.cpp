#include "ui/controls.h"

#include "ui/window.h"

namespace ui {

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  Tell(Property::kValue);
}

void OptionButton::Reset() {
  Control::Reset();
  value_ = false;
}

void OptionButton::Click() {
  Raise([this] {
    SetValue(true);
    if (OnClick) OnClick();
  });
}

void PictureBox::Draw(const std::function<void(Canvas&)>& draw) {
  next_.Clear();
  draw(next_);
  changed_ = next_.DifferenceFrom(canvas_);
  std::swap(canvas_, next_);
  Tell(Property::kPicture);
}

bool PictureBox::CanBeSeen() const {
  const WindowView* const view = Owner().View();
  return view != nullptr && view->CanBeSeen(*this);
}

void PictureBox::Clear() {
  Draw([](Canvas&) {});
}

void PictureBox::SetResolution(int width, int height) {
  canvas_ = Canvas(width, height);
  next_ = canvas_;
}

void PictureBox::ChangeResolution(int width, int height) {
  if (width == canvas_.width() && height == canvas_.height()) return;
  canvas_ = canvas_.ScaledTo(width, height);
  next_ = Canvas(width, height);
}

void PictureBox::Reset() {
  Control::Reset();
  canvas_.Clear();
}

void ListBox::SetItems(const std::vector<std::string>& items) {
  items_ = items;
  Tell(Property::kItems);
}

void ListBox::Reset() {
  Control::Reset();
  items_.clear();
}

bool TextBox::KeyPress(char32_t key) {
  bool accepted = true;
  if (AcceptsKey) Owner().Handle([&] { accepted = AcceptsKey(key); });
  return accepted;
}

void TextBox::Edit(const std::string& text) {
  if (Enabled() && Visible()) StoreCaption(text);
}

bool TextBox::Enter() {
  const bool selects = SelectsAtEntry();
  entered_ = true;
  return selects;
}

void TextBox::Reset() {
  Control::Reset();
  entered_ = false;
}

void CheckBox::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  Tell(Property::kValue);
}

void CheckBox::Reset() {
  Control::Reset();
  value_ = false;
}

void CheckBox::Click() {
  Raise([this] {
    SetValue(!value_);
    if (OnClick) OnClick();
  });
}

void ComboBox::SetItems(const std::vector<std::string>& items) {
  items_ = items;
  list_index_ = kNone;
  Tell(Property::kItems);
}

void ComboBox::SetListIndex(int index) {
  if (!IsChoice(index) || list_index_ == index) return;
  list_index_ = index;
  Tell(Property::kValue);
}

void ComboBox::Reset() {
  Control::Reset();
  items_.clear();
  list_index_ = kNone;
}

void ComboBox::Choose(int index) {
  if (!IsChoice(index) || list_index_ == index) return;
  Raise([this, index] {
    SetListIndex(index);
    if (OnClick) OnClick();
  });
}

bool ComboBox::IsChoice(int index) const {
  return index >= kNone && index < static_cast<int>(items_.size());
}

void WebBrowser::SetSilent(bool silent) {
  if (silent_ == silent) return;
  silent_ = silent;
  Tell(Property::kSilent);
}

void WebBrowser::Navigate(const std::string& address) {
  address_ = address;
  Tell(Property::kAddress);
}

void WebBrowser::Reset() {
  Control::Reset();
  silent_ = false;
  address_.clear();
}

void WebBrowser::AskForWindow(const std::string& address) {
  Raise([this, &address] {
    if (OnNewWindow) OnNewWindow(address);
  });
}

}  // namespace ui
