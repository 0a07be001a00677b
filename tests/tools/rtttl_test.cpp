// Ring tone text, read.
#include "tools/rtttl.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/tools/tones.h"

namespace tools {
namespace {

using Texts = std::vector<std::string>;

Tones Imported(const std::string& text, int octave_of_a440 = 4) {
  const RingTone tune = ReadRingTone(text, octave_of_a440);
  EXPECT_TRUE(tune.problems.empty()) << text << ": " << tune.problems.front().text;
  return TonesIn(tune.tones);
}

Texts MistakesIn(const std::string& text) {
  Texts texts;
  for (const Problem& problem : ReadRingTone(text, 4).problems) {
    texts.push_back(Formatted("", problem, false));
  }
  return texts;
}

// At 120 beats a minute a quarter lasts 500 ms.
TEST(RingToneTest, PitchesOfAnOctave) {
  EXPECT_EQ(Imported("x:d=4,o=4,b=120:c,c#,d,d#,e,f,f#,g,g#,a,a#,b"), (Tones{{262, 500},
                                                                             {277, 500},
                                                                             {294, 500},
                                                                             {311, 500},
                                                                             {330, 500},
                                                                             {349, 500},
                                                                             {370, 500},
                                                                             {392, 500},
                                                                             {415, 500},
                                                                             {440, 500},
                                                                             {466, 500},
                                                                             {494, 500}}));
}

TEST(RingToneTest, AOfOctave4Is440HzOrThatOfOctave5) {
  EXPECT_EQ(Imported("x:b=120:a4,a5,a6,a7,a8"),
            (Tones{{440, 500}, {880, 500}, {1760, 500}, {3520, 500}, {7040, 500}}));
  EXPECT_EQ(Imported("x:b=120:a4,a5,a6,a7,a8", 5),
            (Tones{{220, 500}, {440, 500}, {880, 500}, {1760, 500}, {3520, 500}}));
}

TEST(RingToneTest, BAndHAreTheSame) {
  EXPECT_EQ(Imported("x:b=120:b5,p,h5"), (Tones{{988, 500}, {kRest, 500}, {988, 500}}));
  EXPECT_EQ(Imported("x:b=120:e#5,p,h#5"), (Tones{{698, 500}, {kRest, 500}, {1047, 500}}));
}

// A quarter of octave 6 at 63 beats: 60000 / 63 = 952.38 ms.
TEST(RingToneTest, DefaultsThatAreNotSaid) {
  EXPECT_EQ(Imported("x::a"), (Tones{{1760, 952}}));
  EXPECT_EQ(Imported("x:o=5:a"), (Tones{{880, 952}}));
  EXPECT_EQ(Imported("x:d=1:a"), (Tones{{1760, 3810}}));
}

TEST(RingToneTest, DurationsAndDots) {
  EXPECT_EQ(Imported("x:d=4,o=4,b=120:1a,2b,4a,8b,16a,32b"),
            (Tones{{440, 2000}, {494, 1000}, {440, 500}, {494, 250}, {440, 125}, {494, 63}}));
  EXPECT_EQ(Imported("x:b=120:a4.,b.4,2a.,8p."),
            (Tones{{440, 750}, {494, 750}, {1760, 1500}, {kRest, 375}}));
}

TEST(RingToneTest, RoundingDoesNotAddUp) {
  int length_ms = 0;
  for (const auto& [pitch, tone_ms] : Imported("x:d=8,b=63:a,b,a,b,a,b,a,b,a,b")) {
    length_ms += tone_ms;
    EXPECT_NEAR(tone_ms, 476, 1);
  }
  EXPECT_EQ(length_ms, 4762);  // ten times 476.19
}

TEST(RingToneTest, AnyCaseAndBlanksAndLineEnds) {
  EXPECT_EQ(Imported(" My Tune :\r\n D = 8 , O=5,B=1 2 0 :\r\n 4 C # 5 . ,\n P,\tH ,\n"),
            (Tones{{554, 750}, {kRest, 250}, {988, 250}}));
}

TEST(RingToneTest, SettingsBetweenTheNotes) {
  EXPECT_EQ(Imported("x:d=4,o=4,b=120:a,o=5,a,d=8,b,b=60,a"),
            (Tones{{440, 500}, {880, 500}, {988, 250}, {880, 500}}));
}

TEST(RingToneTest, TheSamePitchTwiceIsSetApartByAShortRest) {
  EXPECT_EQ(Imported("x:b=120:a4,a4,b4"), (Tones{{440, 480}, {kRest, 20}, {440, 500}, {494, 500}}));
  EXPECT_EQ(Imported("x:d=32,b=200:a4,a4"), (Tones{{440, 28}, {kRest, 10}, {440, 37}}));
}

TEST(RingToneTest, Styles) {
  EXPECT_EQ(Imported("x:b=120,s=c:a4,a4,b4"), (Tones{{440, 500}, {440, 500}, {494, 500}}));
  EXPECT_EQ(Imported("x:b=120,s=S:a4,b4"),
            (Tones{{440, 250}, {kRest, 250}, {494, 250}, {kRest, 250}}));
  EXPECT_EQ(Imported("x:b=120,s=c:a4,s=n,a4,a4"),
            (Tones{{440, 500}, {440, 480}, {kRest, 20}, {440, 500}}));
}

TEST(RingToneTest, RestsInARowAreOne) {
  EXPECT_EQ(Imported("x:b=120:a4,p,8p,a4"), (Tones{{440, 500}, {kRest, 750}, {440, 500}}));
}

TEST(RingToneTest, ANoteLongerThanADurationCanBeIsSeveralTones) {
  EXPECT_EQ(Imported("x:b=5:1a4."), (Tones{{440, 24000}, {440, 24000}, {440, 24000}}));
}

TEST(RingToneTest, TheNameIsKept) {
  EXPECT_EQ(ReadRingTone("  Für Elise : :a", 4).name, "Für Elise");
  EXPECT_EQ(ReadRingTone("\xEF\xBB\xBFTune::a", 4).name, "Tune");
  EXPECT_EQ(ReadRingTone("::a", 4).name, "");
}

TEST(RingToneTest, ARepeatedTuneIsThereOnce) {
  EXPECT_EQ(MistakesIn("x:l=0:a"), Texts{});
  EXPECT_EQ(
      MistakesIn("x:b=120,l=3:a"),
      (Texts{":1:9: warning: a tone program cannot repeat itself: the tune is there once\n"}));
}

TEST(RingToneTest, MistakesAreToldWithTheirPlaces) {
  EXPECT_EQ(MistakesIn("no colon"), (Texts{":1:9: error: expected \":\" behind the name\n"}));
  EXPECT_EQ(MistakesIn("x:d=4"), (Texts{":1:6: error: expected \":\" behind the defaults\n"}));
  EXPECT_EQ(
      MistakesIn("x:d=3,o=9,b=1,q=1,l=16:a"),
      (Texts{":1:3: error: d= is 1, 2, 4, 8, 16, 32 or 64\n", ":1:7: error: o= is 4 to 8\n",
             ":1:11: error: b= is 5 to 999\n", ":1:15: error: expected d=, o=, b=, s= or l=\n",
             ":1:19: error: l= is 0 to 15\n"}));
  EXPECT_EQ(MistakesIn("x:s=x:a"), (Texts{":1:3: error: s= is s, n or c\n"}));
  EXPECT_EQ(MistakesIn("x::"), (Texts{":1:4: error: there are no notes\n"}));
  EXPECT_EQ(MistakesIn("x::a,\n  i,\n7a,c3,a9,a b,,a:"),
            (Texts{":2:3: error: expected a note, a to h or p\n",
                   ":3:1: error: a duration is 1, 2, 4, 8, 16, 32 or 64\n",
                   ":3:5: error: an octave is 4 to 8\n", ":3:8: error: an octave is 4 to 8\n",
                   ":3:12: error: expected \",\"\n", ":3:14: error: expected a note, a to h or p\n",
                   ":3:16: error: a second \":\" behind the notes: is it another tune?\n"}));
}

TEST(RingToneTest, ColumnsCountCharacters) {
  EXPECT_EQ(MistakesIn("é€:x:a"), (Texts{":1:4: error: expected d=, o=, b=, s= or l=\n"}));
}

TEST(RingToneTest, AfterTwentyMistakesNoMoreAreTold) {
  std::string text = "x::";
  for (int i = 0; i < 100; ++i) text += "i,";
  EXPECT_EQ(MistakesIn(text).size(), 20u);
}

TEST(RingToneTest, AtMost996Tones) {
  std::string text = "x:b=120:";
  for (int i = 0; i < 498; ++i) text += "a,b,";
  EXPECT_EQ(Imported(text).size(), 996u);
  EXPECT_EQ(MistakesIn(text + "a"),
            (Texts{":1:2001: error: more tones than the 996 of a tone program\n"}));
}

TEST(RingToneTest, ATextThatIsMuchTooLongIsNotRead) {
  EXPECT_EQ(MistakesIn("x::" + std::string(kMostRingToneText, ',')),
            (Texts{":1:1: error: more than 1 MiB is no ring tone text\n"}));
}

TEST(RingToneTest, TheRestOfAWrongSettingAmongTheNotesIsPassedOver) {
  EXPECT_EQ(MistakesIn("x::a,o=9x9,b"), (Texts{":1:6: error: o= is 4 to 8\n"}));
}

}  // namespace
}  // namespace tools
