// A language that the program does not ship: its row and its file are all that it needs.
#include "tests/app/fixture.h"
#include "tests/lang/file_of.h"

namespace app {
namespace {

using lang::FileOf;

constexpr char kFrench[] = "lng_fr.dll";

const lang::Language kFrenchRow{
    .code = "fr",
    .english_name = "French",
    .menu_name = "french",
    .menu_caption =
        "Fran\xC3\xA7"
        "ais",
    .error_value = base::ErrorValue::kFurtherLanguage,
    .news_title = "Tonmira actualit\xC3\xA9s",
    .agreement = {"En cliquant sur ", "Accepter", "Refuser", " un.", " deux.", " trois.",
                  "Langue :", "Pas de statistiques"},
};

class ThirdLanguageTest : public ProgramTest {
 protected:
  ThirdLanguageTest() {
    const lang::Languages shipped = lang::ShippedLanguages();
    rows.assign(shipped.begin(), shipped.end());
    rows.push_back(kFrenchRow);
    sim.files.Put(kFrench, FileOf("fr", 82));
  }

  bool Start() {
    program = std::make_unique<Application>(sim.services, rows);
    return sim.Run([this] { program->Run(); });
  }

  ui::MenuItem& French() { return *main().language_items.at(2); }

  std::vector<lang::Language> rows;
};

TEST_F(ThirdLanguageTest, IsChosenInTheMenuShownAndSaved) {
  At(1s, [this](Form1& form1) {
    EXPECT_EQ(French().Caption(),
              "Fran\xC3\xA7"
              "ais");
    French().Click();
    EXPECT_EQ(form1.Option1.Caption(), "text 4");
    EXPECT_TRUE(French().Checked());
    EXPECT_FALSE(form1.english.Checked());
    EXPECT_FALSE(form1.dutch.Checked());
  });
  Start();
  EXPECT_EQ(sim.Lines(kSettings)[2], "Language=FR");
}

TEST_F(ThirdLanguageTest, IsLoadedAtTheNextStart) {
  sim.files.Put(kSettings,
                "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=FR\r\nSendData=n\r\nMicrophone=1\r\n"
                "MicrophoneON=n\r\n");
  At(1s, [this](Form1& form1) {
    EXPECT_EQ(form1.Option9.Caption(), "text 12");
    EXPECT_TRUE(French().Checked());
    form1.Command1.Click();
    EXPECT_EQ(program->form2.Label1.Caption(), "text 31");
    program->form3.Show();
    EXPECT_EQ(program->form3.Caption(), "Tonmira actualit\xC3\xA9s");
    form1.Option8.Click();
    form1.Command2.Click();
    EXPECT_EQ(program->form4.Command1.Caption(), "text 46");
  });
  Start();
}

TEST_F(ThirdLanguageTest, ItsStatusTextPrecedesThePitch) {
  sim.files.Put(kSettings,
                "AutoUpdate=n\r\nSoundBit=256\r\nLanguage=FR\r\nSendData=n\r\nMicrophone=1\r\n"
                "MicrophoneON=n\r\n");
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  At(1300ms, [](Form1& form1) {
    EXPECT_EQ(form1.StatusBar1.Caption(), "text 29 1000");
    form1.Command3.Click();
  });
  Start();
}

TEST_F(ThirdLanguageTest, IsOfferedInTheFirstRunAndWrittenDown) {
  sim.files.Delete(kSettings);
  sim.At(1s, [this] {
    settings::Form5& dialog = program->form5;
    EXPECT_EQ(dialog.Combo1.Items(), (Lines{"English", "Dutch", "French"}));
    dialog.Combo1.Choose(2);
    EXPECT_EQ(dialog.Label1.Caption(), "En cliquant sur \"Accepter\" un.");
    EXPECT_EQ(dialog.Check1.Caption(), "Pas de statistiques");
    dialog.Command1.Click();
  });
  EXPECT_TRUE(Start());
  EXPECT_EQ(sim.Lines(kSettings)[2], "Language=FR");
}

TEST_F(ThirdLanguageTest, IsDamageInTheSettingsOfAProgramWithoutIt) {
  sim.files.Put(kSettings,
                "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=FR\r\nSendData=n\r\nMicrophone=1\r\n"
                "MicrophoneON=n\r\n");
  At(1s, [this](Form1&) { EXPECT_TRUE(program->form5.Visible()); });
  Run();
}

}  // namespace
}  // namespace app
