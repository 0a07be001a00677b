// The program: its windows and their life, from the command line to the end of the process.
#pragma once

#include <string>

#include "about/frm_about.h"
#include "app/form1.h"
#include "app/form2.h"
#include "app/form8.h"
#include "morse/form4.h"
#include "online/form3.h"
#include "online/form7.h"
#include "online/upload_hand_over.h"
#include "platform/platform.h"
#include "program_files/form9.h"
#include "settings/error_notes.h"
#include "settings/form5.h"
#include "settings/form6.h"

namespace app {

class Application : public settings::ErrorScene {
  platform::Platform& platform_;

  // For windows and services alike.
  settings::MainState state_;
  settings::ErrorNotes errors_;
  online::UploadHandOver upload_;

 public:
  // The first language is the one that the windows are designed in.
  explicit Application(platform::Platform& platform,
                       lang::Languages languages = lang::ShippedLanguages());

  // Starts the program, handles its user's input and ends the process when no window is left.
  void Run();

  Form1 form1;
  Form2 form2;
  morse::Form4 form4;
  settings::Form5 form5;
  settings::Form6 form6;
  Form8 form8;
  online::Form3 form3;
  online::Form7 form7;
  program_files::Form9 form9;
  about::frmAbout frm_about;

  // settings::ErrorScene
  settings::Form6& ErrorDialog() override { return form6; }
  void HideOtherWindows() override;

 private:
  static std::string CommandLine(platform::Platform& platform);
  OtherWindows Others();
  std::vector<lang::CaptionSlot> CaptionsOf(std::int16_t formval);

  // Loads a window's captions where the language is not the one it is designed in.
  void Translate(std::int16_t formval);
  void UnloadOthers();
  void UnloadAll();
  void Log(const std::string& entry);

  // Silence, no file left behind, gone: nothing is started then, and nobody is asked or told.
  void EndSession();
  void EndAfter(const base::RuntimeError& error);
  void VisitSite();
};

}  // namespace app
