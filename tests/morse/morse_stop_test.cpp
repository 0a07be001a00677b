#include "tests/morse/morse_fixture.h"

namespace morse {
namespace {

TEST_F(MorseTest, AfterTheLastCharacterPlayIsUsableWhileTheSilentTailRuns) {
  Play("ee");
  sim.At(1100ms, [this] { EXPECT_FALSE(tool().Command1.Enabled()); });
  sim.At(2000ms, [this] {
    EXPECT_TRUE(tool().Command1.Enabled());
    EXPECT_FALSE(tool().Command2.Enabled());
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 2u);
  EXPECT_EQ(played_until_ms, 1000 + 2 * 195 + 497 * 95 + 20);
}

TEST_F(MorseTest, ASecondPlayDuringTheTailSharesItsPositionWithTheFirst) {
  Play("e");
  sim.At(2000ms, [this] {
    tool().Text1.Edit("t");
    tool().Command1.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps(), (Lines{"beep 700 100", "beep 700 200"}));
  // The click is handled at 2050; the second run needs 295 ms for its character, 95 for each empty
  // position and 20 for the last; then the first finds itself at position 500, too.
  EXPECT_EQ(played_until_ms, 2050 + 295 + 498 * 95 + 20 + 20);
}

TEST_F(MorseTest, StopTakesEffectAfterTheCharacterThatIsSounding) {
  Play("eeee");
  StopAt(1100ms);
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 2u);
  EXPECT_TRUE(tool().Command1.Enabled());
  EXPECT_FALSE(tool().Command2.Enabled());
  EXPECT_EQ(played_until_ms, 1390);
}

TEST_F(MorseTest, StopAndPlayAtOnceBeginTheMessageAnewAndStopEndsThat) {
  Play(std::string(40, 'e'));
  sim.At(2000ms, [this] { tool().Command2.Click(); });
  sim.At(2000ms, [this] {
    sim.journal.Clear();
    tool().Command1.Click();
  });
  StopAt(4000ms);
  EXPECT_FALSE(Run());
  // The first play ends at 2170; the second then sounds a character each 195 ms until Stop.
  EXPECT_EQ(Beeps().size(), 10u);
  EXPECT_TRUE(tool().Command1.Enabled());
}

TEST_F(MorseTest, RoundsOfStopAndPlayDoNotDeepenTheStack) {
  Play(std::string(400, 'e'));
  std::vector<const void*> depths;
  for (int round = 1; round <= 200; ++round) {
    const auto moment = 1000ms + round * 400ms;
    sim.At(moment, [this] { tool().Command2.Click(); });
    sim.At(moment, [this, &depths] {
      const volatile char here = 0;
      depths.push_back(const_cast<const char*>(&here));
      tool().Command1.Click();
    });
  }
  StopAt(90s);
  EXPECT_FALSE(Run());
  ASSERT_EQ(depths.size(), 200u);
  EXPECT_EQ(depths.front(), depths.back());
}

TEST_F(MorseTest, ClosingTheToolDuringASecondPlayInTheTailEndsBothPlays) {
  for (const bool hides_main : {false, true}) {
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    sim.At(start, [this] {
      tool().Show();
      tool().Text1.Edit("e");
      tool().Command1.Click();
      played_until_ms = sim.pump.now_ms();
    });
    sim.At(start + 1000ms, [this] {
      tool().Text1.Edit(std::string(20, 'e'));
      sim.journal.Clear();
      tool().Command1.Click();
    });
    sim.At(start + 2000ms, [this, hides_main] {
      if (hides_main) {
        main().Hide();
      } else {
        tool().Close();
      }
    });
    Run();
    EXPECT_LE(Beeps().size(), 7u) << hides_main;
    EXPECT_FALSE(tool().Loaded());
    EXPECT_LE(played_until_ms, start.count() + 2500) << hides_main;
  }
}

TEST_F(MorseTest, ClosingTheToolEndsItsMessage) {
  Play("eeee");
  sim.At(1100ms, [this] { tool().Close(); });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(tool().Loaded());
  EXPECT_EQ(Beeps().size(), 2u);
}

TEST_F(MorseTest, HidingTheMainWindowClosesTheTool) {
  Play("eeee");
  sim.At(1100ms, [this] { main().Hide(); });
  EXPECT_TRUE(Run());
  EXPECT_FALSE(tool().Loaded());
}

TEST_F(MorseTest, TheToolMayBeClosedAtAnyStageOfPlaying) {
  // In the first turn, in tones and pauses, between characters, in the silent tail, at its end.
  for (const int after_ms : {0, 1, 25, 120, 200, 400, 700, 1000, 5000, 30000, 47000}) {
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    sim.At(start, [this] {
      tool().Show();
      tool().Text1.Edit("et a");
      tool().Command1.Click();
      played_until_ms = sim.pump.now_ms();
    });
    std::int64_t closed_at_ms = 0;
    sim.At(start + std::chrono::milliseconds(after_ms), [this, &closed_at_ms] {
      tool().Close();
      closed_at_ms = sim.pump.now_ms();
    });
    EXPECT_FALSE(Run()) << after_ms;
    EXPECT_FALSE(tool().Loaded()) << after_ms;
    // The turn that handles the close still passes; the longest is the blank's, with its pauses.
    EXPECT_LE(played_until_ms, closed_at_ms + 20 + 500 + 75) << after_ms;
  }
}

}  // namespace
}  // namespace morse
