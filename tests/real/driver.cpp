// The tests' hands and eyes inside the Windows session: starts programs and works their windows.
//
// Reads commands from standard input, one a line, UTF-8, fields parted by tabs; answers each with
// any number of lines and then "ok", or with "error" and a reason. Handles and ids are decimal.
//
//   start EXE FOLDER TEMP APPDATA     starts EXE in FOLDER with these two variables: process id
//   launch EXE TITLE TEMP APPDATA     starts EXE and waits for its visible window: ms, process id
//   adopt PID                         counts a running program among those started here
//   set NAME VALUE                    sets a variable for the programs started from then on
//   running PID                       1 or 0
//   exit PID                          the exit code of a program that has ended
//   handles PID                       number of open handles
//   hide WINDOW                       hides a window, as other programs can
//   end PID                           ends a process that this program started
//   windows                           handle, process, class, visible, x, y, width, height, title
//   controls WINDOW                   handle, id, class, enabled, visible, x, y, width, height,
//                                     caption; asks nothing of the program, however busy it is
//   checked BUTTON                    1 or 0
//   text WINDOW                       its text, as the window itself tells it
//   press BUTTON                      posts a click
//   clicks COUNT BUTTON...            clicks the buttons in turn, each when the last was handled
//   command WINDOW ID                 posts a menu choice
//   slide BAR VALUE                   puts a horizontal scroll bar's thumb at a value
//   select COMBO INDEX                chooses an item of a drop-down list
//   store KEY NAME TYPE HEX           a value of the registry under the machine's root, as it is
//   forget KEY                        deletes that key
//   cut WINDOW                        captions that do not fit into their controls
//   close WINDOW                      posts the wish to close
#include "tests/real/driver_system.h"

#include <windows.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Fields = std::vector<std::string>;

constexpr UINT kAnswerTimeoutMs = 10000;

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

std::wstring Wide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Utf8(const std::wstring& wide) {
  const int size = static_cast<int>(wide.size());
  std::string text(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), size,
                                                                nullptr, 0, nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), static_cast<int>(text.size()),
                      nullptr, nullptr);
  for (char& c : text) {
    if (c == '\t' || c == '\n' || c == '\r') c = ' ';
  }
  return text;
}

HWND Window(const std::string& field) {
  return reinterpret_cast<HWND>(static_cast<std::intptr_t>(std::stoll(field)));
}

long long Number(HWND window) {
  return reinterpret_cast<std::intptr_t>(window);
}

LRESULT Ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0) {
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, kAnswerTimeoutMs, &answer) ==
      0) {
    throw std::runtime_error("the window did not answer");
  }
  return static_cast<LRESULT>(answer);
}

void Post(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0) {
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

std::string PlaceOf(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  std::ostringstream line;
  line << place.left << '\t' << place.top << '\t' << place.right - place.left << '\t'
       << place.bottom - place.top;
  return line.str();
}

// A program that was started here, and the commands that concern it.
class Programs {
 public:
  // `arguments` follow the program's name as they are.
  DWORD Start(const std::string& exe, const std::string& folder, std::wstring environment,
              const std::string& arguments = "") {
    std::wstring command = L"\"" + Wide(exe) + L"\" " + Wide(arguments);
    const std::wstring wide_folder = Wide(folder);
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE,
                        CREATE_UNICODE_ENVIRONMENT, environment.data(),
                        folder.empty() ? nullptr : wide_folder.c_str(), &startup, &started)) {
      throw std::runtime_error("cannot start " + exe + ": " + std::to_string(GetLastError()));
    }
    CloseHandle(started.hThread);
    processes_[started.dwProcessId] = UniqueHandle(started.hProcess);
    return started.dwProcessId;
  }

  void Adopt(const std::string& pid) {
    const DWORD id = static_cast<DWORD>(std::stoul(pid));
    UniqueHandle process(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id));
    if (!process) throw std::runtime_error("no process " + pid);
    processes_[id] = std::move(process);
  }

  HANDLE Get(const std::string& pid) const {
    return processes_.at(static_cast<DWORD>(std::stoul(pid))).get();
  }

 private:
  std::map<DWORD, UniqueHandle> processes_;
};

std::wstring EnvironmentOfUser(const std::string& temp, const std::string& appdata) {
  return EnvironmentWith(
      {{L"TEMP", Wide(temp)}, {L"TMP", Wide(temp)}, {L"APPDATA", Wide(appdata)}});
}

