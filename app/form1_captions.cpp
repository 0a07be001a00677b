// The main window's captions in other languages.
#include "app/form1.h"

namespace app {

std::vector<lang::CaptionSlot> Form1::Captions() {
  using lang::Slot;
  std::vector<lang::CaptionSlot> captions;
  captions.reserve(kToneModes.size());
  for (const ToneModeFacts& mode : kToneModes) {
    captions.push_back({mode.caption, &OptionOf(mode.mode)});
  }
  const std::vector<lang::CaptionSlot> rest{
      {Slot::kChoices, &Frame1},
      {Slot::kPlay, &Command2},
      {Slot::kStop, &Command3},
      {Slot::kCustomPitch, &Label9},
      {Slot::kSelectedPitch, &Label3},
      {Slot::kSoundWaves, &Frame3},
      {Slot::kFileMenu, &file},
      {Slot::kExit, &exit},
      {Slot::kSettingsMenu, &settings},
      {Slot::kSoundModeMenu, &soundmode},
      {Slot::kLanguageMenu, &language},
      {Slot::kMicrophoneMenu, &microinputonoff},
      {Slot::kAutoUpdate, &autoupdate},
      {Slot::kAbout, &about},
      {Slot::kContact, &contact},
      {Slot::kDonate, &donate},
      {Slot::kStatus, &StatusBar1},
      {Slot::kNoInformation, &Label8},
      {Slot::kInfo, &Frame2},
      {Slot::kHelpButton, &Command1},
      {Slot::kClassic, &sndclassic},
      {Slot::kAutomatic, &sndautomatic},
      {Slot::kOpenFile, &openfile},
      {Slot::kWebPage, &webpage},
      {Slot::kHelpMenu, &help},
      {Slot::kSpokenSlider, lang::SpokenName{&HScroll1}},
      {Slot::kSliderTip, lang::Tip{&HScroll1}},
      {Slot::kSpokenWave, lang::SpokenName{&Picture1}},
      {Slot::kSpokenMicrophone, lang::SpokenName{&picWave}},
      {Slot::kSpokenLouder, lang::SpokenName{&Command4}},
      {Slot::kSpokenSofter, lang::SpokenName{&Command5}},
  };
  captions.insert(captions.end(), rest.begin(), rest.end());
  // Once a mode is selected, its description stands there.
  if (SelectedMode() == ToneMode::kNone) captions.push_back({Slot::kSelectAMode, &Label1});
  return captions;
}

std::vector<lang::CaptionSlot> Form1::CaptionsOf(std::int16_t formval) {
  return formval == lang::kMainWindow ? Captions() : others_.captions(formval);
}

void Form1::UseTexts(const lang::LanguageFile& source, std::int16_t formval) {
  texts_ = DesignTexts();
  texts_.Take(source);
  if (formval == lang::kMainWindow) ShowMicrophoneLevel(state_.Microphone);
}

void Form1::LoadCaptions(const std::string& code, std::int16_t formval) {
  Program(context_).LanguageAPI(code, formval);
}

}  // namespace app
