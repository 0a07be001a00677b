#include "ui/progress_bar.h"

#include <algorithm>

namespace ui {

void ProgressBar::SetRange(std::int32_t minimum, std::int32_t maximum) {
  if (minimum_ == minimum && maximum_ == maximum) return;
  minimum_ = minimum;
  maximum_ = maximum;
  value_ = std::clamp(value_, minimum_, maximum_);
  Tell(Property::kValue);
}

void ProgressBar::SetValue(std::int32_t value) {
  value = std::clamp(value, minimum_, maximum_);
  if (value_ == value) return;
  value_ = value;
  Tell(Property::kValue);
}

void ProgressBar::Reset() {
  Control::Reset();
  SetRange(0, 100);
  SetValue(0);
}

}  // namespace ui
