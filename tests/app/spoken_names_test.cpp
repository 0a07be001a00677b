// What a screen reader says of every control of every window.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/simulated/simulation.h"
#include "tests/app/fixture.h"
#include "tests/lang/file_of.h"
#include "ui/spoken_name.h"

namespace app {
namespace {

class SpokenNamesTest : public ProgramTest {};

TEST_F(SpokenNamesTest, TheOnesWithoutAReadableCaptionHaveNamesOfTheirOwn) {
  At(1s, [](Form1& form1) {
    EXPECT_EQ(ui::SpokenNameOf(form1.HScroll1), "Custom pitch (Hz)");
    EXPECT_EQ(ui::SpokenNameOf(form1.Picture1), "Wave of the chosen tone");
    EXPECT_EQ(ui::SpokenNameOf(form1.picWave), "Wave of the microphone input");
    EXPECT_EQ(ui::SpokenNameOf(form1.Command4), "Raise the microphone sensitivity");
    EXPECT_EQ(ui::SpokenNameOf(form1.Command5), "Lower the microphone sensitivity");
    EXPECT_EQ(form1.Command4.Caption(), "+");
    EXPECT_EQ(form1.Command5.Caption(), "-");
  });
  Run();
}

TEST_F(SpokenNamesTest, FieldsHaveTheNameOfTheLabelBeforeThem) {
  Application whole{sim.services};
  EXPECT_EQ(ui::SpokenNameOf(whole.form4.Text1), "Text:");
  EXPECT_EQ(ui::SpokenNameOf(whole.form4.Text2), "Speed (normal + this (ms)) (higher is slower):");
  EXPECT_EQ(ui::SpokenNameOf(whole.form4.Text3), "Pitch (Hertz):");
  EXPECT_EQ(ui::SpokenNameOf(whole.form5.Combo1), whole.form5.Label7.Caption());
  EXPECT_EQ(ui::SpokenNameOf(whole.form7.List1), whole.form7.Label1.Caption());
  EXPECT_EQ(ui::SpokenNameOf(whole.form9.ProgressBar1), "Tones played");
  EXPECT_EQ(ui::SpokenNameOf(whole.form3.WebBrowser1), whole.form3.Caption());
  whole.form4.Text1.SetText("SOS");
  EXPECT_EQ(ui::SpokenNameOf(whole.form4.Text1), "Text:");
}

// Labels that say something only while a file is played or a mode is chosen.
bool MayBeSilent(const ui::Control& control) {
  static const std::set<std::string> kLater{"Form9.Label2", "Form9.Label4", "Form9.Label6",
                                            "Form9.Label8"};
  return control.kind() == ui::ControlKind::kLine ||
         kLater.contains(control.Owner().Name() + "." + control.Name());
}

// Names that tell nothing: a sign, a number, or the control's name in the program.
bool SaysNothing(const ui::Control& control, const std::string& name) {
  if (name == control.Name()) return true;
  return name.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string::npos && name != "OK";
}

TEST_F(SpokenNamesTest, NoControlOfAnyWindowIsWithoutAName) {
  Application whole{sim.services};
  const std::vector<const ui::Window*> all{
      &whole.form1, &whole.form2, &whole.form3, &whole.form4, &whole.form5,
      &whole.form6, &whole.form7, &whole.form8, &whole.form9, &whole.frm_about};
  // The values that labels show.
  const std::set<std::string> numbers{"Form1.Label10", "Form9.Label1"};
  int looked_at = 0;
  for (const ui::Window* window : all) {
    std::map<std::string, std::string> named;
    for (const ui::Control* control : window->Controls()) {
      const std::string place = window->Name() + "." + control->Name();
      const std::string name = ui::SpokenNameOf(*control);
      ++looked_at;
      if (MayBeSilent(*control) || numbers.contains(place)) continue;
      EXPECT_FALSE(SaysNothing(*control, name)) << place << " " << name;
      const bool used = control->kind() != ui::ControlKind::kLabel;
      if (used) {
        EXPECT_TRUE(named.emplace(name, place).second) << place << " " << name;
      }
    }
  }
  EXPECT_GE(looked_at, 80);
}

TEST_F(SpokenNamesTest, ALanguageFileTranslatesThem) {
  sim.files.Put(kSettings,
                "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=NL\r\nSendData=n\r\nMicrophone=7\r\n"
                "MicrophoneON=n\r\n");
  sim.files.Put("lng_nl.dll", lang::FileOf("nl", 88));
  At(1s, [](Form1& form1) {
    EXPECT_EQ(ui::SpokenNameOf(form1.HScroll1), "text 83");
    EXPECT_EQ(form1.HScroll1.Tip(), "text 84");
    EXPECT_EQ(ui::SpokenNameOf(form1.Picture1), "text 85");
    EXPECT_EQ(ui::SpokenNameOf(form1.picWave), "text 86");
    EXPECT_EQ(ui::SpokenNameOf(form1.Command4), "text 87");
    EXPECT_EQ(ui::SpokenNameOf(form1.Command5), "text 88");
    EXPECT_EQ(form1.Command4.Caption(), "+");
  });
  Run();
}

TEST_F(SpokenNamesTest, AnOlderLanguageFileLeavesThemInEnglish) {
  sim.files.Put("lng_en.dll", lang::FileOf("en", 82));
  At(1s, [](Form1& form1) {
    EXPECT_EQ(ui::SpokenNameOf(form1.HScroll1), "Custom pitch (Hz)");
    EXPECT_EQ(form1.HScroll1.Tip(),
              "Arrow keys: steps of 100 Hz; with Shift 10, with Ctrl 1. The wheel does the same. "
              "Or type the number.");
  });
  Run();
}

}  // namespace
}  // namespace app
