#include "tests/tone/fixture.h"

namespace tone {
namespace {

class WinmmTest : public RoutesFixture {};

TEST_F(WinmmTest, AToneIsWrittenLoopedStoppedAndCleanedUp) {
  StopAt(250ms);
  winmm.SoundWinmmRND(440);
  EXPECT_EQ(Journal({Kind::kFile, Kind::kSound, Kind::kControl}),
            (Lines{"create " + kWavePath, "write " + kWavePath + ", 176444 bytes",
                   "play " + kWavePath + " 0x20009", "Actual pitch (Hertz): 440", "stop 0x2",
                   "delete " + kWavePath}));
  EXPECT_EQ(sim.pump.now_ms(), 300);
}

TEST_F(WinmmTest, HidingTheMainWindowEndsTheTone) {
  sim.At(150ms, [this] { scene.visible = false; });
  winmm.SoundWinmmRND(440);
  EXPECT_EQ(sim.pump.now_ms(), 200);
  EXPECT_TRUE(sim.waves.playing.empty());
}

TEST_F(WinmmTest, AToneOfFixedLengthHandlesNoMessagesAndShowsNoStatus) {
  bool handled = false;
  sim.At(10ms, [&handled] { handled = true; });
  winmm.SoundWinmmRNDTMP(700, 200);
  EXPECT_EQ(sim.pump.now_ms(), 200);
  EXPECT_FALSE(handled);
  EXPECT_EQ(Journal({Kind::kSound, Kind::kControl}),
            (Lines{"play " + kWavePath + " 0x20009", "stop 0x2"}));
  EXPECT_FALSE(sim.files.Exists(kWavePath));
}

TEST_F(WinmmTest, APreparedFileIsPlayedFromTheCurrentFolder) {
  StopAt(100ms);
  winmm.SoundWinmm(440, "3");
  EXPECT_EQ(Journal({Kind::kFile, Kind::kSound, Kind::kControl}),
            (Lines{"play tonedx3.dll 0x20009", "Actual pitch (Hertz): 440", "stop 0x2"}));
}

TEST_F(WinmmTest, TheSweepStepsBy200HzEvery75MsAndBeginsAnewAfter32000) {
  // 160 steps to the top, and two more.
  StopAt(std::chrono::milliseconds(75 * 161 + 1));
  winmm.SoundWinmmLTH();
  const Lines statuses = Journal({Kind::kControl});
  ASSERT_EQ(statuses.size(), 162u);
  EXPECT_EQ(statuses[0], "Actual pitch (Hertz): 200");
  EXPECT_EQ(statuses[1], "Actual pitch (Hertz): 400");
  EXPECT_EQ(statuses[158], "Actual pitch (Hertz): 31800");
  EXPECT_EQ(statuses[159], "Actual pitch (Hertz): 32000");
  EXPECT_EQ(statuses[160], "Actual pitch (Hertz): 200");
  EXPECT_EQ(statuses[161], "Actual pitch (Hertz): 400");
  EXPECT_EQ(sim.pump.now_ms(), 75 * 162);
}

TEST_F(WinmmTest, StopDuringAStepEndsTheSweepWithThatStepAndLeavesNoFile) {
  StopAt(100ms);
  winmm.SoundWinmmLTH();
  EXPECT_EQ(Journal({Kind::kFile, Kind::kSound, Kind::kControl}),
            (Lines{"create " + kWavePath, "write " + kWavePath + ", 176444 bytes",
                   "play " + kWavePath + " 0x20009", "Actual pitch (Hertz): 200", "stop 0x2",
                   "delete " + kWavePath, "create " + kWavePath,
                   "write " + kWavePath + ", 176444 bytes", "play " + kWavePath + " 0x20009",
                   "Actual pitch (Hertz): 400", "stop 0x2", "stop 0x2", "delete " + kWavePath}));
}

TEST_F(WinmmTest, InDutchTheLoadedCaptionStandsBeforeThePitch) {
  support.setLang("nl");
  StopAt(100ms);
  winmm.SoundWinmmRND(440);
  EXPECT_EQ(scene.status, "Huidige toonhoogte (hertz): 440");
  support.KillAll();
  EXPECT_EQ(scene.status, "Huidige toonhoogte (hertz): ");
}

TEST_F(WinmmTest, AFullDiskIsSilentAndTheToneStillStops) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  for (const auto moment : {0ms, 100ms, 299ms}) {
    sim.At(moment, [this] { EXPECT_TRUE(sim.waves.playing.empty()); });
  }
  StopAt(300ms);
  winmm.SoundWinmmRND(440);
  EXPECT_EQ(sim.pump.now_ms(), 300);
  // Asked to play a file that is not there, the system would sound a signal of its own.
  EXPECT_EQ(Journal({Kind::kSound}), Lines{"stop 0x2"});
  EXPECT_TRUE(Journal({Kind::kMessage}).empty());
  EXPECT_TRUE(sim.files.PathsIn("C:\\Temp").empty());
}

TEST_F(WinmmTest, OnAFullDiskTheSweepIsSilentAndStillStops) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  StopAt(300ms);
  winmm.SoundWinmmLTH();
  EXPECT_LE(sim.pump.now_ms(), 300 + 75);
  for (const std::string& text : Journal({Kind::kSound})) EXPECT_EQ(text, "stop 0x2");
}

