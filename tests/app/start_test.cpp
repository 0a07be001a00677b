#include "tests/app/fixture.h"

#include "app/form8.h"
#include "base/errors.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

const Lines kStartEntries{">> Program started",
                          "> Windows version check",
                          "1 . 6 . 1",
                          "> Write test",
                          "> Reading settings",
                          "AutoUpdate=n",
                          "SoundBit=128",
                          "Language=EN",
                          "SendData=n",
                          "Microphone=1",
                          "MicrophoneON=n",
                          "> Bit: 128",
                          ">> Program starting finished"};

class StartTest : public ProgramTest {};

TEST_F(StartTest, TheLogTellsEveryStepOfAStart) {
  EXPECT_FALSE(Run());
  const Lines lines = sim.Lines(kLog);
  ASSERT_GE(lines.size(), 3u);
  EXPECT_EQ(lines[0], "20-11-2026");
  EXPECT_EQ(lines[1], "14:30");
  EXPECT_EQ(lines[2], "");
  EXPECT_EQ(LogEntries(), kStartEntries);
}

TEST_F(StartTest, TheStatusWindowShowsEachStepAndTheMainWindowComesWhenItIsGone) {
  Run();
  EXPECT_EQ(
      sim.journal.Texts({Kind::kWindow}),
      (Lines{"Form1 loaded", "Form8 loaded", "Form8 shown", "Form8 unloaded", "Form1 shown"}));
  Lines steps;
  for (const std::string& text : sim.journal.Texts({Kind::kControl})) {
    if (text.starts_with("Form8.Label2")) steps.push_back(text);
  }
  EXPECT_EQ(steps,
            (Lines{"Form8.Label2 caption: Windows check...", "Form8.Label2 caption: Write test...",
                   "Form8.Label2 caption: Reading settings...",
                   "Form8.Label2 caption: Checking for updates..."}));
}

TEST_F(StartTest, TheStatusWindowNamesTheVersion) {
  const Form8 form8(sim.windows);
  EXPECT_EQ(form8.Label4.Caption(), "Version 2.3.6");
}

TEST_F(StartTest, AfterTheStartNothingPlaysAndNoModeIsSelected) {
  Run();
  EXPECT_TRUE(main().Visible());
  EXPECT_FALSE(main().Command3.Enabled());
  EXPECT_TRUE(main().Command2.Enabled());
  EXPECT_EQ(main().SelectedMode(), ToneMode(0));
  EXPECT_EQ(main().Label1.Caption(), "<< Select a mode >>");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(StartTest, AnExistingFileInQuotesEntersFileMode) {
  sim.files.Put("C:\\My Tones\\a.tnf", "");
  sim.environment.arguments = "\"C:\\My Tones\\a.tnf\"";
  EXPECT_TRUE(Run());
  for (const std::string& text : sim.journal.Texts({Kind::kWindow})) {
    EXPECT_TRUE(!text.ends_with("shown") || text == "Form9 shown") << text;
  }
  EXPECT_EQ(LogEntries()[12], "> Starting tnf file");
}

TEST_F(StartTest, AFileThatDoesNotExistIsIgnored) {
  sim.environment.arguments = "C:\\nowhere.tnf";
  EXPECT_FALSE(Run());
  EXPECT_EQ(LogEntries(), kStartEntries);
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow})[2], "Form8 shown");
  EXPECT_TRUE(main().Visible());
}

TEST_F(StartTest, ARelativePathIsResolvedBeforeTheProgramsFolderBecomesTheCurrentOne) {
  sim.files.Put("C:\\Users\\Tom\\a.tnf", "");
  sim.environment.arguments = "a.tnf";
  EXPECT_TRUE(Run());
  EXPECT_EQ(LogEntries()[12], "> Starting tnf file");
  EXPECT_EQ(sim.environment.current_folder, "C:\\Tonmira");
}

TEST_F(StartTest, AScreenAt120DpiIsWarnedOfAndLogged) {
  sim.screen.pixels_per_inch = {120, 120};
  Run();
  EXPECT_EQ(Messages(), (Lines{"exclamation [Warning] DPI settings could cause problems!"}));
  EXPECT_EQ(LogEntries()[0], ">>> Bad DPI settings");
  EXPECT_EQ(LogEntries()[1], ">> Program started");
  EXPECT_TRUE(main().Visible());
}

TEST_F(StartTest, At96DpiNothingIsShown) {
  sim.screen.pixels_per_inch = {96, 120};
  Run();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(LogEntries()[0], ">> Program started");
}

TEST_F(StartTest, Windows2000IsWarnedOfTwiceAndStartUpContinues) {
  sim.version.record = {1, 2, 5, 0};
  EXPECT_FALSE(Run());
  const std::string warning =
      "exclamation [Windows version] Warning: Windows 2000 detected! Classic sound mode will NOT "
      "work!";
  EXPECT_EQ(Messages(), (Lines{warning, warning}));
  EXPECT_EQ(LogEntries()[2], "1 . 5 . 0");
  EXPECT_TRUE(main().Visible());
}

TEST_F(StartTest, SupportedVersionsShowNoMessage) {
  for (const auto& [major, minor] : {std::pair{5, 1}, std::pair{6, 0}, std::pair{6, 2}}) {
    sim.version.record = {1, 2, major, minor};
    EXPECT_FALSE(Run());
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(StartTest, AnUnsupportedVersionEndsTheProcessDuringTheVersionCheck) {
  const platform::VersionRecord unsupported[] = {
      {1, 2, 10, 0}, {1, 2, 4, 0}, {1, 1, 5, 1}, {0, 2, 6, 1}};
  for (const auto& record : unsupported) {
    sim.journal.Clear();
    sim.version.record = record;
    EXPECT_TRUE(Run());
    EXPECT_EQ(Messages(),
              (Lines{"critical [Windows version] Upgrade your Windows to use Tonmira"}));
    EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{"end"}));
    EXPECT_EQ(LogEntries(), (Lines{">> Program started", "> Windows version check"}));
  }
}

