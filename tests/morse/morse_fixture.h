// The Morse tool on a simulated machine: what is typed and played, and when it sounds.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "morse/form4.h"
#include "platform/simulated/simulation.h"
#include "tests/tone/main_window.h"

namespace morse {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;
using platform::simulated::Kind;

class MorseTest : public testing::Test {
 protected:
  MorseTest() { state.SoundBit = base::SoundMode::kSound32; }

  // Shows a main window and lets everything happen that was scheduled. True when no window was
  // left, which ends the program.
  bool Run() {
    main_window = std::make_unique<tone::NotingMainWindow>(sim.services.windows, sim.journal);
    window =
        std::make_unique<Form4>(sim.services, state, *main_window, [this] { ++captions_loaded; });
    return sim.Run([this] {
      main().Show();
      sim.pump.Run();
      sim.processes.EndProcess();
    });
  }

  tone::NotingMainWindow& main() { return *main_window; }
  Form4& tool() { return *window; }

  // Opens the tool at 1 s and plays `message`; its beeps and pauses are recorded.
  void Play(const std::string& message, const std::string& speed = "0",
            const std::string& pitch = "700") {
    sim.At(1s, [this, message, speed, pitch] {
      tool().Show();
      tool().Text1.Edit(message);
      tool().Text2.Edit(speed);
      tool().Text3.Edit(pitch);
      sim.journal.Clear();
      sim.pump.journal_waits = true;
      tool().Command1.Click();
      played_until_ms = sim.pump.now_ms();
    });
  }

  void StopAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { tool().Command2.Click(); });
  }

  // Beeps, and the pauses between them. A beep blocks for its own length, which is no pause.
  Lines Timeline() const {
    Lines timeline;
    bool beeping = false;
    for (const std::string& text : sim.journal.Texts({Kind::kSound, Kind::kWait})) {
      const bool beep = text.starts_with("beep");
      if (beep || !beeping) timeline.push_back(text);
      beeping = beep;
    }
    return timeline;
  }

  Lines Beeps() const {
    Lines beeps;
    for (const std::string& text : sim.journal.Texts({Kind::kSound})) {
      if (text.starts_with("beep")) beeps.push_back(text);
    }
    return beeps;
  }

  Lines Messages() const { return sim.journal.Texts({Kind::kMessage}); }

  platform::simulated::Simulation sim;
  settings::MainState state;
  std::unique_ptr<tone::NotingMainWindow> main_window;
  std::unique_ptr<Form4> window;
  int captions_loaded = 0;
  std::int64_t played_until_ms = 0;
};

}  // namespace morse
