#include "base/errors.h"
#include "tests/app/first_run_fixture.h"
#include "tests/lang/file_of.h"

namespace app {
namespace {

using lang::FileOf;

using base::ErrorCode;
using platform::simulated::Operation;

const std::string kDutchText =
    "Na het klikken op \"Accepteren\" geeft u Zevrin Software toestemming om anonieme data te "
    "verzenden naar een server. Deze data wordt gebruikt om Tonmira beter te maken. Als u de "
    "checkbox onderaan dit venster selecteert zal dit niet gebeuren.";
const std::string kEnglishText =
    "By pressing on \"Accept\" you give Zevrin Software permission to send anonymous data about "
    "using Tonmira to a server. This data will be used to make Tonmira better. If you select the "
    "checkbox below no data will be sent to our servers.";

// The captions of the dialog, in the order of its controls.
const Lines kEnglishCaptions{
    "Language:",
    kEnglishText,
    "By pressing on \"Accept\" you know that Zevrin Software is not responsible for damage to "
    "hearing and the consequences of this.",
    "By pressing on \"Accept\" you are aware that Tonmira is protected by copyright.",
    "I don't want to send anonymous data",
    "Accept",
    "Don't accept"};
const Lines kDutchCaptions{
    "Taal:",
    kDutchText,
    "Na het klikken op \"Accepteren\" weet u dat Zevrin Software niet aansprakelijk is voor schade "
    "aan uw gehoor en de gevolgen daarvan.",
    "Na het klikken op \"Accepteren\" weet u dat Tonmira is beschermt met copyright.",
    "Ik wil geen anonieme data verzenden",
    "Accepteren",
    "Niet accepteren"};

Lines CaptionsOf(const Form5& dialog) {
  return {dialog.Label7.Caption(),  dialog.Label1.Caption(), dialog.Label4.Caption(),
          dialog.Label6.Caption(),  dialog.Check1.Caption(), dialog.Command1.Caption(),
          dialog.Command2.Caption()};
}

TEST_F(FirstRunTest, TheDialogStandsInPlaceOfTheMainWindow) {
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}),
            (Lines{"Form1 loaded", "Form8 loaded", "Form8 shown", "Form5 loaded", "Form5 shown",
                   "Form8 unloaded"}));
  EXPECT_EQ(dialog().Caption(), "License agreements");
  EXPECT_FALSE(main().Visible());
}

TEST_F(FirstRunTest, TheRestOfTheStartStillRuns) {
  sim.files.Put("C:\\Temp\\testcon.dat", "left by an earlier run");
  Run();
  EXPECT_EQ(LogEntries(),
            (Lines{">> Program started", "> Windows version check", "1 . 6 . 1", "> Write test",
                   "> Reading settings", "> New file", "> Bit:", ">> Program starting finished"}));
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\testcon.dat"));
}

TEST_F(FirstRunTest, ADamagedFileShowsTheDialogAndStaysUntilItIsAccepted) {
  const std::string damaged = "AutoUpdate=y\r\nSoundbit=7\r\n";
  sim.files.Put(kSettings, damaged);
  sim.At(100ms, [&] { EXPECT_EQ(sim.files.Get(kSettings), damaged); });
  AcceptAt(200ms);
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.files.Get(kSettings), Settings("EN", "y"));
}

TEST_F(FirstRunTest, ItIsDesignedInEnglishAndNothingIsChosen) {
  Run();
  EXPECT_EQ(CaptionsOf(dialog()), kEnglishCaptions);
  EXPECT_EQ(dialog().Combo1.Items(), (Lines{"English", "Dutch"}));
  EXPECT_EQ(dialog().Combo1.ListIndex(), ui::ComboBox::kNone);
  EXPECT_FALSE(dialog().Check1.Value());
}

TEST_F(FirstRunTest, EveryChoiceOfTheLanguageSwitchesEveryText) {
  Run();
  for (int round = 0; round < 2; ++round) {
    dialog().Combo1.Choose(kDutch);
    EXPECT_EQ(CaptionsOf(dialog()), kDutchCaptions);
    dialog().Combo1.Choose(kEnglish);
    EXPECT_EQ(CaptionsOf(dialog()), kEnglishCaptions);
  }
  EXPECT_EQ(dialog().Combo1.Items(), (Lines{"English", "Dutch"}));
  EXPECT_EQ(dialog().Caption(), "License agreements");
}

TEST_F(FirstRunTest, NoKeyAcceptsByAccidentAndEscapeDeclines) {
  Run();
  EXPECT_EQ(dialog().DefaultButton(), nullptr);
  EXPECT_EQ(dialog().CancelButton(), &dialog().Command2);
}

