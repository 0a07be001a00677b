// The sound routes on a simulated machine, with a main window that only takes notes.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "platform/simulated/simulation.h"
#include "tone/direct_sound_routes.h"
#include "tone/helper_routes.h"
#include "tone/route_support.h"
#include "tone/short_tones.h"
#include "tone/winmm_routes.h"

namespace tone {

using namespace std::chrono_literals;
using base::ErrorCode;
using platform::simulated::Kind;
using platform::simulated::Operation;
using Lines = std::vector<std::string>;

inline const std::string kWavePath = "C:\\Temp\\tnfwinmmtmp.wav";
inline const std::string kHandOver = "C:\\Temp\\sound.ini";

class NoView : public ui::WindowView {
 public:
  void ShowWindow(bool) override {}
  bool IsShown() const override { return true; }
  bool CanBeSeen(const ui::Control&) const override { return true; }
  void CaptionChanged() override {}
  void Changed(const ui::Control&, ui::Property) override {}
  void Changed(const ui::MenuItem&, ui::Property) override {}
  void ReadFields() override {}
};

class NotingPlayScene : public PlayScene {
 public:
  explicit NotingPlayScene(platform::simulated::Journal& journal) : journal_(journal) {}

  bool visible = true;
  std::string status;
  std::string caption = "Huidige toonhoogte (hertz):";

  bool MainWindowVisible() const override { return visible; }
  ui::WindowView& MainWindowView() override { return view_; }
  void ShowStatus(const std::string& text) override {
    status = text;
    journal_.Add(Kind::kControl, text);
  }
  void DrawSine(std::int16_t pitch, std::int16_t mode) override {
    journal_.Add(Kind::kPicture,
                 "sine of " + std::to_string(pitch) + ", mode " + std::to_string(mode));
  }
  std::string StatusCaption() const override { return caption; }

 private:
  platform::simulated::Journal& journal_;
  NoView view_;
};

class RoutesFixture : public testing::Test {
 protected:
  void StopAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { state.stop_flag = 1; });
  }

  Lines Journal(std::initializer_list<Kind> kinds) const { return sim.journal.Texts(kinds); }

  platform::simulated::Simulation sim;
  settings::MainState state;
  NotingPlayScene scene{sim.journal};
  RouteSupport support{sim.services, state, scene};
  WinmmRoutes winmm{support};
  HelperRoutes helpers{sim.services, support};
  DirectSoundRoutes direct_sound{sim.services, scene, support};
  ShortTones short_tones{sim.services, state, scene};
};

}  // namespace tone
