#include "platform/windows/views/picture_view.h"

#include <cstdint>
#include <vector>

#include "platform/windows/views/appearance.h"
#include "ui/window.h"

namespace platform::windows {
namespace {

constexpr int kBorder = 1;

std::uint32_t SystemColor(int index) {
  const COLORREF color = GetSysColor(index);
  return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
         static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

std::vector<std::uint32_t> ScreenPixels(const ui::Canvas& canvas) {
  const std::uint32_t background = SystemColor(COLOR_WINDOW);
  const std::uint32_t foreground = SystemColor(COLOR_WINDOWTEXT);
  std::vector<std::uint32_t> pixels = canvas.pixels();
  for (std::uint32_t& pixel : pixels) {
    if (pixel == ui::Canvas::kBackground) pixel = background;
    if (pixel == ui::Canvas::kForeground) pixel = foreground;
  }
  return pixels;
}

void LeaveOutLines(HWND handle, HDC context, const ui::PictureBox& picture) {
  const HWND parent = GetParent(handle);
  for (const ui::Control* control : picture.Owner().Controls()) {
    if (control->kind() != ui::ControlKind::kLine || !control->Visible()) continue;
    RECT line{};
    GetWindowRect(GetDlgItem(parent, control->Id()), &line);
    MapWindowPoints(nullptr, handle, reinterpret_cast<POINT*>(&line), 2);
    ExcludeClipRect(context, line.left, line.top, line.right, line.bottom);
  }
}

void DrawCanvas(HDC context, const RECT& area, const ui::Canvas& canvas) {
  FrameRect(context, &area, GetSysColorBrush(COLOR_3DSHADOW));
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof(format.bmiHeader);
  format.bmiHeader.biWidth = canvas.width();
  format.bmiHeader.biHeight = -canvas.height();  // from the top
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  format.bmiHeader.biCompression = BI_RGB;
  const std::vector<std::uint32_t> pixels = ScreenPixels(canvas);
  SetStretchBltMode(context, COLORONCOLOR);
  StretchDIBits(context, kBorder, kBorder, area.right - 2 * kBorder, area.bottom - 2 * kBorder, 0,
                0, canvas.width(), canvas.height(), pixels.data(), &format, DIB_RGB_COLORS,
                SRCCOPY);
}

void DrawProgramIcon(HWND handle, HDC context, const RECT& area) {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(handle, GWLP_HINSTANCE));
  const Icon icon(static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(kIconResource),
                                                IMAGE_ICON, area.right, area.bottom, 0)));
  const HBRUSH background = GetSysColorBrush(COLOR_3DFACE);
  FillRect(context, &area, background);
  DrawIconEx(context, 0, 0, icon.get(), area.right, area.bottom, 0, nullptr, DI_NORMAL);
}

void Paint(HWND handle, const ui::PictureBox& picture) {
  PAINTSTRUCT paint{};
  const HDC context = BeginPaint(handle, &paint);
  RECT area{};
  GetClientRect(handle, &area);
  LeaveOutLines(handle, context, picture);
  if (picture.content() == ui::PictureBox::Content::kProgramIcon) {
    DrawProgramIcon(handle, context, area);
  } else {
    DrawCanvas(context, area, picture.Picture());
  }
  EndPaint(handle, &paint);
}

LRESULT CALLBACK PictureProcedure(HWND handle, UINT message, WPARAM wparam,
                                  LPARAM lparam) noexcept {
  const auto* const picture =
      reinterpret_cast<const ui::PictureBox*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  switch (message) {
    case WM_NCCREATE:
      SetWindowLongPtrW(
          handle, GWLP_USERDATA,
          reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams));
      break;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      if (picture == nullptr) break;
      Paint(handle, *picture);
      return 0;
    case WM_SYSCOLORCHANGE:
      InvalidateRect(handle, nullptr, FALSE);
      return 0;
    default:
      break;
  }
  return DefWindowProcW(handle, message, wparam, lparam);
}

}  // namespace

int PictureBorder(const ui::PictureBox& picture) {
  return picture.content() == ui::PictureBox::Content::kCanvas ? kBorder : 0;
}

void RegisterPictureClass(HINSTANCE instance) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = PictureProcedure;
  window_class.hInstance = instance;
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.lpszClassName = kPictureClass;
  RegisterClassW(&window_class);
}

void DetachPicture(HWND handle) {
  const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle, GWLP_WNDPROC));
  if (procedure == &PictureProcedure) SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
}

}  // namespace platform::windows
