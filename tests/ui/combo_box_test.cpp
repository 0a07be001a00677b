#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/simulated/simulation.h"
#include "ui/window.h"

namespace ui {
namespace {

using platform::simulated::Kind;
using Lines = std::vector<std::string>;

class ComboBoxTest : public testing::Test {
 protected:
  ComboBoxTest() {
    box.OnClick = [this] { ++clicks; };
    window.Load();
    box.SetItems({"one", "two"});
    sim.journal.Clear();
  }

  platform::simulated::Simulation sim;
  Window window{sim.services.windows, {"Window", "", 100, 100}};
  ComboBox box{window, 100, "Combo1", {0, 0, 80, 24}};
  int clicks = 0;
};

TEST_F(ComboBoxTest, NoItemIsChosenAtFirst) {
  EXPECT_EQ(box.ListIndex(), ComboBox::kNone);
  EXPECT_EQ(box.Items(), (Lines{"one", "two"}));
}

TEST_F(ComboBoxTest, AUsersChoiceIsShownAndHandled) {
  box.Choose(1);
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(sim.journal.Texts({Kind::kControl}), (Lines{"Window.Combo1 value: 1"}));
}

TEST_F(ComboBoxTest, AChoiceThatChangesNothingIsNoEvent) {
  box.Choose(ComboBox::kNone);
  EXPECT_EQ(clicks, 0);
  box.Choose(0);
  box.Choose(0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ComboBoxTest, TheChoiceCanBeTakenBack) {
  box.Choose(0);
  box.Choose(ComboBox::kNone);
  EXPECT_EQ(box.ListIndex(), ComboBox::kNone);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ComboBoxTest, AnIndexWithoutAnItemIsNoChoice) {
  for (const int index : {-2, 2, 1000}) {
    box.Choose(index);
    box.SetListIndex(index);
    EXPECT_EQ(box.ListIndex(), ComboBox::kNone) << index;
  }
  EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, AChoiceFromCodeIsNoEvent) {
  box.SetListIndex(1);
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, NewItemsTakeTheChoiceAway) {
  box.Choose(1);
  box.SetItems({"one", "two", "three"});
  EXPECT_EQ(box.ListIndex(), ComboBox::kNone);
}

TEST_F(ComboBoxTest, ADisabledBoxCannotBeChosenFrom) {
  box.SetEnabled(false);
  box.Choose(1);
  EXPECT_EQ(box.ListIndex(), ComboBox::kNone);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, ItIsEmptyWhenItsWindowIsLoadedAgain) {
  box.Choose(1);
  window.Unload();
  window.Load();
  EXPECT_EQ(box.ListIndex(), ComboBox::kNone);
  EXPECT_TRUE(box.Items().empty());
}

}  // namespace
}  // namespace ui
