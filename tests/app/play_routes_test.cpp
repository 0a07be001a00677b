#include "base/errors.h"
#include "tests/app/play_fixture.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

TEST_F(PlayTest, ClassicWaitsInTicksOf208MsAndAStopLastsToTheEndOfItsTick) {
  sim.files.Put(kSettings, GoodSettings("16"));
  At(1s, [this](Form1& form1) {
    form1.Option1.Click();
    sim.pump.journal_waits = true;
    form1.Command2.Click();
  });
  At(1300ms, [](Form1& form1) { form1.Command3.Click(); });
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kWait}), (Lines{"wait 208", "wait 208", "sleep 116"}));
  EXPECT_EQ(sim.pump.now_ms(), 1000 + 2 * 208);
  EXPECT_EQ(EntriesAfterStart().back(), "#Sound stopped");
}

struct RouteCase {
  std::string sound_bit;
  int mode;
  Lines first_steps;  // of processes and sounds
};

class RoutesTest : public PlayTest, public testing::WithParamInterface<RouteCase> {};

TEST_P(RoutesTest, TheSoundModeDecidesWhoSounds) {
  sim.files.Put(kSettings, GoodSettings(GetParam().sound_bit));
  At(1s, [this](Form1& form1) {
    form1.Options()[static_cast<std::size_t>(GetParam().mode - 1)]->Click();
    sim.journal.Clear();
    form1.Command2.Click();
  });
  At(1050ms, [](Form1& form1) { form1.Command3.Click(); });
  EXPECT_FALSE(Run());
  const Lines steps = sim.journal.Texts({Kind::kProcess, Kind::kSound});
  ASSERT_GE(steps.size(), GetParam().first_steps.size());
  EXPECT_EQ(Lines(steps.begin(), steps.begin() + std::ssize(GetParam().first_steps)),
            GetParam().first_steps);
  EXPECT_FALSE(sim.files.Exists(kWave));
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\sound.ini"));
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_EQ(sim.direct_sound.live_objects, 0);
  EXPECT_EQ(LogEntries().back(), "#Sound stopped");
}

const std::string kPlayed = "play C:\\Temp\\tnfwinmmtmp.wav 0x20009";

INSTANTIATE_TEST_SUITE_P(
    SoundModes, RoutesTest,
    testing::Values(RouteCase{"16", 1, {"start hidden cmd /c play16.exe"}},
                    RouteCase{"32", 7, {"start hidden tone32.dll"}},
                    RouteCase{"64", 3, {kPlayed, "directsound root", "directsound device"}},
                    RouteCase{"128", 7, {kPlayed, "stop 0x2"}},
                    RouteCase{"256", 3, {kPlayed, "stop 0x2"}},
                    RouteCase{"16", 6, {"start hidden cmd /c play16.exe"}},
                    RouteCase{"32", 6, {"start hidden tone32.dll"}},
                    RouteCase{"128", 6, {kPlayed, "stop 0x2", "stop 0x2"}},
                    RouteCase{"256", 6, {kPlayed, "stop 0x2", "stop 0x2"}}));

TEST_F(PlayTest, LowToHighWithClassicAsksItsHelperForASweep) {
  sim.files.Put(kSettings, GoodSettings("16"));
  At(1s, [](Form1& form1) {
    form1.Option6.Click();
    form1.Command2.Click();
  });
  At(1100ms, [this](Form1& form1) {
    EXPECT_EQ(sim.files.Get("C:\\Temp\\sound.ini"), "1\r\n");
    form1.Command3.Click();
  });
  Run();
  EXPECT_EQ(EntriesAfterStart(), (Lines{"#Option 6 Clicked", "#Pressed Button 2", "1",
                                        "#Pressed Button 3", "#Sound stopped"}));
}

TEST_F(PlayTest, StopSilencesEveryRoute) {
  sim.processes.running = {
      {1, "System"}, {2, "tone16.dll"}, {3, "mytone32.dll"}, {4, "TONE32.DLL"}, {5, "tone32.exe"}};
  sim.files.Put("C:\\Temp\\sound.ini", " 440 \r\n");
  At(1s, [this](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
    EXPECT_FALSE(sim.files.Exists("C:\\Temp\\sound.ini"));
  });
  At(2s, [](Form1& form1) { form1.Command3.Click(); });
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}),
            (Lines{"terminate mytone32.dll", "terminate TONE32.DLL", "terminate tone16.dll"}));
  EXPECT_EQ(sim.processes.running.size(), 2u);
}

TEST_F(PlayTest, AProcessThatMayNotBeEndedDoesNotKeepStopFromCleaningUp) {
  sim.processes.running = {{7, "tone32.dll"}};
  sim.processes.protected_ids = {7};
  sim.files.Put("C:\\Temp\\sound.ini", " 440 \r\n");
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(2s, [](Form1& form1) { form1.Command3.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\sound.ini"));
  EXPECT_FALSE(sim.files.Exists(kWave));
}

TEST_F(PlayTest, AWaveFileThatCannotBeWrittenIsSilentAndStopStillWorks) {
  sim.files.Fail(Operation::kWrite, kWave, ErrorCode::kDiskFull);
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(2s, [this](Form1& form1) {
    EXPECT_FALSE(sim.files.Exists(kWave));
    form1.Command3.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(EntriesAfterStart().back(), "#Sound stopped");
}

// A marker of how deep the stack is when a user's action runs.
std::ptrdiff_t StackPosition() {
  return reinterpret_cast<std::ptrdiff_t>(__builtin_frame_address(0));
}

struct Rounds {
  std::string sound_bit;
  int mode;
  int count;
};

class QuickRoundsTest : public PlayTest, public testing::WithParamInterface<Rounds> {};

TEST_P(QuickRoundsTest, OfPlayAndStopDoNotDeepenTheStack) {
  sim.files.Put(kSettings, GoodSettings(GetParam().sound_bit));
  std::vector<std::ptrdiff_t> positions;
  At(1s,
     [](Form1& form1) { form1.Options()[static_cast<std::size_t>(GetParam().mode - 1)]->Click(); });
  for (int round = 0; round < GetParam().count; ++round) {
    // Stop and the next Play are both waiting when the loop handles messages again.
    At(2s, [&positions](Form1& form1) {
      positions.push_back(StackPosition());
      form1.Command2.Click();
    });
    At(2s, [](Form1& form1) { form1.Command3.Click(); });
  }
  EXPECT_FALSE(Run());
  ASSERT_EQ(positions.size(), static_cast<std::size_t>(GetParam().count));
  EXPECT_EQ(positions.front(), positions.back());
  EXPECT_EQ(sim.windows.open_views(), 1);
  EXPECT_TRUE(main().Command2.Enabled());
}

// A helper's sound costs nothing here; every round of the player makes a second of samples.
INSTANTIATE_TEST_SUITE_P(Many, QuickRoundsTest,
                         testing::Values(Rounds{"16", 1, 10000}, Rounds{"256", 1, 100},
                                         Rounds{"32", 6, 1000}, Rounds{"256", 6, 50}));

TEST_F(PlayTest, TenThousandModeClicksDoNotDeepenTheStack) {
  std::vector<std::ptrdiff_t> positions;
  for (int round = 0; round < 10000; ++round) {
    At(1s, [round, &positions](Form1& form1) {
      positions.push_back(StackPosition());
      form1.Options()[static_cast<std::size_t>(round % 9)]->Click();
    });
  }
  EXPECT_FALSE(Run());
  EXPECT_EQ(positions.front(), positions.back());
  EXPECT_EQ(sim.Lines(kLog).size(), 100u);
}

}  // namespace
}  // namespace app
