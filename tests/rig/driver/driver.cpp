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
//   items LIST                        the lines of a list
//   store KEY NAME TYPE HEX           a value of the registry under the machine's root, as it is
//   forget KEY                        deletes that key
//   cut WINDOW [DPI]                  captions that do not fit into their controls
//   close WINDOW                      posts the wish to close
//   logoff WINDOW                     tells a window, as the system does, that the session ends
//   put WINDOW TEXT                   the text of a field, without a key and without a word
//   put-choice WINDOW INDEX           the same for a drop-down list; for a check box, 1 or 0
//   names WINDOW                      handle, id and what a screen reader calls each control
//   styles WINDOW                     id and style of each control
//   client WINDOW                     x, y, width and height of its client area, on the screen
//   resolution PID WINDOW DPI X Y W H tells the window that it is on a screen of DPI now
//   inside PID FUNCTION NUMBER        has the program's own process call a function of the rig's
//                                     name_service.dll
//   colour INDEX                      a colour of the system, 0x00BBGGRR
//   selection FIELD                   first and last place that are selected in a text field
//   focus WINDOW                      id of the control that has the keyboard in its program, or 0
#include <windows.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>

#include "tests/rig/driver/desktop.h"
#include "tests/rig/driver/fitting.h"
#include "tests/rig/driver/names.h"
#include "tests/rig/driver/programs.h"
#include "tests/rig/driver/system.h"
#include "tests/rig/driver/text.h"
#include "tests/rig/driver/windows.h"

namespace {

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
      {"windows", [](const Fields&) { PrintWindows(); }},
      {"controls", [](const Fields& f) { PrintControls(Window(f.at(1))); }},
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
      {"items", [](const Fields& f) { PrintItems(Window(f.at(1))); }},
      {"select", Select},
      {"store", Store},
      {"forget", [](const Fields& f) { ForgetKey(Wide(f.at(1))); }},
      {"cut",
       [](const Fields& f) {
         PrintCutCaptions(Window(f.at(1)), f.size() > 2 ? std::stoi(f[2]) : 0);
       }},
      {"slide", Slide},
      {"names", [](const Fields& f) { PrintNames(Window(f.at(1))); }},
      {"styles", [](const Fields& f) { PrintStyles(Window(f.at(1))); }},
      {"client", [](const Fields& f) { PrintClient(Window(f.at(1))); }},
      {"resolution", [&](const Fields& f) { TellResolution(programs.Get(f.at(1)), f); }},
      {"inside", [&](const Fields& f) { CallInside(programs.Get(f.at(1)), f); }},
      {"colour", [](const Fields& f) { std::cout << GetSysColor(std::stoi(f.at(1))) << '\n'; }},
      {"metric",
       [](const Fields& f) { std::cout << GetSystemMetrics(std::stoi(f.at(1))) << '\n'; }},
      {"selection",
       [](const Fields& f) {
         const auto selected = static_cast<DWORD>(Ask(Window(f.at(1)), EM_GETSEL));
         std::cout << LOWORD(selected) << '\t' << HIWORD(selected) << '\n';
       }},
      {"focus", [](const Fields& f) { PrintFocus(Window(f.at(1))); }},
      {"close", [](const Fields& f) { Post(Window(f.at(1)), WM_CLOSE); }},
      {"logoff", [](const Fields& f) { EndSession(Window(f.at(1))); }},
      {"put", [](const Fields& f) { PutText(Window(f.at(1)), Wide(f.at(2))); }},
      {"put-choice",
       [](const Fields& f) {
         PutChoice(Window(f.at(1)), static_cast<WPARAM>(std::stoi(f.at(2))));
       }},
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
