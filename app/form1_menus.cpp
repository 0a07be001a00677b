// The menus of the main window, and its buttons beside Play and Stop.
#include "app/form1.h"

#include "base/numbers.h"
#include "base/text.h"

namespace app {

// This copy does not play files: another one does, which shows the player instead of this window.
void Form1::openfile_Click() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kOpenFile, [&] {
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
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kHelp, [this] { others_.help.Show(); });
}

void Form1::HelpRequested() {
  Handle([this] { Command1_Click(); });
}

void Form1::ShowAboutBox() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kAbout, [this] { others_.about.Show(); });
}

void Form1::Exit() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kExit, [this] { Unload(); });
}

// Contact and donations have the same entry.
void Form1::VisitPage(base::ErrorValue error_value, const std::string& entry,
                      const std::string& address) {
  Program program(context_);
  base::TrapErrors(program, error_value, [&] {
    program.PrintFile(entry);
    online::OpenInBrowser(platform_, address);
  });
}

void Form1::ChooseSoundMode(const SoundModeItem& chosen) {
  Program program(context_);
  base::TrapErrors(program, chosen.error_value, [&] {
    const base::SoundModeFacts& facts = base::FactsOf(chosen.mode);
    chosen.item.SetChecked(true);
    for (ui::MenuItem* other : soundmode.Items()) {
      if (other != &chosen.item) other->SetChecked(false);
    }
    program.WriteLine(settings::kSoundBit, facts.code);
    state_.SoundBit = chosen.mode;
    EnableToolModes(facts.plays_tools);
    // Selecting from here counts as the user's choice, so that the Info frame tells of the mode
    // that is selected.
    if (facts.selects_first_mode && !Option1.Value()) Option1.Click();
  });
}

void Form1::ChooseLanguage(const lang::Language& chosen) {
  Program program(context_);
  base::TrapErrors(program, chosen.error_value, [&] {
    const std::string code(chosen.code);
    ShowLanguage(code);
    program.WriteLine(settings::kLanguage, base::ToUpper(code));
    state_.language = code;
    program.LanguageAPI(code, lang::kMainWindow);
    const ToneMode mode = SelectedMode();
    if (mode != ToneMode::kNone) program.SelectRadio(mode);
  });
}

void Form1::Turn(const CheckMark& mark) {
  Program program(context_);
  base::TrapErrors(program, mark.error_value, [&] {
    const bool on = !mark.item.Checked();
    program.WriteLine(mark.setting, settings::YesNo(on));
    mark.item.SetChecked(on);
  });
}

void Form1::ToggleMicrophone() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kMicrophoneOnOff, [&] {
    const bool on = !microinputonoff.Checked();
    microinputonoff.SetChecked(on);
    program.WriteLine(settings::kMicrophoneON, settings::YesNo(on));
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

void Form1::ChangeSensitivity(base::ErrorValue error_value, int step) {
  Program program(context_);
  base::TrapErrors(program, error_value, [&] {
    const int level = state_.Microphone + step;
    if (level < settings::kLowestSensitivity || level > settings::kHighestSensitivity) return;
    state_.Microphone = static_cast<std::int16_t>(level);
    ShowMicrophoneLevel(state_.Microphone);
    program.WriteLine(settings::kMicrophone, base::SignedNumber(level));
  });
}

}  // namespace app
