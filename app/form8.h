// The window that shows what the program is doing while it starts.
#pragma once

#include <string>

#include "base/version.h"
#include "ui/window.h"

namespace app {

class Form8 : public ui::Window {
 public:
  explicit Form8(ui::WindowSystem& system)
      : ui::Window(system, {"Form8", "Starting Tonmira", 340, 112, false}) {
    Picture1.DesignSpokenName("Tonmira");
  }

  // What the start waits for when that takes long.
  void ShowWaiting(bool waiting) {
    Label3.SetCaption(waiting ? "Waiting for the web site..." : kSubject);
  }

  ui::PictureBox Picture1{
      *this, 100, "Picture1", {16, 16, 64, 64}, ui::PictureBox::Content::kProgramIcon};
  ui::Label Label1{*this, 101, "Label1", {96, 16, 228, 24}, "Tonmira", ui::Label::Style::kHeading};
  ui::Label Label2{*this, 102, "Label2", {96, 46, 228, 18}, "Starting..."};
  ui::Label Label3{*this, 103, "Label3", {96, 66, 228, 18}, kSubject};
  ui::Label Label4{
      *this, 104, "Label4", {96, 86, 228, 18}, std::string("Version ") + base::kVersion};

 private:
  static constexpr char kSubject[] = "Tones from 4 Hz to 32000 Hz";
};

}  // namespace app
