// A second error while the first one's dialog is left.
#include "base/errors.h"
#include "tests/app/error_values_fixture.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

class ErrorsInARowTest : public ErrorValueTest {
 protected:
  // Choosing a mode fails, and then the shutdown that leaving the dialog begins.
  void RunWithConsent(const std::string& send_data) {
    sim.files.Put(kSettings, "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=" +
                                 send_data + "\r\nMicrophone=1\r\nMicrophoneON=n\r\n");
    sim.files.Put("C:\\Temp\\tnftmp.wav", "held");
    sim.files.Fail(Operation::kDelete, "C:\\Temp\\tnftmp.wav", ErrorCode::kPermissionDenied);
    At(1s, [this](Form1& form1) {
      sim.files.Fail(Operation::kOpenForWriting, kLog, ErrorCode::kDiskFull);
      form1.Option2.Click();
    });
    At(1500ms, [this](Form1&) { first_ = FirstLine(); });
    LeaveTheErrorDialogAt(2s);
    LeaveTheErrorDialogAt(3s);
    sim.messages.answers = {platform::kAnswerYes};
    EXPECT_TRUE(Run());
  }

  std::string first_;
};

TEST_F(ErrorsInARowTest, TheErrorLogHoldsOnlyTheSecond) {
  RunWithConsent("n");
  EXPECT_EQ(first_, "Error number:  61,   Error value:  1010");
  const Lines lines = sim.Lines(kErrorLog);
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0], "Error number:  70,   Error value:  15");
  EXPECT_EQ(lines[1], "<Permission denied>");
}

TEST_F(ErrorsInARowTest, WithoutConsentNeitherIsSent) {
  RunWithConsent("n");
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\snd.ini"));
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), Lines{"end"});
}

TEST_F(ErrorsInARowTest, WithConsentBothAre) {
  RunWithConsent("y");
  const std::string started = "start hidden cmd /c \"C:\\Tonmira\\upsend.exe\"";
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{started, started, "end"}));
}

}  // namespace
}  // namespace app
