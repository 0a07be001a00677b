// The window of the hearing test: its pages, a test and its verdicts.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "tests/hearing/window_fixture.h"

namespace hearing {
namespace {

TEST_F(HearingWindowTest, ItsFirstPageAsksForALowVolumeAndNothingSounds) {
  Open();
  Wait(60s);
  EXPECT_EQ(window().Caption(), "Hearing age");
  EXPECT_NE(window().lblText.Caption().find("set a low volume"), std::string::npos);
  EXPECT_NE(window().lblCaution.Caption().find("no medical test"), std::string::npos);
  EXPECT_TRUE(window().cmdStart.Enabled());
  EXPECT_FALSE(window().cmdYes.Enabled());
  EXPECT_FALSE(window().cmdNo.Enabled());
  EXPECT_FALSE(window().picScale.Visible());
  EXPECT_TRUE(output.played.empty());
  EXPECT_FALSE(output.open);
  EXPECT_EQ(sim.pump.running_timers(), 0U);
}

TEST_F(HearingWindowTest, NoTwoControlsHaveOneId) {
  Open();
  std::set<int> ids;
  for (const ui::Control* const control : window().Controls()) {
    EXPECT_TRUE(ids.insert(control->Id()).second) << control->Name();
    EXPECT_GE(control->Id(), 100);
    EXPECT_LT(control->Id(), 1000);
  }
  EXPECT_EQ(ids.size(), 19U);
}

TEST_F(HearingWindowTest, SpeaksDutch) {
  language = Language::kDutch;
  Open();
  EXPECT_EQ(window().Caption(), "Gehoorleeftijd");
  EXPECT_EQ(window().cmdStart.Caption(), "Start");
  EXPECT_EQ(window().cmdYes.Caption(), "Ja");
  EXPECT_EQ(window().cmdNo.Caption(), "Nee");
  EXPECT_EQ(window().cmdClose.Caption(), "Sluiten");
  RunUpTo(15300);
  EXPECT_EQ(window().lblResult.Caption(), "Hoogste toon gehoord: 15300 Hz");
  EXPECT_EQ(window().lblAges.Caption(), "Dat past bij leeftijden tussen 33 en 49 jaar.");
}

TEST_F(HearingWindowTest, ATrialIsATonesTimeBetweenListenAndTheQuestion) {
  Open();
  window().cmdStart.Click();
  EXPECT_EQ(State(), "Listen...");
  EXPECT_FALSE(window().cmdStart.Enabled());
  Wait(1450ms);
  EXPECT_EQ(State(), "Listen...");
  Wait(100ms);
  EXPECT_EQ(State(), "Did you hear it?");
  EXPECT_EQ(sim.pump.running_timers(), 0U);
  Wait(600s);
  ASSERT_EQ(output.played.size(), 1U);
  EXPECT_EQ(PitchOf(output.played[0]), 1000);
}

TEST_F(HearingWindowTest, AnAnswerBeforeTheQuestionIsNone) {
  Open();
  window().cmdStart.Click();
  Wait(500ms);
  window().cmdYes.Click();
  window().cmdNo.Click();
  ASSERT_TRUE(WaitForQuestion());
  window().cmdYes.Click();
  EXPECT_EQ(State(), "Listen...");
  EXPECT_EQ(output.played.size(), 2U);
  window().cmdYes.Click();
  EXPECT_EQ(output.played.size(), 2U);
}

TEST_F(HearingWindowTest, TheResultIsThePitchTheAgesAndThePicture) {
  Open();
  RunUpTo(13400);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 13400 Hz");
  EXPECT_EQ(window().lblAges.Caption(), "That is typical of ages between 35 and 54.");
  EXPECT_EQ(State(), "");
  EXPECT_TRUE(window().picScale.Visible());
  EXPECT_TRUE(window().lblAge30.Visible());
  EXPECT_EQ(window().lblAge70.Caption(), "Age 70");
  ui::Canvas wanted(340, 84);
  DrawScale(13400, wanted);
  EXPECT_EQ(window().picScale.Picture().pixels(), wanted.pixels());
  EXPECT_FALSE(output.open);
}

TEST_F(HearingWindowTest, EveryPitchThatIsPlayedIsInTheTestsRange) {
  Open();
  RunUpTo(9900);
  ASSERT_FALSE(output.played.empty());
  EXPECT_EQ(PitchOf(output.played.front()), 1000);
  for (std::size_t trial = 1; trial < output.played.size(); ++trial) {
    const int pitch = PitchOf(output.played[trial]);
    EXPECT_TRUE(pitch == 0 || (pitch >= 8000 && pitch <= 20000)) << pitch;
  }
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 9900 Hz");
}

TEST_F(HearingWindowTest, HighAndLowResultsHaveOneEndOfAgesOnly) {
  Open();
  RunUpTo(20000);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 20000 Hz");
  EXPECT_EQ(window().lblAges.Caption(), "That is typical of ages up to 48.");
  RunUpTo(8200);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 8200 Hz");
  EXPECT_EQ(window().lblAges.Caption(), "That is typical of ages from 49.");
}

TEST_F(HearingWindowTest, ThreeTimesNoTo1000HzEndsItWithTheReason) {
  Open();
  window().cmdStart.Click();
  ASSERT_TRUE(WaitForQuestion());
  window().cmdNo.Click();
  EXPECT_EQ(window().lblText.Caption(), "Turn the volume up a little. The tone comes once more.");
  Wait(2000ms);
  EXPECT_EQ(output.played.size(), 1U);
  ASSERT_TRUE(WaitForQuestion());
  window().cmdNo.Click();
  ASSERT_TRUE(WaitForQuestion());
  window().cmdNo.Click();
  EXPECT_NE(window().lblText.Caption().find("did not hear 1000 Hz three times"), std::string::npos);
  EXPECT_TRUE(window().cmdStart.Enabled());
  EXPECT_EQ(output.played.size(), 3U);
  Wait(60s);
  EXPECT_EQ(output.played.size(), 3U);
}

TEST_F(HearingWindowTest, ThereAreTwoAndAHalfSecondsToTurnTheVolumeUp) {
  Open();
  window().cmdStart.Click();
  ASSERT_TRUE(WaitForQuestion());
  window().cmdNo.Click();
  Wait(2475ms);
  EXPECT_EQ(output.played.size(), 1U);
  Wait(50ms);
  EXPECT_EQ(output.played.size(), 2U);
}

TEST_F(HearingWindowTest, TheSilentTrialsStandElsewhereInEachTest) {
  Open();
  std::set<std::string> courses;
  for (const double number : {0.1, 0.4, 0.7}) {
    sim.random.next = number;
    output.played.clear();
    RunUpTo(13400);
    std::string course;
    for (const auto& samples : output.played) course += PitchOf(samples) == 0 ? '-' : '+';
    courses.insert(course);
  }
  EXPECT_EQ(courses.size(), 3U);
}

TEST_F(HearingWindowTest, YesToSilenceIsNotReliable) {
  Open();
  Run([](int) { return true; });
  EXPECT_EQ(window().lblResult.Caption(), "Not reliable");
  EXPECT_NE(window().lblAges.Caption().find("nothing was played"), std::string::npos);
  EXPECT_FALSE(window().picScale.Visible());
}

TEST_F(HearingWindowTest, ContradictionsAreNotReliable) {
  Open();
  // Says the contrary when he is asked again.
  std::map<int, int> times;
  Run([&](int pitch) {
    if (pitch == 1000 || pitch == 0) return pitch == 1000;
    return (pitch <= 13400) == (times[pitch]++ % 2 == 0);
  });
  EXPECT_EQ(window().lblResult.Caption(), "Not reliable");
  EXPECT_NE(window().lblAges.Caption().find("contradict"), std::string::npos);
}

TEST_F(HearingWindowTest, WhoHearsNoHighToneIsToldSo) {
  Open();
  RunUpTo(1000);
  EXPECT_EQ(window().lblResult.Caption(), "None of the high tones was heard");
  EXPECT_FALSE(window().picScale.Visible());
}

}  // namespace
}  // namespace hearing
