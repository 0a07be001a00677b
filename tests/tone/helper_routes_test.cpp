#include "tests/tone/fixture.h"

namespace tone {
namespace {

class HelpersTest : public RoutesFixture {
 protected:
  HelpersTest() {
    sim.processes.become = {{"cmd /c play16.exe", "tone16.dll"}, {"tone32.dll", "tone32.dll"}};
  }
};

TEST_F(HelpersTest, Sound16HandsOverThePitchAndStartsItsHelperHidden) {
  sim.At(1ms, [this] { EXPECT_EQ(sim.files.Get(kHandOver), " 440 \r\n"); });
  StopAt(300ms);
  state.stop_flag = 1;
  helpers.Sound16(440);
  EXPECT_EQ(Journal({Kind::kFile, Kind::kProcess, Kind::kSound, Kind::kControl}),
            (Lines{"create " + kHandOver, "write " + kHandOver + ", 7 bytes",
                   "start hidden cmd /c play16.exe", "terminate tone16.dll", "stop 0x2",
                   "Actual pitch (Hertz): ", "delete " + kHandOver}));
}

TEST_F(HelpersTest, Sound32DiffersOnlyInItsCommand) {
  StopAt(300ms);
  helpers.Sound32(10000);
  EXPECT_EQ(
      Journal({Kind::kFile, Kind::kProcess, Kind::kSound, Kind::kControl}),
      (Lines{"create " + kHandOver, "write " + kHandOver + ", 9 bytes", "start hidden tone32.dll",
             "terminate tone32.dll", "stop 0x2", "Actual pitch (Hertz): ", "delete " + kHandOver}));
}

TEST_F(HelpersTest, TheInterpreterIsTheSystemsAndTheHelperTheProgramsOwn) {
  StopAt(300ms);
  helpers.Sound16(440);
  StopAt(300ms);
  helpers.Sound32(440);
  EXPECT_EQ(sim.processes.hidden_programs,
            (Lines{"C:\\Windows\\System32\\cmd.exe", "C:\\Tonmira\\tone32.dll"}));
}

TEST_F(HelpersTest, AHelperThatIsNotInTheProgramsFolderIsLookedForNowhereElse) {
  for (const char* name : {"play16.exe", "tone32.dll"}) {
    sim.files.Delete(std::string("C:\\Tonmira\\") + name);
  }
  StopAt(300ms);
  helpers.Sound16(440);
  StopAt(300ms);
  helpers.Sound32(440);
  EXPECT_TRUE(sim.processes.hidden_programs.empty());
  EXPECT_TRUE(Journal({Kind::kProcess, Kind::kMessage}).empty());
}

TEST_F(HelpersTest, WhereTheInterpreterLeavesOutTheCurrentFolderTheHelperIsNamedByItsPath) {
  sim.environment.variables["NoDefaultCurrentDirectoryInExePath"] = "1";
  StopAt(300ms);
  helpers.Sound16(440);
  EXPECT_EQ(Journal({Kind::kProcess}), (Lines{"start hidden cmd /c \"C:\\Tonmira\\play16.exe\""}));
}

TEST_F(HelpersTest, StopDuringATickOf208MsIsNoticedAtItsEndThenEverythingIsSilenced) {
  sim.pump.journal_waits = true;
  StopAt(210ms);
  helpers.Sound32(440);
  EXPECT_EQ(Journal({Kind::kWait, Kind::kProcess}),
            (Lines{"start hidden tone32.dll", "wait 208", "wait 208", "sleep 206",
                   "terminate tone32.dll"}));
}

TEST_F(HelpersTest, AMissingOrBlockedHelperLeavesSilenceUntilStop) {
  sim.processes.missing_commands = {"tone32.dll"};
  StopAt(1000ms);
  helpers.Sound32(440);
  EXPECT_EQ(sim.pump.now_ms(), 5 * 208);
  EXPECT_TRUE(Journal({Kind::kProcess, Kind::kMessage}).empty());
  EXPECT_FALSE(sim.files.Exists(kHandOver));
}

TEST_F(HelpersTest, AHelperThatEndsByItselfLeavesTheLoopWaitingForStop) {
  sim.At(100ms, [this] { sim.processes.running.clear(); });
  StopAt(1000ms);
  helpers.Sound16(440);
  EXPECT_EQ(sim.pump.now_ms(), 5 * 208);
}

TEST_F(HelpersTest, AHandOverFileThatCannotBeWrittenEndsTheProcedureQuietly) {
  sim.files.Fail(Operation::kOpenForWriting, kHandOver, ErrorCode::kDiskFull);
  helpers.Sound32(440);
  EXPECT_EQ(sim.pump.now_ms(), 0);
  EXPECT_TRUE(Journal({Kind::kProcess, Kind::kMessage}).empty());
}

TEST_F(HelpersTest, HidingTheMainWindowEndsTheTone) {
  sim.At(100ms, [this] { scene.visible = false; });
  helpers.Sound32(440);
  EXPECT_TRUE(sim.processes.running.empty());
}

TEST_F(HelpersTest, TheSweepOf32ShowsItsPitchAndRestartsTheHelperAtTheTop) {
  sim.At(1ms, [this] { EXPECT_EQ(sim.files.Get(kHandOver), "1\r\n"); });
  StopAt(std::chrono::milliseconds(200 * 161 + 1));
  helpers.LowToHigh(base::SoundMode::kSound32);
  const Lines all = Journal({Kind::kControl, Kind::kProcess});
  EXPECT_EQ(Lines(all.begin(), all.begin() + 4),
            (Lines{"Actual pitch (Hertz): ", "start hidden tone32.dll", "Actual pitch (Hertz): 200",
                   "Actual pitch (Hertz): 400"}));
  const auto reset = std::find(all.begin(), all.end(), "Resetting...");
  ASSERT_NE(reset, all.end());
  EXPECT_EQ(Lines(reset - 1, reset + 6),
            (Lines{"Actual pitch (Hertz): 31800", "Resetting...", "terminate tone32.dll",
                   "start hidden tone32.dll", "Actual pitch (Hertz): 100",
                   "Actual pitch (Hertz): 300", "Actual pitch (Hertz): 500"}));
  EXPECT_EQ(all.back(), "Actual pitch (Hertz): ");
  EXPECT_FALSE(sim.files.Exists(kHandOver));
}

TEST_F(HelpersTest, TheSweepOf16ShowsOnlyTheCaptionAndRestartsWithoutEndingItsHelper) {
  StopAt(std::chrono::milliseconds(200 * 160));
  helpers.LowToHigh(base::SoundMode::kClassic);
  const Lines all = Journal({Kind::kControl, Kind::kProcess});
  EXPECT_EQ(Lines(all.begin(), all.begin() + 3),
            (Lines{"Actual pitch (Hertz): ", "start hidden cmd /c play16.exe",
                   "Huidige toonhoogte (hertz):"}));
  EXPECT_EQ(std::count(all.begin(), all.end(), "start hidden cmd /c play16.exe"), 2);
  EXPECT_EQ(std::count(all.begin(), all.end(), "Resetting..."), 0);
  // Both copies of the helper are ended by Stop, none before.
  EXPECT_EQ(Lines(all.end() - 3, all.end()),
            (Lines{"terminate tone16.dll", "terminate tone16.dll", "Actual pitch (Hertz): "}));
}

TEST_F(HelpersTest, AMissingHelperLeavesTheSweepsDisplayRunningUntilStop) {
  sim.processes.missing_commands = {"tone32.dll"};
  StopAt(900ms);
  helpers.LowToHigh(base::SoundMode::kSound32);
  EXPECT_EQ(sim.pump.now_ms(), 1000);
  EXPECT_EQ(
      Journal({Kind::kControl}),
      (Lines{"Actual pitch (Hertz): ", "Actual pitch (Hertz): 200", "Actual pitch (Hertz): 400",
             "Actual pitch (Hertz): 600", "Actual pitch (Hertz): 800", "Actual pitch (Hertz): 1000",
             "Actual pitch (Hertz): "}));
}

TEST_F(HelpersTest, AHelperThatIsNotFoundAtTheResetIsRestartedAllTheSame) {
  sim.At(1000ms, [this] { sim.processes.running.clear(); });
  StopAt(std::chrono::milliseconds(200 * 161 + 1));
  helpers.LowToHigh(base::SoundMode::kSound32);
  const Lines processes = Journal({Kind::kProcess});
  EXPECT_EQ(processes,
            (Lines{"start hidden tone32.dll", "start hidden tone32.dll", "terminate tone32.dll"}));
}

TEST_F(HelpersTest, TheSweepOf32InDutchShowsTheLoadedCaptionAndThePitch) {
  support.setLang("nl");
  StopAt(0ms);
  helpers.LowToHigh(base::SoundMode::kSound32);
  EXPECT_EQ(Journal({Kind::kControl}),
            (Lines{"Huidige toonhoogte (hertz): ", "Huidige toonhoogte (hertz): 200",
                   "Huidige toonhoogte (hertz): "}));
}

}  // namespace
}  // namespace tone
