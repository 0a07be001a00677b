#include "platform/windows/views/path_tip.h"

#include <string>

#include <commctrl.h>

namespace platform::windows {
namespace {

// Pixels at 96 DPI; a longer tip has several lines.
constexpr int kWidest = 600;

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  return text;
}

}  // namespace

PathTip::PathTip(HWND parent, HWND label, const Appearance& appearance)
    : parent_(parent),
      label_(label),
      tip_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                           WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                           CW_USEDEFAULT, CW_USEDEFAULT, parent, nullptr, appearance.instance(),
                           nullptr)) {
  TOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = parent;
  tool.uId = reinterpret_cast<UINT_PTR>(label);
  std::wstring text = TextOf(label);
  tool.lpszText = text.data();
  SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, appearance.Scale(kWidest));
}

void PathTip::Refresh() const {
  TOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.hwnd = parent_;
  tool.uId = reinterpret_cast<UINT_PTR>(label_);
  std::wstring text = TextOf(label_);
  tool.lpszText = text.data();
  SendMessageW(tip_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace platform::windows
