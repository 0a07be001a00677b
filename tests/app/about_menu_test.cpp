// The about box, opened from the menu of the main window.
#include "tests/app/fixture.h"
#include "tests/lang/file_of.h"

namespace app {
namespace {

using lang::FileOf;

constexpr char kEnglishDescription[] =
    "Create the most annoying sounds with Tonmira! Any problems? Mail to: support@tonmira.example";

class AboutMenuTest : public ProgramTest {
 protected:
  // Starts the program and opens the box from the menu.
  void Open() {
    At(100ms, [](Form1& form1) { form1.about.Click(); });
    EXPECT_FALSE(Run());
  }

  about::frmAbout& box() { return program->frm_about; }
};

TEST_F(AboutMenuTest, ItComesUpAboveTheMainWindowAndTellsWhatThisIs) {
  Open();
  EXPECT_TRUE(box().Visible());
  EXPECT_EQ(box().Caption(), "About Tonmira");
  EXPECT_EQ(box().lblDescription.Caption(), kEnglishDescription);
  EXPECT_TRUE(main().Visible());
}

TEST_F(AboutMenuTest, ClosingItLeavesTheProgramRunning) {
  Open();
  box().cmdOK.Click();
  EXPECT_FALSE(box().Loaded());
  main().about.Click();
  EXPECT_TRUE(box().Visible());
  box().Close();
  EXPECT_FALSE(box().Loaded());
  EXPECT_TRUE(main().Visible());
}

TEST_F(AboutMenuTest, AProgramWithoutAVersionResourceIsReported) {
  sim.version_resource.version.reset();
  sim.At(100ms, [this] { main().about.Click(); });
  sim.At(200ms, [this] { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  53,   Error value:  1");
}

TEST_F(AboutMenuTest, TheLanguageIsTheOneThatTheProgramShows) {
  sim.files.Put("lng_en.dll", FileOf("en", 82, {{72, "English button"}}));
  sim.files.Put("lng_nl.dll", FileOf("nl", 82, {{72, "Nederlandse knop"}}));
  At(100ms, [](Form1& form1) {
    form1.dutch.Click();
    form1.about.Click();
  });
  Run();
  EXPECT_EQ(box().cmdSysInfo.Caption(), "Nederlandse knop");
  // Only the leftover file makes the description Dutch.
  EXPECT_EQ(box().lblDescription.Caption(), kEnglishDescription);
}

TEST_F(AboutMenuTest, ChoosingItTwiceShowsOneBox) {
  Open();
  main().about.Click();
  EXPECT_EQ(sim.windows.open_views(), 2);
}

}  // namespace
}  // namespace app
