// The menus of the main window, and its buttons beside Play and Stop.
#include "app/form1.h"

#include "base/numbers.h"

namespace app {

// This copy does not play files: another one does, which shows the player instead of this window.
void Form1::openfile_Click() {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, 16, [&] {
    const std::string path = platform_.file_dialogs.Open(
        {"Select File", "Tonmira file (*.tnf)|*.tnf|All files (*.*)|*.*", "tnf"});
    if (!path.empty() && platform_.files.Exists(path)) {
      const std::string folder = platform_.environment.ProgramFolder();
      platform_.processes.StartProgram(folder + "\\" + platform_.environment.ProgramName() + ".exe",
                                       path);
    }
    ReselectMode(program);
  });
}

void Form1::Command1_Click() {
  settings::TrapErrors(*NewProgram(), 3, [this] { others_.HelpWindow().Show(); });
}

void Form1::HelpRequested() {
  Handle([this] { Command1_Click(); });
}

void Form1::ShowAboutBox() {
  settings::TrapErrors(*NewProgram(), 1, [this] { others_.AboutBox().Show(); });
}

void Form1::Exit() {
  settings::TrapErrors(*NewProgram(), 13, [this] { Unload(); });
}

// Contact and donations have the same entry.
void Form1::VisitPage(std::int16_t error_value, const std::string& entry,
                      const std::string& address) {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, error_value, [&] {
    program->PrintFile(entry);
    online::OpenInBrowser(platform_.processes, address);
  });
}

void Form1::ChooseSoundMode(std::int16_t error_value, ui::MenuItem& item, const std::string& code) {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, error_value, [&] {
    item.SetChecked(true);
    for (ui::MenuItem* other : soundmode.Items()) {
      if (other != &item) other->SetChecked(false);
    }
    program->WriteLine(2, "SoundBit=" + code);
    state_.SoundBit = code;
    EnableToolModes(code != "64");
    // Selecting from here counts as the user's choice, so that the Info frame tells of the mode
    // that is selected.
    if ((code == "64" || code == "16") && !Option1.Value()) Option1.Click();
  });
}

void Form1::ChooseLanguage(std::int16_t error_value, const std::string& code,
                           const std::string& setting) {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, error_value, [&] {
    ShowLanguage(code);
    program->WriteLine(3, setting);
    state_.language = code;
    program->LanguageAPI(code, lang::kMainWindow);
    const int mode = SelectedMode();
    if (mode != 0) program->SelectRadio(static_cast<std::int16_t>(mode));
  });
}

void Form1::ToggleAutoUpdate() {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, 2, [&] {
    const bool on = !autoupdate.Checked();
    program->WriteLine(1, on ? "AutoUpdate=y" : "AutoUpdate=n");
    autoupdate.SetChecked(on);
  });
}

void Form1::ToggleMicrophone() {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, 39, [&] {
    const bool on = !microinputonoff.Checked();
    microinputonoff.SetChecked(on);
    program->WriteLine(6, on ? "MicrophoneON=y" : "MicrophoneON=n");
    state_.MicrophoneON = on ? 1 : 0;
    if (on) {
      StartCapture();
    } else {
      EndCapture();
      picWave.Clear();
    }
    Command5.SetEnabled(on);
    Command4.SetEnabled(on);
  });
}

void Form1::ChangeSensitivity(std::int16_t error_value, int step) {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, error_value, [&] {
    const int level = state_.Microphone + step;
    if (level < 1 || level > 20) return;
    state_.Microphone = static_cast<std::int16_t>(level);
    ShowMicrophoneLevel(state_.Microphone);
    program->WriteLine(5, "Microphone=" + base::SignedNumber(level));
  });
}

}  // namespace app
