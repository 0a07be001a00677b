#include "app/form1.h"

#include <utility>

namespace app {

Form1::Form1(platform::Platform& platform, settings::MainState& state, lang::Languages languages,
             base::ErrorReporter& errors, OtherWindows others, std::string command_line)
    : Form1Controls(platform.windows, languages),
      platform_(platform),
      state_(state),
      others_(std::move(others)),
      early_downloads_(platform),
      sine_animation_(platform, state, Picture1, errors),
      context_{.platform = platform,
               .state = state,
               .errors = errors,
               .languages = languages,
               .settings_display = *this,
               .play_scene = *this,
               .sine = sine_animation_,
               .early_downloads = early_downloads_,
               .update_dialog = others_.update,
               .texts = texts_,
               .captions = {[this](std::int16_t formval) { return CaptionsOf(formval); },
                            [this](const lang::LanguageFile& source, std::int16_t formval) {
                              UseTexts(source, formval);
                            }},
               .show_mode = [this](ToneMode mode) { ShowMode(mode); },
               .windows = {others_.unload, [this] { Unload(); }}},
      command_line_(std::move(command_line)) {
  ConnectControls();
  ConnectMenu();
  early_downloads_.OnLongWait = [this](bool waiting) { others_.status.ShowWaiting(waiting); };
  SetCancelButton(&Command3);
}

void Form1::ConnectControls() {
  for (const ToneModeFacts& mode : kToneModes) {
    OptionOf(mode.mode).OnClick = [this, &mode] { OptionClick(mode); };
  }
  HScroll1.OnChange = [this] { HScroll1_Change(); };
  Command1.OnClick = [this] { Command1_Click(); };
  Command2.OnClick = [this] { Command2_Click(); };
  Command3.OnClick = [this] { Command3_Click(); };
  Command4.OnClick = [this] { ChangeSensitivity(base::ErrorValue::kLouder, +1); };
  Command5.OnClick = [this] { ChangeSensitivity(base::ErrorValue::kQuieter, -1); };
}

void Form1::ConnectMenu() {
  using base::ErrorValue;
  openfile.OnClick = [this] { openfile_Click(); };
  exit.OnClick = [this] { Exit(); };
  about.OnClick = [this] { ShowAboutBox(); };
  contact.OnClick = [this] {
    VisitPage(ErrorValue::kContact, "> Visiting donation page", Site().ContactUs());
  };
  donate.OnClick = [this] {
    VisitPage(ErrorValue::kDonate, "> Visiting donation page", Site().Donate());
  };
  webpage.OnClick = [this] { VisitPage(ErrorValue::kWebPage, "> Visiting site", Site().Home()); };
  for (const SoundModeItem& choice : sound_mode_items) {
    choice.item.OnClick = [this, &choice] { ChooseSoundMode(choice); };
  }
  for (std::size_t i = 0; i < languages_.size(); ++i) {
    language_items[i]->OnClick = [this, i] { ChooseLanguage(languages_[i]); };
  }
  for (const CheckMark& mark : check_marks) {
    mark.item.OnClick = [this, &mark] { Turn(mark); };
  }
  microinputonoff.OnClick = [this] { ToggleMicrophone(); };
}

void Form1::Hide() {
  stays_hidden_ = true;
  if (sine_animation_.Running()) sine_animation_.Stop();
  Form1Controls::Hide();
}

void Form1::ShowChecked(const settings::Setting& setting, bool on) {
  for (const CheckMark& mark : check_marks) {
    if (mark.setting.line == setting.line) mark.item.SetChecked(on);
  }
  if (setting.line == settings::kMicrophoneON.line) {
    microinputonoff.SetChecked(on);
    Command4.SetEnabled(on);
    Command5.SetEnabled(on);
  }
}

void Form1::ShowLanguage(const std::string& code) {
  for (std::size_t i = 0; i < languages_.size(); ++i) {
    language_items[i]->SetChecked(languages_[i].code == code);
  }
}

void Form1::ShowMicrophoneLevel(std::int16_t level) {
  Frame4.SetCaption(texts_.microphone_prefix + base::SignedNumber(level));
}

}  // namespace app
