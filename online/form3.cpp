#include "online/form3.h"

#include "online/links.h"
#include "online/web_link.h"

namespace online {

Form3::Form3(platform::Platform& platform, const settings::MainState& state,
             base::ErrorReporter& errors, lang::Languages languages, ui::Window& status_window)
    : ui::Window(platform.windows, {"Form3", "Tonmira online news", 800, 560, true, true}),
      platform_(platform),
      state_(state),
      errors_(errors),
      languages_(languages),
      status_window_(status_window) {
  WebBrowser1.OnNavigate = [](const std::string& address) { return IsPageAddress(address); };
  WebBrowser1.OnNewWindow = [this](const std::string& address) { OpenOutside(address); };
}

void Form3::ShowPage(const std::string& address) {
  Show();
  WebBrowser1.SetSilent(true);
  WebBrowser1.Navigate(address);
}

void Form3::Form_Load() {
  base::TrapErrors(errors_, base::ErrorValue::kNewsLoad, [this] {
    if (loading_flag_ == 1) return;
    loading_flag_ = 1;
    const lang::Language* language = lang::Find(languages_, state_.language);
    if (language != nullptr && !language->news_title.empty()) {
      SetCaption(std::string(language->news_title));
    }
    loading_flag_ = 0;
  });
}

void Form3::Form_Unload() {
  status_window_.Unload();
}

// What a page opens is for the user's own browser or mail program. One that does not start is its
// own affair.
void Form3::OpenOutside(const std::string& address) {
  if (!IsWebAddress(address) && !IsMailAddress(address)) return;
  base::Caught([&] { OpenInBrowser(platform_, address); });
}

}  // namespace online
