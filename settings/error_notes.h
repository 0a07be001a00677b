// ErrorNote: the one place where a run-time error is written down and shown.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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
  // user has left it. A log that cannot be written keeps nobody from seeing the dialog, which names
  // the folder then. Throws base::RuntimeError when the number of its upload does not fit.
  void ErrorNote(base::ErrorValue value, const base::RuntimeError& error) override;

  // Shows the dialog for an error that nobody traps: for the one whose report has failed with it,
  // where there is such a one. Writes nothing.
  void ShowUntrapped(const base::RuntimeError& error);

 private:
  struct Noted {
    base::ErrorValue value;
    base::RuntimeError error;
  };

  std::vector<std::string> Lines(base::ErrorValue value, const base::RuntimeError& error) const;
  bool WriteLog(const std::vector<std::string>& lines);
  void ShowDialog(const std::vector<std::string>& lines);

  platform::Platform& platform_;
  const MainState& state_;
  ErrorScene& scene_;
  LogUpload& upload_;
  std::optional<Noted> noted_;  // while its report is made
};

}  // namespace settings
