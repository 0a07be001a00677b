// WriteTest and Terminate: the two procedures that end the program outside its regular way out.
#pragma once

#include <functional>
#include <string>

#include "base/error_trap.h"
#include "online/usage_data.h"
#include "platform/platform.h"
#include "settings/main_state.h"

namespace app {

// Unloads windows: every one but the main window, in the order of their numbers, and that one.
struct WindowsEnd {
  std::function<void()> unload_other_windows;
  std::function<void()> unload_main_window;
};

class ProgramEnd {
 public:
  ProgramEnd(platform::Platform& platform, settings::MainState& state, const WindowsEnd& windows,
             online::UsageData& usage, base::ErrorReporter& errors)
      : platform_(platform), state_(state), windows_(windows), usage_(usage), errors_(errors) {}

  // Proves that files can be written in the temporary and the application-data folder; shows
  // "Write error" and ends the program at once where they cannot. Error value kWriteTest.
  void WriteTest();

  // Ends the program whatever it is doing. Error value kTerminate.
  void Terminate();

 private:
  bool CanWriteIn(const std::string& folder);

  platform::Platform& platform_;
  settings::MainState& state_;
  const WindowsEnd& windows_;
  online::UsageData& usage_;
  base::ErrorReporter& errors_;
};

}  // namespace app
