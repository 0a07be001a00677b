#include "tests/app/fixture.h"

namespace morse {
namespace {

using namespace std::chrono_literals;
using app::Lines;
using platform::simulated::Kind;

// A language file whose entry K is "text K".
std::string DutchFile() {
  std::string content = "%valid%\r\nlang=nl\r\n<1>\r\n";
  for (int k = 4; k <= 72; ++k) content += "text " + std::to_string(k) + "\r\n";
  return content;
}

class MorseTest : public app::ProgramTest {
 protected:
  MorseTest() { sim.files.Put(app::kSettings, app::GoodSettings("32")); }

  Form4& tool() { return program->form4; }

  // Opens the tool at 1 s and plays `message`; its beeps and pauses are recorded.
  void Play(const std::string& message, const std::string& speed = "0",
            const std::string& pitch = "700") {
    At(1s, [this, message, speed, pitch](app::Form1& form1) {
      form1.Option8.Click();
      form1.Command2.Click();
      tool().Text1.Edit(message);
      tool().Text2.Edit(speed);
      tool().Text3.Edit(pitch);
      sim.journal.Clear();
      sim.pump.journal_waits = true;
      tool().Command1.Click();
      played_until_ms = sim.pump.now_ms();
    });
  }

  void StopAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { tool().Command2.Click(); });
  }

  // Beeps, and the pauses between them. A beep blocks for its own length, which is no pause.
  Lines Timeline() const {
    Lines timeline;
    bool beeping = false;
    for (const std::string& text : sim.journal.Texts({Kind::kSound, Kind::kWait})) {
      const bool beep = text.starts_with("beep");
      if (beep || !beeping) timeline.push_back(text);
      beeping = beep;
    }
    return timeline;
  }

  Lines Beeps() const {
    Lines beeps;
    for (const std::string& text : sim.journal.Texts({Kind::kSound})) {
      if (text.starts_with("beep")) beeps.push_back(text);
    }
    return beeps;
  }

  std::int64_t played_until_ms = 0;
};

TEST_F(MorseTest, AMessageIsATimelineOfTonesAndPauses) {
  Play("Et a");
  StopAt(3000ms);
  Run();
  const Lines timeline = Timeline();
  ASSERT_GE(timeline.size(), 13u);
  EXPECT_EQ(Lines(timeline.begin(), timeline.begin() + 13),
            (Lines{"sleep 20", "beep 700 100", "sleep 75",                     // E
                   "sleep 20", "beep 700 200", "sleep 75",                     // t
                   "sleep 20", "sleep 500", "sleep 75",                        // the blank
                   "sleep 20", "beep 700 100", "beep 700 200", "sleep 75"}));  // a
}

TEST_F(MorseTest, SpeedLengthensEverySymbolAndPause) {
  Play("et ", "5", "1000");
  StopAt(2500ms);
  Run();
  const Lines timeline = Timeline();
  ASSERT_GE(timeline.size(), 9u);
  EXPECT_EQ(Lines(timeline.begin(), timeline.begin() + 9),
            (Lines{"sleep 20", "beep 1000 102", "sleep 80", "sleep 20", "beep 1000 205", "sleep 80",
                   "sleep 20", "sleep 505", "sleep 80"}));
}

