#include <gtest/gtest.h>

#include "platform/simulated/windows.h"
#include "ui/window.h"

namespace ui {
namespace {

class FieldWindow : public Window {
 public:
  explicit FieldWindow(WindowSystem& system) : Window(system, {"Fields", "", 100, 100}) {
    first.SelectAtFirstEntry();
  }

  TextBox first{*this, 100, "Text1", {0, 0, 100, 10}, "Type here..."};
  TextBox other{*this, 101, "Text2", {0, 20, 100, 10}, "0"};
  PictureBox picture{*this, 102, "Picture1", {0, 40, 4, 2}};
};

class TextBoxTest : public testing::Test {
 protected:
  TextBoxTest() { window.Load(); }

  platform::simulated::Journal journal;
  platform::simulated::Windows windows{journal};
  FieldWindow window{windows};
};

TEST_F(TextBoxTest, AllOfAFirstTextIsSelectedWhenTheFieldIsEnteredFirst) {
  EXPECT_TRUE(window.first.Enter());
  EXPECT_FALSE(window.first.Enter());
  window.Unload();
  window.Load();
  EXPECT_TRUE(window.first.Enter());
}

TEST_F(TextBoxTest, OtherFieldsAreEnteredAsTheSystemDoes) {
  EXPECT_FALSE(window.other.Enter());
}

TEST_F(TextBoxTest, APictureThatChangesItsSizeStaysUntilTheNextOne) {
  window.picture.Draw([](Canvas& canvas) { canvas.DrawPoint({3.5, 1.5}); });
  window.picture.ChangeResolution(8, 4);
  EXPECT_EQ(window.picture.Picture().width(), 8);
  EXPECT_EQ(window.picture.Picture().height(), 4);
  EXPECT_EQ(window.picture.Picture().At(7, 3), Canvas::kForeground);
  EXPECT_EQ(window.picture.Picture().At(5, 3), Canvas::kBackground);
}

}  // namespace
}  // namespace ui
