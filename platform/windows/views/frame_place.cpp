#include "platform/windows/views/frame_place.h"

#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/windows/api/wide_text.h"

namespace platform::windows {
namespace {

// Pixels at 96 DPI from one window to the next: the height of a title bar.
constexpr int kStepAside = 26;

struct FrameStyle {
  DWORD style;
  DWORD extended_style;
};

// A window that is only to be looked at has nothing to move it, close it or switch to it.
FrameStyle FrameStyleOf(const ui::Window::Design& design) {
  if (!design.takes_focus) return {WS_POPUP | WS_DLGFRAME, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE};
  const DWORD sizing = design.sizable ? WS_THICKFRAME | WS_MAXIMIZEBOX : 0;
  return {WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | sizing, 0};
}

ui::Extent DesignOf(const ui::Window& window) {
  return {window.design().width, window.design().height};
}

// What frame, title and menu take at the system's resolution.
ui::Extent UsualFrame(const FrameStyle& style, HMENU menu) {
  RECT outer{};
  AdjustWindowRectEx(&outer, style.style, menu != nullptr ? TRUE : FALSE, style.extended_style);
  return {outer.right - outer.left, outer.bottom - outer.top};
}

// The same, as the window has them now.
ui::Extent FrameOf(HWND handle) {
  RECT outer{};
  RECT client{};
  GetWindowRect(handle, &outer);
  GetClientRect(handle, &client);
  return {outer.right - outer.left - client.right, outer.bottom - outer.top - client.bottom};
}

ui::Extent OuterSize(const ui::Window& window, const Appearance& appearance, ui::Extent frame,
                     const ui::Rect& work) {
  const ui::Extent design = DesignOf(window);
  return ui::LimitedTo({appearance.Scale(design.width) + frame.width,
                        appearance.Scale(design.height) + frame.height},
                       {work.width, work.height});
}

BOOL CALLBACK AddCorner(HWND handle, LPARAM corners) {
  wchar_t name[64] = L"";
  RECT place{};
  GetClassNameW(handle, name, 64);
  if (IsWindowVisible(handle) && std::wstring(name) == kWindowClass &&
      GetWindowRect(handle, &place)) {
    reinterpret_cast<std::vector<ui::Corner>*>(corners)->push_back({place.left, place.top});
  }
  return TRUE;
}

std::vector<ui::Corner> TakenCorners() {
  std::vector<ui::Corner> corners;
  EnumWindows(AddCorner, reinterpret_cast<LPARAM>(&corners));
  return corners;
}

void Put(HWND handle, ui::Corner corner, ui::Extent size) {
  SetWindowPos(handle, nullptr, corner.x, corner.y, size.width, size.height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

ui::Rect FirstPlace(const ui::Window& window, const Monitor& monitor, ui::Extent frame,
                    Appearance& appearance) {
  appearance.Use(monitor, DesignOf(window), frame);
  const ui::Extent size = OuterSize(window, appearance, frame, monitor.work);
  // What is only to be looked at stands above the middle, where dialogs that come meanwhile open.
  const auto height = window.design().takes_focus ? ui::Height::kMiddle : ui::Height::kUpperThird;
  const ui::Corner corner =
      ui::FreeCorner(size, monitor.work, height, appearance.Scale(kStepAside), TakenCorners());
  return {corner.x, corner.y, size.width, size.height};
}

ui::Rect RectOf(const RECT& place) {
  return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

// Where a window goes whose frame is `frame`: around the middle of `suggested`, where that is
// given.
void PutOn(const Monitor& monitor, HWND handle, const ui::Window& window, const RECT* suggested,
           ui::Extent frame, const Appearance& appearance) {
  RECT now{};
  GetWindowRect(handle, &now);
  const ui::Rect& work = monitor.work;
  ui::Rect around = RectOf(suggested != nullptr ? *suggested : now);
  // The user gave a sizable window its size.
  const ui::Extent size = window.design().sizable ? ui::LimitedTo({around.width, around.height},
                                                                  {work.width, work.height})
                                                  : OuterSize(window, appearance, frame, work);
  if (suggested == nullptr) around = {around.x, around.y, size.width, size.height};
  Put(handle, ui::CornerOnNewScreen(size, around, work), size);
}

}  // namespace

HWND CreateFrame(const ui::Window& window, HMENU menu, Appearance& appearance) {
  const FrameStyle style = FrameStyleOf(window.design());
  const Monitor monitor = MonitorOfUser();
  // It begins where it stays: a window manager that answers late would put it back there.
  const ui::Rect first = FirstPlace(window, monitor, UsualFrame(style, menu), appearance);
  const HWND handle = CreateWindowExW(
      style.extended_style, kWindowClass, Widen(window.Caption()).c_str(), style.style, first.x,
      first.y, first.width, first.height, nullptr, menu, appearance.instance(), nullptr);
  if (handle == nullptr) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  // Its monitor's resolution counts for its frame, and a menu may take two lines.
  const ui::Rect place = FirstPlace(window, monitor, FrameOf(handle), appearance);
  Put(handle, {place.x, place.y}, {place.width, place.height});
  return handle;
}

bool RefitFrame(HWND handle, const ui::Window& window, const Monitor& monitor,
                const RECT* suggested, Appearance& appearance) {
  ui::Extent frame = FrameOf(handle);
  bool changed = appearance.Use(monitor, DesignOf(window), frame);
  if (IsIconic(handle) || (!changed && suggested == nullptr)) return changed;
  PutOn(monitor, handle, window, suggested, frame, appearance);
  // The frame may be one of the new resolution from here on, and the menu has another width.
  // Nothing is put twice where once is enough: a window manager could mix up its answers.
  const ui::Extent before = std::exchange(frame, FrameOf(handle));
  if (frame == before) return changed;
  changed = appearance.Use(monitor, DesignOf(window), frame) || changed;
  PutOn(monitor, handle, window, suggested, frame, appearance);
  return changed;
}

}  // namespace platform::windows
