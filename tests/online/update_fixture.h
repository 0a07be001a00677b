// The search for updates, with a site that announces a version.
#pragma once

#include "lang/language_loader.h"
#include "online/form7.h"
#include "online/update_checker.h"
#include "tests/online/fixture.h"

namespace online {

class UpdateTest : public OnlineTest {
 protected:
  void Announce(const std::string& version, const std::string& link = "http://a.example/new") {
    Answer(kUpdateAddress, version + "\r\n" + link + "\r\n");
  }

  // Searches for an update, as the program's start does before its main window comes. True when the
  // program ended.
  bool Run() {
    StartLog();
    main_window.Unload();
    return sim.Run([this] {
      languages.LanguageAPI("en", lang::kMainWindow);
      updates.UpdateCheck();
      main_window.Show();
      sim.pump.Run();
    });
  }

  Form7& Dialog() { return dialog; }

  lang::Texts texts;
  lang::Captions captions{
      [](std::int16_t) { return std::vector<lang::CaptionSlot>{}; },
      [this](const lang::LanguageFile& file, std::int16_t) { texts.Take(file); }};
  lang::LanguageLoader languages{sim.services, captions, errors};
  Form7 dialog{sim.services, errors};
  EarlyDownloads early{sim.services};
  UpdateChecker updates{sim.services, early, dialog, texts, log, errors};
};

}  // namespace online
