// The news window: the maker's news page in an embedded web browser.
#pragma once

#include <cstdint>
#include <string>

#include "base/error_trap.h"
#include "lang/languages.h"
#include "platform/platform.h"
#include "settings/main_state.h"
#include "ui/window.h"

namespace online {

class Form3 : public ui::Window {
 public:
  // `status_window` goes with this one.
  Form3(platform::Platform& platform, const settings::MainState& state, base::ErrorReporter& errors,
        lang::Languages languages, ui::Window& status_window);

  ui::WebBrowser WebBrowser1{*this, 100, "WebBrowser1", {0, 0, 800, 560}};

  // Shows the window and sends its browser to `address`.
  void ShowPage(const std::string& address);

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void OpenOutside(const std::string& address);

  platform::Platform& platform_;
  const settings::MainState& state_;
  base::ErrorReporter& errors_;
  lang::Languages languages_;
  ui::Window& status_window_;
  std::int16_t loading_flag_ = 0;  // 1 while it loads
};

}  // namespace online
