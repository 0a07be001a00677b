#include <algorithm>

#include "tests/online/update_fixture.h"

namespace online {
namespace {

TEST_F(UpdateTest, TheFileIsFetchedFromTheSite) {
  Run();
  const Lines downloads = sim.journal.Texts({Kind::kDownload});
  EXPECT_EQ(downloads[0], "download " + kUpdateAddress + " to " + kUpdateFile);
}

TEST_F(UpdateTest, Version236BringsNoDialog) {
  Announce("236");
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_FALSE(Logged("> Update error"));
  EXPECT_FALSE(sim.files.Exists(kUpdateFile));
  EXPECT_TRUE(main().Visible());
}

TEST_F(UpdateTest, Version237BringsTheDialogWhileTheStartWaits) {
  Announce("237");
  sim.At(1s, [this] {
    EXPECT_TRUE(Dialog().Visible());
    EXPECT_FALSE(main().Visible());
    EXPECT_EQ(Dialog().List1.Items(), (Lines{"2.3.6", "2.3.7", "Link: http://a.example/new"}));
    EXPECT_FALSE(sim.files.Exists(kUpdateFile));
    Dialog().Command2.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(Dialog().Loaded());
  EXPECT_TRUE(main().Visible());
  EXPECT_TRUE(Started().empty());
}

TEST_F(UpdateTest, Version1000IsShownByItsFirstThreeCharacters) {
  Announce("1000");
  sim.At(1s, [this] {
    EXPECT_EQ(Dialog().List1.Items()[1], "1.0.0");
    Dialog().Command2.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(WasShown("Form7"));
}

TEST_F(UpdateTest, Version2Point3Point7IsReadAs2Point37AndNeverOffered) {
  Announce("2.3.7");
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_FALSE(Logged("> Update error"));
}

TEST_F(UpdateTest, NineLinesAreAnErrorAndTheFileStays) {
  const std::string content = "999\r\nhttp://a\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n";
  Answer(kUpdateAddress, content);
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_EQ(sim.files.Get(kUpdateFile), content);
}

TEST_F(UpdateTest, WithNoLanguageFileTheDialogsTextsAreEmpty) {
  Announce("237");
  sim.At(1s, [this] {
    EXPECT_EQ(Dialog().Caption(), "");
    EXPECT_EQ(Dialog().Label1.Caption(), "");
    EXPECT_EQ(Dialog().Command1.Caption(), "");
    EXPECT_EQ(Dialog().Command2.Caption(), "");
    EXPECT_EQ(Dialog().List1.Items(), (Lines{"2.3.6", "2.3.7", "Link: http://a.example/new"}));
    Dialog().Command2.Click();
  });
  EXPECT_FALSE(Run());
}

TEST_F(UpdateTest, WithALanguageFileItsTextsAreShown) {
  std::string content = "%valid%\r\nlang=en\r\n<1>\r\n";
  for (int line = 4; line <= 72; ++line) content += "text " + std::to_string(line) + "\r\n";
  sim.files.Put("lng_en.dll", content);
  Announce("237");
  sim.At(1s, [this] {
    EXPECT_EQ(Dialog().Label1.Caption(), "text 49");
    EXPECT_EQ(Dialog().Caption(), "text 50");
    EXPECT_EQ(Dialog().Command1.Caption(), "text 51");
    EXPECT_EQ(Dialog().Command2.Caption(), "text 52");
    EXPECT_EQ(Dialog().List1.Items(),
              (Lines{"text 532.3.6", "text 542.3.7", "Link: http://a.example/new"}));
    Dialog().Command2.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(WasShown("Form7"));
}

TEST_F(UpdateTest, NoAnswerIsLoggedAndNothingElse) {
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_TRUE(Messages().empty());
  EXPECT_TRUE(main().Visible());
}

TEST_F(UpdateTest, AnOldFileIsNotTakenForTheAnswer) {
  sim.files.Put(kUpdateFile, "999\r\nhttp://a\r\n");
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_TRUE(Logged("> Update error"));
}

TEST_F(UpdateTest, WhatHappensWhileASilentSiteIsWaitedForIsHandledAtOnce) {
  BeSilent(kUpdateAddress);
  std::int64_t handled_at = 0;
  sim.At(700ms, [&] { handled_at = sim.pump.now_ms(); });
  Run();
  EXPECT_EQ(handled_at, 700);
}

TEST_F(UpdateTest, ASlowAnswerIsWaitedForNoLongerThanItTakes) {
  Answer(kUpdateAddress, "236\r\n", 1200ms);
  Run();
  EXPECT_EQ(sim.pump.now_ms(), 1200);
  EXPECT_FALSE(Logged("> Update error"));
}

TEST_F(UpdateTest, AnAnswerThatComesTooLateChangesNothingAnyMore) {
  Answer(kUpdateAddress, "999\r\nhttp://a\r\n", 20s);
  sim.At(30s, [] {});
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_FALSE(sim.files.Exists(kUpdateFile));
}

TEST_F(UpdateTest, AnAnswerWithoutEndIsAFailedDownload) {
  Answer(kUpdateAddress, "999\r\n" + std::string(50'000'000, 'x'));
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_FALSE(sim.files.Exists(kUpdateFile));
}

TEST_F(UpdateTest, AFolderThatTakesNoFileIsLikeNoAnswer) {
  Announce("237");
  sim.files.Fail(Operation::kOpenForWriting, kUpdateFile, ErrorCode::kPermissionDenied);
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Logged("> Update error"));
}

TEST_F(UpdateTest, AFileThatCannotBeReadIsReported) {
  Announce("237");
  sim.files.Fail(Operation::kRead, kUpdateFile, ErrorCode::kDeviceError);
  sim.At(1s, [this] { error_dialog.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  57,   Error value:  1013");
}

// What a site that is not the maker's may send: no dialog, and the start goes on.
class StrangersFileTest : public UpdateTest, public testing::WithParamInterface<std::string> {};

TEST_P(StrangersFileTest, BringsNoDialogAndTheMainWindowComes) {
  Answer(kUpdateAddress, GetParam());
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_FALSE(WasShown("Form6"));
  EXPECT_TRUE(Messages().empty());
  EXPECT_TRUE(main().Visible());
}

INSTANTIATE_TEST_SUITE_P(
    Content, StrangersFileTest,
    testing::Values("\r\n", "23", "abc", "-999\r\nhttp://a", std::string("\0\0\0", 3),
                    "<!DOCTYPE html><html><head><title>Log in</title></head></html>",
                    "<html>\n<head>\n<title>Log in</title>\n</head>\n<body>\n</body>\n</html>\n999",
                    "\xFF\xFE"
                    "2\0003\0007\000",
                    std::string(60'000, 'x'),
                    std::string(60'000, '0') + "\r\n" + std::string(4000, '9'),
                    "-1e99999\r\nhttp://a", "0\r\n999\r\n"));

TEST_F(UpdateTest, TenThousandLinesAreAnError) {
  std::string content;
  for (int i = 0; i < 10'000; ++i) content += "999\r\n";
  Answer(kUpdateAddress, content);
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_FALSE(WasShown("Form7"));
}

TEST_F(UpdateTest, ANumberBeyondAllBoundsIsANewerVersionAndNoError) {
  Announce("1e99999");
  sim.At(1s, [this] {
    EXPECT_EQ(Dialog().List1.Items()[1], "1.e.9");
    Dialog().Command2.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(WasShown("Form6"));
}

TEST_F(UpdateTest, CharactersOfTheCodePageAreShownAsSuch) {
  Answer(kUpdateAddress, "237\xE4\r\nhttp://a/\xFC\r\n");
  sim.At(1s, [this] {
    ASSERT_EQ(Dialog().List1.Items().size(), 3u);
    EXPECT_EQ(Dialog().List1.Items()[2], "Link: http://a/\xC3\xBC");
    Dialog().Command2.Click();
  });
  EXPECT_FALSE(Run());
}

}  // namespace
}  // namespace online
