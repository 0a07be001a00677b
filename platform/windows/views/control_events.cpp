#include "platform/windows/views/control_events.h"

#include <string>

#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/combo_box_view.h"
#include "platform/windows/views/control_values.h"
#include "platform/windows/views/scroll_bar_view.h"

namespace platform::windows {
namespace {

using ui::ControlKind;

}  // namespace

void ControlEvents::OnCommand(HWND window, UINT id, UINT code) {
  const auto index = controls_.IndexOfId(id);
  if (!index) return;
  if (code == EN_CHANGE) {
    TakeText(*index);
  } else if (TellsComboChoice(code) && IsKind(*index, ControlKind::kComboBox)) {
    PostMessageW(window, kChoiceEvent, *index, 0);
  } else if (code == BN_CLICKED && !controls_.TakingFocus(*index)) {
    PostClick(window, *index);
  }
}

void ControlEvents::OnScroll(HWND window, HWND scroll_bar, WORD code, WORD position) {
  const auto index = controls_.IndexOf(scroll_bar);
  if (!index || !IsKind(*index, ControlKind::kScrollBar)) return;
  const LPARAM place = IsStep(code) ? HeldNow() : ThumbPosition(scroll_bar, position);
  PostMessageW(window, kScrollEvent, MAKEWPARAM(*index, code), place);
}

bool ControlEvents::OnWheel(HWND window, short amount, POINT place) const {
  for (std::size_t i = 0; i < controls_.Count(); ++i) {
    if (!IsKind(i, ControlKind::kScrollBar) || !controls_.CanHaveFocus(i)) continue;
    RECT area{};
    GetWindowRect(controls_.handle(i), &area);
    if (!PtInRect(&area, place) && GetFocus() != controls_.handle(i)) continue;
    PostMessageW(window, kWheelEvent, i, MAKELPARAM(amount, HeldNow()));
    return true;
  }
  return false;
}

bool ControlEvents::AcceptsKey(const MSG& message) const {
  const auto index = controls_.IndexOf(message.hwnd);
  if (!index || !IsKind(*index, ControlKind::kTextBox)) return true;
  auto& text_box = static_cast<ui::TextBox&>(controls_.control(*index));
  return text_box.KeyPress(static_cast<char32_t>(message.wParam));
}

bool ControlEvents::TakesKey(const MSG& message) const {
  const auto index = controls_.IndexOf(message.hwnd);
  if (!index || !IsKind(*index, ControlKind::kScrollBar)) return false;
  auto& scroll_bar = static_cast<ui::ScrollBar&>(controls_.control(*index));
  return scroll_bar.KeyPress(static_cast<char32_t>(message.wParam), message.time);
}

void ControlEvents::PostClick(HWND window, std::size_t index) {
  // An access key both moves the focus to an option button and clicks it: that is one choice.
  const bool option = IsKind(index, ControlKind::kOptionButton);
  if (option && pending_choice_ == index) return;
  if (option) pending_choice_ = index;
  PostMessageW(window, kClickEvent, index, 0);
}

void ControlEvents::PostClickOfFocused(HWND window) {
  const auto index = controls_.IndexOf(GetFocus());
  if (index && IsKind(*index, ControlKind::kOptionButton)) PostClick(window, *index);
}

void ControlEvents::RunClick(std::size_t index) {
  if (index >= controls_.Count()) return;
  if (pending_choice_ == index) pending_choice_.reset();
  ui::Control& control = controls_.control(index);
  if (control.kind() == ControlKind::kButton) {
    static_cast<ui::Button&>(control).Click();
  } else if (control.kind() == ControlKind::kOptionButton) {
    static_cast<ui::OptionButton&>(control).Click();
  } else if (control.kind() == ControlKind::kCheckBox) {
    static_cast<ui::CheckBox&>(control).Click();
  }
}

void ControlEvents::RunChoice(std::size_t index) const {
  if (!IsKind(index, ControlKind::kComboBox)) return;
  auto& combo_box = static_cast<ui::ComboBox&>(controls_.control(index));
  combo_box.Choose(ComboChoice(controls_.handle(index)));
}

void ControlEvents::RunScroll(std::size_t index, WORD code, std::int32_t position) const {
  if (!IsKind(index, ControlKind::kScrollBar)) return;
  Scroll(static_cast<ui::ScrollBar&>(controls_.control(index)), code, position);
}

void ControlEvents::RunWheel(std::size_t index, short amount, WORD held) const {
  if (!IsKind(index, ControlKind::kScrollBar)) return;
  static_cast<ui::ScrollBar&>(controls_.control(index))
      .TurnWheel(amount, static_cast<ui::ScrollBar::HeldKey>(held));
}

bool ControlEvents::IsKind(std::size_t index, ControlKind kind) const {
  return index < controls_.Count() && controls_.control(index).kind() == kind;
}

// A text box says so whenever its text changed, also when the program changed it.
void ControlEvents::TakeText(std::size_t index) const {
  if (!IsKind(index, ControlKind::kTextBox)) return;
  static_cast<ui::TextBox&>(controls_.control(index)).Edit(TextIn(controls_.handle(index)));
}

}  // namespace platform::windows