TEST_F(MorseTest, OutOfRangeFieldsAreCorrectedWithAMessageAndPlayingGoesOn) {
  struct Case {
    std::string speed, pitch, message, speed_after, pitch_after;
  };
  const Case cases[] = {
      {"501", "700", "exclamation [Max Speed] Max speed = 500", "0", "700"},
      {"500", "700", "", "500", "700"},
      {"0", "49", "exclamation [Min Pitch] Min pitch = 50 Hertz", "0", "700"},
      {"0", "32001", "exclamation [Max Pitch] Max pitch = 32000", "0", "700"},
      {"0", "50", "", "0", "50"},
      {"0", "32000", "", "0", "32000"},
  };
  for (const Case& c : cases) {
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(start, [this, &c](app::Form1&) {
      tool().Show();
      tool().Text1.Edit("e");
      tool().Text2.Edit(c.speed);
      tool().Text3.Edit(c.pitch);
      sim.journal.Clear();
      tool().Command1.Click();
    });
    sim.At(start + 2000ms, [this, &c] {
      EXPECT_EQ(tool().Text2.Text(), c.speed_after);
      EXPECT_EQ(tool().Text3.Text(), c.pitch_after);
      tool().Command2.Click();
    });
    Run();
    EXPECT_EQ(Messages(), c.message.empty() ? Lines{} : Lines{c.message});
    const std::string length = c.speed_after == "500" ? "350" : "100";
    EXPECT_EQ(Beeps(), (Lines{"beep " + c.pitch_after + " " + length}));
  }
}

TEST_F(MorseTest, DIsSoundedAlthoughItIsNoLetterOfTheFirstList) {
  Play("D");
  StopAt(2000ms);
  Run();
  EXPECT_EQ(Beeps(), (Lines{"beep 700 200", "beep 700 100", "beep 700 100"}));
}

TEST_F(MorseTest, CharactersOutsideTheTableAreSilentAndShowNoMessage) {
  Play("%'\xC3\xAB\xF0\x9F\x8E\xB5#e");
  StopAt(2000ms);
  Run();
  EXPECT_EQ(Beeps(), (Lines{"beep 700 100"}));
  EXPECT_TRUE(Messages().empty());
  // Five silent positions before the one that sounds.
  EXPECT_EQ(Timeline()[11], "beep 700 100");
}

TEST_F(MorseTest, AHyphenIsSoundedTwiceWithoutAPauseBetween) {
  Play("-");
  StopAt(4000ms);
  Run();
  const Lines once{"beep 700 200", "beep 700 100", "beep 700 100",
                   "beep 700 100", "beep 700 100", "beep 700 200"};
  Lines twice = once;
  twice.insert(twice.end(), once.begin(), once.end());
  EXPECT_EQ(Beeps(), twice);
  const Lines timeline = Timeline();
  EXPECT_EQ(Lines(timeline.begin() + 1, timeline.begin() + 13), twice);
}

TEST_F(MorseTest, AMessageOf500CharactersSounds499AndKeepsTheButtonsAsWhilePlaying) {
  Play(std::string(500, 'e'));
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 499u);
  EXPECT_FALSE(tool().Command1.Enabled());
  EXPECT_TRUE(tool().Command2.Enabled());
  // 499 characters of 20 + 100 + 75 ms, and the turn that finds position 500.
  EXPECT_EQ(played_until_ms, 1000 + 499 * 195 + 20);
  tool().Command2.Click();
  EXPECT_TRUE(tool().Command1.Enabled());
}

TEST_F(MorseTest, AMessageLongerThan500CharactersIsCut) {
  Play(std::string(600, 'e'));
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 499u);
}

