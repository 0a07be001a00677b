#include "app/application.h"

#include "base/numbers.h"
#include "base/text.h"

namespace app {

Application::Application(platform::Platform& platform)
    : form1(platform, *this, CommandLine(platform)),
      form2(platform.windows, [this] { LoadHelpCaptions(); }),
      form4(platform, form1.State(), form1, *this),
      form5(platform, form1.State(), errors_, [this] { UnloadAll(); }),
      form6(
          platform.windows, [this] { UnloadAll(); }, [this] { VisitSite(); }),
      form8(platform.windows),
      form3(platform, form1.State(), errors_, form8),
      form7(platform, errors_),
      form9(platform, form1.State(), form1, *this),
      frm_about(platform, errors_, [this] { LoadAboutCaptions(); }),
      platform_(platform),
      upload_(platform, errors_),
      errors_(platform, form1.State(), *this, upload_) {
  const std::initializer_list<ui::Window*> windows{&form1, &form2, &form3, &form4, &form5,
                                                   &form6, &form7, &form8, &form9, &frm_about};
  for (ui::Window* window : windows) {
    window->OnUntrappedError = [this](const base::RuntimeError& error) { EndAfter(error); };
  }
}

void Application::Run() {
  form1.Handle([this] {
    form1.Load();
    if (!form1.StaysHidden()) form1.Show();
    // The news have come up over it.
    if (form5.Visible() && form3.Visible()) form5.Show();
  });
  platform_.pump.Run();
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

void Application::UnloadOtherWindows() {
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
    case lang::kMainWindow:
      return form1.Captions();
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

void Application::LoadMorseCaptions(const std::string& language) {
  form1.LoadCaptions(language, lang::kMorseWindow);
}

// The help window is designed in English.
void Application::LoadHelpCaptions() {
  const std::string& language = form1.State().language;
  if (language == "nl") form1.LoadCaptions(language, lang::kHelpWindow);
}

void Application::LoadAboutCaptions() {
  form1.LoadCaptions(form1.State().language, lang::kAboutBox);
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
  UnloadOtherWindows();
}

// Nobody could be told of a browser that does not start: this is the error dialog already.
void Application::VisitSite() {
  settings::Caught([this] {
    online::OpenInBrowser(platform_.processes, online::SiteAddresses(platform_.environment).Home());
  });
}

// An error that no procedure traps: reporting itself has failed, so all that is left is to say so.
void Application::EndAfter(const base::RuntimeError& error) {
  platform_.messages.Show(
      "Run-time error '" + base::BareNumber(error.number()) + "':\r\n\r\n" + error.description(),
      "Tonmira", platform::MessageIcon::kCritical, platform::MessageButtons::kOk);
  platform_.processes.EndProcess();
}

}  // namespace app
