// What the start asks of the web while it does something else, and what becomes of it.
#include "tests/app/online_fixture.h"

namespace app {
namespace {

constexpr char kWaiting[] = "Form8.Label3 caption: Waiting for the web site...";
constexpr char kNotWaiting[] = "Form8.Label3 caption: Tones from 4 Hz to 32000 Hz";

class EarlyDownloadsTest : public OnlineTest {
 protected:
  EarlyDownloadsTest() { PutSettings("y", "n"); }

  Lines Asked() const { return sim.journal.Texts({Kind::kDownload}); }

  Lines StatusTexts(const std::string& label) const {
    Lines texts;
    for (const std::string& text : sim.journal.Texts({Kind::kControl})) {
      if (text.starts_with("Form8." + label)) texts.push_back(text);
    }
    return texts;
  }

  // In the temporary folder there is nothing but the log.
  void ExpectNothingLeft() {
    EXPECT_EQ(sim.files.Beginning("C:\\Temp\\"), Lines{kLog});
    EXPECT_EQ(sim.downloader.Running(), Lines{});
  }

  const Lines kBothBegun{"download " + kUpdateAddress + " to " + kUpdateFile,
                         "download " + kTestAddress + " to " + kTestFile};
};

TEST_F(EarlyDownloadsTest, BothAreBegunWhenTheSettingsAreReadAndBeforeTheirStep) {
  Run();
  Lines steps;
  for (const std::string& text : sim.journal.Texts({Kind::kDownload, Kind::kControl})) {
    if (text.starts_with("Form8.Label2") || text.starts_with("download")) steps.push_back(text);
  }
  EXPECT_EQ(steps,
            (Lines{"Form8.Label2 caption: Windows check...", "Form8.Label2 caption: Write test...",
                   "Form8.Label2 caption: Reading settings...", kBothBegun[0], kBothBegun[1],
                   "Form8.Label2 caption: Checking for updates..."}));
}

TEST_F(EarlyDownloadsTest, ASiteThatIsSlowTwiceIsWaitedForOnce) {
  Answer(kUpdateAddress, "236\r\n", 2000ms);
  Answer(kTestAddress, "ok", 2500ms);
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.pump.now_ms(), 2500);
  EXPECT_FALSE(Logged("> Update error"));
  EXPECT_TRUE(WasShown("Form3"));
  ExpectNothingLeft();
}

TEST_F(EarlyDownloadsTest, TheTestFileCountsWhenTheUpdateFileIsNeverSent) {
  BeSilent(kUpdateAddress);
  Answer(kTestAddress, "ok", 100ms);
  EXPECT_FALSE(Run());
  EXPECT_EQ(sim.pump.now_ms(), 3000);
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_TRUE(WasShown("Form3"));
  ExpectNothingLeft();
}

TEST_F(EarlyDownloadsTest, ATestFileThatComesWhileTheUserThinksAboutAnUpdateCounts) {
  Answer(kUpdateAddress, "237\r\nhttp://a.example/new\r\n");
  Answer(kTestAddress, "ok", 20s);
  At(60s, [this](Form1&) { program->form7.Command2.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(WasShown("Form3"));
  EXPECT_LT(sim.pump.now_ms(), 61'000);
  ExpectNothingLeft();
}

TEST_F(EarlyDownloadsTest, AHostOfTooMuchGetsNothingIn) {
  const std::string too_much(1024 * 1024 + 1, '9');
  Answer(kUpdateAddress, too_much);
  Answer(kTestAddress, too_much, 100ms);
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_FALSE(WasShown("Form3"));
  EXPECT_FALSE(WasShown("Form7"));
  ExpectNothingLeft();
}

TEST_F(EarlyDownloadsTest, BeforeTheSettingsAreReadNothingIsAsked) {
  sim.files.FailWritesIn(platform::simulated::kAppData, base::ErrorCode::kPermissionDenied);
  EXPECT_TRUE(Run());
  EXPECT_EQ(Asked(), Lines{});
}

TEST_F(EarlyDownloadsTest, WithoutSettingsOnlyWhetherTheSiteIsThereIsAsked) {
  sim.files.Delete(kSettings);
  Run();
  EXPECT_EQ(Asked(), Lines{kBothBegun[1]});
}

TEST_F(EarlyDownloadsTest, WithoutConsentNothingIsHandedOver) {
  BeSilent(kUpdateAddress);
  BeSilent(kTestAddress);
  At(1s, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_FALSE(sim.files.Exists(kUploadHandOver));
  EXPECT_EQ(Started(), Lines{"end"});
}

TEST_F(EarlyDownloadsTest, EndingTheProgramMeanwhileGivesBothUp) {
  BeSilent(kUpdateAddress);
  Answer(kTestAddress, "ok", 2s);
  At(700ms, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Asked(), (Lines{kBothBegun[0], kBothBegun[1], "give up " + kUpdateAddress,
                            "give up " + kTestAddress}));
  ExpectNothingLeft();
}

TEST_F(EarlyDownloadsTest, AnAcceptedUpdateGivesUpTheTestFile) {
  Answer(kUpdateAddress, "237\r\nhttp://a.example/new\r\n");
  BeSilent(kTestAddress);
  At(1s, [this](Form1&) { program->form7.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Asked().back(), "give up " + kTestAddress);
  ExpectNothingLeft();
}

TEST_F(EarlyDownloadsTest, WhatNobodyTakesIsGivenUpBeforeAnErrorIsShown) {
  BeSilent(kUpdateAddress);
  BeSilent(kTestAddress);
  sim.windows.RefuseOnce("Form8.Label2 caption: Checking for updates...");
  At(200ms, [this](Form1&) {
    EXPECT_TRUE(program->form6.Visible());
    EXPECT_EQ(sim.downloader.Running(), Lines{});
    program->form6.Command1.Click();
  });
  EXPECT_TRUE(Run());
}

TEST_F(EarlyDownloadsTest, TheStatusWindowSaysAfterHalfASecondWhatItWaitsFor) {
  BeSilent(kUpdateAddress);
  BeSilent(kTestAddress);
  At(499ms, [this](Form1&) { EXPECT_EQ(StatusTexts("Label3"), Lines{}); });
  At(501ms, [this](Form1&) { EXPECT_EQ(StatusTexts("Label3"), Lines{kWaiting}); });
  Run();
  EXPECT_EQ(StatusTexts("Label3"), (Lines{kWaiting, kNotWaiting}));
}

TEST_F(EarlyDownloadsTest, ASiteThatAnswersSoonIsNotMentioned) {
  Answer(kUpdateAddress, "236\r\n", 400ms);
  Answer(kTestAddress, "ok", 450ms);
  Run();
  EXPECT_EQ(StatusTexts("Label3"), Lines{});
}

TEST_F(EarlyDownloadsTest, WhatDownloadsNeedIsLoadedFirstOfAll) {
  sim.version.record = {1, 2, 4, 0};  // the start goes no further
  Run();
  EXPECT_EQ(sim.downloader.prepared, 1);
  EXPECT_EQ(Asked(), Lines{});
}

}  // namespace
}  // namespace app
