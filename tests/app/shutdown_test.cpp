#include "tests/app/fixture.h"

#include "base/errors.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

class ShutdownTest : public ProgramTest {};

TEST_F(ShutdownTest, ClosingTheWindowSilencesTheSoundAndEndsTheProcess) {
  sim.files.Put("C:\\Temp\\tnftmp.wav", "left");
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kSound, Kind::kFile, Kind::kProcess}),
            (Lines{"Form1 hidden", "delete C:\\Temp\\tnftmp.wav", "stop 0x2", "end"}));
  EXPECT_EQ(main().State().stop_flag, 1);
}

TEST_F(ShutdownTest, TheExitMenuClosesTheProgram) {
  At(1s, [](Form1& form1) { form1.exit.Click(); });
  EXPECT_TRUE(Run());
}

TEST_F(ShutdownTest, OpenWindowsAreUnloadedInTheirOrder) {
  At(1s, [this](Form1& form1) {
    form1.Command1.Click();
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}), (Lines{"Form1 hidden", "Form2 unloaded"}));
}

class HangingShutdownTest : public ProgramTest {
 protected:
  // A shutdown that hangs: deleting the file fails, and the error dialog waits.
  HangingShutdownTest() {
    sim.files.Put("C:\\Temp\\tnftmp.wav", "held");
    sim.files.Fail(Operation::kDelete, "C:\\Temp\\tnftmp.wav", ErrorCode::kPermissionDenied);
    At(1s, [](Form1& form1) { form1.Close(); });
  }
};

TEST_F(HangingShutdownTest, TheSecondCloseAsksAndYesEndsTheProcessAtOnce) {
  sim.messages.answers = {platform::kAnswerYes};
  At(2s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kMessage, Kind::kWindow, Kind::kSound, Kind::kProcess}),
            (Lines{"critical yes/no [Error] Do you want to forcibly close tonmira?", "end"}));
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  15");
}

TEST_F(HangingShutdownTest, OnNoTheNormalSequenceGoesOn) {
  sim.messages.answers = {platform::kAnswerNo};
  At(2s, [this](Form1& form1) {
    sim.files.Heal();
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kSound, Kind::kProcess}), (Lines{"stop 0x2", "end"}));
}

TEST_F(ShutdownTest, TheFirstCloseAsksNothing) {
  At(1s, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ShutdownTest, TerminateStopsEverythingAndUnloadsEveryWindow) {
  Run();
  sim.journal.Clear();
  settings::MainState state;
  EXPECT_TRUE(RunTerminate(state));
  EXPECT_EQ(state.stop_flag, 1);
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kProcess}), (Lines{"Form1 hidden", "end"}));
}

TEST_F(ShutdownTest, AProgramThatShowsNoWindowEndsItself) {
  At(100ms, [](Form1& form1) { form1.Hide(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{"end"}));
}

}  // namespace
}  // namespace app
