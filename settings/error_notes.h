// ErrorNote: the one place where a run-time error is written down and shown.
#pragma once

#include <cstdint>

#include "base/error_trap.h"
#include "platform/platform.h"
#include "settings/log_upload.h"
#include "settings/main_state.h"

namespace settings {

class Form6;

// What reporting an error does to the program's windows.
class ErrorScene {
 public:
  virtual ~ErrorScene() = default;

  virtual Form6& ErrorDialog() = 0;

  // Hides the main window and every other window but the error dialog.
  virtual void HideOtherWindows() = 0;
};

class ErrorNotes : public base::ErrorReporter {
 public:
  ErrorNotes(platform::Platform& platform, const MainState& state, ErrorScene& scene,
             LogUpload& upload)
      : platform_(platform), state_(state), scene_(scene), upload_(upload) {}

  // Writes the error log ("error.log" in the temporary folder), uploads it where the user has
  // agreed to that, shows the error dialog in place of all other windows and returns after the
  // user has left it. Throws base::RuntimeError when the log cannot be written or the number of
  // its upload does not fit.
  void ErrorNote(base::ErrorValue value, const base::RuntimeError& error) override;

 private:
  platform::Platform& platform_;
  const MainState& state_;
  ErrorScene& scene_;
  LogUpload& upload_;
};

}  // namespace settings
