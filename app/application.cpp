#include "app/application.h"

#include "app/leftovers.h"
#include "base/text.h"

namespace app {

Application::Application(platform::Platform& platform, lang::Languages languages)
    : platform_(platform),
      errors_(platform, state_, *this, upload_),
      upload_(platform, errors_),
      form1(platform, state_, languages, errors_, Others(), CommandLine(platform)),
      form2(platform.windows, [this] { Translate(lang::kHelpWindow); }),
      form4(platform, state_, form1, [this] { Translate(lang::kMorseWindow); }),
      form5(platform, state_, errors_, languages, [this] { UnloadAll(); }),
      form6(
          platform.windows, [this] { UnloadAll(); }, [this] { VisitSite(); }),
      form8(platform.windows),
      form3(platform, state_, errors_, languages, form8),
      form7(platform, errors_),
      form9(platform, state_, form1,
            {[this] { form3.Unload(); }, [this] { UnloadAll(); },
             [this](const std::string& entry) { Log(entry); }}),
      frm_about(platform, errors_,
                [this] { form1.LoadCaptions(state_.language, lang::kAboutBox); }) {
  const std::initializer_list<ui::Window*> windows{&form1, &form2, &form3, &form4, &form5,
                                                   &form6, &form7, &form8, &form9, &frm_about};
  for (ui::Window* window : windows) {
    window->OnUntrappedError = [this](const base::RuntimeError& error) { EndAfter(error); };
    window->OnSessionEnd = [this] { EndSession(); };
  }
}

void Application::Run() {
  platform_.downloader.Prepare();  // every start downloads something
  form1.Handle([this] {
    form1.Load();
    if (!form1.StaysHidden()) form1.Show();
    // The news have come up over it.
    if (form5.Visible() && form3.Visible()) form5.Show();
  });
  form1.Handle([this] { platform_.pump.Run(); });
  // Nothing is left to be seen or used.
  form1.Handle([this] { form1.Unload(); });
}

void Application::HideOtherWindows() {
  form1.Hide();
  form2.Hide();
  form3.Hide();
  form4.Hide();
  form5.Hide();
  form7.Hide();
  form8.Hide();
  form9.Hide();
  frm_about.Hide();
}

void Application::UnloadOthers() {
  form2.Unload();
  form3.Unload();
  form4.Unload();
  form5.Unload();
  form6.Unload();
  form7.Unload();
  form8.Unload();
  frm_about.Unload();
}

std::vector<lang::CaptionSlot> Application::CaptionsOf(std::int16_t formval) {
  switch (formval) {
    case lang::kHelpWindow:
      return form2.Captions();
    case lang::kMorseWindow:
      return form4.Captions();
    case lang::kAboutBox:
      return frm_about.Captions();
    default:
      return {};
  }
}

void Application::Translate(std::int16_t formval) {
  const std::string& language = state_.language;
  if (lang::IsTranslated(language)) form1.LoadCaptions(language, formval);
}

OtherWindows Application::Others() {
  return {.status = form8,
          .help = form2,
          .morse = form4,
          .first_run = form5,
          .about = frm_about,
          .news = form3,
          .update = form7,
          .player = form9,
          .captions = [this](std::int16_t formval) { return CaptionsOf(formval); },
          .unload = [this] { UnloadOthers(); }};
}

// A path is resolved before the program's own folder becomes the current one: language files and
// helpers named without a folder are then always its own.
std::string Application::CommandLine(platform::Platform& platform) {
  const std::string arguments = platform.environment.Arguments();
  const std::string path = base::RemoveAll(arguments, '"');
  const std::string resolved = path.empty() ? path : platform.environment.FullPath(path);
  platform.environment.SetCurrentFolder(platform.environment.ProgramFolder());
  return resolved;
}

void Application::UnloadAll() {
  form1.Unload();
  UnloadOthers();
}

void Application::Log(const std::string& entry) {
  base::Quietly([&] { settings::ActivityLog(platform_, errors_).PrintFile(entry); });
}

void Application::EndSession() {
  state_.stop_flag = 1;
  tone::RouteSupport(platform_, state_, form1).KillAll();
  Leftovers(platform_).ClearAtEnd(state_);
  platform_.processes.EndProcess();
}

// Nobody could be told of a browser that does not start: this is the error dialog already.
void Application::VisitSite() {
  base::Caught([this] {
    online::OpenInBrowser(platform_, online::SiteAddresses(platform_.environment).Home());
  });
}

// An error that no procedure traps: nearly always that of a report, of which the user is not told.
void Application::EndAfter(const base::RuntimeError& error) {
  errors_.ShowUntrapped(error);
  platform_.processes.EndProcess();
}

}  // namespace app
