// The handlers of the first-run dialog report their own error values.
#include "base/errors.h"
#include "tests/app/error_values_fixture.h"

namespace app {
namespace {

class FirstRunErrorTest : public ErrorValueTest {
 protected:
  FirstRunErrorTest() { sim.files.Delete(kSettings); }
};

TEST_F(FirstRunErrorTest, ChoosingALanguageReportsUnder501) {
  sim.At(1s, [this] {
    sim.windows.RefuseOnce("Form5.Command1 caption: Accepteren");
    program->form5.Combo1.Choose(1);
  });
  LeaveTheErrorDialogAt(2s);
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  7,   Error value:  501");
}

TEST_F(FirstRunErrorTest, DecliningReportsUnder503WhatTheShutdownCannotReport) {
  sim.files.Put("C:\\Temp\\tnftmp.wav", "held");
  sim.files.Fail(platform::simulated::Operation::kDelete, "C:\\Temp\\tnftmp.wav",
                 base::ErrorCode::kPermissionDenied);
  sim.At(1s, [this] {
    FailTheNextReports(1);
    program->form5.Command2.Click();
  });
  LeaveTheErrorDialogAt(2s);
  // Leaving the error dialog closes a main window whose shutdown has not finished.
  sim.messages.answers = {platform::kAnswerYes};
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  6,   Error value:  503");
}

}  // namespace
}  // namespace app
