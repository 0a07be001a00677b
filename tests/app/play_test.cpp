#include "tests/app/play_fixture.h"

namespace app {
namespace {

TEST_F(PlayTest, ATonePlaysFromPlayToStop) {
  At(1s, [this](Form1& form1) {
    form1.Option3.Click();
    sim.journal.Clear();
    form1.Command2.Click();
  });
  At(1300ms, [](Form1& form1) { form1.Command3.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kSound, Kind::kControl}),
            (Lines{
                "Form1.Command2 enabled: no",
                "Form1.Command3 enabled: yes",
                "Form1.settings enabled: no",
                "Form1.Option1 enabled: no",
                "Form1.Option2 enabled: no",
                "Form1.Option4 enabled: no",
                "Form1.Option5 enabled: no",
                "Form1.Option6 enabled: no",
                "Form1.Option7 enabled: no",
                "Form1.Option8 enabled: no",
                "Form1.Option9 enabled: no",
                "Form1.Option3 enabled: no",
                "play C:\\Temp\\tnfwinmmtmp.wav 0x20009",
                "Form1.StatusBar1 caption: Actual pitch (Hertz): 10000",
                "Form1.Command2 enabled: yes",
                "Form1.Command3 enabled: no",
                "Form1.settings enabled: yes",
                "Form1.Option1 enabled: yes",
                "Form1.Option2 enabled: yes",
                "Form1.Option3 enabled: yes",
                "Form1.Option4 enabled: yes",
                "Form1.Option5 enabled: yes",
                "Form1.Option6 enabled: yes",
                "Form1.Option7 enabled: yes",
                "Form1.Option8 enabled: yes",
                "Form1.Option9 enabled: yes",
                "stop 0x2",
                "Form1.StatusBar1 caption: Actual pitch (Hertz): ",
                "stop 0x2",
                "Form1.StatusBar1 caption: Actual pitch (Hertz):",
            }));
  EXPECT_EQ(EntriesAfterStart(), (Lines{"#Option 3 Clicked", "#Pressed Button 2", "10000",
                                        "#Pressed Button 3", "#Sound stopped"}));
  EXPECT_FALSE(sim.files.Exists(kWave));
  EXPECT_TRUE(sim.waves.playing.empty());
}

TEST_F(PlayTest, ThePitchIsLoggedWithABlankForTheSign) {
  At(1s, [](Form1& form1) {
    form1.Option2.Click();
    form1.Command2.Click();
  });
  At(1100ms, [this](Form1&) { EXPECT_EQ(LogEntries().back(), " 4500"); });
  At(1200ms, [](Form1& form1) { form1.Command3.Click(); });
  Run();
}

TEST_F(PlayTest, InputIsAnsweredAtOnceAndAStopLastsToTheEndOfItsTick) {
  At(1s, [this](Form1& form1) {
    form1.Option1.Click();
    sim.pump.journal_waits = true;
    form1.Command2.Click();
    EXPECT_EQ(sim.pump.now_ms(), 1300);
  });
  At(1210ms, [this](Form1& form1) {
    EXPECT_EQ(sim.pump.now_ms(), 1210);
    form1.Command3.Click();
  });
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kWait}),
            (Lines{"wait 100", "wait 100", "wait 100", "sleep 90"}));
}

struct ModeCase {
  int mode;
  std::string pitch;
};

class EveryModeTest : public PlayTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(EveryModeTest, PlaysItsPitchInBothPlayerModes) {
  for (const char* code : {"128", "256"}) {
    sim.files.Put(kSettings, GoodSettings(code));
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(start, [](Form1& form1) {
      form1.Options()[static_cast<std::size_t>(GetParam().mode - 1)]->Click();
      form1.Command2.Click();
    });
    At(start + 300ms, [this](Form1& form1) {
      EXPECT_EQ(form1.StatusBar1.Caption(), "Actual pitch (Hertz): " + GetParam().pitch);
      EXPECT_EQ(sim.waves.playing, kWave);
      EXPECT_TRUE(sim.files.Exists(kWave));
      form1.Command3.Click();
    });
    Run();
    EXPECT_FALSE(sim.files.Exists(kWave));
  }
}

INSTANTIATE_TEST_SUITE_P(Modes, EveryModeTest,
                         testing::Values(ModeCase{1, "1000"}, ModeCase{2, "4500"},
                                         ModeCase{3, "10000"}, ModeCase{4, "16600"},
                                         ModeCase{5, "21000"}, ModeCase{7, "1000"}));

TEST_F(PlayTest, TheEndsOfTheSliderArePassedAsTheyAre) {
  const std::vector<std::pair<int, std::string>> cases{{4, "4"}, {32000, "32000"}};
  for (const auto& [pitch, digits] : cases) {
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(start, [pitch = pitch](Form1& form1) {
      form1.Option7.Click();
      form1.HScroll1.ScrollTo(pitch);
      form1.Command2.Click();
    });
    At(start + 100ms, [digits = digits](Form1& form1) {
      EXPECT_EQ(form1.StatusBar1.Caption(), "Actual pitch (Hertz): " + digits);
      EXPECT_FALSE(form1.HScroll1.Enabled());
      form1.Command3.Click();
      EXPECT_TRUE(form1.HScroll1.Enabled());
    });
    Run();
    EXPECT_EQ(EntriesAfterStart()[2], digits);
  }
}

