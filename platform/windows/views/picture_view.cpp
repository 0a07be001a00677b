#include "platform/windows/views/picture_view.h"

#include <algorithm>
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

std::vector<std::uint32_t> ScreenPixels(const ui::Canvas& canvas, const ui::Canvas::Area& part) {
  const std::uint32_t background = SystemColor(COLOR_WINDOW);
  const std::uint32_t foreground = SystemColor(COLOR_WINDOWTEXT);
  const auto shown = [=](std::uint32_t pixel) {
    if (pixel == ui::Canvas::kBackground) return background;
    return pixel == ui::Canvas::kForeground ? foreground : pixel;
  };
  const auto width = static_cast<std::size_t>(part.width);
  std::vector<std::uint32_t> pixels(width * static_cast<std::size_t>(part.height));
  std::uint32_t* to = pixels.data();
  for (int y = part.top; y < part.top + part.height; ++y, to += width) {
    const std::uint32_t* const row = canvas.Row(y) + part.left;
    std::transform(row, row + width, to, shown);
  }
  return pixels;
}

// The context is of the window's own: what is left out once is left out until it is painted anew,
// which whatever moves or shows a line brings about.
void LeaveOutLines(HWND handle, HDC context, const ui::PictureBox& picture) {
  SelectClipRgn(context, nullptr);
  RECT own{};
  GetWindowRect(handle, &own);
  for (const ui::Control* control : picture.Owner().Controls()) {
    if (control->kind() != ui::ControlKind::kLine || !control->Visible()) continue;
    RECT line{};
    GetWindowRect(GetDlgItem(GetParent(handle), control->Id()), &line);
    OffsetRect(&line, -own.left, -own.top);
    ExcludeClipRect(context, line.left, line.top, line.right, line.bottom);
  }
}

// Where a part of the canvas is in a window whose client area is `area`.
RECT PlaceOf(const ui::Canvas::Area& part, const ui::Canvas& canvas, const RECT& area) {
  const int width = area.right - 2 * kBorder;
  const int height = area.bottom - 2 * kBorder;
  return {kBorder + MulDiv(part.left, width, canvas.width()),
          kBorder + MulDiv(part.top, height, canvas.height()),
          kBorder + MulDiv(part.left + part.width, width, canvas.width()),
          kBorder + MulDiv(part.top + part.height, height, canvas.height())};
}

void CopyPart(HDC context, const RECT& area, const ui::Canvas& canvas,
              const ui::Canvas::Area& part) {
  if (part.Empty()) return;
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof(format.bmiHeader);
  format.bmiHeader.biWidth = part.width;
  format.bmiHeader.biHeight = -part.height;  // from the top
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  format.bmiHeader.biCompression = BI_RGB;
  const std::vector<std::uint32_t> pixels = ScreenPixels(canvas, part);
  const RECT place = PlaceOf(part, canvas, area);
  SetStretchBltMode(context, COLORONCOLOR);
  StretchDIBits(context, place.left, place.top, place.right - place.left, place.bottom - place.top,
                0, 0, part.width, part.height, pixels.data(), &format, DIB_RGB_COLORS, SRCCOPY);
}

void DrawCanvas(HDC context, const RECT& area, const ui::Canvas& canvas) {
  FrameRect(context, &area, GetSysColorBrush(COLOR_3DSHADOW));
  CopyPart(context, area, canvas, {0, 0, canvas.width(), canvas.height()});
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
  window_class.style = CS_OWNDC;
  window_class.lpfnWndProc = PictureProcedure;
  window_class.hInstance = instance;
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.lpszClassName = kPictureClass;
  RegisterClassW(&window_class);
}

void ShowChange(HWND handle, const ui::PictureBox& picture) {
  if (picture.Changed().Empty()) return;
  const DeviceContext context(handle);
  RECT area{};
  GetClientRect(handle, &area);
  CopyPart(context.get(), area, picture.Picture(), picture.Changed());
}

void DetachPicture(HWND handle) {
  const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle, GWLP_WNDPROC));
  if (procedure == &PictureProcedure) SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
}

}  // namespace platform::windows
