#include "platform/windows/views/focus_keeper.h"

namespace platform::windows {

void FocusKeeper::Settle(HWND handle) {
  const HWND focus = GetFocus();
  const auto index = controls_.IndexOf(focus);
  if (index && controls_.CanHaveFocus(*index)) {
    if (last_ != index || shown_default_ != window_.DefaultButton()) Emphasise(index);
    last_ = index;
    shown_default_ = window_.DefaultButton();
    return;
  }
  if (IsIconic(handle)) return;
  const auto chosen = Choose();
  if (chosen) {
    SetFocus(controls_.handle(*chosen));
  } else if (focus != handle) {
    SetFocus(handle);
  }
}

void FocusKeeper::HandOn() {
  const auto chosen = Choose();
  if (chosen) SetFocus(controls_.handle(*chosen));
}

std::optional<std::size_t> FocusKeeper::Choose() const {
  if (!last_) return NextTabStop();
  if (controls_.CanHaveFocus(*last_)) return last_;
  for (const ui::Button* button : {window_.DefaultButton(), window_.CancelButton()}) {
    const auto index = controls_.IndexOf(button);
    if (index && controls_.CanHaveFocus(*index)) return index;
  }
  return NextTabStop();
}

std::optional<std::size_t> FocusKeeper::NextTabStop() const {
  const std::size_t count = controls_.Count();
  const std::size_t begin = last_ ? *last_ + 1 : 0;
  for (std::size_t step = 0; step < count; ++step) {
    const std::size_t index = (begin + step) % count;
    if (controls_.IsTabStop(index)) return index;
  }
  return std::nullopt;
}

void FocusKeeper::Emphasise(std::optional<std::size_t> focus) const {
  const bool on_button = focus && controls_.control(*focus).kind() == ui::ControlKind::kButton;
  const auto emphasised = on_button ? focus : controls_.IndexOf(window_.DefaultButton());
  for (std::size_t i = 0; i < controls_.Count(); ++i) {
    if (controls_.control(i).kind() != ui::ControlKind::kButton) continue;
    const DWORD wanted = emphasised == i ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    const auto style = static_cast<DWORD>(GetWindowLongW(controls_.handle(i), GWL_STYLE));
    if ((style & BS_TYPEMASK) == wanted) continue;
    SendMessageW(controls_.handle(i), BM_SETSTYLE, (style & 0xFFFF & ~BS_TYPEMASK) | wanted, TRUE);
  }
}

}  // namespace platform::windows
