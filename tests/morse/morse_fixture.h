// The Morse tool of the whole program: what is typed and played, and when it sounds.
#pragma once

#include "tests/app/fixture.h"

namespace morse {

using namespace std::chrono_literals;
using app::Lines;
using platform::simulated::Kind;

class MorseTest : public app::ProgramTest {
 protected:
  MorseTest() { sim.files.Put(app::kSettings, app::GoodSettings("32")); }

  Form4& tool() { return program->form4; }

  // Opens the tool at 1 s and plays `message`; its beeps and pauses are recorded.
  void Play(const std::string& message, const std::string& speed = "0",
            const std::string& pitch = "700") {
    At(1s, [this, message, speed, pitch](app::Form1& form1) {
      form1.Option8.Click();
      form1.Command2.Click();
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

  std::int64_t played_until_ms = 0;
};

}  // namespace morse
