#include "ui/progress_bar.h"

#include <gtest/gtest.h>

#include "platform/simulated/windows.h"
#include "ui/window.h"

namespace ui {
namespace {

class BarWindow : public Window {
 public:
  explicit BarWindow(WindowSystem& system) : Window(system, {"Bar", "", 100, 100}) {}

  ProgressBar bar{*this, 100, "ProgressBar1", {0, 0, 100, 10}};
};

class ProgressBarTest : public testing::Test {
 protected:
  ProgressBarTest() { window.Load(); }

  platform::simulated::Journal journal;
  platform::simulated::Windows windows{journal};
  BarWindow window{windows};
};

TEST_F(ProgressBarTest, KeepsItsValueWithinItsRange) {
  window.bar.SetRange(0, 12);
  window.bar.SetValue(13);
  EXPECT_EQ(window.bar.Value(), 12);
  window.bar.SetRange(0, 5);
  EXPECT_EQ(window.bar.Value(), 5);
  window.bar.SetRange(0, 0);
  window.bar.SetValue(1);
  EXPECT_EQ(window.bar.Value(), 0);
}

TEST_F(ProgressBarTest, IsAsItWasMadeWhenItsWindowIsLoadedAgain) {
  window.bar.SetRange(2, 5);
  window.bar.SetValue(4);
  window.bar.SetVisible(false);
  window.bar.SetEnabled(false);
  window.Unload();
  window.Load();
  EXPECT_EQ(window.bar.Minimum(), 0);
  EXPECT_EQ(window.bar.Maximum(), 100);
  EXPECT_EQ(window.bar.Value(), 0);
  EXPECT_TRUE(window.bar.Visible());
  EXPECT_TRUE(window.bar.Enabled());
}

TEST_F(ProgressBarTest, TellsTheViewWhatChanged) {
  journal.Clear();
  window.bar.SetRange(0, 3);
  window.bar.SetValue(2);
  window.bar.SetValue(2);
  EXPECT_EQ(journal.Texts({platform::simulated::Kind::kControl}),
            (std::vector<std::string>{"Bar.ProgressBar1 value: 0 of 3",
                                      "Bar.ProgressBar1 value: 2 of 3"}));
}

}  // namespace
}  // namespace ui
