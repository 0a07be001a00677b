#include "ui/scroll_bar.h"

#include <algorithm>

namespace ui {
namespace {

std::int64_t StepOf(const ScrollBar::Range& range, ScrollBar::HeldKey held) {
  switch (held) {
    case ScrollBar::HeldKey::kCtrl:
      return 1;
    case ScrollBar::HeldKey::kShift:
      return 10;
    case ScrollBar::HeldKey::kNone:
      break;
  }
  return range.small_step;
}

}  // namespace

void ScrollBar::SetValue(std::int32_t value) {
  value = Clamp(value);
  if (value_ == value) return;
  value_ = value;
  Tell(Property::kValue);
}

void ScrollBar::Reset() {
  Control::Reset();
  value_ = range_.initial;
  wheel_rest_ = 0;
  typed_.Forget();
}

void ScrollBar::ScrollTo(std::int32_t value) {
  typed_.Forget();
  MoveTo(value);
}

void ScrollBar::Step(int steps, HeldKey held) {
  typed_.Forget();
  MoveTo(value_ + steps * StepOf(range_, held));
}

void ScrollBar::TurnWheel(int amount, HeldKey held) {
  if ((amount < 0) != (wheel_rest_ < 0)) wheel_rest_ = 0;
  wheel_rest_ += amount;
  const int steps = wheel_rest_ / kWheelNotch;
  wheel_rest_ %= kWheelNotch;
  if (steps != 0) Step(steps, held);
}

bool ScrollBar::KeyPress(char32_t key, std::uint32_t at_ms) {
  if (!Enabled() || !Visible() || !typed_.Press(key, at_ms)) return false;
  if (const auto number = typed_.Number()) MoveTo(*number);
  return true;
}

std::int32_t ScrollBar::Clamp(std::int64_t value) const {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, range_.minimum, range_.maximum));
}

void ScrollBar::MoveTo(std::int64_t value) {
  if (!Enabled() || !Visible() || Clamp(value) == value_) return;
  SetValue(Clamp(value));
  Raise(OnChange);
}

}  // namespace ui
