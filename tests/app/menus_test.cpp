#include "tests/app/fixture.h"

#include "base/errors.h"

namespace app {
namespace {

class MenusTest : public ProgramTest {};

TEST_F(MenusTest, AChosenSoundModeIsCheckedAloneKeptAndWrittenToTheFile) {
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.sndwinmm.Click();
  });
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kControl}),
            (Lines{"Form1.sndwinmm checked: yes", "Form1.sndautomatic checked: no"}));
  EXPECT_EQ(base::FactsOf(main().State().SoundBit).code, "256");
  EXPECT_EQ(sim.Lines(kSettings), (Lines{"AutoUpdate=n", "SoundBit=256", "Language=EN",
                                         "SendData=n", "Microphone=1", "MicrophoneON=n"}));
  EXPECT_EQ(LogEntries().back(), "> Write action, Line:  2, Value: SoundBit=256");
}

TEST_F(MenusTest, EverySoundModeHasItsCode) {
  const std::vector<std::pair<std::string, std::string>> cases{{"sndclassic", "16"},
                                                               {"sndsound32", "32"},
                                                               {"snddirectsound", "64"},
                                                               {"sndautomatic", "128"},
                                                               {"sndwinmm", "256"}};
  for (const auto& [name, code] : cases) {
    const auto now = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(now, [name = name, code = code](Form1& form1) {
      for (ui::MenuItem* item : form1.soundmode.Items()) {
        if (item->Name() == name) item->Click();
      }
      for (const ui::MenuItem* item : form1.soundmode.Items()) {
        EXPECT_EQ(item->Checked(), item->Name() == name);
      }
    });
    Run();
    EXPECT_EQ(base::FactsOf(main().State().SoundBit).code, code);
    EXPECT_EQ(sim.Lines(kSettings)[1], "SoundBit=" + code);
  }
}

TEST_F(MenusTest, DirectSoundTakesTheToolsAwayAndSelectsTheFirstMode) {
  At(1s, [](Form1& form1) {
    form1.Option6.Click();
    form1.snddirectsound.Click();
    EXPECT_FALSE(form1.Option6.Enabled());
    EXPECT_FALSE(form1.Option8.Enabled());
    EXPECT_FALSE(form1.Option9.Enabled());
    EXPECT_EQ(form1.SelectedMode(), ToneMode(1));
    EXPECT_EQ(form1.Label1.Caption(),
              "A low tone of 1000 Hz. Everybody hears it: use it to check your speakers.");
  });
  Run();
}

TEST_F(MenusTest, ClassicBringsThemBackAndSelectsTheFirstMode) {
  sim.files.Put(kSettings, GoodSettings("64"));
  At(1s, [](Form1& form1) {
    form1.Option5.Click();
    form1.sndclassic.Click();
    EXPECT_TRUE(form1.Option6.Enabled());
    EXPECT_TRUE(form1.Option8.Enabled());
    EXPECT_TRUE(form1.Option9.Enabled());
    EXPECT_EQ(form1.SelectedMode(), ToneMode(1));
  });
  Run();
}

TEST_F(MenusTest, TheOtherSoundModesBringThemBackAndLeaveTheSelection) {
  for (const char* name : {"sndsound32", "sndautomatic", "sndwinmm"}) {
    sim.files.Put(kSettings, GoodSettings("64"));
    const auto now = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(now, [name](Form1& form1) {
      form1.Option5.Click();
      for (ui::MenuItem* item : form1.soundmode.Items()) {
        if (item->Name() == name) item->Click();
      }
      EXPECT_TRUE(form1.Option6.Enabled());
      EXPECT_TRUE(form1.Option8.Enabled());
      EXPECT_TRUE(form1.Option9.Enabled());
      EXPECT_EQ(form1.SelectedMode(), ToneMode(5));
    });
    Run();
  }
}

TEST_F(MenusTest, TheUpdateMenuTogglesLineOne) {
  At(1s, [this](Form1& form1) {
    form1.autoupdate.Click();
    EXPECT_TRUE(form1.autoupdate.Checked());
    EXPECT_EQ(sim.Lines(kSettings)[0], "AutoUpdate=y");
    form1.autoupdate.Click();
    EXPECT_FALSE(form1.autoupdate.Checked());
    EXPECT_EQ(sim.Lines(kSettings)[0], "AutoUpdate=n");
  });
  Run();
}

