// The program without settings: the dialog of the first run and what its user does.
#pragma once

#include <functional>

#include "tests/app/fixture.h"

namespace app {

using settings::Form5;

// The six lines that accepting writes.
inline std::string Settings(const std::string& language, const std::string& send_data) {
  return "AutoUpdate=y\r\nSoundbit=128\r\nLanguage=" + language + "\r\nSendData=" + send_data +
         "\r\nMicrophone=1\r\nMicrophoneON=y\r\n";
}

// Indexes of the languages in the dialog.
inline constexpr int kEnglish = 0;
inline constexpr int kDutch = 1;

class FirstRunTest : public ProgramTest {
 protected:
  FirstRunTest() { sim.files.Delete(kSettings); }

  void OnTheDialogAt(std::chrono::milliseconds moment, std::function<void(Form5&)> action) {
    sim.At(moment, [this, action] { action(program->form5); });
  }

  void AcceptAt(std::chrono::milliseconds moment) {
    OnTheDialogAt(moment, [](Form5& dialog) { dialog.Command1.Click(); });
  }

  void LeaveTheErrorDialogAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { program->form6.Command1.Click(); });
  }

  Form5& dialog() { return program->form5; }

  Lines Processes() const { return sim.journal.Texts({Kind::kProcess}); }
};

}  // namespace app
