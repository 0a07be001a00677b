#include "platform/windows/views/appearance.h"

#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/windows/api/system_library.h"

namespace platform::windows {
namespace {

// The message font for a resolution. Windows 10 and later know it; before, one resolution counted
// for the fonts of all monitors.
LOGFONTW MessageFontAt(int dpi) {
  using Ask = BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT);
  static const auto ask =
      FunctionOf<Ask>(GetModuleHandleW(L"user32.dll"), "SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  if (ask != nullptr &&
      ask(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, static_cast<UINT>(dpi))) {
    return metrics.lfMessageFont;
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, SystemDpi());
  return metrics.lfMessageFont;
}

}  // namespace

bool Appearance::Use(const Monitor& monitor, ui::Extent design, ui::Extent frame) {
  LOGFONTW font = MessageFontAt(monitor.dpi);
  const int wanted = ui::LayoutDpi(monitor.dpi, std::abs(font.lfHeight));
  const int dpi = ui::FittingDpi(wanted, design, frame, {monitor.work.width, monitor.work.height});
  // Text shrinks with the controls that hold it.
  font.lfHeight = MulDiv(font.lfHeight, dpi, wanted);
  if (dpi == dpi_ && std::memcmp(&font, &message_font_design_, sizeof(font)) == 0) return false;
  dpi_ = dpi;
  message_font_design_ = font;
  MakeFonts();
  return true;
}

void Appearance::MakeFonts() {
  LOGFONTW heading = message_font_design_;
  heading.lfWeight = FW_BOLD;
  heading.lfHeight = MulDiv(heading.lfHeight, 5, 4);
  message_font_before_ =
      std::exchange(message_font_, Font(CreateFontIndirectW(&message_font_design_)));
  heading_font_before_ = std::exchange(heading_font_, Font(CreateFontIndirectW(&heading)));
}

RECT Appearance::Scale(const ui::Rect& bounds) const {
  return {Scale(bounds.x), Scale(bounds.y), Scale(bounds.x + bounds.width),
          Scale(bounds.y + bounds.height)};
}

}  // namespace platform::windows
