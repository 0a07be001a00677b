#include "platform/windows/views/tool_tip.h"

#include <commctrl.h>

namespace platform::windows {
namespace {

// Pixels at 96 DPI; a longer tip has several lines.
constexpr int kWidest = 600;

TOOLINFOW ToolOf(HWND parent, HWND control) {
  TOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = parent;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  return tool;
}

}  // namespace

ToolTip::ToolTip(HWND parent, HWND control, const Appearance& appearance)
    : parent_(parent),
      control_(control),
      appearance_(appearance),
      tip_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                           WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                           CW_USEDEFAULT, CW_USEDEFAULT, parent, nullptr, appearance.instance(),
                           nullptr)) {
  TOOLINFOW tool = ToolOf(parent, control);
  std::wstring nothing;
  tool.lpszText = nothing.data();
  SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  Rescale();
}

void ToolTip::SetText(const std::wstring& text) const {
  TOOLINFOW tool = ToolOf(parent_, control_);
  std::wstring shown = text;
  tool.lpszText = shown.data();
  SendMessageW(tip_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTip::Rescale() const {
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, appearance_.Scale(kWidest));
}

}  // namespace platform::windows
