// The hand-over of the activity log and of errors.
#include "online/usage_data.h"
#include "tests/online/fixture.h"

namespace online {
namespace {

const std::string kUploadStarted = "start hidden cmd /c \"C:\\Tonmira\\upsend.exe\"";

class UsageTest : public OnlineTest {
 protected:
  void Consent() { state.SendData = 1; }

  // Hands the log over and ends the program, as the main window does when it is closed.
  bool Close() {
    return sim.Run([this] {
      usage.SendData();
      sim.processes.EndProcess();
    });
  }

  UploadHandOver upload{sim.services, errors};
  UsageData usage{sim.services, state, upload, errors};
};

TEST_F(UsageTest, WithConsentTheLogIsHandedOver) {
  Consent();
  Close();
  // 0.5 * 5 s * 14 h * 20th of the month + 1 = 701
  EXPECT_EQ(sim.files.Get(kHandOver), "C:\\Temp\\userdata.txt\r\n701.txt\r\n");
  EXPECT_EQ(Started(), (Lines{kUploadStarted, "end"}));
}

TEST_F(UsageTest, TheSystemsOwnInterpreterStartsTheUpload) {
  Consent();
  Close();
  EXPECT_EQ(sim.processes.hidden_programs, (Lines{"C:\\Windows\\System32\\cmd.exe"}));
}

TEST_F(UsageTest, AnUploadProgramThatIsNotInTheProgramsFolderIsLookedForNowhereElse) {
  Consent();
  sim.files.Delete("C:\\Tonmira\\upsend.exe");
  Close();
  EXPECT_EQ(Started(), (Lines{"end"}));
  EXPECT_FALSE(WasShown("Form6"));
}

TEST_F(UsageTest, WithoutConsentNothingIsHandedOver) {
  Close();
  EXPECT_FALSE(sim.files.Exists(kHandOver));
  EXPECT_EQ(Started(), (Lines{"end"}));
}

TEST_F(UsageTest, WithNoLogThereIsNoUploadEvenWithConsent) {
  Consent();
  sim.files.Delete(kLogPath);
  Close();
  EXPECT_FALSE(sim.files.Exists(kHandOver));
  EXPECT_EQ(Started(), (Lines{"end"}));
}

TEST_F(UsageTest, AtMidnightOrSecondZeroTheNumberIsOne) {
  Consent();
  for (const auto& [hour, second] : {std::pair{0, 59}, std::pair{23, 0}, std::pair{0, 0}}) {
    sim.clock.now = {2026, 12, 31, hour, 30, second};
    sim.random.next = 0.999999;
    Close();
    EXPECT_EQ(sim.Lines(kHandOver)[1], "1.txt");
  }
}

TEST_F(UsageTest, AHandOverFileThatCannotBeWrittenIsReportedOnceAndNotItselfHandedOver) {
  Consent();
  sim.files.Fail(Operation::kOpenForWriting, kHandOver, ErrorCode::kPermissionDenied);
  LeaveTheErrorDialogAt(1s);
  EXPECT_TRUE(Close());
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  70,   Error value:  1025");
  EXPECT_EQ(Started(), (Lines{"end"}));
}

TEST_F(UsageTest, ANumberThatDoesNotFitIsReported) {
  // 0.99 * 59 * 23 * 31 + 1 = 41646, more than 16 bits hold.
  sim.clock.now = {2026, 12, 31, 23, 59, 59};
  sim.random.first = {0.99};
  sim.random.next = 0;
  LeaveTheErrorDialogAt(1s);
  EXPECT_TRUE(Close());
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  6,   Error value:  106");
  EXPECT_FALSE(sim.files.Exists(kHandOver));
}

}  // namespace
}  // namespace online