TEST_F(StartTest, AFailingVersionCheckIsReportedAndMadeOnceMore) {
  sim.version.failing_queries = 1;
  sim.At(200ms, [this] { program->form6.done_flag = 1; });
  Run();
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  5,   Error value:  1027");
  EXPECT_EQ(LogEntries()[2], "1 . 6 . 1");
}

TEST_F(StartTest, DirectSoundDisablesTheModesItCannotPlay) {
  sim.files.Put(kSettings, GoodSettings("64"));
  Run();
  EXPECT_TRUE(main().snddirectsound.Checked());
  for (const int mode : {6, 8, 9}) {
    EXPECT_FALSE(main().Options()[static_cast<std::size_t>(mode - 1)]->Enabled()) << mode;
  }
  EXPECT_TRUE(main().Option7.Enabled());
}

TEST_F(StartTest, TheSoundModeIsCheckedInTheMenu) {
  const std::vector<std::pair<std::string, std::string>> cases{{"16", "Classic"},
                                                               {"32", "Sound32"},
                                                               {"64", "DirectSound"},
                                                               {"128", "Automatic"},
                                                               {"256", "Winmm"}};
  for (const auto& [code, caption] : cases) {
    sim.files.Put(kSettings, GoodSettings(code));
    Run();
    for (const ui::MenuItem* item : main().soundmode.Items()) {
      EXPECT_EQ(item->Checked(), item->Caption() == caption) << code << " " << item->Caption();
    }
  }
}

TEST_F(StartTest, OfflineNoNewsIsShownAndNoTestFileIsLeftBehind) {
  sim.files.Put("C:\\Temp\\testcon.dat", "left by an earlier run");
  Run();
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\testcon.dat"));
  for (const std::string& text : sim.journal.Texts({Kind::kWindow})) {
    EXPECT_FALSE(text.starts_with("Form3")) << text;
  }
}

TEST_F(StartTest, TheLogOfAPreviousRunIsGone) {
  sim.files.Put(kLog, "1-1-2001\r\n10:00\r\n\r\n#Old entry\r\n");
  Run();
  for (const std::string& line : sim.Lines(kLog)) EXPECT_NE(line, "#Old entry");
  EXPECT_EQ(sim.journal.Texts({Kind::kFile})[0], std::string("delete ") + kLog);
}

TEST_F(StartTest, AnOldLogThatAnotherCopyHoldsIsLeftAfterAPause) {
  sim.files.Put(kLog, "1-1-2001\r\n10:00\r\n");
  sim.files.Fail(Operation::kDelete, kLog, ErrorCode::kPermissionDenied);
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.pump.now_ms(), 2500);
  EXPECT_EQ(LogEntries(), kStartEntries);
  EXPECT_FALSE(sim.files.Exists(kErrorLog));
}

TEST_F(StartTest, AnotherErrorWithTheOldLogIsReportedAndTheStartGoesOnFromTheCommandLine) {
  sim.files.Put(kLog, "1-1-2001\r\n10:00\r\n");
  sim.files.Fail(Operation::kDelete, kLog, ErrorCode::kPathFileAccess);
  sim.At(120ms, [this] { program->form6.done_flag = 1; });
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  75,   Error value:  14");
  EXPECT_EQ(LogEntries(), kStartEntries);
}

TEST_F(StartTest, AFailureThatTheSecondPassMeetsAgainEndsTheProgramWithTheDialog) {
  sim.files.Fail(Operation::kOpenForWriting, kLog, ErrorCode::kDiskFull);
  sim.At(120ms, [this] { program->form6.done_flag = 1; });
  sim.At(500ms, [this] {
    EXPECT_TRUE(program->form6.Visible());
    EXPECT_EQ(program->form6.List1.Items()[1], "<Disk full>");
    program->form6.done_flag = 1;
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), Lines{});
}

TEST_F(StartTest, AnApplicationDataFolderThatCannotBeWrittenEndsTheProgramAtOnce) {
  sim.files.FailWritesIn(platform::simulated::kAppData, ErrorCode::kPermissionDenied);
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), (Lines{"exclamation [Write error] Write error"}));
  EXPECT_EQ(LogEntries(),
            (Lines{">> Program started", "> Windows version check", "1 . 6 . 1", "> Write test"}));
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\test.txt"));
}

TEST_F(StartTest, TheWriteTestLeavesNoProbeFiles) {
  Run();
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\test.txt"));
  EXPECT_FALSE(sim.files.Exists("C:\\Users\\Tom\\AppData\\Roaming\\test.txt"));
  const Lines files = sim.journal.Texts({Kind::kFile});
  EXPECT_NE(std::find(files.begin(), files.end(), "create C:\\Temp\\test.txt"), files.end());
  EXPECT_NE(
      std::find(files.begin(), files.end(), "create C:\\Users\\Tom\\AppData\\Roaming\\test.txt"),
      files.end());
}

TEST_F(StartTest, AProbeFileThatCannotBeDeletedIsReported) {
  sim.files.Fail(Operation::kDelete, "C:\\Temp\\test.txt", ErrorCode::kPermissionDenied);
  sim.At(120ms, [this] { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  1012");
}

}  // namespace
}  // namespace app
