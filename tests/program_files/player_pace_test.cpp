// How long the player's tones last on a clock that oversleeps, and what keeps the device awake.
#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

class PlayerPaceTest : public PlayerTest {
 protected:
  using Moments = std::vector<std::int64_t>;

  Moments MomentsOf(const std::string& beginning) const {
    Moments moments;
    for (const auto& entry : sim.journal.entries()) {
      if (entry.text.starts_with(beginning)) moments.push_back(entry.at_ms);
    }
    return moments;
  }

  const Tones two_{{440, 500}, {880, 250}};
};

TEST_F(PlayerPaceTest, AHelpersToneIsLateOnce) {
  sim.pump.oversleep_ms = 5;
  Open(ProgramWith(two_), "16");
  EXPECT_EQ(MomentsOf("start hidden"), (Moments{0, 1000 + 50 + 500 + 5}));
  EXPECT_EQ(MomentsOf("terminate"), (Moments{1555, 1555 + 1000 + 50 + 250 + 5}));
}

TEST_F(PlayerPaceTest, APlayersToneIsLateOnceAndNeverShort) {
  sim.pump.oversleep_ms = 5;
  Open(ProgramWith(two_), "256");
  EXPECT_EQ(MomentsOf("play"), (Moments{0, 555}));
  EXPECT_EQ(MomentsOf("stop"), (Moments{555, 555 + 305}));
}

class PlayerAwakeTest : public PlayerPaceTest {
 protected:
  PlayerAwakeTest() {
    sim.awake_output.wakes_after_ms = 250;
    sim.awake_output.journaled = true;
  }

  int playing() const { return sim.awake_output.playing; }
};

TEST_F(PlayerAwakeTest, TheFirstToneWaitsForTheDeviceWhichSleepsAgainWhenThePlayIsOver) {
  for (const auto& [mode, begins] :
       {std::pair{"256", "play"}, {"64", "play"}, {"32", "start hidden"}}) {
    sim.journal.Clear();
    const std::int64_t loaded = sim.pump.now_ms();
    Open(ProgramWith(two_), mode);
    EXPECT_EQ(MomentsOf("awake"), Moments{loaded}) << mode;
    EXPECT_EQ(MomentsOf(begins), (Moments{loaded + 250, loaded + 800})) << mode;
    EXPECT_EQ(MomentsOf("asleep"), Moments{loaded + 1100}) << mode;
  }
}

TEST_F(PlayerAwakeTest, TheDeviceIsCalledWhenThePlayerIsLoaded) {
  std::vector<int> playing_while_open;
  sim.messages.while_open = [&] { playing_while_open.push_back(playing()); };
  Open(Lines{"nothing"}, "256");
  ASSERT_FALSE(playing_while_open.empty());
  EXPECT_EQ(playing_while_open.front(), 1);
}

TEST_F(PlayerAwakeTest, WithoutASoundModeNothingIsWoken) {
  sim.files.Put(kFile, FileOf(ProgramWith(two_)));
  Load(base::SoundMode::kNone);
  EXPECT_EQ(sim.awake_output.started, 0);
}

TEST_F(PlayerAwakeTest, AReplayWaitsForTheDeviceAgain) {
  At(2000ms, [](Form9& form9) { form9.Command1.Click(); });
  Open(ProgramWith(two_), "256");
  EXPECT_EQ(MomentsOf("play"), (Moments{250, 800, 2250, 2800}));
  EXPECT_EQ(MomentsOf("asleep"), (Moments{1100, 3100}));
}

// Stop puts the index on the first tone, which the loop leaves behind.
TEST_F(PlayerAwakeTest, StopWhileTheDeviceWakesEndsThePlayWithOneTone) {
  At(100ms, [](Form9& form9) { form9.Command2.Click(); });
  Open(ProgramWith(two_), "256");
  EXPECT_EQ(MomentsOf("play"), Moments{100});
  EXPECT_EQ(MomentsOf("asleep"), Moments{400});
}

TEST_F(PlayerAwakeTest, ExitWhileTheDeviceWakesEndsTheProgramInSilence) {
  At(100ms, [](Form9& form9) { form9.Command3.Click(); });
  EXPECT_TRUE(Open(ProgramWith(two_), "256"));
  EXPECT_EQ(MomentsOf("play"), Moments{});
  EXPECT_EQ(playing(), 0);
}

}  // namespace
}  // namespace program_files
