#include "tests/rig/driver/windows.h"

#include <cstdint>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace {

constexpr UINT kAnswerTimeoutMs = 10000;

long long Number(HWND window) {
  return reinterpret_cast<std::intptr_t>(window);
}

std::string PlaceOf(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  std::ostringstream line;
  line << place.left << '\t' << place.top << '\t' << place.right - place.left << '\t'
       << place.bottom - place.top;
  return line.str();
}

// On one line, as an answer is.
std::string Line(std::wstring text) {
  for (wchar_t& letter : text) {
    if (letter < L' ') letter = L' ';
  }
  return Utf8(text);
}

BOOL CALLBACK PrintWindow(HWND window, LPARAM) {
  DWORD pid = 0;
  GetWindowThreadProcessId(window, &pid);
  wchar_t title[256] = {};
  GetWindowTextW(window, title, 256);
  std::cout << Number(window) << '\t' << pid << '\t' << ClassOf(window) << '\t'
            << IsWindowVisible(window) << '\t' << PlaceOf(window) << '\t' << Line(title) << '\n';
  return TRUE;
}

BOOL CALLBACK PrintControl(HWND window, LPARAM) {
  wchar_t caption[1024] = {};
  InternalGetWindowText(window, caption, 1024);
  std::cout << Number(window) << '\t' << GetDlgCtrlID(window) << '\t' << ClassOf(window) << '\t'
            << IsWindowEnabled(window) << '\t' << IsWindowVisible(window) << '\t' << PlaceOf(window)
            << '\t' << Line(caption) << '\n';
  return TRUE;
}

BOOL CALLBACK PrintStyle(HWND window, LPARAM) {
  std::cout << GetDlgCtrlID(window) << '\t' << GetWindowLongW(window, GWL_STYLE) << '\n';
  return TRUE;
}

}  // namespace

HWND Window(const std::string& field) {
  return reinterpret_cast<HWND>(static_cast<std::intptr_t>(std::stoll(field)));
}

LRESULT Ask(HWND window, UINT message, WPARAM first, LPARAM second) {
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, kAnswerTimeoutMs, &answer) ==
      0) {
    throw std::runtime_error("the window did not answer");
  }
  return static_cast<LRESULT>(answer);
}

void Post(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (!PostMessageW(window, message, first, second)) {
    throw std::runtime_error("no such window");
  }
}

std::string ClassOf(HWND window) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  return Utf8(name);
}

std::string TextOf(HWND window) {
  wchar_t text[1024] = {};
  Ask(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
  return Utf8(text);
}

void PrintWindows() {
  EnumWindows(PrintWindow, 0);
}

void PrintControls(HWND parent) {
  EnumChildWindows(parent, PrintControl, 0);
}

void PrintStyles(HWND parent) {
  EnumChildWindows(parent, PrintStyle, 0);
}

void PrintItems(HWND list) {
  const auto count = Ask(list, LB_GETCOUNT);
  for (LRESULT i = 0; i < count; ++i) {
    const auto index = static_cast<WPARAM>(i);
    std::wstring text(static_cast<std::size_t>(Ask(list, LB_GETTEXTLEN, index)) + 1, L'\0');
    Ask(list, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    std::cout << Utf8(text) << '\n';
  }
}

void PrintFocus(HWND window) {
  GUITHREADINFO info = {};
  info.cbSize = sizeof(info);
  if (!GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info)) {
    throw std::runtime_error("no such window");
  }
  const bool inside = info.hwndFocus && IsChild(window, info.hwndFocus);
  std::cout << (inside ? GetDlgCtrlID(info.hwndFocus) : 0) << '\n';
}

void Clicks(const Fields& fields) {
  const std::size_t buttons = fields.size() - 2;
  const unsigned long count = std::stoul(fields.at(1));
  for (unsigned long i = 0; i < count; ++i) Ask(Window(fields[2 + i % buttons]), BM_CLICK);
}

void Slide(const Fields& fields) {
  const HWND bar = Window(fields.at(1));
  const int value = std::stoi(fields.at(2));
  SCROLLINFO position = {};
  position.cbSize = sizeof(position);
  position.fMask = SIF_POS;
  position.nPos = value;
  SetScrollInfo(bar, SB_CTL, &position, TRUE);
  const HWND parent = GetAncestor(bar, GA_PARENT);
  for (const int code : {SB_THUMBPOSITION, SB_ENDSCROLL}) {
    Ask(parent, WM_HSCROLL, MAKEWPARAM(code, value), reinterpret_cast<LPARAM>(bar));
  }
}

void Select(const Fields& fields) {
  const HWND combo = Window(fields.at(1));
  Ask(combo, CB_SETCURSEL, static_cast<WPARAM>(std::stoi(fields.at(2))));
  Ask(GetAncestor(combo, GA_PARENT), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
      reinterpret_cast<LPARAM>(combo));
}

void EndSession(HWND window) {
  if (Ask(window, WM_QUERYENDSESSION) == FALSE) throw std::runtime_error("it objects");
  SendMessageTimeoutW(window, WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, 10000, nullptr);
}

void PutText(HWND field, const std::wstring& text) {
  Ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void PutChoice(HWND field, WPARAM choice) {
  Ask(field, ClassOf(field) == "ComboBox" ? CB_SETCURSEL : BM_SETCHECK, choice);
}
