#include "platform/windows/views/appearance.h"

namespace platform::windows {
namespace {

constexpr int kDesignDpi = 96;

int SystemDpi() {
  const DeviceContext screen(nullptr);
  return GetDeviceCaps(screen.get(), LOGPIXELSX);
}

}  // namespace

Appearance::Appearance(HINSTANCE instance) : instance_(instance), dpi_(SystemDpi()) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  message_font_design_ = metrics.lfMessageFont;
  message_font_.reset(CreateFontIndirectW(&message_font_design_));
}

int Appearance::Scale(int pixels) const {
  return MulDiv(pixels, dpi_, kDesignDpi);
}

RECT Appearance::Scale(const ui::Rect& bounds) const {
  return {Scale(bounds.x), Scale(bounds.y), Scale(bounds.x + bounds.width),
          Scale(bounds.y + bounds.height)};
}

HFONT Appearance::heading_font() const {
  if (!heading_font_) {
    LOGFONTW design = message_font_design_;
    design.lfWeight = FW_BOLD;
    design.lfHeight = MulDiv(design.lfHeight, 5, 4);
    heading_font_.reset(CreateFontIndirectW(&design));
  }
  return heading_font_.get();
}

}  // namespace platform::windows