TEST_F(MorseTest, AfterTheLastCharacterPlayIsUsableWhileTheSilentTailRuns) {
  Play("ee");
  sim.At(1100ms, [this] { EXPECT_FALSE(tool().Command1.Enabled()); });
  sim.At(2000ms, [this] {
    EXPECT_TRUE(tool().Command1.Enabled());
    EXPECT_FALSE(tool().Command2.Enabled());
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 2u);
  EXPECT_EQ(played_until_ms, 1000 + 2 * 195 + 497 * 95 + 20);
}

TEST_F(MorseTest, ASecondPlayDuringTheTailSharesItsPositionWithTheFirst) {
  Play("e");
  sim.At(2000ms, [this] {
    tool().Text1.Edit("t");
    tool().Command1.Click();
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps(), (Lines{"beep 700 100", "beep 700 200"}));
  // The click is handled at 2050; the second run needs 295 ms for its character, 95 for each empty
  // position and 20 for the last; then the first finds itself at position 500, too.
  EXPECT_EQ(played_until_ms, 2050 + 295 + 498 * 95 + 20 + 20);
}

TEST_F(MorseTest, StopTakesEffectAfterTheCharacterThatIsSounding) {
  Play("eeee");
  StopAt(1100ms);
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 2u);
  EXPECT_TRUE(tool().Command1.Enabled());
  EXPECT_FALSE(tool().Command2.Enabled());
  EXPECT_EQ(played_until_ms, 1390);
}

TEST_F(MorseTest, StopAndPlayAtOnceBeginTheMessageAnewAndStopEndsThat) {
  Play(std::string(40, 'e'));
  sim.At(2000ms, [this] { tool().Command2.Click(); });
  sim.At(2000ms, [this] {
    sim.journal.Clear();
    tool().Command1.Click();
  });
  StopAt(4000ms);
  EXPECT_FALSE(Run());
  // The first play ends at 2170; the second then sounds a character each 195 ms until Stop.
  EXPECT_EQ(Beeps().size(), 10u);
  EXPECT_TRUE(tool().Command1.Enabled());
}

TEST_F(MorseTest, RoundsOfStopAndPlayDoNotDeepenTheStack) {
  Play(std::string(400, 'e'));
  std::vector<const void*> depths;
  for (int round = 1; round <= 200; ++round) {
    const auto moment = 1000ms + round * 400ms;
    sim.At(moment, [this] { tool().Command2.Click(); });
    sim.At(moment, [this, &depths] {
      const volatile char here = 0;
      depths.push_back(const_cast<const char*>(&here));
      tool().Command1.Click();
    });
  }
  StopAt(90s);
  EXPECT_FALSE(Run());
  ASSERT_EQ(depths.size(), 200u);
  EXPECT_EQ(depths.front(), depths.back());
}

TEST_F(MorseTest, ClosingTheToolDuringASecondPlayInTheTailEndsBothPlays) {
  for (const bool hides_main : {false, true}) {
    sim.files.Put(app::kSettings, app::GoodSettings("32"));
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(start, [this](app::Form1&) {
      tool().Show();
      tool().Text1.Edit("e");
      tool().Command1.Click();
      played_until_ms = sim.pump.now_ms();
    });
    sim.At(start + 1000ms, [this] {
      tool().Text1.Edit(std::string(20, 'e'));
      sim.journal.Clear();
      tool().Command1.Click();
    });
    sim.At(start + 2000ms, [this, hides_main] {
      if (hides_main) {
        main().Hide();
      } else {
        tool().Close();
      }
    });
    Run();
    EXPECT_LE(Beeps().size(), 7u) << hides_main;
    EXPECT_FALSE(tool().Loaded());
    EXPECT_LE(played_until_ms, start.count() + 2500) << hides_main;
  }
}

TEST_F(MorseTest, TheLanguageMayBeSwitchedWhileAMessagePlays) {
  sim.files.Put("lng_nl.dll", DutchFile());
  Play("eee");
  sim.At(1100ms, [this] { main().dutch.Click(); });
  EXPECT_FALSE(Run());
  EXPECT_EQ(Beeps().size(), 3u);
  EXPECT_EQ(main().Option8.Caption(), "text 11");
}

TEST_F(MorseTest, ClosingTheToolEndsItsMessage) {
  Play("eeee");
  sim.At(1100ms, [this] { tool().Close(); });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(tool().Loaded());
  EXPECT_EQ(Beeps().size(), 2u);
}

TEST_F(MorseTest, HidingTheMainWindowClosesTheTool) {
  Play("eeee");
  sim.At(1100ms, [this] { main().Hide(); });
  EXPECT_TRUE(Run());
  EXPECT_FALSE(tool().Loaded());
}

TEST_F(MorseTest, ClosingTheMainWindowWhileAMessagePlaysEndsTheProgram) {
  Play("eeee");
  sim.At(1100ms, [this] { main().Close(); });
  EXPECT_TRUE(Run());
}

TEST_F(MorseTest, EitherWindowMayBeClosedAtAnyStageOfPlaying) {
  // In the first turn, in tones and pauses, between characters, in the silent tail, at its end.
  for (const int after_ms : {0, 1, 25, 120, 200, 400, 700, 1000, 5000, 30000, 47000}) {
    for (const bool main_window : {false, true}) {
      sim.files.Put(app::kSettings, app::GoodSettings("32"));
      const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
      At(start, [this](app::Form1&) {
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

TEST_F(MorseTest, HideInputHidesTheMessageAndPlayingGoesOn) {
  Play("eee");
  sim.At(1100ms, [this] {
    tool().Check1.Click();
    EXPECT_FALSE(tool().Text1.Visible());
    EXPECT_FALSE(tool().Label3.Visible());
  });
  sim.At(1300ms, [this] {
    tool().Check1.Click();
    EXPECT_TRUE(tool().Text1.Visible());
    EXPECT_TRUE(tool().Label3.Visible());
  });
  Run();
  EXPECT_EQ(Beeps().size(), 3u);
}

TEST_F(MorseTest, FieldsThatAreNoNumberOrTooLargeEndThePlayQuietly) {
  for (const auto& [speed, pitch] : std::vector<std::pair<std::string, std::string>>{
           {"", "700"}, {"0", ""}, {"abc", "700"}, {"99999999999", "700"}, {"-40000", "700"}}) {
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(start, [this, speed = speed, pitch = pitch](app::Form1&) {
      tool().Show();
      tool().Text1.Edit("e");
      tool().Text2.Edit(speed);
      tool().Text3.Edit(pitch);
      sim.journal.Clear();
      tool().Command1.Click();
      EXPECT_TRUE(tool().Command1.Enabled());
    });
    Run();
    EXPECT_TRUE(Beeps().empty()) << speed << " " << pitch;
    EXPECT_TRUE(Messages().empty());
  }
}

TEST_F(MorseTest, TheFieldsTakeNumbersAndBackspaceOnly) {
  Run();
  tool().Show();
  for (ui::TextBox* field : {&tool().Text2, &tool().Text3}) {
    field->Edit("12");
    EXPECT_TRUE(field->KeyPress('3'));
    EXPECT_TRUE(field->KeyPress('.'));
    EXPECT_FALSE(field->KeyPress('a'));
    EXPECT_FALSE(field->KeyPress('-'));
    EXPECT_FALSE(field->KeyPress(0xEB));
    EXPECT_TRUE(field->KeyPress(8));
    field->Edit("abc");
    EXPECT_FALSE(field->KeyPress('1'));
    EXPECT_TRUE(field->KeyPress(8));
  }
  EXPECT_TRUE(tool().Text1.KeyPress('a'));
}

TEST_F(MorseTest, AFreshWindowAsksForAMessage) {
  Run();
  tool().Show();
  EXPECT_EQ(tool().Text1.Text(), "Type your message here...");
  EXPECT_EQ(tool().Text2.Text(), "0");
  EXPECT_EQ(tool().Text3.Text(), "700");
  EXPECT_FALSE(tool().Check1.Value());
  EXPECT_EQ(tool().stop_flag, 1);
}

TEST_F(MorseTest, EverySymbolIsSoundedThroughThePlayerInAutomatic) {
  sim.files.Put(app::kSettings, app::GoodSettings("128"));
  Play("a");
  StopAt(2000ms);
  Run();
  const Lines sounds = sim.journal.Texts({Kind::kSound});
  EXPECT_EQ(Lines(sounds.begin(), sounds.begin() + 4),
            (Lines{"play C:\\Temp\\tnfwinmmtmp.wav 0x20009", "stop 0x2",
                   "play C:\\Temp\\tnfwinmmtmp.wav 0x20009", "stop 0x2"}));
}

}  // namespace
}  // namespace morse
