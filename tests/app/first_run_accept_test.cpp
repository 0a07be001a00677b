#include "base/errors.h"
#include "tests/app/first_run_fixture.h"

namespace app {
namespace {

using base::ErrorCode;

// What the user chose, and what of it is written.
struct Choice {
  std::string name;
  std::vector<int> languages;  // one after the other
  bool refuses = false;
  std::string written;
};

const std::string kUploadStarted = "start hidden cmd /c \"C:\\Tonmira\\upsend.exe\"";

class AcceptTest : public FirstRunTest, public testing::WithParamInterface<Choice> {};

TEST_P(AcceptTest, WritesTheSettingsAndStartsAnew) {
  OnTheDialogAt(100ms, [](Form5& dialog) {
    for (const int language : GetParam().languages) dialog.Combo1.Choose(language);
    if (GetParam().refuses) dialog.Check1.Click();
    dialog.Command1.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.files.Get(kSettings), GetParam().written);
  // Who has just agreed to it sends the log of this run at its end.
  Lines processes{"start \"C:\\Tonmira\\tonmira.exe\"", kUploadStarted, "end"};
  if (GetParam().refuses) processes.erase(processes.begin() + 1);
  EXPECT_EQ(Processes(), processes);
  EXPECT_EQ(main().State().SendData, GetParam().refuses ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, AcceptTest,
    testing::Values(Choice{"NoLanguage", {}, false, Settings("EN", "y")},
                    Choice{"NoLanguageRefusing", {}, true, Settings("EN", "n")},
                    Choice{"English", {kEnglish}, false, Settings("EN", "y")},
                    Choice{"EnglishRefusing", {kEnglish}, true, Settings("EN", "n")},
                    Choice{"Dutch", {kDutch}, false, Settings("NL", "y")},
                    Choice{"DutchRefusing", {kDutch}, true, Settings("NL", "n")},
                    Choice{"DutchAtLast", {kEnglish, kDutch}, false, Settings("NL", "y")},
                    Choice{"EnglishAtLast", {kDutch, kEnglish}, false, Settings("EN", "y")}),
    [](const auto& choice) { return choice.param.name; });

// A screen reader's script, say.
TEST_F(FirstRunTest, WhatAnotherProgramChoseCountsAsChosen) {
  sim.windows.put_by_others = {{"Form5.Combo1", "1"}, {"Form5.Check1", "yes"}};
  AcceptAt(200ms);
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.files.Get(kSettings), Settings("NL", "n"));
  EXPECT_EQ(Processes(), (Lines{"start \"C:\\Tonmira\\tonmira.exe\"", "end"}));
}

TEST_F(FirstRunTest, DutchIsTheMainWindowsLanguageAsSoonAsItIsAccepted) {
  OnTheDialogAt(100ms, [](Form5& dialog) { dialog.Combo1.Choose(kDutch); });
  sim.At(150ms, [this] { EXPECT_EQ(main().State().language, ""); });
  AcceptAt(200ms);
  Run();
  EXPECT_EQ(main().State().language, "nl");
}

TEST_F(FirstRunTest, ATickTakenBackAllowsTheUploadAgain) {
  OnTheDialogAt(100ms, [](Form5& dialog) {
    dialog.Check1.Click();
    dialog.Check1.Click();
    dialog.Command1.Click();
  });
  Run();
  EXPECT_EQ(sim.files.Get(kSettings), Settings("EN", "y"));
}

TEST_F(FirstRunTest, TheSettingsAreOnTheDiskBeforeTheProgramStartsAnewAndEveryWindowIsUnloaded) {
  AcceptAt(100ms);
  sim.At(50ms, [this] { sim.journal.Clear(); });
  Run();
  const Lines seen = sim.journal.Texts({Kind::kFile, Kind::kProcess, Kind::kWindow});
  const std::string renamed = std::string("rename ") + kSettings + ".1a2b.tmp to " + kSettings;
  const auto rename = std::find(seen.begin(), seen.end(), renamed);
  const auto start = std::find(seen.begin(), seen.end(), "start \"C:\\Tonmira\\tonmira.exe\"");
  const auto unload = std::find(seen.begin(), seen.end(), "Form5 unloaded");
  ASSERT_NE(unload, seen.end());
  EXPECT_LT(rename, start);
  EXPECT_LT(start, unload);
  EXPECT_EQ(seen.back(), "end");
}

TEST_F(FirstRunTest, AFolderWithBlanksAndSpecialCharactersIsQuoted) {
  sim.environment.program_folder = "C:\\Tonmira (x86) & S\u00F6hne 100% ^!";
  sim.environment.program_name = "tonmira 2";
  AcceptAt(100ms);
  EXPECT_TRUE(Run());
  EXPECT_EQ(Processes()[0], "start \"C:\\Tonmira (x86) & S\u00F6hne 100% ^!\\tonmira 2.exe\"");
}

TEST_F(FirstRunTest, AFailingRestartIsReportedAndTheSettingsStand) {
  sim.processes.missing_commands = {"\"C:\\Tonmira\\tonmira.exe\""};
  AcceptAt(200ms);
  LeaveTheErrorDialogAt(500ms);
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  53,   Error value:  502");
  EXPECT_EQ(sim.files.Get(kSettings), Settings("EN", "y"));
  // The error log, and the activity log at the end.
  EXPECT_EQ(Processes(), (Lines{kUploadStarted, kUploadStarted, "end"}));
}

// What is in the settings file before, and the two states that may come after.
class FaultyDiskTest : public FirstRunTest,
                       public testing::WithParamInterface<std::optional<std::string>> {
 protected:
  void PutBefore() {
    if (GetParam()) {
      sim.files.Put(kSettings, *GetParam());
    } else {
      sim.files.Delete(kSettings);
    }
  }

  void ExpectBeforeOrAfter(int n) {
    const auto content = sim.files.Get(kSettings);
    EXPECT_TRUE(content == GetParam() || content == Settings("EN", "y")) << "operation " << n;
  }
};

TEST_P(FaultyDiskTest, AcceptingLeavesTheOldOrTheNewSettingsWhole) {
  for (int n = 1; n <= 5; ++n) {
    PutBefore();
    const std::chrono::milliseconds now(sim.pump.now_ms());
    sim.At(now + 100ms, [this, n] {
      sim.files.FailAt(n, ErrorCode::kDiskFull);
      program->form5.Command1.Click();
    });
    LeaveTheErrorDialogAt(now + 500ms);
    EXPECT_TRUE(Run());
    ExpectBeforeOrAfter(n);
    sim.files.Heal();
  }
}

TEST_P(FaultyDiskTest, AKillWhileAcceptingLeavesTheOldOrTheNewSettingsWhole) {
  for (int n = 1; n <= 5; ++n) {
    PutBefore();
    const std::chrono::milliseconds now(sim.pump.now_ms());
    sim.At(now + 100ms, [this, n] {
      sim.files.KillAt(n);
      program->form5.Command1.Click();
    });
    EXPECT_TRUE(Run());
    ExpectBeforeOrAfter(n);
    sim.files.Heal();
  }
}

INSTANTIATE_TEST_SUITE_P(Before, FaultyDiskTest,
                         testing::Values(std::nullopt, "AutoUpdate=y\r\nSoundbit=128\r\n"));

}  // namespace
}  // namespace app
