// A main window that only says whether it is on the screen; what a tone tells it goes to the
// journal.
#pragma once

#include <string>

#include "platform/simulated/journal.h"
#include "tone/route_support.h"
#include "ui/window.h"

namespace tone {

class NotingMainWindow : public ui::Window, public PlayScene {
 public:
  NotingMainWindow(ui::WindowSystem& system, platform::simulated::Journal& journal)
      : ui::Window(system, {"Form1", "Tonmira", 600, 400}), journal_(journal) {}

  bool MainWindowVisible() const override { return OnScreen(); }
  ui::WindowView& MainWindowView() override { return *View(); }
  void ShowStatus(const std::string& text) override { Note("status: " + text); }
  void DrawSine(std::int16_t pitch, std::int16_t mode) override {
    Note("sine of " + std::to_string(pitch) + ", mode " + std::to_string(mode));
  }
  std::string StatusCaption() const override { return "Actual pitch (Hertz):"; }

 private:
  void Note(const std::string& what) {
    journal_.Add(platform::simulated::Kind::kControl, Name() + " " + what);
  }

  platform::simulated::Journal& journal_;
};

}  // namespace tone
