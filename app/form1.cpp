#include "app/form1.h"

#include <utility>

#include "app/tone_modes.h"
#include "base/numbers.h"

namespace app {

Form1::Form1(platform::Platform& platform, OtherWindows& others, std::string command_line)
    : Form1Controls(platform.windows),
      platform_(platform),
      others_(others),
      scene_{*this, others, *this, others, others, others, sine_animation_},
      command_line_(std::move(command_line)) {
  ConnectControls();
  ConnectMenu();
  SetCancelButton(&Command3);
}

void Form1::ConnectControls() {
  for (int mode = 1; mode <= kModes; ++mode) {
    Options()[static_cast<std::size_t>(mode - 1)]->OnClick = [this, mode] { OptionClick(mode); };
  }
  HScroll1.OnChange = [this] { HScroll1_Change(); };
  Command1.OnClick = [this] { Command1_Click(); };
  Command2.OnClick = [this] { Command2_Click(); };
  Command3.OnClick = [this] { Command3_Click(); };
  Command4.OnClick = [this] { ChangeSensitivity(6, +1); };
  Command5.OnClick = [this] { ChangeSensitivity(7, -1); };
}

void Form1::ConnectMenu() {
  openfile.OnClick = [this] { openfile_Click(); };
  exit.OnClick = [this] { Exit(); };
  about.OnClick = [this] { ShowAboutBox(); };
  contact.OnClick = [this] { VisitPage(9, "> Visiting donation page", Site().ContactUs()); };
  donate.OnClick = [this] { VisitPage(10, "> Visiting donation page", Site().Donate()); };
  webpage.OnClick = [this] { VisitPage(32, "> Visiting site", Site().Home()); };
  sndautomatic.OnClick = [this] { ChooseSoundMode(27, sndautomatic, "128"); };
  sndclassic.OnClick = [this] { ChooseSoundMode(28, sndclassic, "16"); };
  snddirectsound.OnClick = [this] { ChooseSoundMode(29, snddirectsound, "64"); };
  sndsound32.OnClick = [this] { ChooseSoundMode(30, sndsound32, "32"); };
  sndwinmm.OnClick = [this] { ChooseSoundMode(31, sndwinmm, "256"); };
  english.OnClick = [this] { ChooseLanguage(12, "en", "Language=EN"); };
  dutch.OnClick = [this] { ChooseLanguage(11, "nl", "Language=NL"); };
  autoupdate.OnClick = [this] { ToggleAutoUpdate(); };
  microinputonoff.OnClick = [this] { ToggleMicrophone(); };
}

Form1::ProgramPtr Form1::NewProgram() {
  program_ = std::make_shared<Program>(platform_, state_, scene_);
  return program_;
}

std::shared_ptr<ExFunctions> Form1::NewExFunctions() {
  ex_functions_ = std::make_shared<ExFunctions>(platform_, state_, *this, others_.Errors());
  return ex_functions_;
}

void Form1::Hide() {
  stays_hidden_ = true;
  if (sine_animation_.Running()) sine_animation_.Stop();
  Form1Controls::Hide();
}

void Form1::ShowAutoUpdate(bool on) {
  autoupdate.SetChecked(on);
}

void Form1::ShowLanguage(const std::string& code) {
  english.SetChecked(code == "en");
  dutch.SetChecked(code == "nl");
}

void Form1::ShowMicrophone(bool on) {
  microinputonoff.SetChecked(on);
  Command4.SetEnabled(on);
  Command5.SetEnabled(on);
}

void Form1::ShowMicrophoneLevel(std::int16_t level) {
  Frame4.SetCaption(texts_.microphone_prefix + base::SignedNumber(level));
}

}  // namespace app
