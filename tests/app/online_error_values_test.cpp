// The online services report their own error values.
#include "tests/app/online_fixture.h"

namespace app {
namespace {

class OnlineErrorTest : public OnlineTest {
 protected:
  void LeaveTheErrorDialogAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { program->form6.Command1.Click(); });
  }

  std::string FirstLine() const {
    const Lines lines = sim.Lines(kErrorLog);
    return lines.empty() ? "" : lines[0];
  }
};

TEST_F(OnlineErrorTest, TheNewsWindowReportsUnder301) {
  PutSettings("n", "n", "NL");
  Answer(kTestAddress, "ok");
  sim.windows.RefuseOnce("Form3 caption: Tonmira online nieuws (engels)");
  LeaveTheErrorDialogAt(1s);
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  7,   Error value:  301");
}

TEST_F(OnlineErrorTest, ADownloadThatCannotEvenBeginReportsUnder1024) {
  sim.downloader.can_begin = false;
  LeaveTheErrorDialogAt(1s);
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  7,   Error value:  1024");
}

}  // namespace
}  // namespace app
