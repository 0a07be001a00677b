#include "ui/placing.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace ui {
namespace {

// Pixels at 96 DPI of the font that the windows are designed with (9 points), and how much of one a
// system may round it up.
constexpr double kDesignFontHeight = 12;
constexpr double kRounding = 0.5;

int GreatestDpi(int design, int room) {
  if (design <= 0) return room;
  return static_cast<int>(std::int64_t{room} * kDesignDpi / design);
}

bool IsTaken(Corner corner, int step, const std::vector<Corner>& taken) {
  return std::any_of(taken.begin(), taken.end(), [&](const Corner& other) {
    return std::abs(other.x - corner.x) < step && std::abs(other.y - corner.y) < step;
  });
}

// The number nearest to `value` from `low` on, of which `size` more end at `high` at the latest.
int Inside(int value, int size, int low, int high) {
  return std::max(low, std::min(value, high - size));
}

}  // namespace

int Scaled(int pixels, int dpi) {
  const std::int64_t product = std::int64_t{pixels} * dpi;
  const std::int64_t half = product < 0 ? -kDesignDpi / 2 : kDesignDpi / 2;
  return static_cast<int>((product + half) / kDesignDpi);
}

int LayoutDpi(int screen_dpi, int font_height) {
  const double at_design = static_cast<double>(font_height) * kDesignDpi / screen_dpi;
  if (at_design <= kDesignFontHeight + kRounding) return screen_dpi;
  return static_cast<int>(screen_dpi * at_design / kDesignFontHeight);
}

int FittingDpi(int wanted, Extent design, Extent frame, Extent work) {
  const int fitting = std::min(GreatestDpi(design.width, work.width - frame.width),
                               GreatestDpi(design.height, work.height - frame.height));
  return std::max(1, std::min(wanted, fitting));
}

Extent LimitedTo(Extent size, Extent work) {
  return {std::min(size.width, work.width), std::min(size.height, work.height)};
}

Corner FreeCorner(Extent size, const Rect& work, Height height, int step,
                  const std::vector<Corner>& taken) {
  const int above = (work.height - size.height) / (height == Height::kMiddle ? 2 : 6);
  const Corner first{work.x + std::max(0, (work.width - size.width) / 2),
                     work.y + std::max(0, above)};
  step = std::max(1, step);
  for (const int direction : {1, -1}) {
    for (Corner corner = first;; corner.x += direction * step, corner.y += direction * step) {
      if (corner.x < work.x || corner.x + size.width > work.x + work.width) break;
      if (corner.y < work.y || corner.y + size.height > work.y + work.height) break;
      if (!IsTaken(corner, step, taken)) return corner;
    }
  }
  return first;
}

Corner CornerOnNewScreen(Extent size, const Rect& suggested, const Rect& work) {
  return {Inside(suggested.x + (suggested.width - size.width) / 2, size.width, work.x,
                 work.x + work.width),
          Inside(suggested.y + (suggested.height - size.height) / 2, size.height, work.y,
                 work.y + work.height)};
}

}  // namespace ui
