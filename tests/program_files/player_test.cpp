// Whole plays, and what the user does to them.
#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

const Tones kTwo{{440, 500}, {880, 250}};
const Tones kThree{{440, 500}, {880, 500}, {1760, 500}};

const std::string kWaveFile = kWave;
const std::string kHandOverFile = kHandOver;

Lines Join(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

const Lines kBegin{"Form9 loaded",
                   "Form9.Label4 caption: C:\\My Tones\\a.tnf",
                   "Form9.Command1 enabled: no",
                   "Form9.Label2 caption: 2",
                   "Form9 shown",
                   "Form9.ProgressBar1 value: 0 of 2"};
const Lines kFirst{"create " + kHandOverFile, "write " + kHandOverFile + ", 7 bytes",
                   "Form9.Label6 caption: 440", "Form9.Label8 caption: 500"};
const Lines kFirstDone{"Form9.Label1 caption: 1", "Form9.ProgressBar1 value: 1 of 2"};
const Lines kSecond{"create " + kHandOverFile, "write " + kHandOverFile + ", 7 bytes",
                    "Form9.Label6 caption: 880", "Form9.Label8 caption: 250"};
const Lines kSecondDone{"Form9.Label1 caption: 2", "Form9.ProgressBar1 value: 2 of 2"};
const Lines kEnd{"Form9.Command1 enabled: yes", "Form9.Label6 caption: ", "Form9.Label8 caption: "};

Lines WaveTone(int length_ms) {
  return {"create " + kWaveFile,
          "write " + kWaveFile + ", 176444 bytes",
          "play " + kWaveFile + " 0x20009",
          "sleep " + std::to_string(length_ms),
          "stop 0x2",
          "delete " + kWaveFile};
}

class WholePlayTest : public PlayerTest {
 protected:
  // Another copy's helper appears while the first tone sounds.
  void StartAnotherCopysHelper() {
    sim.pump.At(sim.pump.now_ms() + 100, [this] {
      sim.processes.running.push_back({77, "tone32.dll"});
    });
  }
};

TEST_F(WholePlayTest, SoundMode16) {
  EXPECT_FALSE(Open(ProgramWith(kTwo), "16"));
  const Lines started{"start hidden cmd /c \"C:\\Tonmira\\play16.exe\"", "sleep 1000", "sleep 50"};
  EXPECT_EQ(Journal(), Join({kBegin,
                             kFirst,
                             started,
                             {"sleep 500", "terminate tone16.dll"},
                             kFirstDone,
                             kSecond,
                             started,
                             {"sleep 250", "terminate tone16.dll"},
                             kSecondDone,
                             kEnd}));
}

TEST_F(WholePlayTest, SoundMode32) {
  EXPECT_FALSE(Open(ProgramWith(kTwo), "32"));
  const Lines started{"start hidden tone32.dll", "sleep 50"};
  EXPECT_EQ(Journal(), Join({kBegin,
                             kFirst,
                             started,
                             {"sleep 500", "terminate tone32.dll"},
                             kFirstDone,
                             kSecond,
                             started,
                             {"sleep 250", "terminate tone32.dll"},
                             kSecondDone,
                             kEnd}));
}

TEST_F(WholePlayTest, SoundModes64And128EndTheHelperAfterEachTone) {
  for (const char* mode : {"64", "128"}) {
    sim.journal.Clear();
    StartAnotherCopysHelper();
    EXPECT_FALSE(Open(ProgramWith(kTwo), mode));
    EXPECT_EQ(Journal(), Join({kBegin,
                               kFirst,
                               WaveTone(550),
                               kFirstDone,
                               kSecond,
                               WaveTone(300),
                               {"terminate tone32.dll"},
                               kSecondDone,
                               kEnd}))
        << mode;
  }
}

TEST_F(WholePlayTest, SoundMode256LeavesHelpersAlone) {
  StartAnotherCopysHelper();
  EXPECT_FALSE(Open(ProgramWith(kTwo), "256"));
  EXPECT_EQ(Journal(), Join({kBegin, kFirst, WaveTone(550), kFirstDone, kSecond, WaveTone(300),
                             kSecondDone, kEnd}));
}

TEST_F(WholePlayTest, AnUnknownSoundModeOnlyWaits) {
  sim.files.Put(kFile, FileOf(ProgramWith(kTwo)));
  EXPECT_FALSE(Load(base::SoundMode::kNone));
  EXPECT_EQ(Journal(), Join({kBegin,
                             kFirst,
                             {"sleep 50", "sleep 500"},
                             kFirstDone,
                             kSecond,
                             {"sleep 50", "sleep 250"},
                             kSecondDone,
                             kEnd}));
}

TEST_F(PlayerTest, TheHandOverFileHoldsThePitchOfTheTone) {
  Lines contents;
  for (const auto moment : {100ms, 600ms}) {
    sim.At(moment, [&] { contents.push_back(sim.files.Get(kHandOver).value_or("none")); });
  }
  Open(ProgramWith({{440, 500}, {31999, 250}, {5, 100}}), "32");
  EXPECT_EQ(contents, (Lines{" 440 \r\n", " 31999 \r\n"}));
  EXPECT_EQ(sim.files.Get(kHandOver), " 5 \r\n");
}

TEST_F(PlayerTest, TheLoadEndsTheHelpersThatRun) {
  sim.processes.running = {{1, "TONE32.DLL"}, {2, "tone16.dll"}, {3, "tonmira.exe"}};
  Open(ProgramWith(kTwo));
  EXPECT_EQ(Entries("terminate"), (Lines{"terminate TONE32.DLL", "terminate tone16.dll"}));
}

// The command interpreter may start it when its tone is over already.
TEST_F(PlayerTest, AHelperThatBeginsLateEndsWithThePlayer) {
  for (const auto& [mode, helper] : {std::pair{"16", "tone16.dll"}, {"32", "tone32.dll"}}) {
    At(std::chrono::milliseconds(sim.pump.now_ms() + 10), [this, helper = helper](Form9& form9) {
      sim.processes.running.push_back({79, helper});
      form9.Command3.Click();
    });
    EXPECT_TRUE(Open(ProgramWith(kTwo), mode));
    EXPECT_TRUE(sim.processes.running.empty()) << mode;
  }
}

TEST_F(PlayerTest, AFileWithoutTonesPlaysOneToneOfPitch0ForTheExtraTime) {
  const std::vector<std::pair<std::string, int>> lengths{
      {"16", 1050}, {"32", 50}, {"64", 50}, {"128", 50}, {"256", 50}};
  for (const auto& [mode, length] : lengths) {
    const auto begin = sim.pump.now_ms();
    EXPECT_FALSE(Open(GoodHead(), mode));
    EXPECT_EQ(sim.pump.now_ms() - begin, length) << mode;
    EXPECT_EQ(sim.files.Get(kHandOver), " 0 \r\n");
    EXPECT_EQ(player().Label2.Caption(), "0");
    EXPECT_EQ(player().Label1.Caption(), "0");
    EXPECT_EQ(Entries("Form9.Label6 caption: 0").size(), 1u);
    EXPECT_TRUE(player().Command1.Enabled());
    sim.journal.Clear();
  }
}

TEST_F(PlayerTest, InMode16EveryToneLastsOneSecondLongerThanInMode32) {
  Open(ProgramWith(kThree), "16");
  const auto in_16 = sim.pump.now_ms();
  Open(ProgramWith(kThree), "32");
  EXPECT_EQ(in_16, 3 * (1000 + 50 + 500));
  EXPECT_EQ(sim.pump.now_ms() - in_16, 3 * (50 + 500));
}

TEST_F(PlayerTest, StopLetsTheToneFinishAndThenShowsAllAsPlayed) {
  At(300ms, [](Form9& player) { player.Command2.Click(); });
  EXPECT_FALSE(Open(ProgramWith(kThree)));
  EXPECT_EQ(sim.pump.now_ms(), 550);
  EXPECT_EQ(PitchesShown(), (Lines{"440"}));
  EXPECT_EQ(Entries("Form9.Label1 caption"),
            (Lines{"Form9.Label1 caption: 1", "Form9.Label1 caption: 3"}));
  EXPECT_EQ(Entries("Form9.ProgressBar1 value"),
            (Lines{"Form9.ProgressBar1 value: 0 of 3", "Form9.ProgressBar1 value: 1 of 3",
                   "Form9.ProgressBar1 value: 3 of 3"}));
  EXPECT_TRUE(player().Command1.Enabled());
  EXPECT_EQ(player().Label6.Caption() + player().Label8.Caption(), "");
  EXPECT_TRUE(player().Visible());
}

TEST_F(PlayerTest, ReplayStartsAgainAtTheFirstTone) {
  At(5s, [this](Form9& player) {
    sim.processes.running = {{1, "tone32.dll"}, {2, "tone16.dll"}};
    player.Command1.Click();
    EXPECT_TRUE(player.Command1.Enabled());
  });
  EXPECT_FALSE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(sim.pump.now_ms(), 5000 + 550 + 300);
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880", "440", "880"}));
  EXPECT_EQ(Entries("create " + kHandOverFile).size(), 4u);
  EXPECT_EQ(Entries("terminate"), (Lines{"terminate tone32.dll", "terminate tone16.dll"}));
  EXPECT_EQ(Entries("Form9.Command1 enabled"),
            (Lines{"Form9.Command1 enabled: no", "Form9.Command1 enabled: yes",
                   "Form9.Command1 enabled: no", "Form9.Command1 enabled: yes"}));
}

TEST_F(PlayerTest, ReplayCannotBePressedWhileThePlayGoesOn) {
  At(300ms, [](Form9& player) { player.Command1.Click(); });
  EXPECT_FALSE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880"}));
}

TEST_F(PlayerTest, StopAndReplayDuringAToneStartAgainWhenItIsOver) {
  At(300ms, [](Form9& player) { player.Command2.Click(); });
  At(400ms, [](Form9& player) { player.Command1.Click(); });
  EXPECT_FALSE(Open(ProgramWith(kThree)));
  EXPECT_EQ(PitchesShown(), (Lines{"440", "440", "880", "1760"}));
  EXPECT_EQ(sim.pump.now_ms(), 4 * 550);
  EXPECT_TRUE(player().Command1.Enabled());
}

TEST_F(PlayerTest, AStopAfterThatTakesTheReplayBack) {
  At(300ms, [](Form9& player) {
    player.Command2.Click();
    player.Command1.Click();
    player.Command2.Click();
  });
  EXPECT_FALSE(Open(ProgramWith(kThree)));
  EXPECT_EQ(PitchesShown(), (Lines{"440"}));
}

TEST_F(PlayerTest, QuickRoundsOfStopAndReplayNeverNest) {
  for (int round = 0; round < 200; ++round) {
    At(std::chrono::milliseconds(550 * round + 100), [](Form9& player) {
      player.Command2.Click();
      player.Command1.Click();
    });
  }
  EXPECT_FALSE(Open(ProgramWith(kThree)));
  EXPECT_EQ(PitchesShown().size(), 200u + 3u);
  EXPECT_EQ(sim.pump.now_ms(), 203 * 550);
}

TEST_F(PlayerTest, StopWhileNothingPlaysChangesNothingThatIsHeard) {
  At(5s, [](Form9& player) { player.Command2.Click(); });
  At(6s, [](Form9& player) { player.Command1.Click(); });
  EXPECT_FALSE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880", "440", "880"}));
}

TEST_F(PlayerTest, LoadingUnloadsTheNewsWindowBeforeAnythingSounds) {
  int unloaded_by_then = 0;
  sim.At(100ms, [&] { unloaded_by_then = news_unloaded; });
  EXPECT_FALSE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(unloaded_by_then, 1);
  EXPECT_EQ(news_unloaded, 1);
}

TEST_F(PlayerTest, TheHandOverFileOfTheLastToneStaysWhenThePlayerEnds) {
  sim.processes.running = {{77, "tone32.dll"}};
  sim.At(100ms, [this] { sim.processes.running.push_back({78, "tone32.dll"}); });
  Lines invisible = ProgramWith(kTwo);
  invisible[4] = "{invisible}";
  EXPECT_TRUE(Open(invisible, "256"));
  EXPECT_EQ(sim.files.Get(kHandOver), " 880 \r\n");
  // A helper of another copy, which came later than the load routine, goes on.
  EXPECT_EQ(sim.processes.running.size(), 1u);
}

}  // namespace
}  // namespace program_files
