// Whether the news are shown when the program starts, and when they go.
#include "tests/app/online_fixture.h"

namespace app {
namespace {

class NewsStartTest : public OnlineTest {
 protected:
  void GoOnline() { Answer(kTestAddress, "ok"); }

  online::Form3& News() { return program->form3; }
};

TEST_F(NewsStartTest, OnlineTheNewsPageIsShownSilentlyAndTheTestFileIsGone) {
  GoOnline();
  EXPECT_FALSE(Run());
  EXPECT_TRUE(News().Visible());
  EXPECT_TRUE(main().Visible());
  EXPECT_EQ(News().Caption(), "Tonmira online news");
  EXPECT_FALSE(sim.files.Exists(kTestFile));
  Lines steps;
  for (const std::string& text : sim.journal.Texts({Kind::kWindow, Kind::kControl})) {
    if (text.starts_with("Form3")) steps.push_back(text);
  }
  EXPECT_EQ(steps,
            (Lines{"Form3 loaded", "Form3 shown", "Form3.WebBrowser1 silent: yes",
                   "Form3.WebBrowser1 address: https://www.tonmira.example/information.html"}));
}

TEST_F(NewsStartTest, TheNewsComeBeforeTheStatusWindowGoesAndTheMainWindowComes) {
  GoOnline();
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}),
            (Lines{"Form1 loaded", "Form8 loaded", "Form8 shown", "Form3 loaded", "Form3 shown",
                   "Form8 unloaded", "Form1 shown"}));
}

TEST_F(NewsStartTest, OnAFirstRunTheAgreementsStandBeforeTheNews) {
  sim.files.Delete(kSettings);
  GoOnline();
  Run();
  EXPECT_TRUE(News().Visible());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}).back(), "Form5 shown");
  EXPECT_FALSE(main().Visible());
}

TEST_F(NewsStartTest, AnEmptyTestFileIsAnAnswer) {
  Answer(kTestAddress, "");
  Run();
  EXPECT_TRUE(News().Visible());
}

TEST_F(NewsStartTest, OfflineNoNewsAreShownAndNoTestFileIsLeft) {
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
  EXPECT_TRUE(main().Visible());
}

TEST_F(NewsStartTest, ATestFileOfAnEarlierRunIsNoConnection) {
  sim.files.Put(kTestFile, "left by an earlier run");
  Run();
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
}

TEST_F(NewsStartTest, WithAToneProgramOnTheCommandLineNoNewsAreShownAndTheTestFileIsGone) {
  GoOnline();
  sim.files.Put("C:\\a.tnf", "");
  sim.environment.arguments = "C:\\a.tnf";
  Run();
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
  EXPECT_EQ(sim.journal.Texts({Kind::kDownload}),
            (Lines{"download " + kTestAddress + " to " + kTestFile}));
}

TEST_F(NewsStartTest, ASilentSiteMeansNoNews) {
  BeSilent(kTestAddress);
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
}

TEST_F(NewsStartTest, ATestFileThatCannotBeDeletedIsReported) {
  GoOnline();
  sim.files.Fail(platform::simulated::Operation::kDelete, kTestFile,
                 base::ErrorCode::kPermissionDenied);
  At(1s, [this](Form1&) { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  14");
}

TEST_F(NewsStartTest, ClosingTheMainWindowHidesTheNewsFirstAndEndsEverything) {
  GoOnline();
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kProcess}),
            (Lines{"Form1 hidden", "Form3 hidden", "Form3 unloaded", "end"}));
}

TEST_F(NewsStartTest, AnErrorHidesTheNews) {
  GoOnline();
  At(1s, [this](Form1& form1) {
    sim.files.Fail(platform::simulated::Operation::kOpenForReading, kSettings,
                   base::ErrorCode::kPermissionDenied);
    form1.autoupdate.Click();
  });
  At(2s, [this](Form1&) { EXPECT_FALSE(News().Visible()); });
  At(3s, [this](Form1&) { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
}

}  // namespace
}  // namespace app