TEST_F(MenusTest, TheLanguageMenusWriteLineThree) {
  At(1s, [this](Form1& form1) {
    form1.dutch.Click();
    EXPECT_TRUE(form1.dutch.Checked());
    EXPECT_FALSE(form1.english.Checked());
    EXPECT_EQ(sim.Lines(kSettings)[2], "Language=NL");
    EXPECT_EQ(form1.State().language, "nl");
    form1.english.Click();
    EXPECT_FALSE(form1.dutch.Checked());
    EXPECT_TRUE(form1.english.Checked());
    EXPECT_EQ(sim.Lines(kSettings)[2], "Language=EN");
    EXPECT_EQ(form1.State().language, "en");
  });
  Run();
}

TEST_F(MenusTest, TheMicrophoneMenuWritesLineSixAndEnablesItsButtons) {
  At(1s, [this](Form1& form1) {
    EXPECT_FALSE(form1.Command4.Enabled());
    form1.microinputonoff.Click();
    EXPECT_TRUE(form1.Command4.Enabled());
    EXPECT_TRUE(form1.Command5.Enabled());
    EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=y");
    form1.microinputonoff.Click();
    EXPECT_FALSE(form1.Command4.Enabled());
    EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=n");
  });
  Run();
}

TEST_F(MenusTest, TheSensitivityStaysBetween1And20) {
  At(1s, [this](Form1& form1) {
    form1.microinputonoff.Click();
    form1.Command5.Click();
    EXPECT_EQ(form1.State().Microphone, 1);
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone=1");
    form1.Command4.Click();
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 2");
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone= 2");
    for (int i = 0; i < 30; ++i) form1.Command4.Click();
    EXPECT_EQ(form1.State().Microphone, 20);
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone= 20");
  });
  Run();
}

TEST_F(MenusTest, ALevelAsTheButtonsWriteItIsReadBackAtTheNextStart) {
  sim.files.Put(kSettings,
                "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=n\r\nMicrophone= 7\r\n"
                "MicrophoneON=y\r\n");
  At(1s, [this](Form1& form1) {
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 7");
    form1.Command4.Click();
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 8");
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone= 8");
  });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(program->form5.Loaded());
  const Lines entries = LogEntries();
  EXPECT_EQ(std::count(entries.begin(), entries.end(), "Microphone= 7"), 1);
}

TEST_F(MenusTest, TheSettingsMenuCannotBeUsedWhileATonePlays) {
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(1500ms, [](Form1& form1) {
    form1.sndwinmm.Click();
    EXPECT_EQ(base::FactsOf(form1.State().SoundBit).code, "128");
  });
  At(2s, [](Form1& form1) { form1.Command3.Click(); });
  Run();
}

TEST_F(MenusTest, HelpOpensItsWindowOnceAndF1DoesTheSame) {
  At(1s, [this](Form1& form1) {
    form1.Command1.Click();
    EXPECT_TRUE(program->form2.Visible());
    program->form2.Command1.Click();
    EXPECT_FALSE(program->form2.Loaded());
    form1.HelpRequested();
    EXPECT_TRUE(program->form2.Visible());
  });
  EXPECT_FALSE(Run());
}

TEST_F(MenusTest, AskingForHelpAgainBringsItsWindowToTheFront) {
  At(1s, [this](Form1& form1) {
    form1.Command1.Click();
    sim.journal.Clear();
    form1.Command1.Click();
    EXPECT_EQ(sim.journal.Texts({Kind::kWindow}), (Lines{"Form2 shown"}));
  });
  EXPECT_FALSE(Run());
}

TEST_F(MenusTest, ASettingsFileThatCannotBeWrittenIsReportedAndKeepsItsContent) {
  sim.At(1s, [this] {
    sim.files.FailWritesIn(platform::simulated::kAppData, base::ErrorCode::kPermissionDenied);
    program->form1.sndwinmm.Click();
  });
  sim.At(2s, [this] { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  102");
  EXPECT_EQ(sim.files.Get(kSettings), GoodSettings());
}

}  // namespace
}  // namespace app
