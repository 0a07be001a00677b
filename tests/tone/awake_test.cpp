#include "tone/awake.h"

#include "tests/tone/fixture.h"

namespace tone {
namespace {

class AwakeTest : public RoutesFixture {
 protected:
  AwakeTest() { sim.awake_output.wakes_after_ms = 200; }

  static bool Never() { return false; }
  std::int64_t now_ms() const { return sim.pump.now_ms(); }
  void SleepUntil(int moment_ms) { sim.pump.Sleep(moment_ms - static_cast<int>(now_ms())); }
  int playing() const { return sim.awake_output.playing; }

  Awake awake{sim.services};
};

TEST_F(AwakeTest, TheDeviceIsWaitedForAndStaysAwakeUntilTheEnd) {
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 200);
  EXPECT_EQ(playing(), 1);
  SleepUntil(600'000);
  EXPECT_EQ(playing(), 1);
  awake.End();
  EXPECT_EQ(playing(), 0);
}

TEST_F(AwakeTest, ADeviceThatDoesNotWakeIsGivenHalfASecond) {
  sim.awake_output.wakes_after_ms = 100'000;
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 500);
}

TEST_F(AwakeTest, WithoutADeviceNothingIsWaitedFor) {
  sim.awake_output.there = false;
  awake.Prepare();
  awake.Begin(Never);
  awake.End();
  EXPECT_EQ(now_ms(), 0);
  EXPECT_EQ(sim.pump.running_timers(), 0u);
}

TEST_F(AwakeTest, WhatWasPreparedIsWaitedForNoLonger) {
  awake.Prepare();
  EXPECT_EQ(now_ms(), 0);
  SleepUntil(150);
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 200);
  EXPECT_EQ(sim.awake_output.started, 1);
}

TEST_F(AwakeTest, TheHalfSecondCountsFromWhenTheDeviceWasCalled) {
  sim.awake_output.wakes_after_ms = 100'000;
  awake.Prepare();
  SleepUntil(300);
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 500);
  SleepUntil(2000);
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 2000);
}

TEST_F(AwakeTest, ADeviceThatIsAwakeCostsNoTimeAndNoMessageIsHandled) {
  awake.Begin(Never);
  bool handled = false;
  sim.At(100ms, [&handled] { handled = true; });
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 200);
  EXPECT_FALSE(handled);
}

TEST_F(AwakeTest, MessagesAreHandledWhileTheDeviceWakesUntilOneStops) {
  bool stopped = false;
  bool later = false;
  sim.At(50ms, [&stopped] { stopped = true; });
  sim.At(50ms, [&later] { later = true; });
  awake.Begin([&stopped] { return stopped; });
  EXPECT_EQ(now_ms(), 50);
  EXPECT_FALSE(later);
}

TEST_F(AwakeTest, WhatIsPreparedForNothingIsGivenUpAfterAMinute) {
  awake.Prepare();
  sim.At(59'999ms, [this] { EXPECT_EQ(playing(), 1); });
  sim.At(60'001ms, [this] { EXPECT_EQ(playing(), 0); });
  sim.pump.Pass(Never, 70s, platform::Grain::kCoarse);
  EXPECT_EQ(sim.pump.running_timers(), 0u);
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 70'200);
  EXPECT_EQ(playing(), 1);
}

TEST_F(AwakeTest, WhatHasBegunIsNotGivenUp) {
  awake.Prepare();
  awake.Begin(Never);
  sim.pump.Pass(Never, 70s, platform::Grain::kCoarse);
  EXPECT_EQ(playing(), 1);
}

TEST_F(AwakeTest, ItsEndWhileItIsWaitedForEndsTheWait) {
  sim.At(50ms, [this] { awake.End(); });
  awake.Begin(Never);
  EXPECT_EQ(now_ms(), 50);
  EXPECT_EQ(playing(), 0);
}

// What sounds in sweeps and continuous tones.
class AwakeRoutesTest : public RoutesFixture {
 protected:
  AwakeRoutesTest() {
    sim.awake_output.journaled = true;
    sim.awake_output.wakes_after_ms = 250;
    sim.processes.become["tone32.dll"] = "tone32.dll";
  }

  Lines Sounds() const { return Journal({Kind::kSound, Kind::kProcess}); }
  std::int64_t BeginOf(const std::string& sound) const {
    for (const auto& entry : sim.journal.entries()) {
      if (entry.text == sound) return entry.at_ms;
    }
    return -1;
  }
};

TEST_F(AwakeRoutesTest, ASweepBeginsOnADeviceThatIsAwakeAndLetsItGoAtItsEnd) {
  StopAt(340ms);
  winmm.SoundWinmmLTH();
  const std::string play = "play " + kWavePath + " 0x20009";
  EXPECT_EQ(Sounds(), (Lines{"awake", play, "stop 0x2", play, "stop 0x2", "stop 0x2", "asleep"}));
  EXPECT_EQ(BeginOf(play), 250);
  EXPECT_EQ(sim.pump.now_ms(), 400);
}

TEST_F(AwakeRoutesTest, ASweepThatIsStoppedWhileTheDeviceWakesEndsWithItsFirstStep) {
  StopAt(100ms);
  winmm.SoundWinmmLTH();
  EXPECT_EQ(Sounds(),
            (Lines{"awake", "play " + kWavePath + " 0x20009", "stop 0x2", "stop 0x2", "asleep"}));
  EXPECT_EQ(sim.pump.now_ms(), 175);
}

TEST_F(AwakeRoutesTest, AHelpersSweepToo) {
  StopAt(300ms);
  helpers.LowToHigh(base::SoundMode::kSound32);
  EXPECT_EQ(Sounds(), (Lines{"awake", "start hidden tone32.dll", "terminate tone32.dll", "stop 0x2",
                             "asleep"}));
  EXPECT_EQ(BeginOf("start hidden tone32.dll"), 250);
}

TEST_F(AwakeRoutesTest, AContinuousToneStartsAtOnceAndWakesNothing) {
  StopAt(50ms);
  winmm.SoundWinmmRND(440);
  EXPECT_EQ(BeginOf("play " + kWavePath + " 0x20009"), 0);
  state.stop_flag = 0;
  StopAt(250ms);
  helpers.Sound32(440);
  StopAt(500ms);
  state.stop_flag = 0;
  direct_sound.ToneDXRND(440);
  EXPECT_EQ(sim.awake_output.started, 0);
}

}  // namespace
}  // namespace tone
