#include "tests/rig/driver/names.h"

#include <iostream>
#include <string>

#include "tests/rig/driver/text.h"
#include "tests/rig/driver/windows.h"

namespace {

std::wstring CaptionOf(HWND window) {
  wchar_t caption[1024] = {};
  InternalGetWindowText(window, caption, 1024);
  return caption;
}

bool IsLabel(HWND window) {
  return ClassOf(window) == "Static";
}

// The names that a program gives with IAccPropServices; the rig's service keeps them as properties
// of the window (bare/name_service.cpp).
std::wstring GivenName(HWND window) {
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(GetPropW(window, L"TonmiraRigName")));
  wchar_t name[256] = {};
  if (atom != 0) GlobalGetAtomNameW(atom, name, 256);
  return name;
}

// The rules by which Active Accessibility names the system's controls: the given name first; fields
// and lists take the text of the label directly before them, everything else its own.
std::wstring NameOf(HWND window) {
  if (const std::wstring given = GivenName(window); !given.empty()) return given;
  const std::string kind = ClassOf(window);
  const bool labelled =
      kind == "Edit" || kind == "ComboBox" || kind == "ListBox" || kind == "msctls_progress32";
  if (!labelled) return CaptionOf(window);
  const HWND before = GetWindow(window, GW_HWNDPREV);
  return before != nullptr && IsLabel(before) ? CaptionOf(before) : L"";
}

BOOL CALLBACK PrintName(HWND control, LPARAM) {
  std::cout << reinterpret_cast<std::intptr_t>(control) << '\t' << GetDlgCtrlID(control) << '\t'
            << Utf8(NameOf(control)) << '\n';
  return TRUE;
}

}  // namespace

void PrintNames(HWND window) {
  EnumChildWindows(window, PrintName, 0);
}
