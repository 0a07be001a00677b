// How long its tones and pauses last on a clock that oversleeps, and what keeps the device awake.
#include "tests/morse/morse_fixture.h"

namespace morse {
namespace {

class MorsePaceTest : public MorseTest {
 protected:
  // The moments of entries of the journal, those before the play left out.
  std::vector<std::int64_t> MomentsOf(const std::string& beginning) const {
    std::vector<std::int64_t> moments;
    for (const auto& entry : sim.journal.entries()) {
      if (entry.text.starts_with(beginning)) moments.push_back(entry.at_ms);
    }
    return moments;
  }
};

using Moments = std::vector<std::int64_t>;

TEST_F(MorsePaceTest, APauseThatIsMadeOfSeveralWaitsIsLateOnce) {
  sim.pump.oversleep_ms = 4;
  Play("ee e");
  StopAt(3000ms);
  Run();
  // Each beep is late once, and so is each pause, of 20 ms, 75 + 20 and 75 + 20 + 500 + 75 + 20.
  const std::int64_t first = 1000 + 20 + 4;
  const std::int64_t second = first + 104 + 95 + 4;
  EXPECT_EQ(MomentsOf("beep"), (Moments{first, second, second + 104 + 690 + 4}));
}

TEST_F(MorsePaceTest, WhatTheUserDoesInAPauseMakesItNotShorter) {
  Play("ee");
  sim.At(1150ms, [this] { sim.pump.Sleep(50); });  // something that takes its time
  StopAt(3000ms);
  Run();
  EXPECT_EQ(MomentsOf("beep"), (Moments{1020, 1020 + 100 + 75 + 50 + 20}));
}

TEST_F(MorsePaceTest, AfterASecondPlayInItsTailTheFirstWaitsAsBefore) {
  Play("e");
  sim.At(2000ms, [this] {
    tool().Text1.Edit("t");
    tool().Command1.Click();
  });
  sim.At(3000ms, [this] { tool().Command2.Click(); });
  sim.At(3500ms, [this] { tool().Command2.Click(); });
  Run();
  // The second play ends with the tick that Stop is handled in; each turn of the first is 95 ms.
  EXPECT_GE(played_until_ms, 3500);
}

TEST_F(MorsePaceTest, AToneIsLateOnceAndNeverShort) {
  state.SoundBit = base::SoundMode::kAutomatic;
  sim.pump.oversleep_ms = 3;
  Play("a");
  StopAt(2000ms);
  Run();
  const Moments begins = MomentsOf("play");
  const Moments ends = MomentsOf("stop");
  ASSERT_EQ(begins.size(), 2u);
  EXPECT_EQ(ends[0] - begins[0], 103);
  EXPECT_EQ(begins[1], ends[0]);
  EXPECT_EQ(ends[1] - begins[1], 203);
}

TEST_F(MorsePaceTest, WhatTheSystemTakesToEndASoundIsPartOfThePause) {
  state.SoundBit = base::SoundMode::kAutomatic;
  sim.waves.while_stopping = [this] { sim.pump.Sleep(6); };
  Play("eie");
  StopAt(2000ms);
  Run();
  const Moments begins = MomentsOf("play");
  const Moments ends = MomentsOf("stop");
  ASSERT_EQ(begins.size(), 4u);
  EXPECT_EQ(begins[1] - ends[0], 75 + 20);
  EXPECT_EQ(begins[2] - ends[1], 6);  // within a character there is no pause
  EXPECT_EQ(begins[3] - ends[2], 75 + 20);
}

class MorseAwakeTest : public MorsePaceTest {
 protected:
  MorseAwakeTest() { sim.awake_output.wakes_after_ms = 250; }

  int playing() const { return sim.awake_output.playing; }
};

TEST_F(MorseAwakeTest, TheFirstToneWaitsForTheDevice) {
  Play("e");
  StopAt(2000ms);
  Run();
  EXPECT_EQ(MomentsOf("beep"), Moments{1250 + 20});
}

TEST_F(MorseAwakeTest, ItIsCalledWhenTheToolIsLoaded) {
  sim.At(500ms, [this] {
    tool().Show();
    EXPECT_EQ(playing(), 1);
  });
  Play("e");
  StopAt(2000ms);
  Run();
  EXPECT_EQ(MomentsOf("beep"), Moments{1020});
}

TEST_F(MorseAwakeTest, ItSleepsAgainWhenTheMessageIsOver) {
  sim.awake_output.journaled = true;
  Play("e");
  StopAt(3000ms);
  Run();
  // 250, 20, a dot of 100 and a pause of 75 ms.
  EXPECT_EQ(MomentsOf("asleep"), Moments{1445});
}

TEST_F(MorseAwakeTest, ItSleepsAgainAfterStopAndAfterClosing) {
  for (const bool closes : {false, true}) {
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    sim.At(start, [this] {
      tool().Show();
      tool().Text1.Edit("eeee");
      tool().Command1.Click();
    });
    sim.At(start + 300ms, [this, closes] {
      EXPECT_EQ(playing(), 1);
      if (closes) {
        tool().Close();
      } else {
        tool().Command2.Click();
      }
    });
    sim.At(start + 1000ms, [this] { EXPECT_EQ(playing(), 0); });
    Run();
  }
}

TEST_F(MorseAwakeTest, AToolThatIsClosedUnusedLetsItGo) {
  sim.At(1000ms, [this] {
    tool().Show();
    EXPECT_EQ(playing(), 1);
    tool().Close();
    EXPECT_EQ(playing(), 0);
  });
  Run();
}

TEST_F(MorseAwakeTest, StopWhileTheDeviceWakesEndsTheMessageAfterItsFirstCharacter) {
  Play("eee");
  StopAt(1100ms);
  Run();
  EXPECT_EQ(MomentsOf("beep"), Moments{1100 + 20});
  EXPECT_TRUE(tool().Command1.Enabled());
}

TEST_F(MorseAwakeTest, WhereNothingIsHeardNothingIsWoken) {
  state.SoundBit = base::SoundMode::kDirectSound;
  Play("e");
  StopAt(2000ms);
  Run();
  EXPECT_EQ(sim.awake_output.started, 0);
}

}  // namespace
}  // namespace morse