TEST_F(WinmmTest, ASweepIsHeardAgainWhenItsFileCanBeWrittenAgain) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  sim.At(200ms, [this] { sim.files.Heal(); });
  sim.At(300ms, [this] { EXPECT_TRUE(sim.files.Exists(kWavePath)); });
  StopAt(400ms);
  winmm.SoundWinmmLTH();
  const Lines sounds = Journal({Kind::kSound});
  EXPECT_EQ(std::count(sounds.begin(), sounds.end(), "play " + kWavePath + " 0x20009"), 3);
}

TEST_F(WinmmTest, AToneOfFixedLengthThatCannotBeWrittenReturnsItsErrorAtOnce) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  const auto failure = winmm.SoundWinmmRNDTMP(700, 200);
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(failure->code(), ErrorCode::kDiskFull);
  EXPECT_EQ(sim.pump.now_ms(), 0);
  EXPECT_TRUE(Journal({Kind::kSound}).empty());
}

TEST_F(WinmmTest, AToneOfTheGreatestLengthsIsHeardWhole) {
  sim.pump.journal_waits = true;
  EXPECT_FALSE(winmm.SoundWinmmRNDTMP(700, 64000).has_value());
  EXPECT_EQ(sim.pump.now_ms(), 64000);
  EXPECT_EQ(Journal({Kind::kWait, Kind::kSound}),
            (Lines{"play " + kWavePath + " 0x20009", "sleep 32767", "sleep 31233", "stop 0x2"}));
}

// Nothing of what could not be written whole is played.
TEST_F(WinmmTest, ADiskThatFillsUpWithinTheFileIsSilentAndTheToneStillStops) {
  sim.files.Fail(Operation::kWrite, kWavePath, ErrorCode::kDiskFull);
  sim.At(100ms, [this] { EXPECT_TRUE(sim.waves.playing.empty()); });
  StopAt(300ms);
  winmm.SoundWinmmRND(440);
  EXPECT_EQ(sim.pump.now_ms(), 300);
  EXPECT_TRUE(sim.files.PathsIn("C:\\Temp").empty());
}

TEST_F(WinmmTest, AReadOnlyWaveFileIsLeftAloneAndTheToneComesFromAnother) {
  sim.files.Put(kWavePath, "old");
  sim.files.Fail(Operation::kDelete, kWavePath, ErrorCode::kPathFileAccess);
  sim.files.Fail(Operation::kOpenForWriting, kWavePath, ErrorCode::kPathFileAccess);
  sim.At(50ms, [this] {
    EXPECT_NE(sim.waves.playing, kWavePath);
    EXPECT_EQ(sim.files.Get(sim.waves.playing).value_or("").size(), 176444u);
  });
  StopAt(100ms);
  EXPECT_NO_THROW(winmm.SoundWinmmRND(440));
  EXPECT_EQ(sim.pump.now_ms(), 100);
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), Lines{kWavePath});
  EXPECT_EQ(sim.files.Get(kWavePath), "old");
}

