#include "tests/online/update_fixture.h"

namespace online {
namespace {

TEST_F(UpdateTest, AcceptingOpensTheLinkAndEndsTheProgramAtOnce) {
  Announce("237", "https://a.example/setup.exe?v=237");
  sim.At(1s, [this] {
    sim.journal.Clear();
    Dialog().Command1.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess, Kind::kWindow, Kind::kSound}),
            (Lines{"start hidden cmd /c start https://a.example/setup.exe?v=237", "end"}));
}

TEST_F(UpdateTest, AcceptingALinkThatEndsInACommandStartsNoSecondCommand) {
  Announce("237", "https://a.example/&calc");
  sim.At(1s, [this] { Dialog().Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start https://a.example/^&calc", "end"}));
}

TEST_F(UpdateTest, AcceptingALinkThatIsNoWebAddressStartsNothingAndTheStartGoesOn) {
  for (const std::string link :
       {"calc.exe", "file:///C:/Windows/notepad.exe", "http://a b", "http://a\"b", "", " "}) {
    Announce("237", link);
    sim.At(std::chrono::milliseconds(sim.pump.now_ms()) + 1s,
           [this] { Dialog().Command1.Click(); });
    EXPECT_FALSE(Run()) << link;
    EXPECT_TRUE(Started().empty()) << link;
    EXPECT_FALSE(Dialog().Loaded()) << link;
    EXPECT_TRUE(Logged("> Update error")) << link;
    EXPECT_TRUE(main().Visible()) << link;
  }
}

TEST_F(UpdateTest, AcceptingWhenNoCommandCanBeStartedIsReported) {
  Announce("237", "http://a");
  sim.processes.missing_commands.insert("cmd /c start http://a");
  sim.At(1s, [this] { Dialog().Command1.Click(); });
  sim.At(2s, [this] { error_dialog.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  53,   Error value:  701");
}

TEST_F(UpdateTest, ClosingTheDialogByItsFrameDeclines) {
  Announce("237");
  sim.At(1s, [this] { Dialog().Close(); });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(main().Visible());
  EXPECT_TRUE(Started().empty());
}

TEST_F(UpdateTest, EnterOpensNoLinkAndEscapeDeclines) {
  Run();
  Dialog().Load();
  EXPECT_EQ(Dialog().DefaultButton(), nullptr);
  EXPECT_EQ(Dialog().CancelButton(), &Dialog().Command2);
}

TEST_F(UpdateTest, TheDialogIsDesignedInEnglish) {
  Run();
  Dialog().Load();
  EXPECT_EQ(Dialog().Caption(), "Update found");
  EXPECT_EQ(Dialog().Label1.Caption(),
            "An update is found! Would you like to download the update?");
  EXPECT_EQ(Dialog().Command1.Caption(), "Update");
  EXPECT_EQ(Dialog().Command2.Caption(), "Don't update");
}

}  // namespace
}  // namespace online
