// A horizontal scroll bar that is used as a slider.
//
// Any number of the range can be set: by typing its digits, and by steps of one (Ctrl) and of ten
// (Shift) with the arrows or the wheel. Without a key a step is the range's own.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"
#include "ui/typed_number.h"

namespace ui {

class ScrollBar : public Control {
 public:
  struct Range {
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
    std::int32_t small_step = 1;
    std::int32_t large_step = 1;
    std::int32_t initial = 0;
  };

  // Which key is held during a step; Ctrl counts when both are.
  enum class HeldKey { kNone, kShift, kCtrl };

  // What a wheel reports for one notch; finer wheels report parts of it.
  static constexpr int kWheelNotch = 120;

  ScrollBar(Window& window, int id, std::string name, Rect bounds, Range range)
      : Control(window, id, ControlKind::kScrollBar, std::move(name), bounds, ""),
        range_(range),
        value_(range.initial) {}

  const Range& range() const { return range_; }
  std::int32_t Value() const { return value_; }
  void SetValue(std::int32_t value);
  void Reset() override;

  std::function<void()> OnChange;

  // What a user's move of the thumb does. Values outside the range are drawn to its ends; a move
  // that changes nothing is no event.
  void ScrollTo(std::int32_t value);

  // Steps to the right, or to the left where `steps` is negative.
  void Step(int steps, HeldKey held);

  // The wheel was turned, away from the user where `amount` is positive, which goes to the right.
  void TurnWheel(int amount, HeldKey held);

  // A typed character; `at_ms` is a running time. Whether it was one that sets the number.
  bool KeyPress(char32_t key, std::uint32_t at_ms);

 private:
  std::int32_t Clamp(std::int64_t value) const;
  void MoveTo(std::int64_t value);

  Range range_;
  std::int32_t value_;
  int wheel_rest_ = 0;  // of a notch
  TypedNumber typed_;
};

}  // namespace ui
