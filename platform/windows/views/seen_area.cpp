#include "platform/windows/views/seen_area.h"

#include "platform/windows/api/system_library.h"

namespace platform::windows {
namespace {

constexpr DWORD kLookAgainMs = 250;
// The order may change under a walk through it, which would then not come to an end.
constexpr int kMostWindows = 1000;

// Farther out than any screen, and what a region still holds.
constexpr RECT kEverywhere{-32768, -32768, 32767, 32767};

// DWMWA_CLOAKED of Windows 8 and later: shown for the program, but on another virtual desktop or
// for another reason not on the screen.
constexpr DWORD kCloaked = 14;

bool IsCloaked(HWND window) {
  using Ask = HRESULT(WINAPI*)(HWND, DWORD, void*, DWORD);
  static const auto ask =
      FunctionOf<Ask>(LoadSystemLibrary(L"dwmapi.dll"), "DwmGetWindowAttribute");
  DWORD cloaked = 0;
  return ask != nullptr && SUCCEEDED(ask(window, kCloaked, &cloaked, sizeof(cloaked))) &&
         cloaked != 0;
}

bool HasShapeOfItsOwn(HWND window, HRGN scratch) {
  return GetWindowRgn(window, scratch) != ERROR;
}

// In doubt it does not: a picture that stands still is worse than one that nobody sees moving.
bool Hides(HWND window, HRGN scratch) {
  constexpr LONG kSeenThrough = WS_EX_LAYERED | WS_EX_TRANSPARENT;
  return IsWindowVisible(window) && !IsIconic(window) &&
         (GetWindowLongW(window, GWL_EXSTYLE) & kSeenThrough) == 0 &&
         !HasShapeOfItsOwn(window, scratch) && !IsCloaked(window);
}

// Frames may be of glass or have borders that are not drawn.
RECT InsideOf(HWND window) {
  RECT inside{};
  GetClientRect(window, &inside);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  return inside;
}

}  // namespace

bool SeenArea::Shows(HWND window, HWND control) {
  if (GetForegroundWindow() == window) return true;
  if (!left_ || GetTickCount() - looked_at_ms_ >= kLookAgainMs) LookAt(window);
  RECT place{};
  return !left_ || !GetWindowRect(control, &place) || RectInRegion(left_.get(), &place);
}

// The clip box of a device context does not tell it: where windows are composed, every window has
// all of itself to draw on.
void SeenArea::LookAt(HWND window) {
  looked_at_ms_ = GetTickCount();
  left_.reset(CreateRectRgnIndirect(&kEverywhere));
  const Region hidden(CreateRectRgn(0, 0, 0, 0));
  if (!left_ || !hidden) return;
  if (IsCloaked(window)) SetRectRgn(left_.get(), 0, 0, 0, 0);
  HWND before = GetWindow(window, GW_HWNDPREV);
  for (int i = 0; before != nullptr && i < kMostWindows; ++i) {
    if (Hides(before, hidden.get())) {
      const RECT inside = InsideOf(before);
      SetRectRgn(hidden.get(), inside.left, inside.top, inside.right, inside.bottom);
      CombineRgn(left_.get(), left_.get(), hidden.get(), RGN_DIFF);
    }
    before = GetWindow(before, GW_HWNDPREV);
  }
}

}  // namespace platform::windows
