// What the windows show in the languages that the program ships.
#include <fstream>
#include <initializer_list>
#include <set>
#include <sstream>

#include "tests/app/fixture.h"

namespace app {
namespace {

constexpr char kDutchFile[] = "lng_nl.dll";
constexpr char kEnglishFile[] = "lng_en.dll";

std::string Shipped(const std::string& name) {
  std::ifstream file(std::string(TONMIRA_LANGUAGES) + "/" + name, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

class ShippedTexts : public ProgramTest {};

struct TextOf {
  std::string operator()(auto* captioned) const { return captioned->Caption(); }
  std::string operator()(lang::SpokenName name) const { return name.control->SpokenName(); }
  std::string operator()(lang::Tip tip) const { return tip.control->Tip(); }
};

TEST_F(ShippedTexts, TheShippedEnglishSaysWhatTheProgramIsDesignedWith) {
  Run();
  std::vector<std::string> designed;
  for (const auto& caption : main().Captions()) {
    designed.push_back(std::visit(TextOf{}, caption.target));
  }
  sim.files.Put(kEnglishFile, Shipped(kEnglishFile));
  main().LoadCaptions("en", 1);
  std::vector<std::string> loaded;
  for (const auto& caption : main().Captions()) {
    loaded.push_back(std::visit(TextOf{}, caption.target));
  }
  EXPECT_EQ(loaded, designed);
  EXPECT_EQ(main().Frame4.Caption(), "Microphone input, sensitivity: 1");
}

std::vector<std::string> AllCaptions(const std::vector<ui::MenuItem*>& items) {
  std::vector<std::string> captions;
  for (const ui::MenuItem* item : items) {
    if (!item->IsSeparator()) captions.push_back(item->Caption());
    const auto more = AllCaptions(item->Items());
    captions.insert(captions.end(), more.begin(), more.end());
  }
  return captions;
}

// Every text that a window shows: controls, menus, its title.
std::vector<std::string> AllCaptions(const ui::Window& window) {
  std::vector<std::string> captions = AllCaptions(window.Menu());
  for (const ui::Control* control : window.Controls()) captions.push_back(control->Caption());
  captions.push_back(window.Caption());
  return captions;
}

TEST_F(ShippedTexts, TheShippedDutchLeavesNoEnglishTextInTheMainTheMorseAndTheHelpWindow) {
  // Names, numbers and words that are the same in both languages.
  const std::set<std::string> same{"",           "Info",        "Help",    "Website",     "Contact",
                                   "Nederlands", "English",     "Tonmira", "Sound32",     "Winmm",
                                   "1000",       "DirectSound", "4 Hz ->", "<- 32000 Hz", "+",
                                   "-",          "0",           "700",     "OK"};
  sim.files.Put(kDutchFile, Shipped(kDutchFile));
  At(1s, [&, this](Form1& form1) {
    const auto show = [&] {
      program->form2.Show();
      program->form4.Show();
      std::vector<std::string> captions;
      const std::initializer_list<ui::Window*> windows{&form1, &program->form2, &program->form4};
      for (const ui::Window* window : windows) {
        const auto more = AllCaptions(*window);
        captions.insert(captions.end(), more.begin(), more.end());
      }
      program->form2.Unload();
      program->form4.Unload();
      return captions;
    };
    const auto english = show();
    form1.dutch.Click();
    const auto dutch = show();
    ASSERT_EQ(english.size(), dutch.size());
    ASSERT_GT(english.size(), 50u);
    for (std::size_t i = 0; i < english.size(); ++i) {
      if (same.contains(english[i])) continue;
      EXPECT_NE(dutch[i], english[i]);
    }
    EXPECT_EQ(form1.Frame4.Caption(), "Microfooninvoer, gevoeligheid: 1");
  });
  Run();
}

}  // namespace
}  // namespace app
