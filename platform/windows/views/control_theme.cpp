#include "platform/windows/views/control_theme.h"

#include <cstdint>

#include "platform/windows/api/system_library.h"
#include "ui/contrast.h"

namespace platform::windows {
namespace {

// Of uxtheme.h and vssym32.h, which Windows 2000 has no library for.
using Theme = HANDLE;
constexpr int kGroupBox = 4;
constexpr int kNormal = 1;
constexpr int kTextColor = 3803;

HMODULE ThemeLibrary() {
  static const HMODULE library = LoadSystemLibrary(L"uxtheme.dll");
  return library;
}

std::uint32_t Rgb(COLORREF color) {
  return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
         static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

bool WantsHighContrast() {
  HIGHCONTRASTW wanted{};
  wanted.cbSize = sizeof(wanted);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(wanted), &wanted, 0) != FALSE &&
         (wanted.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool ThemeIsUnreadable(HWND window) {
  using Open = Theme(WINAPI*)(HWND, LPCWSTR);
  using Color = HRESULT(WINAPI*)(Theme, int, int, int, COLORREF*);
  using Close = HRESULT(WINAPI*)(Theme);
  const auto open = FunctionOf<Open>(ThemeLibrary(), "OpenThemeData");
  const auto ask = FunctionOf<Color>(ThemeLibrary(), "GetThemeColor");
  const auto close = FunctionOf<Close>(ThemeLibrary(), "CloseThemeData");
  if (open == nullptr || ask == nullptr || close == nullptr) return false;
  const Theme theme = open(window, L"Button");
  if (theme == nullptr) return false;
  COLORREF text = 0;
  const bool known = SUCCEEDED(ask(theme, kGroupBox, kNormal, kTextColor, &text));
  close(theme);
  return known && !ui::IsReadable(Rgb(text), Rgb(GetSysColor(COLOR_3DFACE)));
}

}  // namespace

bool NeedsPlainControls(HWND window) {
  return WantsHighContrast() || ThemeIsUnreadable(window);
}

void DrawPlain(HWND control, bool plain) {
  using Set = HRESULT(WINAPI*)(HWND, LPCWSTR, LPCWSTR);
  static const auto set = FunctionOf<Set>(ThemeLibrary(), "SetWindowTheme");
  // No visual style has parts under this name; an empty one is not taken everywhere.
  const wchar_t* const name = plain ? L" " : nullptr;
  if (set != nullptr) set(control, name, name);
}

}  // namespace platform::windows
