// The window of the hearing test: test after test, and what the sound device does.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/hearing/window_fixture.h"

namespace hearing {
namespace {

TEST_F(HearingWindowTest, ASecondTestBeginsWithoutLeaving) {
  Open();
  RunUpTo(13400);
  const std::size_t first = output.played.size();
  window().cmdStart.Click();
  EXPECT_EQ(window().lblResult.Caption(), "");
  EXPECT_EQ(window().lblAges.Caption(), "");
  EXPECT_FALSE(window().picScale.Visible());
  EXPECT_EQ(PitchOf(output.played[first]), 1000);
  window().cmdNo.Click();
  RunUpTo(0);
  EXPECT_TRUE(window().cmdStart.Enabled());
  RunUpTo(17100);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 17100 Hz");
}

TEST_F(HearingWindowTest, TheDevicesLimitIsKeptAndTold) {
  output.rates = ToneOutput::Rates{44100, 44100};
  Open();
  window().cmdStart.Click();
  EXPECT_NE(window().lblText.Caption().find("This sound device allows tones up to 19800 Hz."),
            std::string::npos);
  ASSERT_TRUE(WaitForQuestion());
  window().cmdYes.Click();
  EXPECT_NE(window().lblText.Caption().find("19800 Hz"), std::string::npos);
  window().Unload();
  Open();
  RunUpTo(20000);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 19800 Hz");
  EXPECT_EQ(window().lblAges.Caption(),
            "That is typical of ages up to 48. This sound device allows tones up to 19800 Hz.");
}

TEST_F(HearingWindowTest, TheMixersLowerRateCounts) {
  output.rates = ToneOutput::Rates{48000, 32000};
  Open();
  RunUpTo(20000);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 14400 Hz");
}

TEST_F(HearingWindowTest, WithoutADeviceItSaysSoAndStartTriesAgain) {
  output.rates.reset();
  Open();
  window().cmdStart.Click();
  EXPECT_NE(window().lblText.Caption().find("No sound device was found"), std::string::npos);
  EXPECT_TRUE(window().cmdStart.Enabled());
  output.rates = ToneOutput::Rates{48000, 48000};
  RunUpTo(12000);
  EXPECT_EQ(window().lblResult.Caption(), "Highest pitch heard: 12000 Hz");
}

TEST_F(HearingWindowTest, ADeviceForSpeechOnlyIsNotEnough) {
  output.rates = ToneOutput::Rates{16000, 16000};
  Open();
  window().cmdStart.Click();
  EXPECT_NE(window().lblText.Caption().find("plays no tones from 8000 Hz on"), std::string::npos);
  EXPECT_TRUE(output.played.empty());
  EXPECT_FALSE(output.open);
}

TEST_F(HearingWindowTest, AnUnpluggedDeviceEndsTheTestInWords) {
  for (bool FakeOutput::*const failure :
       {&FakeOutput::refuses, &FakeOutput::stuck, &FakeOutput::drops}) {
    Open();
    window().cmdStart.Click();
    ASSERT_TRUE(WaitForQuestion());
    output.*failure = true;
    window().cmdYes.Click();
    ASSERT_TRUE(WaitFor([&] { return window().cmdStart.Enabled(); }, 10s));
    EXPECT_NE(window().lblText.Caption().find("does not play any more"), std::string::npos);
    EXPECT_EQ(State(), "");
    EXPECT_EQ(sim.pump.running_timers(), 0U);
    EXPECT_FALSE(output.open);
    output.*failure = false;
  }
}

TEST_F(HearingWindowTest, ClosingItSilencesTheDevice) {
  Open();
  window().cmdStart.Click();
  Wait(700ms);
  EXPECT_TRUE(output.open);
  window().cmdClose.Click();
  EXPECT_FALSE(window().Loaded());
  EXPECT_FALSE(output.open);
  EXPECT_EQ(sim.pump.running_timers(), 0U);
}

TEST_F(HearingWindowTest, EscClosesAndEnterStartsOrSaysYes) {
  Open();
  EXPECT_EQ(window().CancelButton(), &window().cmdClose);
  EXPECT_EQ(window().DefaultButton(), &window().cmdStart);
  window().cmdStart.Click();
  EXPECT_EQ(window().DefaultButton(), &window().cmdYes);
}

TEST_F(HearingWindowTest, TheHelpNamesSourceAndRule) {
  Open();
  sim.messages.answers = {platform::kAnswerOk};
  window().HelpRequested();
  const std::vector<std::string> said = sim.journal.Texts({platform::simulated::Kind::kMessage});
  ASSERT_EQ(said.size(), 1U);
  EXPECT_NE(said[0].find("Jilek, Suta and Syka"), std::string::npos);
  EXPECT_NE(said[0].find("20 to 60 dB"), std::string::npos);
}

TEST_F(HearingWindowTest, AFinerScreenGetsAFinerPicture) {
  Open();
  RunUpTo(13400);
  window().picScale.ChangeResolution(680, 168);
  Wait(1s);
  ui::Canvas wanted(680, 168);
  DrawScale(13400, wanted);
  EXPECT_EQ(window().picScale.Picture().pixels(), wanted.pixels());
}

}  // namespace
}  // namespace hearing