void Start(Programs& programs, const Fields& fields) {
  std::cout << programs.Start(fields.at(1), fields.at(2),
                              EnvironmentOfUser(fields.at(3), fields.at(4)),
                              fields.size() > 5 ? fields[5] : "")
            << '\n';
}

void Launch(Programs& programs, const Fields& fields) {
  const std::wstring title = Wide(fields.at(2));
  const std::wstring environment = EnvironmentOfUser(fields.at(3), fields.at(4));
  LARGE_INTEGER begin = {}, end = {}, frequency = {};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&begin);
  const DWORD pid = programs.Start(fields.at(1), "", environment);
  for (;;) {
    const HWND window = FindWindowW(nullptr, title.c_str());
    QueryPerformanceCounter(&end);
    if (window != nullptr && IsWindowVisible(window)) break;
    if ((end.QuadPart - begin.QuadPart) / frequency.QuadPart > 30) {
      throw std::runtime_error("no window");
    }
    Sleep(1);
  }
  std::cout << 1000.0 * static_cast<double>(end.QuadPart - begin.QuadPart) /
                   static_cast<double>(frequency.QuadPart)
            << '\t' << pid << '\n';
}

BOOL CALLBACK PrintWindow(HWND window, LPARAM) {
  DWORD pid = 0;
  GetWindowThreadProcessId(window, &pid);
  wchar_t title[256] = {};
  GetWindowTextW(window, title, 256);
  std::cout << Number(window) << '\t' << pid << '\t' << ClassOf(window) << '\t'
            << IsWindowVisible(window) << '\t' << PlaceOf(window) << '\t' << Utf8(title) << '\n';
  return TRUE;
}

BOOL CALLBACK PrintControl(HWND window, LPARAM) {
  wchar_t caption[1024] = {};
  InternalGetWindowText(window, caption, 1024);
  std::cout << Number(window) << '\t' << GetDlgCtrlID(window) << '\t' << ClassOf(window) << '\t'
            << IsWindowEnabled(window) << '\t' << IsWindowVisible(window) << '\t' << PlaceOf(window)
            << '\t' << Utf8(caption) << '\n';
  return TRUE;
}

void Clicks(const Fields& fields) {
  const std::size_t buttons = fields.size() - 2;
  const unsigned long count = std::stoul(fields.at(1));
  for (unsigned long i = 0; i < count; ++i) Ask(Window(fields[2 + i % buttons]), BM_CLICK);
}

// Measures texts as the program shows them: in the system's message font, or its heading.
class Measure {
 public:
  Measure() : screen_(GetDC(nullptr)) {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    normal_ = CreateFontIndirectW(&metrics.lfMessageFont);
    metrics.lfMessageFont.lfWeight = FW_BOLD;
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, 5, 4);
    heading_ = CreateFontIndirectW(&metrics.lfMessageFont);
  }
  ~Measure() {
    DeleteObject(normal_);
    DeleteObject(heading_);
    ReleaseDC(nullptr, screen_);
  }
  Measure(const Measure&) = delete;
  Measure& operator=(const Measure&) = delete;

  int Scale(int pixels) const { return MulDiv(pixels, GetDeviceCaps(screen_, LOGPIXELSX), 96); }

  // The size of `text`; of more than one line where it may wrap at `wrap_width`.
  SIZE Of(const std::wstring& text, int wrap_width, bool heading, bool prefix) const {
    const HGDIOBJ before = SelectObject(screen_, heading ? heading_ : normal_);
    RECT area = {0, 0, wrap_width, 0};
    const UINT wrap = wrap_width > 0 ? DT_WORDBREAK : DT_SINGLELINE;
    const UINT marks = prefix ? 0 : DT_NOPREFIX;
    DrawTextW(screen_, text.c_str(), static_cast<int>(text.size()), &area,
              DT_CALCRECT | wrap | marks);
    SelectObject(screen_, before);
    return {area.right, area.bottom};
  }

 private:
  HDC screen_;
  HFONT normal_ = nullptr;
  HFONT heading_ = nullptr;
};

bool Fits(const Measure& measure, HWND control, const std::wstring& text) {
  RECT client = {};
  GetClientRect(control, &client);
  const std::string kind = ClassOf(control);
  if (kind == "Static") {
    if ((GetWindowLongW(control, GWL_STYLE) & SS_ELLIPSISMASK) != 0) return true;
    // Headings are the labels of this height; all others are lower or hold several lines.
    const bool heading = client.bottom >= measure.Scale(22) && client.bottom <= measure.Scale(24);
    const SIZE size = measure.Of(text, client.right, heading, false);
    return size.cx <= client.right && size.cy <= client.bottom;
  }
  if (kind != "Button") return true;
  const LONG type = GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
  const bool mark = type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON;
  const int beside = measure.Scale(mark ? 20 : 12);  // the mark, or the border and some air
  return measure.Of(text, 0, false, true).cx <= client.right - beside;
}

