// What every continuous route has in common: hiding the main window ends it, and a stop is
// answered within a tick.
#include <algorithm>
#include <functional>

#include "tests/tone/fixture.h"
#include "tone/wave_image.h"

namespace tone {
namespace {

struct ContinuousRoute {
  std::string name;
  std::function<void(RoutesFixture&)> play;
  int tick_ms;
};

class ContinuousRouteTest : public RoutesFixture,
                            public testing::WithParamInterface<ContinuousRoute> {
 public:
  WinmmRoutes& Winmm() { return winmm; }
  HelperRoutes& Helpers() { return helpers; }
  DirectSoundRoutes& DirectSound() { return direct_sound; }

 protected:
  ContinuousRouteTest() {
    sim.processes.become = {{"cmd /c play16.exe", "tone16.dll"}, {"tone32.dll", "tone32.dll"}};
    sim.files.Put("tonedx3.dll", WaveImage(SineSecond(440), 44100, 16));
  }

  // The steps of the generated sweep follow each other with a gap, in which messages are handled.
  bool Sounds() const {
    if (GetParam().name == "SoundWinmmLTH") return SteppedLately();
    return !sim.processes.running.empty() || !sim.waves.playing.empty() ||
           sim.direct_sound.playing_buffers > 0;
  }

  // What ToneDXRND plays besides is silenced by KillAll alone.
  bool StoppedPlaying() const {
    return sim.waves.playing.empty() || GetParam().name == "ToneDXRND";
  }

  bool SteppedLately() const {
    const auto& entries = sim.journal.entries();
    return std::any_of(entries.begin(), entries.end(), [this](const auto& entry) {
      return entry.text.starts_with("play ") && entry.at_ms >= sim.pump.now_ms() - 75;
    });
  }

  void ExpectEverythingReleased() {
    EXPECT_TRUE(sim.processes.running.empty());
    EXPECT_TRUE(StoppedPlaying());
    EXPECT_EQ(sim.direct_sound.playing_buffers, 0);
    EXPECT_FALSE(sim.files.Exists(kWavePath));
    EXPECT_FALSE(sim.files.Exists(kHandOver));
    EXPECT_TRUE(sim.files.Exists("tonedx3.dll"));
  }
};

ContinuousRouteTest& Routes(RoutesFixture& fixture) {
  return static_cast<ContinuousRouteTest&>(fixture);
}

TEST_P(ContinuousRouteTest, GoesOnForAsLongAsNobodyStopsIt) {
  for (int second = 1; second <= 60; ++second) {
    sim.At(std::chrono::seconds(second), [this, second] { EXPECT_TRUE(Sounds()) << second; });
  }
  StopAt(60500ms);
  GetParam().play(*this);
  EXPECT_GE(sim.pump.now_ms(), 60500);
}

TEST_P(ContinuousRouteTest, HidingTheMainWindowEndsItAndReleasesWhatItStarted) {
  sim.At(510ms, [this] {
    EXPECT_TRUE(Sounds());
    scene.visible = false;
  });
  GetParam().play(*this);
  EXPECT_GE(sim.pump.now_ms(), 510);
  EXPECT_LE(sim.pump.now_ms(), 510 + GetParam().tick_ms);
  ExpectEverythingReleased();
}

// At any moment of the second tick.
TEST_P(ContinuousRouteTest, AStopDuringATickEndsItWithThatTick) {
  const int tick = GetParam().tick_ms;
  for (int moment = tick + 1; moment < 2 * tick; moment += 7) {
    const std::int64_t begin = sim.pump.now_ms();
    state.stop_flag = 0;
    StopAt(std::chrono::milliseconds(begin + moment));
    GetParam().play(*this);
    EXPECT_EQ(sim.pump.now_ms(), begin + 2 * tick) << moment;
    ExpectEverythingReleased();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Routes, ContinuousRouteTest,
    testing::Values(
        ContinuousRoute{"Sound16", [](auto& f) { Routes(f).Helpers().Sound16(440); }, 208},
        ContinuousRoute{"Sound32", [](auto& f) { Routes(f).Helpers().Sound32(440); }, 208},
        ContinuousRoute{"ToneDXRND", [](auto& f) { Routes(f).DirectSound().ToneDXRND(440); }, 100},
        ContinuousRoute{"ToneDX", [](auto& f) { Routes(f).DirectSound().ToneDX(440, "3", 0); },
                        100},
        ContinuousRoute{"SoundWinmmRND", [](auto& f) { Routes(f).Winmm().SoundWinmmRND(440); },
                        100},
        ContinuousRoute{"SoundWinmm", [](auto& f) { Routes(f).Winmm().SoundWinmm(440, "3"); }, 100},
        ContinuousRoute{"LowToHigh16",
                        [](auto& f) { Routes(f).Helpers().LowToHigh(base::SoundMode::kClassic); },
                        200},
        ContinuousRoute{"LowToHigh32",
                        [](auto& f) { Routes(f).Helpers().LowToHigh(base::SoundMode::kSound32); },
                        200},
        ContinuousRoute{"SoundWinmmLTH", [](auto& f) { Routes(f).Winmm().SoundWinmmLTH(); }, 75}),
    [](const auto& route) { return route.param.name; });

}  // namespace
}  // namespace tone