TEST_F(PlayTest, PlayWithNoModeChosenShowsItsMessageAndEndsTheProgram) {
  At(1s, [](Form1& form1) { form1.Command2.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), (Lines{"critical [Error] Insoluble error, contact Zevrin Software!"}));
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{"end"}));
  EXPECT_EQ(LogEntries().back(), " 0");
}

TEST_F(PlayTest, TheMorseToolOpensAndLeavesTheMainWindowUsable) {
  At(1s, [this](Form1& form1) {
    form1.Option8.Click();
    form1.Command2.Click();
    EXPECT_TRUE(program->form4.Visible());
    EXPECT_TRUE(form1.Command2.Enabled());
    EXPECT_FALSE(form1.Command3.Enabled());
    EXPECT_TRUE(form1.settings.Enabled());
    EXPECT_TRUE(form1.Option1.Enabled());
    EXPECT_EQ(form1.StatusBar1.Caption(), "Actual pitch (Hertz):");
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(EntriesAfterStart(), (Lines{"#Option 8 Clicked", "#Pressed Button 2", "3", "#Morse"}));
}

TEST_F(PlayTest, HearingAgeHandsOverTheSettingsAndStartsItsProgram) {
  At(1s, [this](Form1& form1) {
    form1.Option9.Click();
    sim.journal.Clear();
    form1.Command2.Click();
    EXPECT_TRUE(form1.Command2.Enabled());
    EXPECT_TRUE(form1.Option1.Enabled());
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.files.Get("C:\\Temp\\testhearing.ini"), "128\r\nen\r\n");
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{"start hearage.dll"}));
  EXPECT_EQ(EntriesAfterStart(), (Lines{"#Option 9 Clicked", "#Pressed Button 2"}));
}

TEST_F(PlayTest, AMissingHearingTestIsAnErrorOfPlay) {
  sim.processes.missing_commands = {"hearage.dll"};
  At(1s, [](Form1& form1) {
    form1.Option9.Click();
    form1.Command2.Click();
  });
  sim.At(2s, [this] { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  53,   Error value:  4");
  EXPECT_EQ(sim.Lines(kErrorLog)[1], "<File not found>");
}

TEST_F(PlayTest, HidingTheMainWindowEndsTheWaitLoopWithinOneTick) {
  At(1s, [this](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
    EXPECT_LE(sim.pump.now_ms(), 1500 + 208);
  });
  At(1500ms, [](Form1& form1) { form1.Hide(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(LogEntries().back(), "#Sound stopped");
  EXPECT_FALSE(sim.files.Exists(kWave));
}

TEST_F(PlayTest, AnotherProgramThatHidesTheMainWindowEndsTheWaitLoopToo) {
  At(1s, [this](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
    EXPECT_LE(sim.pump.now_ms(), 1500 + 208);
  });
  At(1500ms, [this](Form1&) { sim.windows.hidden_by_others = {"Form1"}; });
  EXPECT_FALSE(Run());
  EXPECT_EQ(LogEntries().back(), "#Sound stopped");
}

TEST_F(PlayTest, ClosingWhilePlayingEndsTheProcess) {
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(2s, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_FALSE(sim.files.Exists(kWave));
}

TEST_F(PlayTest, ClosingWhileAHelperPlaysEndsTheHelper) {
  sim.files.Put(kSettings, GoodSettings("32"));
  sim.processes.become = {{"tone32.dll", "tone32.dll"}};
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(2s, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_TRUE(sim.processes.running.empty());
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\sound.ini"));
}

TEST_F(PlayTest, ClosingAnIdleProgramLeavesAnotherCopysHelperAlone) {
  sim.processes.running = {{1, "tone32.dll"}};
  At(2s, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.processes.running.size(), 1u);
}

TEST_F(PlayTest, AModeThatWasDisabledBeforeAPlayStaysSo) {
  sim.files.Put(kSettings, GoodSettings("64"));
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(2s, [](Form1& form1) {
    form1.Command3.Click();
    EXPECT_FALSE(form1.Option6.Enabled());
    EXPECT_FALSE(form1.Option8.Enabled());
    EXPECT_FALSE(form1.Option9.Enabled());
    EXPECT_TRUE(form1.Option7.Enabled());
  });
  // The record is never cleared: not even after the sound mode has changed.
  At(3s, [](Form1& form1) {
    form1.sndwinmm.Click();
    EXPECT_TRUE(form1.Option6.Enabled());
    form1.Command2.Click();
  });
  At(4s, [](Form1& form1) {
    form1.Command3.Click();
    EXPECT_FALSE(form1.Option6.Enabled());
  });
  EXPECT_FALSE(Run());
}

}  // namespace
}  // namespace app
