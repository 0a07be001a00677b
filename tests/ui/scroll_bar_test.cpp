#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

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

class SliderTest : public testing::Test {
 protected:
  class SliderWindow : public Window {
   public:
    explicit SliderWindow(WindowSystem& system) : Window(system, {"Slider", "", 100, 100}) {}

    ScrollBar bar{*this, 100, "HScroll1", {0, 0, 100, 10}, {4, 32000, 100, 1000, 1000}};
  };

  SliderTest() {
    window.Load();
    window.bar.OnChange = [this] { seen.push_back(window.bar.Value()); };
  }

  void Type(const std::u32string& keys, std::uint32_t at_ms = 0) {
    for (const char32_t key : keys) window.bar.KeyPress(key, at_ms);
  }

  using HeldKey = ScrollBar::HeldKey;
  platform::simulated::Journal journal;
  platform::simulated::Windows windows{journal};
  SliderWindow window{windows};
  std::vector<std::int32_t> seen;
};

TEST_F(SliderTest, AStepIsTheSmallOneWithShiftTenAndWithCtrlOne) {
  window.bar.Step(1, HeldKey::kNone);
  window.bar.Step(1, HeldKey::kShift);
  window.bar.Step(1, HeldKey::kCtrl);
  window.bar.Step(-1, HeldKey::kNone);
  window.bar.Step(-1, HeldKey::kShift);
  window.bar.Step(-1, HeldKey::kCtrl);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{1100, 1110, 1111, 1011, 1001, 1000}));
}

TEST_F(SliderTest, StepsEndAtTheEndsOfTheRange) {
  window.bar.ScrollTo(31995);
  window.bar.Step(1, HeldKey::kShift);
  window.bar.Step(1, HeldKey::kCtrl);
  window.bar.ScrollTo(5);
  window.bar.Step(-1, HeldKey::kNone);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{31995, 32000, 5, 4}));
}

TEST_F(SliderTest, ANotchOfTheWheelIsAStepUpwardsToHigherNumbers) {
  window.bar.TurnWheel(120, HeldKey::kNone);
  window.bar.TurnWheel(-120, HeldKey::kCtrl);
  window.bar.TurnWheel(-240, HeldKey::kShift);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{1100, 1099, 1079}));
}

TEST_F(SliderTest, PartsOfANotchAddUpUntilTheWheelTurnsBack) {
  for (int i = 0; i < 3; ++i) window.bar.TurnWheel(30, HeldKey::kCtrl);
  EXPECT_EQ(window.bar.Value(), 1000);
  window.bar.TurnWheel(30, HeldKey::kCtrl);
  EXPECT_EQ(window.bar.Value(), 1001);
  window.bar.TurnWheel(90, HeldKey::kCtrl);
  window.bar.TurnWheel(-60, HeldKey::kCtrl);
  EXPECT_EQ(window.bar.Value(), 1001);
  window.bar.TurnWheel(-60, HeldKey::kCtrl);
  EXPECT_EQ(window.bar.Value(), 1000);
}

TEST_F(SliderTest, TypedDigitsSetTheNumber) {
  Type(U"440");
  EXPECT_EQ(window.bar.Value(), 440);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{4, 44, 440}));
  Type(U"31999", 5000);
  EXPECT_EQ(window.bar.Value(), 31999);
}

TEST_F(SliderTest, ATypedNumberOutsideTheRangeIsDrawnToItsEnd) {
  Type(U"1");
  EXPECT_EQ(window.bar.Value(), 4);
  Type(U"2");
  EXPECT_EQ(window.bar.Value(), 12);
  Type(U"345", 0);
  EXPECT_EQ(window.bar.Value(), 12345);
  Type(U"6");
  EXPECT_EQ(window.bar.Value(), 32000);
  Type(U"\b\b\b");
  EXPECT_EQ(window.bar.Value(), 123);
}

TEST_F(SliderTest, AnotherMoveEndsATypedNumber) {
  const std::vector<std::function<void()>> moves{
      [this] { window.bar.Step(1, HeldKey::kCtrl); },
      [this] { window.bar.TurnWheel(120, HeldKey::kCtrl); },
      [this] { window.bar.ScrollTo(2000); },
  };
  for (const auto& move : moves) {
    Type(U"44");
    move();
    Type(U"7");
    EXPECT_EQ(window.bar.Value(), 7);
    Type(U"\b");
  }
}

TEST_F(SliderTest, OneThatIsDisabledTakesNoKeyAndNoWheel) {
  window.bar.SetEnabled(false);
  EXPECT_FALSE(window.bar.KeyPress(U'7', 0));
  window.bar.Step(1, HeldKey::kCtrl);
  window.bar.TurnWheel(120, HeldKey::kCtrl);
  EXPECT_EQ(window.bar.Value(), 1000);
}

}  // namespace
}  // namespace ui
