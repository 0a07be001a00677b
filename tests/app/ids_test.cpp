#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "app/application.h"
#include "platform/simulated/simulation.h"

namespace app {
namespace {

using Ids = std::vector<std::pair<int, std::string>>;  // id and name

struct KnownWindow {
  const ui::Window* window;
  Ids ids;
};

void AddIdsOf(const std::vector<ui::MenuItem*>& items, Ids& ids) {
  for (const ui::MenuItem* item : items) {
    ids.emplace_back(item->Id(), item->Name());
    AddIdsOf(item->Items(), ids);
  }
}

Ids ControlIdsOf(const ui::Window& window) {
  Ids ids;
  for (const ui::Control* control : window.Controls()) {
    ids.emplace_back(control->Id(), control->Name());
  }
  return ids;
}

Ids MenuIdsOf(const ui::Window& window) {
  Ids ids;
  AddIdsOf(window.Menu(), ids);
  return ids;
}

class IdsTest : public testing::Test {
 protected:
  platform::simulated::Simulation sim;
  Application program{sim.services};

  // Every window, with the ids that scripts and drivers of other programs use. They never change; a
  // window may have others beside them.
  const std::vector<KnownWindow> windows{
      {&program.form1,
       {{100, "Frame1"},
        {101, "Option1"},
        {102, "Option2"},
        {103, "Option3"},
        {104, "Option4"},
        {105, "Option5"},
        {106, "Option6"},
        {107, "Option7"},
        {108, "Option8"},
        {109, "Option9"},
        {110, "Frame2"},
        {111, "Label1"},
        {112, "Label8"},
        {113, "Label9"},
        {114, "Label3"},
        {115, "Label10"},
        {116, "Label5"},
        {117, "HScroll1"},
        {118, "Label6"},
        {119, "Command2"},
        {120, "Command3"},
        {121, "Command1"},
        {122, "Frame3"},
        {123, "Line1"},
        {124, "Picture1"},
        {125, "Frame4"},
        {126, "picWave"},
        {127, "Command4"},
        {128, "Command5"},
        {129, "StatusBar1"},
        {1000, "file"},
        {1001, "openfile"},
        {1002, "-"},
        {1003, "exit"},
        {1004, "settings"},
        {1005, "soundmode"},
        {1006, "sndclassic"},
        {1007, "sndsound32"},
        {1008, "snddirectsound"},
        {1009, "sndautomatic"},
        {1010, "sndwinmm"},
        {1011, "language"},
        {1012, "english"},
        {1013, "dutch"},
        {1014, "-"},
        {1015, "microinputonoff"},
        {1016, "autoupdate"},
        {1017, "help"},
        {1018, "webpage"},
        {1019, "contact"},
        {1020, "donate"},
        {1021, "-"},
        {1022, "about"}}},
      {&program.form2,
       {{100, "Label1"},
        {101, "Label2"},
        {102, "Label3"},
        {103, "Label4"},
        {104, "Label5"},
        {105, "Label6"},
        {106, "Label7"},
        {107, "Label8"},
        {108, "Label9"},
        {109, "Command1"}}},
      {&program.form3, {{100, "WebBrowser1"}}},
      {&program.form4,
       {{100, "Label3"},
        {101, "Text1"},
        {102, "Label1"},
        {103, "Text2"},
        {104, "Label2"},
        {105, "Text3"},
        {106, "Line1"},
        {107, "Check1"},
        {108, "Line2"},
        {109, "Command1"},
        {110, "Command2"}}},
      {&program.form5,
       {{100, "Label7"},
        {101, "Combo1"},
        {102, "Label1"},
        {103, "Label4"},
        {104, "Label6"},
        {105, "Check1"},
        {106, "Command1"},
        {107, "Command2"}}},
      {&program.form6, {{100, "Label1"}, {101, "List1"}, {102, "Command1"}, {103, "Command2"}}},
      {&program.form7, {{100, "Label1"}, {101, "List1"}, {102, "Command1"}, {103, "Command2"}}},
      {&program.form8,
       {{100, "Picture1"}, {101, "Label1"}, {102, "Label2"}, {103, "Label3"}, {104, "Label4"}}},
      {&program.form9,
       {{100, "Label3"},
        {101, "Label4"},
        {102, "Label1"},
        {103, "ProgressBar1"},
        {104, "Label2"},
        {105, "Label5"},
        {106, "Label6"},
        {107, "Label7"},
        {108, "Label8"},
        {109, "Command1"},
        {110, "Command2"},
        {111, "Command3"}}},
      {&program.frm_about,
       {{100, "picIcon"},
        {101, "lblTitle"},
        {102, "lblVersion"},
        {103, "lblDescription"},
        {104, "Line1"},
        {105, "cmdOK"},
        {106, "cmdSysInfo"}}},
  };
};

TEST_F(IdsTest, NoTwoControlsOrMenuItemsOfAWindowShareOne) {
  for (const KnownWindow& known : windows) {
    std::map<int, std::string> names;
    for (const Ids& ids : {ControlIdsOf(*known.window), MenuIdsOf(*known.window)}) {
      for (const auto& [id, name] : ids) {
        const auto [first, is_new] = names.emplace(id, name);
        EXPECT_TRUE(is_new) << known.window->Name() << ": " << first->second << " and " << name
                            << " are both " << id;
      }
    }
  }
}

TEST_F(IdsTest, ControlsAndMenuItemsHaveRangesOfTheirOwn) {
  for (const KnownWindow& known : windows) {
    for (const auto& [id, name] : ControlIdsOf(*known.window)) {
      EXPECT_TRUE(id >= 100 && id <= 999) << known.window->Name() << "." << name << ": " << id;
    }
    for (const auto& [id, name] : MenuIdsOf(*known.window)) {
      EXPECT_TRUE(id >= 1000 && id <= 1999) << known.window->Name() << "." << name << ": " << id;
    }
  }
}

TEST_F(IdsTest, OtherProgramsFindEverythingUnderTheIdThatTheyKnow) {
  for (const KnownWindow& known : windows) {
    Ids found = ControlIdsOf(*known.window);
    AddIdsOf(known.window->Menu(), found);
    for (const auto& [id, name] : known.ids) {
      EXPECT_EQ(std::count(found.begin(), found.end(), std::pair(id, name)), 1)
          << known.window->Name() << "." << name << " is no longer " << id;
    }
  }
}

}  // namespace
}  // namespace app