TEST_F(FirstRunTest, TheNextStartComesUpInTheChosenLanguage) {
  sim.files.Put("lng_nl.dll", FileOf("nl", 70));
  OnTheDialogAt(100ms, [](Form5& dialog) {
    dialog.Combo1.Choose(kDutch);
    dialog.Command1.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_FALSE(Run());
  EXPECT_TRUE(main().Visible());
  EXPECT_FALSE(dialog().Loaded());
  EXPECT_TRUE(main().dutch.Checked());
  EXPECT_EQ(main().Command2.Caption(), "text 14");
}

TEST_F(FirstRunTest, TheNextStartWaitsForALogThatTheEndingCopyStillHolds) {
  AcceptAt(100ms);
  EXPECT_TRUE(Run());
  sim.files.Fail(Operation::kDelete, kLog, ErrorCode::kPermissionDenied);
  const auto before = sim.pump.now_ms();
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.pump.now_ms(), before + 2500);
  EXPECT_TRUE(main().Visible());
  EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
}

// The ways to leave the dialog without accepting.
struct WayOut {
  std::string name;
  std::function<void(Form5&)> leave;
};

class DeclineTest : public FirstRunTest, public testing::WithParamInterface<WayOut> {};

TEST_P(DeclineTest, EndsTheProgramWithoutAFileSoTheNextStartShowsTheDialogAgain) {
  OnTheDialogAt(100ms, [](Form5& dialog) {
    dialog.Combo1.Choose(kDutch);
    GetParam().leave(dialog);
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Processes(), (Lines{"end"}));
  EXPECT_EQ(sim.windows.open_views(), 1) << "only the main window's, which the end takes with it";
  EXPECT_EQ(sim.files.PathsIn(platform::simulated::kAppData), Lines{});
  EXPECT_EQ(main().State().SendData, 0);
  EXPECT_FALSE(Run());
  EXPECT_TRUE(dialog().Visible());
  EXPECT_EQ(CaptionsOf(dialog()), kEnglishCaptions);
}

INSTANTIATE_TEST_SUITE_P(Ways, DeclineTest,
                         testing::Values(WayOut{"DontAccept",
                                                [](Form5& dialog) { dialog.Command2.Click(); }},
                                         WayOut{"TheFrame", [](Form5& dialog) { dialog.Close(); }}),
                         [](const auto& way) { return way.param.name; });

TEST_F(FirstRunTest, DecliningLeavesADamagedFileAsItWas) {
  sim.files.Put(kSettings, "AutoUpdate=maybe\r\n");
  OnTheDialogAt(100ms, [](Form5& dialog) { dialog.Command2.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.files.Get(kSettings), "AutoUpdate=maybe\r\n");
}

TEST_F(FirstRunTest, AFolderThatBecameUnwritableIsReportedAndNothingCountsAsAccepted) {
  sim.At(100ms, [this] {
    sim.files.FailWritesIn(platform::simulated::kAppData, ErrorCode::kPermissionDenied);
  });
  OnTheDialogAt(200ms, [](Form5& dialog) { dialog.Combo1.Choose(kDutch); });
  AcceptAt(200ms);
  LeaveTheErrorDialogAt(500ms);
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  502");
  EXPECT_EQ(sim.files.PathsIn(platform::simulated::kAppData), Lines{});
  EXPECT_EQ(Processes(), (Lines{"end"}));
  EXPECT_EQ(main().State().SendData, 0);
  EXPECT_EQ(main().State().language, "");
}

TEST_F(FirstRunTest, TheErrorDialogStandsInPlaceOfTheDialog) {
  sim.processes.missing_commands = {"\"C:\\Tonmira\\tonmira.exe\""};
  AcceptAt(200ms);
  sim.At(300ms, [this] {
    EXPECT_FALSE(dialog().Visible());
    EXPECT_TRUE(program->form6.Visible());
  });
  LeaveTheErrorDialogAt(500ms);
  EXPECT_TRUE(Run());
}

TEST_F(FirstRunTest, ALeftoverLanguageFileIsDeleted) {
  sim.files.Put("nl.ini", "nl");
  Run();
  EXPECT_FALSE(sim.files.Exists("nl.ini"));
  EXPECT_TRUE(dialog().Visible());
}

TEST_F(FirstRunTest, ALeftoverLanguageFileThatCannotBeDeletedIsReported) {
  sim.files.Put("nl.ini", "nl");
  sim.files.Lock("nl.ini");
  LeaveTheErrorDialogAt(500ms);
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  504");
  EXPECT_FALSE(sim.files.Exists(kSettings));
}

TEST_F(FirstRunTest, AStartWithGoodSettingsLeavesTheDialogAndTheLeftoverAlone) {
  sim.files.Put(kSettings, GoodSettings());
  sim.files.Put("nl.ini", "nl");
  EXPECT_FALSE(Run());
  EXPECT_FALSE(dialog().Loaded());
  EXPECT_TRUE(sim.files.Exists("nl.ini"));
}

// The start goes on; the file cannot be written in its place either, and that is told.
TEST_F(FirstRunTest, AFolderInPlaceOfTheSettingsCountsAsNoFile) {
  sim.files.AddFolder(kSettings);
  OnTheDialogAt(100ms, [this](Form5& dialog) {
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
    dialog.Command1.Click();
  });
  LeaveTheErrorDialogAt(1s);
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  75,   Error value:  502");
}

}  // namespace
}  // namespace app
