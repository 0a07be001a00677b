#include "tests/rig/driver/desktop.h"

#include <iostream>
#include <stdexcept>

#include "tests/rig/driver/windows.h"

namespace {

constexpr UINT kDpiChanged = 0x02E0;

}  // namespace

void PrintClient(HWND window) {
  RECT area = {};
  POINT corner = {};
  GetClientRect(window, &area);
  ClientToScreen(window, &corner);
  std::cout << corner.x << '\t' << corner.y << '\t' << area.right << '\t' << area.bottom << '\n';
}

// The message names a place in the memory of the window's own process, where the system would put
// it.
void TellResolution(HANDLE process, const Fields& fields) {
  const HWND window = Window(fields.at(2));
  const auto dpi = static_cast<WORD>(std::stoi(fields.at(3)));
  const LONG x = std::stoi(fields.at(4));
  const LONG y = std::stoi(fields.at(5));
  const RECT place = {x, y, x + std::stoi(fields.at(6)), y + std::stoi(fields.at(7))};
  void* const there =
      VirtualAllocEx(process, nullptr, sizeof(place), MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
  if (there == nullptr || !WriteProcessMemory(process, there, &place, sizeof(place), nullptr)) {
    throw std::runtime_error("the program's memory cannot be written");
  }
  Ask(window, kDpiChanged, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(there));
  VirtualFreeEx(process, there, 0, MEM_RELEASE);
}

void ChangeFont(const std::wstring& face, int height) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  for (LOGFONTW* font : {&metrics.lfMessageFont, &metrics.lfMenuFont, &metrics.lfStatusFont}) {
    font->lfHeight = height;
    wcsncpy(font->lfFaceName, face.c_str(), LF_FACESIZE - 1);
  }
  if (!SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof(metrics), &metrics,
                             SPIF_UPDATEINIFILE | SPIF_SENDCHANGE)) {
    throw std::runtime_error("the fonts cannot be changed");
  }
}
