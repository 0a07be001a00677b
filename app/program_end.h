// WriteTest and Terminate: the two procedures that end the program outside its regular way out.
#pragma once

#include "base/main_state.h"
#include "online/usage_data.h"
#include "platform/platform.h"
#include "settings/error_notes.h"

namespace app {

// The windows of the program, as its end needs them.
class WindowList {
 public:
  virtual ~WindowList() = default;

  // Unloads every window but the main one, in the order of their numbers.
  virtual void UnloadOtherWindows() = 0;
  virtual void UnloadMainWindow() = 0;
};

class ProgramEnd {
 public:
  ProgramEnd(platform::Platform& platform, base::MainState& state, WindowList& windows,
             online::UsageData& usage, settings::ErrorNotes& errors)
      : platform_(platform), state_(state), windows_(windows), usage_(usage), errors_(errors) {}

  // Proves that files can be written in the temporary and the application-data folder; shows
  // "Write error" and ends the program at once where they cannot. Error value 1012.
  void WriteTest();

  // Ends the program whatever it is doing. Error value 105.
  void Terminate();

 private:
  bool CanWriteIn(const std::string& folder);

  platform::Platform& platform_;
  base::MainState& state_;
  WindowList& windows_;
  online::UsageData& usage_;
  settings::ErrorNotes& errors_;
};

}  // namespace app
