// Where a new window stands and how large it is made, in pixels of the screen.
#pragma once

#include <vector>

#include "ui/control.h"

namespace ui {

inline constexpr int kDesignDpi = 96;

struct Extent {
  int width = 0;
  int height = 0;

  friend bool operator==(const Extent&, const Extent&) = default;
};

struct Corner {
  int x = 0;
  int y = 0;
};

// `pixels` at 96 DPI, at another resolution.
int Scaled(int pixels, int dpi);

// The resolution that controls are laid out for. It is the screen's, and greater where the system's
// font is (`font_height`, pixels of the screen) than the one that windows are designed with: the
// controls grow with their texts.
int LayoutDpi(int screen_dpi, int font_height);

// `wanted` or, where a window with a client area of `design` (pixels at 96 DPI) and a frame of
// `frame` would not fit into `work`, the greatest resolution at which it does.
int FittingDpi(int wanted, Extent design, Extent frame, Extent work);

// `size`, no larger than `work`.
Extent LimitedTo(Extent size, Extent work);

enum class Height { kMiddle, kUpperThird };

// The upper left corner of a window of `size` in `work`: in the middle, and from there to the lower
// right or the upper left by `step` again and again, as long as a window has its corner there. A
// window that has no room to step aside stays where it is.
Corner FreeCorner(Extent size, const Rect& work, Height height, int step,
                  const std::vector<Corner>& taken);

// `size` around the middle of `suggested`, and inside `work`. So a window that is made smaller when
// it comes to another screen stays on that.
Corner CornerOnNewScreen(Extent size, const Rect& suggested, const Rect& work);

}  // namespace ui
