#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

const Tones kThreeTones{{440, 500}, {880, 500}, {1760, 500}};

// The ways out: Exit and the window's frame, while it plays and afterwards.
struct WayOut {
  std::string name;
  std::chrono::milliseconds moment;
  std::function<void(Form9&)> action;
  std::int64_t ends_at_ms;
};

class WayOutTest : public PlayerTest, public testing::WithParamInterface<WayOut> {};

TEST_P(WayOutTest, EndsTheProgramAndLeavesNothingSounding) {
  for (const char* mode : {"16", "32", "64", "128", "256"}) {
    const auto begin = sim.pump.now_ms();
    const std::int64_t classic = std::string(mode) == "16" ? 1000 : 0;
    At(std::chrono::milliseconds(begin + GetParam().moment.count() + 3 * classic),
       GetParam().action);
    EXPECT_TRUE(Open(ProgramWith(kThreeTones), mode));
    EXPECT_TRUE(sim.processes.running.empty()) << mode;
    EXPECT_EQ(sim.waves.playing, "") << mode;
    EXPECT_FALSE(sim.files.Exists(kWave)) << mode;
    EXPECT_EQ(sim.journal.entries().back().text, "end");
    if (classic == 0) {
      EXPECT_EQ(sim.pump.now_ms() - begin, GetParam().ends_at_ms) << mode;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Player, WayOutTest,
    testing::Values(
        WayOut{"ExitWhilePlaying", 300ms, [](Form9& player) { player.Command3.Click(); }, 550},
        WayOut{"FrameWhilePlaying", 300ms, [](Form9& player) { player.Close(); }, 550},
        WayOut{"StopAndExit", 300ms,
               [](Form9& player) {
                 player.Command2.Click();
                 player.Command3.Click();
               },
               550},
        WayOut{"ExitAfterwards", 5s, [](Form9& player) { player.Command3.Click(); }, 5000},
        WayOut{"FrameAfterwards", 5s, [](Form9& player) { player.Close(); }, 5000}),
    [](const auto& way) { return way.param.name; });

}  // namespace
}  // namespace program_files
