// The loops of Play itself: a back end that returns early, quick rounds of the sweep, a sweep that
// reaches its top.
#include "base/errors.h"
#include "tests/app/play_fixture.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::DirectSoundCall;
using platform::simulated::Operation;

constexpr char kHandOver[] = "C:\\Temp\\sound.ini";

// A back end that fails and returns while the user still waits for Stop.
struct EarlyReturn {
  std::string name;
  std::string sound_bit;
  std::function<void(platform::simulated::Simulation&)> arrange;
  std::string sounds;  // what goes on sounding
};

class EarlyReturnTest : public PlayTest, public testing::WithParamInterface<EarlyReturn> {
 protected:
  EarlyReturnTest() {
    sim.files.Put(kSettings, GoodSettings(GetParam().sound_bit));
    At(1s, [this](Form1& form1) {
      GetParam().arrange(sim);
      form1.Option1.Click();
      form1.Command2.Click();
    });
  }

  bool Over() const { return LogEntries().back() == "#Sound stopped"; }
};

TEST_P(EarlyReturnTest, ThePlayGoesOnUntilStop) {
  for (const auto moment : {1100ms, 5000ms, 60000ms}) {
    At(moment, [this](Form1& form1) {
      EXPECT_FALSE(Over());
      EXPECT_FALSE(form1.Command2.Enabled());
      EXPECT_TRUE(form1.Command3.Enabled());
      EXPECT_EQ(sim.waves.playing, GetParam().sounds);
    });
  }
  At(61s, [](Form1& form1) { form1.Command3.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Over());
  EXPECT_LE(sim.pump.now_ms(), 61000 + 208);
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_FALSE(sim.files.Exists(kWave));
  EXPECT_EQ(main().StatusBar1.Caption(), "Actual pitch (Hertz):");
}

TEST_P(EarlyReturnTest, HidingTheMainWindowEndsThePlay) {
  At(5s, [](Form1& form1) { form1.Hide(); });
  // The program ends itself then; its log stands as the play left it.
  EXPECT_TRUE(Run());
  EXPECT_TRUE(Over());
  EXPECT_LE(sim.pump.now_ms(), 5000 + 208);
}

INSTANTIATE_TEST_SUITE_P(
    BackEnds, EarlyReturnTest,
    testing::Values(
        EarlyReturn{"Sound16", "16",
                    [](auto& sim) {
                      sim.files.Fail(Operation::kOpenForWriting, kHandOver, ErrorCode::kDiskFull);
                    },
                    ""},
        EarlyReturn{"Sound32", "32",
                    [](auto& sim) {
                      sim.files.Fail(Operation::kOpenForWriting, kHandOver, ErrorCode::kDiskFull);
                    },
                    ""},
        // The file was started through the multimedia player first.
        EarlyReturn{"ToneDXRND", "64",
                    [](auto& sim) { sim.direct_sound.Fail(DirectSoundCall::kBuffer); }, kWave}),
    [](const auto& early_return) { return early_return.param.name; });

class PlayedSweepTest : public PlayTest, public testing::WithParamInterface<std::string> {
 protected:
  PlayedSweepTest() {
    sim.files.Put(kSettings, GoodSettings(GetParam()));
    sim.processes.become = {{"cmd /c play16.exe", "tone16.dll"}, {"tone32.dll", "tone32.dll"}};
  }

  bool Silent() const { return sim.waves.playing.empty() && sim.processes.running.empty(); }

  Lines Statuses() const {
    const std::string prefix = "Form1.StatusBar1 caption: ";
    Lines statuses;
    for (const std::string& text : sim.journal.Texts({Kind::kControl})) {
      if (text.starts_with(prefix)) statuses.push_back(text.substr(prefix.size()));
    }
    return statuses;
  }
};

TEST_P(PlayedSweepTest, AQuickStopAndPlayBeginsItAnewAndOneMoreStopEndsIt) {
  At(1s, [](Form1& form1) {
    form1.Option6.Click();
    form1.Command2.Click();
  });
  // Both are waiting when the sweep handles messages again.
  At(3s, [](Form1& form1) { form1.Command3.Click(); });
  At(3s, [this](Form1& form1) {
    EXPECT_TRUE(Silent());
    sim.journal.Clear();
    form1.Command2.Click();
  });
  At(4s, [this](Form1& form1) {
    // The steps of the generated sweep have gaps, in which messages are handled.
    EXPECT_TRUE(!Silent() || sim.files.Exists(kWave));
    EXPECT_FALSE(form1.Command2.Enabled());
    form1.Command3.Click();
    EXPECT_TRUE(Silent());
  });
  EXPECT_FALSE(Run());
  EXPECT_LE(sim.pump.now_ms(), 4000 + 200);
  EXPECT_TRUE(Silent());
  EXPECT_FALSE(sim.files.Exists(kWave));
  EXPECT_FALSE(sim.files.Exists(kHandOver));
  EXPECT_TRUE(main().Command2.Enabled());
  EXPECT_FALSE(main().Command3.Enabled());
  if (GetParam() != "16") {
    const Lines statuses = Statuses();
    const auto first = std::find(statuses.begin(), statuses.end(), "Actual pitch (Hertz): 200");
    ASSERT_LT(first, statuses.end() - 1);
    EXPECT_EQ(*(first + 1), "Actual pitch (Hertz): 400");
  }
  const Lines entries = EntriesAfterStart();
  EXPECT_EQ(std::count(entries.begin(), entries.end(), "#Pressed Button 3"), 2);
  EXPECT_EQ(std::count(entries.begin(), entries.end(), "#Sound stopped"), 2);
  EXPECT_EQ(entries.back(), "#Sound stopped");
}

TEST_P(PlayedSweepTest, HidingTheMainWindowEndsIt) {
  At(1s, [](Form1& form1) {
    form1.Option6.Click();
    form1.Command2.Click();
  });
  At(3s, [](Form1& form1) { form1.Hide(); });
  EXPECT_TRUE(Run());
  EXPECT_LE(sim.pump.now_ms(), 3000 + 208);
  EXPECT_TRUE(Silent());
  EXPECT_EQ(LogEntries().back(), "#Sound stopped");
}

INSTANTIATE_TEST_SUITE_P(SoundModes, PlayedSweepTest, testing::Values("16", "32", "128", "256"));

// The pitches that the user sees around the top.
struct Top {
  std::string sound_bit;
  std::chrono::milliseconds step;
  Lines around;
};

class PlayedSweepTopTest : public PlayTest, public testing::WithParamInterface<Top> {};

TEST_P(PlayedSweepTopTest, TheSweepReachesItAndBeginsAgain) {
  sim.files.Put(kSettings, GoodSettings(GetParam().sound_bit));
  const auto top = 1s + 158 * GetParam().step;
  At(1s, [](Form1& form1) {
    form1.Option6.Click();
    form1.Command2.Click();
  });
  Lines seen;
  for (int step = 0; step < 5; ++step) {
    At(top + step * GetParam().step + GetParam().step / 2,
       [&seen](Form1& form1) { seen.push_back(form1.StatusBar1.Caption()); });
  }
  At(top + 5 * GetParam().step, [](Form1& form1) { form1.Command3.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_EQ(seen, GetParam().around);
  EXPECT_EQ(LogEntries().back(), "#Sound stopped");
}

INSTANTIATE_TEST_SUITE_P(
    SoundModes, PlayedSweepTopTest,
    testing::Values(Top{"32",
                        200ms,
                        {"Actual pitch (Hertz): 31800", "Actual pitch (Hertz): 100",
                         "Actual pitch (Hertz): 300", "Actual pitch (Hertz): 500",
                         "Actual pitch (Hertz): 700"}},
                    Top{"256",
                        75ms,
                        {"Actual pitch (Hertz): 31800", "Actual pitch (Hertz): 32000",
                         "Actual pitch (Hertz): 200", "Actual pitch (Hertz): 400",
                         "Actual pitch (Hertz): 600"}}));

// As an open menu does, which handles messages by itself.
TEST_F(PlayTest, APlayInTheSameBreathAsStopBeginsWhenTheFirstIsOver) {
  At(1s, [](Form1& form1) {
    form1.Option3.Click();
    form1.Command2.Click();
  });
  At(1300ms, [this](Form1& form1) {
    form1.Command3.Click();
    form1.Command2.Click();
    EXPECT_EQ(LogEntries().back(), "#Pressed Button 3");
  });
  At(1600ms, [](Form1& form1) { form1.Command3.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_EQ(EntriesAfterStart(), (Lines{"#Option 3 Clicked", "#Pressed Button 2", "10000",
                                        "#Pressed Button 3", "#Sound stopped", "#Pressed Button 2",
                                        "10000", "#Pressed Button 3", "#Sound stopped"}));
  EXPECT_TRUE(sim.waves.playing.empty());
}

}  // namespace
}  // namespace app
