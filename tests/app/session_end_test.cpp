// The user logs off or shuts the machine down.
#include "base/errors.h"
#include "tests/app/online_fixture.h"
#include "tests/app/player_start_fixture.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

class SessionEndTest : public ProgramTest {
 protected:
  SessionEndTest() {
    sim.processes.become = {{"cmd /c play16.exe", "tone16.dll"}, {"tone32.dll", "tone32.dll"}};
  }

  // With consent, which is of no use then.
  void PutSettings(const std::string& sound_bit) {
    sim.files.Put(kSettings, "AutoUpdate=n\r\nSoundBit=" + sound_bit +
                                 "\r\nLanguage=EN\r\nSendData=y\r\nMicrophone=1\r\n"
                                 "MicrophoneON=n\r\n");
  }

  void ExpectAShortEnd() {
    EXPECT_EQ(sim.waves.playing, "");
    EXPECT_TRUE(sim.processes.running.empty());
    EXPECT_EQ(Messages(), Lines{});
    EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), Lines{kLog});
    for (const std::string& text : sim.journal.Texts({Kind::kProcess})) {
      EXPECT_FALSE(text.starts_with("start")) << text;
    }
    EXPECT_EQ(sim.journal.entries().back().text, "end");
  }
};

class PlayingSessionEndTest : public SessionEndTest,
                              public testing::WithParamInterface<std::string> {};

TEST_P(PlayingSessionEndTest, SilencesTheToneAndLeavesNothing) {
  PutSettings(GetParam());
  At(1s, [](Form1& form1) {
    form1.Option3.Click();
    form1.Command2.Click();
  });
  At(2s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.SessionEnds();
  });
  EXPECT_TRUE(Run());
  EXPECT_LE(sim.pump.now_ms(), 2000 + 55);
  ExpectAShortEnd();
}

INSTANTIATE_TEST_SUITE_P(SoundModes, PlayingSessionEndTest,
                         testing::Values("16", "32", "64", "128", "256"));

TEST_F(SessionEndTest, TheSecondWaveFileAndTheHearingTestsFileGoThoughAnotherCopyRuns) {
  PutSettings("256");
  sim.processes.running = {{1, "tonmira.exe"}, {2, "TONMIRA.EXE"}};
  sim.files.Put(kWave, "the other copy's");
  sim.files.Fail(Operation::kOpenForWriting, kWave, ErrorCode::kPermissionDenied);
  sim.files.Fail(Operation::kDelete, kWave, ErrorCode::kPermissionDenied);
  At(1s, [this](Form1& form1) {
    form1.Option9.Click();
    form1.Command2.Click();
    EXPECT_TRUE(sim.files.Exists("C:\\Temp\\testhearing.ini"));
    form1.Option3.Click();
    form1.Command2.Click();
  });
  At(2s, [this](Form1& form1) {
    EXPECT_NE(sim.waves.playing, kWave);
    EXPECT_TRUE(sim.files.Exists(sim.waves.playing));
    form1.SessionEnds();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), (Lines{kWave, kLog}));
}

TEST_F(SessionEndTest, NobodyIsAskedWhenAShutdownHangs) {
  sim.files.Put("C:\\Temp\\tnftmp.wav", "held");
  sim.files.Fail(Operation::kDelete, "C:\\Temp\\tnftmp.wav", ErrorCode::kPermissionDenied);
  At(1s, [](Form1& form1) { form1.Close(); });
  At(2s, [this](Form1&) {
    EXPECT_TRUE(program->form6.Visible());
    program->form6.SessionEnds();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), Lines{});
}

TEST_F(SessionEndTest, AMessageBoxThatWaitsDoesNotHoldIt) {
  sim.screen.pixels_per_inch = {120, 120};
  sim.messages.while_open = [this] { program->form8.SessionEnds(); };
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.entries().back().text, "end");
}

TEST_F(SessionEndTest, FilesThatCannotBeDeletedHoldNothingUp) {
  PutSettings("32");
  At(1s, [](Form1& form1) {
    form1.Option3.Click();
    form1.Command2.Click();
  });
  At(2s, [this](Form1& form1) {
    sim.files.FailWritesIn("C:\\Temp", ErrorCode::kPermissionDenied);
    form1.SessionEnds();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_TRUE(sim.processes.running.empty());
}

TEST_F(PlayerStartTest, TheEndOfTheSessionEndsAFileThatPlaysWithoutAWindow) {
  sim.At(1s, [this] { player().SessionEnds(); });
  EXPECT_TRUE(Open(program_files::Invisible(program_files::ProgramWith({{440, 900}, {880, 900}}))));
  EXPECT_EQ(sim.waves.playing, "");
  EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), Lines{kLog});
  EXPECT_EQ(Messages(), Lines{});
}

}  // namespace
}  // namespace app
