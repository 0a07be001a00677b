#include <gtest/gtest.h>

#include "platform/simulated/windows.h"
#include "ui/window.h"

namespace ui {
namespace {

class ScrollWindow : public Window {
 public:
  explicit ScrollWindow(WindowSystem& system) : Window(system, {"Scroll", "", 100, 100}) {}

  ScrollBar bar{*this, 100, "HScroll1", {0, 0, 100, 10}, {4, 100, 1, 10, 50}};
};

class ScrollBarTest : public testing::Test {
 protected:
  ScrollBarTest() {
    window.Load();
    window.bar.OnChange = [this] { ++changes; };
  }

  platform::simulated::Journal journal;
  platform::simulated::Windows windows{journal};
  ScrollWindow window{windows};
  int changes = 0;
};

TEST_F(ScrollBarTest, TheUserMovesItWithinItsRange) {
  window.bar.ScrollTo(60);
  EXPECT_EQ(window.bar.Value(), 60);
  window.bar.ScrollTo(101);
  EXPECT_EQ(window.bar.Value(), 100);
  window.bar.ScrollTo(3);
  EXPECT_EQ(window.bar.Value(), 4);
  EXPECT_EQ(changes, 3);
}

TEST_F(ScrollBarTest, OneThatIsDisabledOrHiddenCannotBeMoved) {
  window.bar.SetEnabled(false);
  window.bar.ScrollTo(60);
  EXPECT_EQ(window.bar.Value(), 50);
  window.bar.SetEnabled(true);
  window.bar.SetVisible(false);
  window.bar.ScrollTo(60);
  EXPECT_EQ(window.bar.Value(), 50);
  EXPECT_EQ(changes, 0);
}

TEST_F(ScrollBarTest, WhereItStandsAlreadyIsNoChange) {
  window.bar.ScrollTo(50);
  EXPECT_EQ(changes, 0);
}

TEST_F(ScrollBarTest, AValueFromCodeIsNoChangeOfTheUsers) {
  window.bar.SetValue(60);
  EXPECT_EQ(window.bar.Value(), 60);
  EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace ui
