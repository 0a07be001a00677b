// When the whole program hands its logs over, and when it does not.
#include "tests/app/online_fixture.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

const std::string kUploadProgram = "start hidden cmd /c \"C:\\Tonmira\\upsend.exe\"";

class UsageUploadTest : public OnlineTest {
 protected:
  void CloseAt(std::chrono::milliseconds moment) {
    At(moment, [](Form1& form1) { form1.Close(); });
  }

  void LeaveTheErrorDialogAt(std::chrono::milliseconds moment) {
    At(moment, [this](Form1&) { program->form6.Command1.Click(); });
  }
};

TEST_F(UsageUploadTest, WithConsentTheLogIsHandedOverWhenTheProgramEnds) {
  PutSettings("n", "y");
  CloseAt(1s);
  EXPECT_TRUE(Run());
  // 0.5 * 5 s * 14 h * 20th of the month + 1 = 701
  EXPECT_EQ(sim.files.Get(kUploadHandOver), "C:\\Temp\\userdata.txt\r\n701.txt\r\n");
  EXPECT_EQ(Started(), (Lines{kUploadProgram, "end"}));
}

TEST_F(UsageUploadTest, WithoutConsentNothingIsHandedOverAndNoProcessIsStarted) {
  PutSettings("n", "n");
  CloseAt(1s);
  EXPECT_TRUE(Run());
  EXPECT_FALSE(sim.files.Exists(kUploadHandOver));
  EXPECT_EQ(Started(), (Lines{"end"}));
}

TEST_F(UsageUploadTest, BeforeTheUserWasAskedNothingIsHandedOver) {
  for (const std::string& settings : {std::string(), std::string("damaged\r\nSendData=y\r\n")}) {
    sim.files.Put(kSettings, settings);
    Run();
    EXPECT_FALSE(sim.files.Exists(kUploadHandOver));
    for (const std::string& text : Started()) EXPECT_EQ(text.find("upsend"), std::string::npos);
  }
}

TEST_F(UsageUploadTest, ConsentInAFileThatIsDamagedFurtherDownDoesNotCount) {
  sim.files.Put(kSettings,
                "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=y\r\nMicrophone=99\r\n"
                "MicrophoneON=n\r\n");
  Run();
  EXPECT_FALSE(sim.files.Exists(kUploadHandOver));
}

TEST_F(UsageUploadTest, TheLogIsHandedOverBeforeTheWindowsGo) {
  PutSettings("n", "y");
  At(1s, [this](Form1& form1) {
    form1.Command1.Click();
    sim.journal.Clear();
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.journal.Texts({Kind::kWindow, Kind::kProcess, Kind::kSound}),
            (Lines{"Form1 hidden", "stop 0x2", kUploadProgram, "Form2 unloaded", "end"}));
}

TEST_F(UsageUploadTest, TerminateHandsTheLogOverOnlyWithConsent) {
  for (const std::int16_t flag : {std::int16_t{1}, std::int16_t{0}}) {
    Run();
    sim.journal.Clear();
    sim.files.Delete(kUploadHandOver);
    settings::MainState state;
    state.SendData = flag;
    EXPECT_TRUE(RunTerminate(state));
    EXPECT_EQ(sim.files.Exists(kUploadHandOver), flag == 1);
    EXPECT_EQ(Started(), flag == 1 ? (Lines{kUploadProgram, "end"}) : (Lines{"end"}));
  }
}

// 0.99 * 59 * 23 * 31 + 1 = 41646, more than 16 bits hold.
void ArrangeOverflow(platform::simulated::Simulation& sim) {
  sim.clock.now = {2026, 12, 31, 23, 59, 59};
  sim.random.next = 0.99;
}

TEST_F(UsageUploadTest, ANumberThatDoesNotFitGoesToTheErrorTrap) {
  PutSettings("n", "y");
  At(1s, [this](Form1& form1) {
    ArrangeOverflow(sim);
    form1.Close();
  });
  // The number is drawn for the error log, too, and does not fit there either: it is now the trap
  // of the shutdown that meets it, and nobody is left to meet it a third time. The user is shown
  // the first.
  At(2s, [this](Form1&) {
    EXPECT_EQ(program->form6.List1.Items()[0], "Error number:  6,   Error value:  106");
    program->form6.done_flag = 1;
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_FALSE(sim.files.Exists(kUploadHandOver));
  EXPECT_EQ(Started(), (Lines{"end"}));
}

TEST_F(UsageUploadTest, ANumberThatDoesNotFitOnceIsReportedAndTheErrorDialogEndsTheProgram) {
  PutSettings("n", "y");
  sim.clock.now = {2026, 12, 31, 23, 59, 59};
  sim.random.first = {0.99};
  sim.random.next = 0;
  CloseAt(1s);
  LeaveTheErrorDialogAt(2s);
  // Leaving the dialog unloads a main window whose shutdown has not finished.
  sim.messages.answers = {platform::kAnswerYes};
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  6,   Error value:  106");
  EXPECT_EQ(Messages(), (Lines{"critical yes/no [Error] Do you want to forcibly close tonmira?"}));
  // What went to the maker is the error, under the number that did fit.
  EXPECT_EQ(sim.files.Get(kUploadHandOver), "error.log\r\n1error.log\r\n");
}

TEST_F(UsageUploadTest, WithConsentAnErrorIsHandedOver) {
  PutSettings("n", "y");
  At(1s, [this](Form1& form1) {
    sim.files.Fail(Operation::kOpenForReading, kSettings, ErrorCode::kPermissionDenied);
    sim.journal.Clear();
    form1.autoupdate.Click();
  });
  LeaveTheErrorDialogAt(2s);
  EXPECT_TRUE(Run());
  EXPECT_EQ(Started()[0], kUploadProgram);
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  70,   Error value:  102");
}

TEST_F(UsageUploadTest, AnErrorIsNeverHandedOverWithoutConsent) {
  PutSettings("n", "n");
  At(1s, [this](Form1& form1) {
    sim.files.Fail(Operation::kOpenForReading, kSettings, ErrorCode::kPermissionDenied);
    form1.autoupdate.Click();
  });
  LeaveTheErrorDialogAt(2s);
  EXPECT_TRUE(Run());
  EXPECT_FALSE(sim.files.Exists(kUploadHandOver));
  EXPECT_EQ(Started(), (Lines{"end"}));
}

}  // namespace
}  // namespace app
