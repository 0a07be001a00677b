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

class OpenWindowsTest : public ProgramTest {
 protected:
  void OpenEveryWindow() {
    const std::initializer_list<ui::Window*> windows{
        &program->frm_about, &program->form8, &program->form7, &program->form6,
        &program->form5,     &program->form4, &program->form3, &program->form2};
    for (ui::Window* window : windows) {
      window->Show();
      EXPECT_TRUE(window->Visible()) << window->Name();
    }
    sim.journal.Clear();
  }
};

// The news window takes the status window along.
const Lines kUnloaded{"Form2 unloaded", "Form8 unloaded", "Form3 unloaded", "Form4 unloaded",
                      "Form5 unloaded", "Form6 unloaded", "Form7 unloaded", "frmAbout unloaded"};

TEST_F(OpenWindowsTest, AreUnloadedInTheirOrder) {
  At(1s, [this](Form1& form1) {
    OpenEveryWindow();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  Lines expected{"Form1 hidden", "Form3 hidden"};
  expected.insert(expected.end(), kUnloaded.begin(), kUnloaded.end());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}), expected);
}

TEST_F(OpenWindowsTest, TerminateStopsEverythingAndUnloadsEveryWindow) {
  settings::MainState state;
  At(1s, [this, &state](Form1& form1) {
    form1.Option1.Click();
    sim.At(1100ms, [this, &state] {
      EXPECT_EQ(sim.waves.playing, kWave);
      OpenEveryWindow();
      EXPECT_TRUE(RunTerminate(state));
      throw platform::simulated::ProcessEnded{};
    });
    form1.Command2.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(state.stop_flag, 1);
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_FALSE(sim.files.Exists(kWave));
  Lines expected = kUnloaded;
  expected.insert(expected.end(), {"Form1 hidden", "end"});
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kProcess}), expected);
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

TEST_F(ShutdownTest, TerminateEndsAProgramWhoseMainWindowIsNotThere) {
  program = std::make_unique<Application>(sim.services);
  settings::MainState state;
  EXPECT_TRUE(RunTerminate(state));
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kProcess}), Lines{"end"});
}

TEST_F(ShutdownTest, AProgramThatShowsNoWindowEndsItself) {
  At(100ms, [](Form1& form1) { form1.Hide(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{"end"}));
}

}  // namespace
}  // namespace app
