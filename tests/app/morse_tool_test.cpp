// The Morse tool beside the main window.
#include "tests/app/fixture.h"
#include "tests/lang/file_of.h"

namespace app {
namespace {

using lang::FileOf;

class MorseToolTest : public ProgramTest {
 protected:
  MorseToolTest() { sim.files.Put(kSettings, GoodSettings("32")); }

  morse::Form4& tool() { return program->form4; }

  // Opens the tool at 1 s and plays `message`.
  void Play(const std::string& message) {
    At(1s, [this, message](Form1& form1) {
      form1.Option8.Click();
      form1.Command2.Click();
      tool().Text1.Edit(message);
      tool().Text2.Edit("0");
      tool().Text3.Edit("700");
      sim.journal.Clear();
      tool().Command1.Click();
    });
  }

  Lines Beeps() const {
    Lines beeps;
    for (const std::string& text : sim.journal.Texts({Kind::kSound})) {
      if (text.starts_with("beep")) beeps.push_back(text);
    }
    return beeps;
  }
};

TEST_F(MorseToolTest, TheLanguageMayBeSwitchedWhileAMessagePlays) {
  sim.files.Put("lng_nl.dll", FileOf("nl", 72));
  Play("eee");
  sim.At(1100ms, [this] { main().dutch.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 3u);
  EXPECT_EQ(main().Option8.Caption(), "text 11");
}

TEST_F(MorseToolTest, ClosingTheMainWindowWhileAMessagePlaysEndsTheProgram) {
  Play("eeee");
  sim.At(1100ms, [this] { main().Close(); });
  EXPECT_TRUE(Run());
}

TEST_F(MorseToolTest, EitherWindowMayBeClosedAtAnyStageOfPlaying) {
  // In the first turn, in tones and pauses, between characters, in the silent tail, at its end.
  for (const int after_ms : {0, 1, 25, 120, 200, 400, 700, 1000, 5000, 30000, 47000}) {
    for (const bool main_window : {false, true}) {
      sim.files.Put(kSettings, GoodSettings("32"));
      const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
      At(start, [this](Form1&) {
        tool().Show();
        tool().Text1.Edit("et a");
        tool().Command1.Click();
      });
      sim.At(start + std::chrono::milliseconds(after_ms), [this, main_window] {
        if (main_window) {
          main().Close();
        } else {
          tool().Close();
        }
      });
      EXPECT_EQ(Run(), main_window) << after_ms;
      EXPECT_FALSE(tool().Loaded()) << after_ms;
    }
  }
}

}  // namespace
}  // namespace app
