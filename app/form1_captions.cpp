// The main window's captions in other languages.
#include "app/form1.h"

namespace app {

std::vector<lang::CaptionSlot> Form1::Captions() {
  std::vector<lang::CaptionSlot> captions;
  for (std::size_t i = 0; i < Options().size(); ++i) captions.push_back({4 + i, Options()[i]});
  const std::vector<lang::CaptionSlot> rest{{13, &Frame1},
                                            {14, &Command2},
                                            {15, &Command3},
                                            {16, &Label9},
                                            {17, &Label3},
                                            {18, &Frame3},
                                            {19, &file},
                                            {20, &exit},
                                            {21, &settings},
                                            {22, &soundmode},
                                            {23, &language},
                                            {24, &microinputonoff},
                                            {25, &autoupdate},
                                            {26, &about},
                                            {27, &contact},
                                            {28, &donate},
                                            {29, &StatusBar1},
                                            {74, &Label8, true},
                                            {75, &Frame2, true},
                                            {76, &Command1, true},
                                            {77, &sndclassic, true},
                                            {78, &sndautomatic, true},
                                            {80, &openfile, true},
                                            {81, &webpage, true},
                                            {82, &help, true}};
  captions.insert(captions.end(), rest.begin(), rest.end());
  // Once a mode is selected, its description stands there.
  if (SelectedMode() == 0) captions.push_back({73, &Label1, true});
  return captions;
}

void Form1::UseTexts(const lang::Texts& texts, std::int16_t formval) {
  texts_ = texts;
  if (formval == lang::kMainWindow) ShowMicrophoneLevel(state_.Microphone);
}

void Form1::LoadCaptions(const std::string& code, std::int16_t formval) {
  Program(platform_, state_, scene_).LanguageAPI(code, formval);
}

}  // namespace app