class ShortTonesTest : public RoutesFixture {};

TEST_F(ShortTonesTest, TheHelperModesUseTheSystemsBeep) {
  for (const char* code : {"16", "32"}) {
    sim.journal.Clear();
    state.SoundBit = base::SoundModeOf(code);
    short_tones.sound(700, 100);
    EXPECT_EQ(Journal({Kind::kSound}), (Lines{"beep 700 100"})) << code;
  }
}

TEST_F(ShortTonesTest, AutomaticSoundsExactlyAsWinmm) {
  Lines journals[2];
  for (int i = 0; i < 2; ++i) {
    sim.journal.Clear();
    state.SoundBit = base::SoundModeOf(i == 0 ? "128" : "256");
    short_tones.sound(700, 100);
    journals[i] = Journal({Kind::kFile, Kind::kSound});
  }
  EXPECT_EQ(journals[0], journals[1]);
  EXPECT_EQ(journals[0],
            (Lines{"create " + kWavePath, "write " + kWavePath + ", 176444 bytes",
                   "play " + kWavePath + " 0x20009", "stop 0x2", "delete " + kWavePath}));
}

TEST_F(ShortTonesTest, DirectSoundIsSilentAndReturnsAtOnce) {
  state.SoundBit = base::SoundMode::kDirectSound;
  short_tones.sound(700, 100);
  EXPECT_TRUE(Journal({Kind::kSound, Kind::kFile}).empty());
  EXPECT_EQ(sim.pump.now_ms(), 0);
}

class KillAllTest : public RoutesFixture {};

TEST_F(KillAllTest, SilencesEveryRouteInItsOrder) {
  sim.processes.running = {{1, "tone16.dll"}, {2, "mytone32.dll"}};
  sim.files.Put(kHandOver, " 440 \r\n");
  sim.files.Put(kWavePath, "wave");
  support.playing = 1;
  support.KillAll();
  EXPECT_EQ(Journal({Kind::kProcess, Kind::kSound, Kind::kControl, Kind::kFile}),
            (Lines{"terminate mytone32.dll", "terminate tone16.dll", "stop 0x2",
                   "Actual pitch (Hertz): ", "delete " + kHandOver, "delete " + kWavePath}));
  EXPECT_EQ(support.playing, 0);
}

// As at the end of the program, when the play that made it never comes to delete it.
TEST_F(KillAllTest, DeletesTheSecondFileOfAPlayThatIsStillUnderWay) {
  sim.files.Put(kWavePath, "another copy's");
  sim.files.Lock(kWavePath);
  sim.At(50ms, [this] {
    EXPECT_EQ(sim.files.PathsIn("C:\\Temp").size(), 2u);
    RouteSupport(sim.services, state, scene).KillAll();
    EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), Lines{kWavePath});
  });
  StopAt(100ms);
  winmm.SoundWinmmRND(440);
}

TEST_F(KillAllTest, AFileThatCannotBeDeletedDoesNotKeepTheOtherFromGoing) {
  sim.files.Put(kHandOver, " 440 \r\n");
  sim.files.Put(kWavePath, "wave");
  sim.files.Lock(kHandOver);
  support.KillAll();
  EXPECT_FALSE(sim.files.Exists(kWavePath));
}

TEST_F(KillAllTest, AHelperThatEndsWhileItIsBeingEndedIsNoFailure) {
  sim.processes.running = {{1, "tone32.dll"}};
  sim.processes.fleeting_ids = {1};
  sim.files.Put(kHandOver, " 440 \r\n");
  support.KillAll();
  EXPECT_TRUE(sim.processes.running.empty());
  EXPECT_FALSE(sim.files.Exists(kHandOver));
}

}  // namespace
}  // namespace tone
