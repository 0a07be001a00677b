// The first-run dialog: the terms of use, consent to the upload of usage data, the language.
//
// It stands in place of the main window while there are no valid settings. However it is left, this
// run of the program ends: accepting writes the settings and starts the program anew, declining and
// the frame change nothing, so the next start shows it again.
//
// Enter presses the button that has the focus and nothing else: nobody accepts terms by a key that
// was meant for the list of languages. Esc declines.
#pragma once

#include <cstdint>
#include <functional>

#include "base/error_trap.h"
#include "lang/languages.h"
#include "platform/platform.h"
#include "settings/main_state.h"
#include "ui/window.h"

namespace settings {

class Form5 : public ui::Window {
  lang::Languages languages_;
  const lang::AgreementTexts& design_ = languages_.front().agreement;

 public:
  // `unload_all` unloads every window of the program, which ends it.
  Form5(platform::Platform& platform, MainState& state, base::ErrorReporter& errors,
        lang::Languages languages, std::function<void()> unload_all);

  ui::Label Label7{*this, 100, "Label7", {16, 17, 72, 18}, std::string(design_.language)};
  ui::ComboBox Combo1{*this, 101, "Combo1", {92, 14, 160, 24}};
  ui::Label Label1{*this, 102, "Label1", {16, 52, 568, 50}, design_.Sentence(design_.upload)};
  ui::Label Label4{*this, 103, "Label4", {16, 114, 568, 34}, design_.Sentence(design_.hearing)};
  ui::Label Label6{*this, 104, "Label6", {16, 160, 568, 18}, design_.Sentence(design_.copyright)};
  ui::CheckBox Check1{*this, 105, "Check1", {16, 194, 568, 22}, std::string(design_.refusal)};
  ui::Button Command1{*this, 106, "Command1", {318, 232, 128, 32}, std::string(design_.accept)};
  ui::Button Command2{*this, 107, "Command2", {456, 232, 128, 32}, std::string(design_.decline)};

  // As declining.
  void Close() override;

 protected:
  void Form_Load() override;

 private:
  void Combo1_Click();
  void Command1_Click();
  void Command2_Click();

  // The language that is chosen; without a choice the one the window is designed in.
  const lang::Language& ChosenLanguage() const;
  void ShowTexts(const lang::AgreementTexts& texts);
  void WriteSettings();
  void StartAnew();

  platform::Platform& platform_;
  MainState& state_;
  base::ErrorReporter& errors_;
  std::function<void()> unload_all_;
  std::int16_t loading_ = 0;
};

}  // namespace settings
