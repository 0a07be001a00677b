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
#include "settings/form5.h"
#include "settings/form6.h"

namespace app {

class Application : public OtherWindows,
                    public morse::MorseScene,
                    public program_files::PlayerScene {
 public:
  explicit Application(platform::Platform& platform);

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

  // OtherWindows
  ui::Window& StatusWindow() override { return form8; }
  ui::Label& StatusLabel() override { return form8.Label2; }
  ui::Window& HelpWindow() override { return form2; }
  ui::Window& MorseWindow() override { return form4; }
  ui::Window& FirstRun() override { return form5; }
  ui::Window& AboutBox() override { return frm_about; }
  program_files::Form9& PlayerWindow() override { return form9; }
  online::Form3& NewsWindow() override { return form3; }
  settings::ErrorNotes& Errors() override { return errors_; }

  // online::UpdateScene
  online::Form7& UpdateDialog() override { return form7; }
  const lang::Texts& MessageTexts() const override { return form1.MessageTexts(); }

  // lang::CaptionScene
  std::vector<lang::CaptionSlot> CaptionsOf(std::int16_t formval) override;
  void UseTexts(const lang::Texts& texts, std::int16_t formval) override {
    form1.UseTexts(texts, formval);
  }

  // morse::MorseScene
  void LoadMorseCaptions(const std::string& language) override;

  // program_files::PlayerScene
  void UnloadNewsWindow() override { form3.Unload(); }
  void UnloadEveryWindow() override { UnloadAll(); }

  // settings::ErrorScene
  settings::Form6& ErrorDialog() override { return form6; }
  void HideOtherWindows() override;

  // WindowList
  void UnloadOtherWindows() override;
  void UnloadMainWindow() override { form1.Unload(); }

 private:
  static std::string CommandLine(platform::Platform& platform);
  void LoadHelpCaptions();
  void LoadAboutCaptions();
  void UnloadAll();
  void EndAfter(const base::RuntimeError& error);

  void VisitSite();

  platform::Platform& platform_;

  // For the windows that report errors of their own.
  online::UploadHandOver upload_;
  settings::ErrorNotes errors_;
};

}  // namespace app