BOOL CALLBACK PrintIfCut(HWND control, LPARAM measure) {
  wchar_t caption[1024] = {};
  InternalGetWindowText(control, caption, 1024);
  if (IsWindowVisible(control) && caption[0] != L'\0' &&
      !Fits(*reinterpret_cast<const Measure*>(measure), control, caption)) {
    std::cout << Utf8(caption) << '\n';
  }
  return TRUE;
}

void Cut(const Fields& fields) {
  const Measure measure;
  EnumChildWindows(Window(fields.at(1)), PrintIfCut, reinterpret_cast<LPARAM>(&measure));
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

void Store(const Fields& fields) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < fields.at(4).size(); i += 2) {
    bytes += static_cast<char>(std::stoi(fields[4].substr(i, 2), nullptr, 16));
  }
  StoreValue(Wide(fields.at(1)), Wide(fields.at(2)), static_cast<DWORD>(std::stoul(fields.at(3))),
             bytes);
}

std::map<std::string, std::function<void(const Fields&)>> Commands(Programs& programs) {
  return {
      {"start", [&](const Fields& f) { Start(programs, f); }},
      {"launch", [&](const Fields& f) { Launch(programs, f); }},
      {"adopt", [&](const Fields& f) { programs.Adopt(f.at(1)); }},
      {"running",
       [&](const Fields& f) {
         std::cout << (WaitForSingleObject(programs.Get(f.at(1)), 0) == WAIT_TIMEOUT) << '\n';
       }},
      {"handles",
       [](const Fields& f) {
         std::cout << HandlesOf(static_cast<DWORD>(std::stoul(f.at(1)))) << '\n';
       }},
      {"set",
       [](const Fields& f) {
         SetEnvironmentVariableW(Wide(f.at(1)).c_str(), Wide(f.at(2)).c_str());
       }},
      {"exit",
       [&](const Fields& f) {
         DWORD code = 0;
         GetExitCodeProcess(programs.Get(f.at(1)), &code);
         std::cout << code << '\n';
       }},
      {"hide", [](const Fields& f) { ShowWindow(Window(f.at(1)), SW_HIDE); }},
      {"end", [&](const Fields& f) { TerminateProcess(programs.Get(f.at(1)), 1); }},
      {"windows", [](const Fields&) { EnumWindows(PrintWindow, 0); }},
      {"controls", [](const Fields& f) { EnumChildWindows(Window(f.at(1)), PrintControl, 0); }},
      {"text", [](const Fields& f) { std::cout << TextOf(Window(f.at(1))) << '\n'; }},
      {"checked",
       [](const Fields& f) {
         std::cout << (Ask(Window(f.at(1)), BM_GETCHECK) == BST_CHECKED) << '\n';
       }},
      {"press", [](const Fields& f) { Post(Window(f.at(1)), BM_CLICK); }},
      {"clicks", Clicks},
      {"command",
       [](const Fields& f) {
         Post(Window(f.at(1)), WM_COMMAND, static_cast<WPARAM>(std::stoi(f.at(2))));
       }},
      {"select", Select},
      {"store", Store},
      {"forget", [](const Fields& f) { ForgetKey(Wide(f.at(1))); }},
      {"cut", Cut},
      {"slide", Slide},
      {"close", [](const Fields& f) { Post(Window(f.at(1)), WM_CLOSE); }},
  };
}

Fields Split(std::string line) {
  if (line.ends_with('\r')) line.pop_back();
  Fields fields;
  for (std::size_t begin = 0; begin <= line.size();) {
    const std::size_t end = std::min(line.find('\t', begin), line.size());
    fields.push_back(line.substr(begin, end - begin));
    begin = end + 1;
  }
  return fields;
}

}  // namespace

int main() {
  SetProcessDPIAware();
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  Programs programs;
  const auto commands = Commands(programs);
  for (std::string line; std::getline(std::cin, line);) {
    const Fields fields = Split(line);
    try {
      commands.at(fields.at(0))(fields);
      std::cout << "ok" << std::endl;
    } catch (const std::exception& failure) {
      std::cout << "error " << failure.what() << std::endl;
    }
  }
}
