#include "tests/rig/driver/fitting.h"

#include <iostream>
#include <string>

#include "tests/rig/driver/windows.h"

namespace {

// Measures texts as the program shows them: in the system's message font, or its heading.
class Measure {
 public:
  explicit Measure(int dpi)
      : screen_(GetDC(nullptr)), dpi_(dpi != 0 ? dpi : GetDeviceCaps(screen_, LOGPIXELSX)) {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    LOGFONTW& font = metrics.lfMessageFont;
    font.lfHeight = MulDiv(font.lfHeight, dpi_, GetDeviceCaps(screen_, LOGPIXELSX));
    normal_ = CreateFontIndirectW(&font);
    font.lfWeight = FW_BOLD;
    font.lfHeight = MulDiv(font.lfHeight, 5, 4);
    heading_ = CreateFontIndirectW(&font);
  }
  ~Measure() {
    DeleteObject(normal_);
    DeleteObject(heading_);
    ReleaseDC(nullptr, screen_);
  }
  Measure(const Measure&) = delete;
  Measure& operator=(const Measure&) = delete;

  int Scale(int pixels) const { return MulDiv(pixels, dpi_, 96); }

  // The size of `text`; of more than one line where it may wrap at `wrap_width`.
  SIZE Of(const std::wstring& text, int wrap_width, bool heading, bool prefix) const {
    const HGDIOBJ before = SelectObject(screen_, heading ? heading_ : normal_);
    RECT area = {0, 0, wrap_width, 0};
    const UINT wrap = wrap_width > 0 ? DT_WORDBREAK : DT_SINGLELINE;
    const UINT marks = prefix ? 0 : DT_NOPREFIX;
    DrawTextW(screen_, text.c_str(), static_cast<int>(text.size()), &area,
              DT_CALCRECT | wrap | marks);
    SelectObject(screen_, before);
    // Segoe UI is in no line of text more than this wider than the font that is measured with.
    const LONG wider = wrap_width > 0 ? area.right : MulDiv(area.right, 103, 100);
    return {wider, area.bottom};
  }

 private:
  HDC screen_;
  int dpi_;
  HFONT normal_ = nullptr;
  HFONT heading_ = nullptr;
};

bool Fits(const Measure& measure, HWND control, const std::wstring& text) {
  RECT client = {};
  GetClientRect(control, &client);
  const std::string kind = ClassOf(control);
  if (kind == "Static") {
    if ((GetWindowLongW(control, GWL_STYLE) & SS_ELLIPSISMASK) != 0) return true;
    // Headings are the labels of this height; all others are lower or hold several lines.
    const bool heading = client.bottom >= measure.Scale(22) && client.bottom <= measure.Scale(24);
    const SIZE size = measure.Of(text, client.right, heading, false);
    return size.cx <= client.right && size.cy <= client.bottom;
  }
  if (kind == "msctls_statusbar32") {
    const int border_and_grip = measure.Scale(8) + client.bottom;
    return measure.Of(text, 0, false, false).cx <= client.right - border_and_grip;
  }
  if (kind != "Button") return true;
  const LONG type = GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
  const bool mark = type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON;
  const int beside = measure.Scale(mark ? 20 : 12);  // the mark, or the border and some air
  return measure.Of(text, 0, false, true).cx <= client.right - beside;
}

BOOL CALLBACK PrintIfCut(HWND control, LPARAM measure) {
  wchar_t caption[1024] = {};
  InternalGetWindowText(control, caption, 1024);
  if (IsWindowVisible(control) && caption[0] != L'\0' &&
      !Fits(*reinterpret_cast<const Measure*>(measure), control, caption)) {
    std::cout << Utf8(caption) << '\n';
  }
  return TRUE;
}

}  // namespace

void PrintCutCaptions(HWND window, int dpi) {
  const Measure measure(dpi);
  EnumChildWindows(window, PrintIfCut, reinterpret_cast<LPARAM>(&measure));
}
