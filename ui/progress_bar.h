// A bar that shows how much of something is done.
#pragma once

#include <cstdint>
#include <string>

#include "ui/control.h"

namespace ui {

class ProgressBar : public Control {
 public:
  ProgressBar(Window& window, int id, std::string name, Rect bounds)
      : Control(window, id, ControlKind::kProgressBar, std::move(name), bounds, "") {}

  std::int32_t Minimum() const { return minimum_; }
  std::int32_t Maximum() const { return maximum_; }
  std::int32_t Value() const { return value_; }

  // The value stays within the range: another one is drawn to its ends.
  void SetRange(std::int32_t minimum, std::int32_t maximum);
  void SetValue(std::int32_t value);
  void Reset() override;

 private:
  std::int32_t minimum_ = 0;
  std::int32_t maximum_ = 100;
  std::int32_t value_ = 0;
};

}  // namespace ui
