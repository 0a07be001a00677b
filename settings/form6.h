// The error dialog. It tells what went wrong; leaving it, by either Exit or the frame, ends the
// program.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "ui/window.h"

namespace settings {

class Form6 : public ui::Window {
 public:
  // `unload_all` unloads every window of the program, which ends it; `visit_site` opens the maker's
  // web site.
  Form6(ui::WindowSystem& system, std::function<void()> unload_all,
        std::function<void()> visit_site);

  std::int16_t done_flag = 0;  // 1 once the user has left the dialog

  ui::Label Label1{
      *this,
      100,
      "Label1",
      {16, 14, 468, 40},
      "Something went wrong and Tonmira must restart.... Sorry for the inconvenience!"};
  ui::ListBox List1{*this, 101, "List1", {16, 60, 468, 96}};
  ui::Button Command1{*this, 102, "Command1", {374, 170, 110, 30}, "Exit"};
  ui::Button Command2{*this, 103, "Command2", {16, 170, 140, 30}, "Visit our site"};

  // Shows the dialog with the lines of the error log.
  void Present(const std::vector<std::string>& lines);

  void Close() override;

 private:
  void Leave();

  std::function<void()> unload_all_;
};

}  // namespace settings
