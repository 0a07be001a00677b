#include <algorithm>

#include "tests/online/fixture.h"

namespace app {
namespace {

class NewsTest : public OnlineTest {
 protected:
  void GoOnline() { Answer(kTestAddress, "ok"); }

  online::Form3& News() { return program->form3; }
};

TEST_F(NewsTest, OnlineTheNewsPageIsShownSilentlyAndTheTestFileIsGone) {
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

TEST_F(NewsTest, TheNewsComeBeforeTheStatusWindowGoesAndTheMainWindowComes) {
  GoOnline();
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}),
            (Lines{"Form1 loaded", "Form8 loaded", "Form8 shown", "Form3 loaded", "Form3 shown",
                   "Form8 unloaded", "Form1 shown"}));
}

TEST_F(NewsTest, OnAFirstRunTheAgreementsStandBeforeTheNews) {
  sim.files.Delete(kSettings);
  GoOnline();
  Run();
  EXPECT_TRUE(News().Visible());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow}).back(), "Form5 shown");
  EXPECT_FALSE(main().Visible());
}

TEST_F(NewsTest, AnEmptyTestFileIsAnAnswer) {
  Answer(kTestAddress, "");
  Run();
  EXPECT_TRUE(News().Visible());
}

TEST_F(NewsTest, InDutchTheTitleIsDutch) {
  PutSettings("n", "n", "NL");
  GoOnline();
  Run();
  EXPECT_EQ(News().Caption(), "Tonmira online nieuws (engels)");
}

TEST_F(NewsTest, OfflineNoNewsAreShownAndNoTestFileIsLeft) {
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
  EXPECT_TRUE(main().Visible());
}

TEST_F(NewsTest, ATestFileOfAnEarlierRunIsNoConnection) {
  sim.files.Put(kTestFile, "left by an earlier run");
  Run();
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
}

TEST_F(NewsTest, WithAToneProgramOnTheCommandLineNoNewsAreShownAndTheTestFileIsGone) {
  GoOnline();
  sim.files.Put("C:\\a.tnf", "");
  sim.environment.arguments = "C:\\a.tnf";
  Run();
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
  EXPECT_EQ(sim.journal.Texts({Kind::kDownload}),
            (Lines{"download " + kTestAddress + " to " + kTestFile}));
}

TEST_F(NewsTest, ASilentSiteMeansNoNews) {
  BeSilent(kTestAddress);
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
}

TEST_F(NewsTest, ATestFileThatCannotBeDeletedIsReported) {
  GoOnline();
  sim.files.Fail(platform::simulated::Operation::kDelete, kTestFile,
                 base::ErrorCode::kPermissionDenied);
  At(1s, [this](Form1&) { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  14");
}

TEST_F(NewsTest, ClosingTheMainWindowHidesTheNewsFirstAndEndsEverything) {
  GoOnline();
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kProcess}),
            (Lines{"Form1 hidden", "Form3 hidden", "Form3 unloaded", "end"}));
}

TEST_F(NewsTest, ClosingTheNewsLeavesTheMainWindow) {
  GoOnline();
  At(1s, [this](Form1&) { News().Close(); });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(News().Loaded());
  EXPECT_TRUE(main().Visible());
}

TEST_F(NewsTest, UnloadingTheNewsUnloadsTheStatusWindow) {
  Run();
  program->form8.Show();
  News().Load();
  News().Unload();
  EXPECT_FALSE(program->form8.Loaded());
}

TEST_F(NewsTest, AnErrorHidesTheNews) {
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

TEST_F(NewsTest, AWindowThatThePageAsksForOpensInTheUsersBrowser) {
  GoOnline();
  Run();
  News().WebBrowser1.AskForWindow("https://a.example/b?c&d");
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start https://a.example/b?c^&d"}));
}

TEST_F(NewsTest, AWindowForAnythingButAWebAddressIsNotOpened) {
  GoOnline();
  Run();
  for (const std::string address : {"file:///C:/Windows/notepad.exe", "calc", "", "about:blank",
                                    "javascript:alert(1)", "http://a b"}) {
    News().WebBrowser1.AskForWindow(address);
  }
  EXPECT_TRUE(Started().empty());
}

class LinksTest : public OnlineTest {
 protected:
  void ExpectPage(const std::string& entry, const std::string& address) {
    EXPECT_EQ(LogEntries().back(), entry);
    EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start " + address}));
  }
};

TEST_F(LinksTest, ContactLogsADonationAndOpensTheContactPage) {
  At(1s, [](Form1& form1) { form1.contact.Click(); });
  Run();
  ExpectPage("> Visiting donation page", "https://www.tonmira.example/contact-us");
}

TEST_F(LinksTest, DonateOpensTheDonationPage) {
  At(1s, [](Form1& form1) { form1.donate.Click(); });
  Run();
  ExpectPage("> Visiting donation page", "https://www.tonmira.example/donate");
}

TEST_F(LinksTest, WebsiteOpensTheHomePage) {
  At(1s, [](Form1& form1) { form1.webpage.Click(); });
  Run();
  ExpectPage("> Visiting site", "https://www.tonmira.example/");
}

TEST_F(LinksTest, AnotherSiteIsOpenedWhenOneIsNamed) {
  sim.environment.variables["TONMIRA_SITE"] = "http://127.0.0.1:8080";
  At(1s, [](Form1& form1) { form1.donate.Click(); });
  Run();
  ExpectPage("> Visiting donation page", "http://127.0.0.1:8080/donate");
}

TEST_F(LinksTest, TheErrorDialogOpensTheHomePageAndLogsNothing) {
  At(1s, [this](Form1&) {
    program->form6.Present({"a", "b", "c", "d"});
    program->form6.Command2.Click();
  });
  const bool ended = Run();
  EXPECT_FALSE(ended);
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start https://www.tonmira.example/"}));
  EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
  EXPECT_EQ(program->form6.done_flag, 0);
}

TEST_F(LinksTest, ABrowserThatCannotBeStartedIsReportedByTheMenusAndNotByTheErrorDialog) {
  sim.processes.missing_commands.insert("cmd /c start https://www.tonmira.example/");
  At(1s, [](Form1& form1) { form1.webpage.Click(); });
  At(2s, [this](Form1&) { program->form6.Command2.Click(); });
  At(3s, [this](Form1&) { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  53,   Error value:  32");
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace app
