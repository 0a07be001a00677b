#include "tests/morse/morse_fixture.h"

namespace morse {
namespace {

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

TEST_F(MorseTest, TypingReplacesTheTextThatAFreshToolHolds) {
  sim.At(1s, [this] {
    tool().Show();
    EXPECT_TRUE(tool().Text1.Enter());
    EXPECT_FALSE(tool().Text1.Enter());
    EXPECT_FALSE(tool().Text2.Enter());
    EXPECT_FALSE(tool().Text3.Enter());
  });
  Run();
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
    sim.At(start, [this, &c] {
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
    sim.At(start, [this, speed = speed, pitch = pitch] {
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

TEST_F(MorseTest, ItsCaptionsAreLoadedWheneverItIsOpenedAnew) {
  Run();
  tool().Show();
  tool().Show();
  EXPECT_EQ(captions_loaded, 1);
  tool().Close();
  tool().Show();
  EXPECT_EQ(captions_loaded, 2);
}

TEST_F(MorseTest, EverySymbolIsSoundedThroughThePlayerInAutomatic) {
  state.SoundBit = base::SoundMode::kAutomatic;
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
