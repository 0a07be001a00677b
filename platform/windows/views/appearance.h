// How windows look on this system: its message font, its resolution, the program's icon.
#pragma once

#include "platform/windows/api/handles.h"
#include "ui/control.h"

namespace platform::windows {

// Number of the program's icon in its resources.
inline constexpr int kIconResource = 1;

class Appearance {
 public:
  explicit Appearance(HINSTANCE instance);

  HINSTANCE instance() const { return instance_; }

  // From pixels at 96 DPI to pixels of the screen.
  int Scale(int pixels) const;

  // Edges are scaled, not sizes, so that what adjoins at 96 DPI adjoins at every resolution.
  RECT Scale(const ui::Rect& bounds) const;

  HFONT message_font() const { return message_font_.get(); }
  HFONT heading_font() const;  // bold and a little larger

 private:
  HINSTANCE instance_;
  int dpi_;
  LOGFONTW message_font_design_{};
  Font message_font_;
  mutable Font heading_font_;  // made when first asked for
};

}  // namespace platform::windows
