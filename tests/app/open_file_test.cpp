// Opening a tone program: from the main window's menu, and by the command line.
#include "tests/app/play_fixture.h"
#include "tests/lang/file_of.h"

namespace app {
namespace {

constexpr char kTune[] = "C:\\My Tones\\a.tnf";
constexpr char kShortProgram[] =
    "%valid%\r\n[info]\r\n{236}\r\n{My tune}\r\n{visible}\r\n[sound]\r\n{50}\r\n<440>\r\n\\500\r\n";

class OpenFileTest : public PlayTest {
 protected:
  OpenFileTest() { sim.files.Put(kTune, kShortProgram); }

  Lines Processes() const { return sim.journal.Texts({Kind::kProcess}); }
};

TEST_F(OpenFileTest, TheDialogAsksForToneProgramsAndTheFileGoesToANewCopyUnquoted) {
  sim.file_dialogs.chosen = {kTune};
  At(1s, [](Form1& form1) { form1.openfile.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Messages(), (Lines{"open file [Select File] Tonmira file (*.tnf)|*.tnf|All files "
                               "(*.*)|*.* (tnf)"}));
  EXPECT_EQ(Processes(), (Lines{"start C:\\Tonmira\\tonmira.exe C:\\My Tones\\a.tnf"}));
  EXPECT_TRUE(main().Visible());
  EXPECT_FALSE(program->form9.Loaded());
}

TEST_F(OpenFileTest, ThePathWithBlanksReachesTheNewCopyWhole) {
  sim.environment.arguments = kTune;
  EXPECT_FALSE(Run());
  EXPECT_TRUE(program->form9.Visible());
  EXPECT_EQ(program->form9.Label4.Caption(), kTune);
  EXPECT_EQ(program->form9.Tones().ToneCount(), 1);
}

TEST_F(OpenFileTest, ARenamedProgramStartsItself) {
  sim.environment.program_name = "my tones";
  sim.file_dialogs.chosen = {kTune};
  At(1s, [](Form1& form1) { form1.openfile.Click(); });
  Run();
  EXPECT_EQ(Processes(), (Lines{"start C:\\Tonmira\\my tones.exe C:\\My Tones\\a.tnf"}));
}

TEST_F(OpenFileTest, ACancelledDialogOrAFileThatIsGoneStartsNothing) {
  sim.file_dialogs.chosen = {"", "C:\\My Tones\\gone.tnf"};
  At(1s, [](Form1& form1) {
    form1.openfile.Click();
    form1.openfile.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Processes(), Lines{});
}

TEST_F(OpenFileTest, TheSelectedModeIsSelectedAgainInEveryCase) {
  sim.file_dialogs.chosen = {kTune, ""};
  At(1s, [](Form1& form1) {
    form1.Option3.Click();
    form1.openfile.Click();
    form1.openfile.Click();
    EXPECT_EQ(form1.SelectedMode(), ToneMode(3));
    EXPECT_TRUE(form1.Command2.Enabled());
  });
  Run();
  EXPECT_EQ(EntriesAfterStart(),
            (Lines{"#Option 3 Clicked", "#Option 3 Clicked", "#Option 3 Clicked"}));
}

TEST_F(OpenFileTest, WithoutASelectedModeNoneIsSelected) {
  At(1s, [](Form1& form1) { form1.openfile.Click(); });
  Run();
  EXPECT_EQ(main().SelectedMode(), ToneMode(0));
  EXPECT_EQ(EntriesAfterStart(), Lines{});
}

TEST_F(OpenFileTest, WhileATonePlaysItPlaysOnAndCannotBeStartedTwice) {
  sim.file_dialogs.chosen = {kTune};
  At(1s, [](Form1& form1) {
    form1.Option7.Click();
    form1.Command2.Click();
  });
  At(1500ms, [this](Form1& form1) {
    const std::string status = form1.StatusBar1.Caption();
    form1.openfile.Click();
    EXPECT_EQ(Processes(), (Lines{"start C:\\Tonmira\\tonmira.exe C:\\My Tones\\a.tnf"}));
    EXPECT_FALSE(form1.Command2.Enabled());
    EXPECT_TRUE(form1.Command3.Enabled());
    EXPECT_FALSE(form1.HScroll1.Enabled());
    EXPECT_EQ(form1.StatusBar1.Caption(), status);
    EXPECT_EQ(status, "Actual pitch (Hertz): 1000");
    EXPECT_EQ(sim.waves.playing, kWave);
  });
  At(2s, [](Form1& form1) {
    form1.Command3.Click();
    EXPECT_TRUE(form1.Command2.Enabled());
    EXPECT_TRUE(form1.HScroll1.Enabled());
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.waves.playing, "");
}

TEST_F(OpenFileTest, InDutchTheStatusOfATonePlayingStays) {
  std::string settings = GoodSettings("256");
  settings.replace(settings.find("=EN"), 3, "=NL");
  sim.files.Put(kSettings, settings);
  sim.files.Put("lng_nl.dll", lang::FileOf("nl", 82));
  At(1s, [](Form1& form1) {
    form1.Option3.Click();
    form1.Command2.Click();
  });
  At(1500ms, [](Form1& form1) {
    EXPECT_EQ(form1.StatusBar1.Caption(), "text 29 10000");
    form1.openfile.Click();
    EXPECT_EQ(form1.StatusBar1.Caption(), "text 29 10000");
    form1.Command3.Click();
  });
  EXPECT_FALSE(Run());
}

TEST_F(OpenFileTest, ACopyThatCannotBeStartedIsReported) {
  sim.file_dialogs.chosen = {kTune};
  sim.processes.missing_commands = {"C:\\Tonmira\\tonmira.exe C:\\My Tones\\a.tnf"};
  At(1s, [](Form1& form1) { form1.openfile.Click(); });
  At(2s, [this](Form1&) { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  53,   Error value:  16");
}

TEST_F(OpenFileTest, FileModeShowsThePlayerAloneAndFinishesTheStartAfterThePlay) {
  sim.environment.arguments = std::string("\"") + kTune + "\"";
  sim.At(100ms, [this] {
    EXPECT_TRUE(program->form9.Visible());
    EXPECT_EQ(LogEntries().back(), "> Starting tnf file");
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}),
            (Lines{"Form1 loaded", "Form9 loaded", "Form9 shown"}));
  EXPECT_EQ(LogEntries()[12], "> Starting tnf file");
  EXPECT_EQ(LogEntries()[13], ">> Program starting finished");
}

TEST_F(OpenFileTest, APathWithCharactersOutsideTheCodePageIsTakenWhole) {
  const std::string path = "C:\\\xe6\xbc\xa2\xe5\xad\x97\\\xd0\xb0.tnf";
  sim.files.Put(path, kShortProgram);
  sim.environment.arguments = path;
  EXPECT_FALSE(Run());
  EXPECT_EQ(program->form9.Label4.Caption(), path);
}

TEST_F(OpenFileTest, AFileOnADriveThatIsGoneStartsTheProgramWithItsMainWindow) {
  sim.environment.arguments = "N:\\shared\\a.tnf";
  EXPECT_FALSE(Run());
  EXPECT_TRUE(main().Visible());
  EXPECT_FALSE(program->form9.Loaded());
  EXPECT_EQ(Messages(), Lines{});
}

}  // namespace
}  // namespace app
