// The search for updates as a step of the start.
#include "tests/app/online_fixture.h"

namespace app {
namespace {

class UpdateStartTest : public OnlineTest {
 protected:
  UpdateStartTest() { PutSettings("y", "n"); }

  void Announce(const std::string& version) {
    Answer(kUpdateAddress, version + "\r\nhttp://a.example/new\r\n");
  }
};

TEST_F(UpdateStartTest, AnotherSiteIsAskedWhenOneIsNamed) {
  sim.environment.variables["TONMIRA_SITE"] = "http://127.0.0.1:8080/";
  Run();
  EXPECT_EQ(
      sim.journal.Texts({Kind::kDownload}),
      (Lines{"download http://127.0.0.1:8080/updatetonmira.txt to C:\\Temp\\updatetonmira.txt",
             "download http://127.0.0.1:8080/testcon.dat to C:\\Temp\\testcon.dat"}));
}

TEST_F(UpdateStartTest, WithAutoUpdateOffNothingIsAsked) {
  PutSettings("n", "n");
  Announce("237");
  Run();
  EXPECT_FALSE(WasShown("Form7"));
  EXPECT_EQ(sim.journal.Texts({Kind::kDownload}),
            (Lines{"download " + kTestAddress + " to " + kTestFile}));
}

TEST_F(UpdateStartTest, ASilentSiteIsGivenUpAndTheMainWindowComes) {
  BeSilent(kUpdateAddress);
  BeSilent(kTestAddress);
  EXPECT_FALSE(Run());
  EXPECT_TRUE(main().Visible());
  EXPECT_EQ(sim.pump.now_ms(), 3000);
  EXPECT_EQ(sim.journal.Texts({Kind::kDownload}),
            (Lines{"download " + kUpdateAddress + " to " + kUpdateFile,
                   "download " + kTestAddress + " to " + kTestFile, "give up " + kUpdateAddress,
                   "give up " + kTestAddress}));
  EXPECT_TRUE(Logged("> Update error"));
  EXPECT_FALSE(sim.files.Exists(kUpdateFile));
  EXPECT_FALSE(sim.files.Exists(kTestFile));
}

TEST_F(UpdateStartTest, TheProgramCanBeEndedWhileItWaits) {
  BeSilent(kUpdateAddress);
  At(500ms, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.pump.now_ms(), 500);
}

}  // namespace
}  // namespace app
