// How one window looks on its monitor: the system's message font, the resolution that its controls
// are laid out for, the program's icon.
#pragma once

#include "platform/windows/api/handles.h"
#include "platform/windows/views/monitors.h"
#include "ui/control.h"

namespace platform::windows {

// Number of the program's icon in its resources.
inline constexpr int kIconResource = 1;

class Appearance {
 public:
  explicit Appearance(HINSTANCE instance) : instance_(instance) {}

  HINSTANCE instance() const { return instance_; }

  // Takes the system's font and the monitor's resolution for a window with a client area of
  // `design` (pixels at 96 DPI) and a frame of `frame`: everything as large as it should be, or as
  // the work area allows. Whether anything changed. Fonts that were handed out before stay valid
  // until the next change.
  bool Use(const Monitor& monitor, ui::Extent design, ui::Extent frame);

  // From pixels at 96 DPI to pixels of the screen.
  int Scale(int pixels) const { return ui::Scaled(pixels, dpi_); }

  // Edges are scaled, not sizes, so that what adjoins at 96 DPI adjoins at every resolution.
  RECT Scale(const ui::Rect& bounds) const;

  HFONT message_font() const { return message_font_.get(); }
  HFONT heading_font() const { return heading_font_.get(); }  // bold and a little larger

 private:
  void MakeFonts();

  HINSTANCE instance_;
  int dpi_ = 0;  // nothing is taken yet
  LOGFONTW message_font_design_{};
  Font message_font_;
  Font heading_font_;
  Font message_font_before_;
  Font heading_font_before_;
};

}  // namespace platform::windows
