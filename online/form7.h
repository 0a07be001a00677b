// The update dialog: offers the newer version that the update file announces.
#pragma once

#include <string>

#include "base/error_trap.h"
#include "platform/platform.h"
#include "settings/activity_log.h"
#include "ui/window.h"

namespace online {

class Form7 : public ui::Window {
 public:
  Form7(platform::Platform& platform, base::ErrorReporter& errors);

  std::string download_link;  // set before the dialog is shown

  ui::Label Label1{*this,
                   100,
                   "Label1",
                   {16, 14, 468, 40},
                   "An update is found! Would you like to download the update?"};
  ui::ListBox List1{*this, 101, "List1", {16, 60, 468, 80}};
  ui::Button Command1{*this, 102, "Command1", {168, 154, 152, 30}, "Update"};
  ui::Button Command2{*this, 103, "Command2", {332, 154, 152, 30}, "Don't update"};

 private:
  void Command1_Click();
  void Command2_Click();

  platform::Platform& platform_;
  base::ErrorReporter& errors_;
};

}  // namespace online
