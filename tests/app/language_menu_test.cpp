// What the windows show in another language, and how it is chosen.
#include <gtest/gtest.h>

#include "base/errors.h"
#include "tests/app/fixture.h"
#include "tests/lang/file_of.h"

namespace app {
namespace {

using lang::FileOf;
using platform::simulated::Operation;

constexpr char kDutchTexts[] = "lng_nl.dll";
constexpr char kEnglishTexts[] = "lng_en.dll";

class LanguageMenuTest : public ProgramTest {
 protected:
  void UseDutch() {
    sim.files.Put(kSettings,
                  "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=NL\r\nSendData=n\r\nMicrophone=7\r\n"
                  "MicrophoneON=n\r\n");
  }
};

TEST_F(LanguageMenuTest, EverySlotOfTheMainWindowTakesItsText) {
  UseDutch();
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  Run();
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(main().Options()[i]->Caption(), "text " + std::to_string(4 + i));
  }
  EXPECT_EQ(main().Frame1.Caption(), "text 13");
  EXPECT_EQ(main().Command2.Caption(), "text 14");
  EXPECT_EQ(main().Command3.Caption(), "text 15");
  EXPECT_EQ(main().Label9.Caption(), "text 16");
  EXPECT_EQ(main().Label3.Caption(), "text 17");
  EXPECT_EQ(main().Frame3.Caption(), "text 18");
  EXPECT_EQ(main().file.Caption(), "text 19");
  EXPECT_EQ(main().exit.Caption(), "text 20");
  EXPECT_EQ(main().settings.Caption(), "text 21");
  EXPECT_EQ(main().soundmode.Caption(), "text 22");
  EXPECT_EQ(main().language.Caption(), "text 23");
  EXPECT_EQ(main().microinputonoff.Caption(), "text 24");
  EXPECT_EQ(main().autoupdate.Caption(), "text 25");
  EXPECT_EQ(main().StatusBar1.Caption(), "text 29");
  EXPECT_EQ(main().Frame4.Caption(), "text 56, text 57 7");
  EXPECT_EQ(main().Label1.Caption(), "text 73");
  EXPECT_EQ(main().StatusCaption(), "text 29");
}

TEST_F(LanguageMenuTest, TheMessageTextsDescribeTheModes) {
  UseDutch();
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [](Form1& form1) {
    for (std::size_t i = 0; i < 9; ++i) {
      form1.Options()[i]->Click();
      EXPECT_EQ(form1.Label1.Caption(), "text " + std::to_string(60 + i));
      EXPECT_EQ(form1.Command2.Caption(), i < 7 ? "text 69" : "text 70");
    }
  });
  Run();
}

TEST_F(LanguageMenuTest, TheHelpWindowIsTranslatedOnlyInDutch) {
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  sim.files.Put(kEnglishTexts, FileOf("en", 79));
  At(1s, [this](Form1& form1) {
    form1.HelpRequested();
    EXPECT_EQ(program->form2.Label1.Caption(), "How to make a tone");
    program->form2.Close();
    form1.dutch.Click();
    form1.HelpRequested();
    const ui::Label* labels[] = {
        &program->form2.Label1, &program->form2.Label2, &program->form2.Label3,
        &program->form2.Label4, &program->form2.Label5, &program->form2.Label6,
        &program->form2.Label7, &program->form2.Label8, &program->form2.Label9};
    const char* texts[] = {"text 31", "text 32", "text 33", "text 34", "text 35",
                           "text 37", "text 38", "text 39", "text 40"};
    for (int i = 0; i < 9; ++i) EXPECT_EQ(labels[i]->Caption(), texts[i]);
  });
  Run();
}

TEST_F(LanguageMenuTest, TheMorseToolIsTranslatedOnlyInDutch) {
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [this](Form1& form1) {
    program->form4.Show();
    EXPECT_EQ(program->form4.Label2.Caption(), "Pitch (Hertz):");
    EXPECT_EQ(program->form4.Text1.Text(), "Type your message here...");
    program->form4.Close();
    form1.dutch.Click();
    program->form4.Show();
    EXPECT_EQ(program->form4.Label1.Caption(), "text 42");
    EXPECT_EQ(program->form4.Label2.Caption(), "text 43");
    EXPECT_EQ(program->form4.Check1.Caption(), "text 44");
    EXPECT_EQ(program->form4.Label3.Caption(), "text 45");
    EXPECT_EQ(program->form4.Command1.Caption(), "text 46");
    EXPECT_EQ(program->form4.Command2.Caption(), "text 47");
    EXPECT_EQ(program->form4.Caption(), "text 48");
    EXPECT_EQ(program->form4.Text1.Text(), "text 79");
  });
  Run();
}

TEST_F(LanguageMenuTest, AnotherWindowNumberChangesNoControlButTakesTheMessageTexts) {
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [](Form1& form1) {
    form1.LoadCaptions("nl", 7);
    EXPECT_EQ(form1.Option1.Caption(), "Low pitch");
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 1");
    EXPECT_EQ(form1.StatusCaption(), "text 29");
  });
  Run();
}

TEST_F(LanguageMenuTest, TheDutchMenuTranslatesWhatIsShownAndKeepsTheSetting) {
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [this](Form1& form1) {
    form1.Option3.Click();
    form1.dutch.Click();
    EXPECT_EQ(form1.Option3.Caption(), "text 6");
    EXPECT_EQ(form1.Label1.Caption(), "text 62");
    EXPECT_EQ(form1.SelectedMode(), ToneMode(3));
    EXPECT_EQ(sim.Lines(kSettings)[2], "Language=NL");
  });
  Run();
}

TEST_F(LanguageMenuTest, SwitchingWithAToolSelectedKeepsItsPlayCaption) {
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [](Form1& form1) {
    form1.Option8.Click();
    form1.dutch.Click();
    EXPECT_EQ(form1.Command2.Caption(), "text 70");
  });
  Run();
}

TEST_F(LanguageMenuTest, OpenWindowsKeepTheirLanguageUntilTheyAreOpenedAgain) {
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [this](Form1& form1) {
    form1.HelpRequested();
    form1.dutch.Click();
    EXPECT_EQ(program->form2.Label1.Caption(), "How to make a tone");
    program->form2.Close();
    form1.HelpRequested();
    EXPECT_EQ(program->form2.Label1.Caption(), "text 31");
  });
  Run();
}

TEST_F(LanguageMenuTest, EnglishWithoutItsFileLeavesTheDutchCaptionsUntilTheNextStart) {
  UseDutch();
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  At(1s, [](Form1& form1) {
    form1.english.Click();
    EXPECT_EQ(form1.Option1.Caption(), "text 4");
    EXPECT_TRUE(form1.english.Checked());
  });
  Run();
  Run();
  EXPECT_EQ(main().Option1.Caption(), "Low pitch");
}

TEST_F(LanguageMenuTest, AReadErrorIsReportedUnderItsErrorValue) {
  UseDutch();
  sim.files.Put(kDutchTexts, FileOf("nl", 79));
  sim.files.Fail(Operation::kRead, kDutchTexts, base::ErrorCode::kDeviceError);
  sim.At(100ms, [this] { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  57,   Error value:  1015");
}

}  // namespace
}  // namespace app
