// The window of the hearing test on a simulated machine, with a listener who hears what is played.
#include "hearing/hearing_window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "hearing/trial_sound.h"
#include "platform/simulated/simulation.h"

namespace hearing {
namespace {

using namespace std::chrono_literals;

// A device on the virtual clock.
class FakeOutput : public ToneOutput {
 public:
  explicit FakeOutput(platform::MessagePump& pump) : pump_(pump) {}

  std::optional<Rates> rates = Rates{48000, 48000};
  bool refuses = false;  // does not take what is to be played
  bool stuck = false;    // never comes to an end
  bool drops = false;    // gives everything back at once
  std::vector<std::vector<std::int16_t>> played;
  bool open = false;

  std::optional<Rates> Open() override {
    open = rates.has_value();
    return rates;
  }
  bool Play(const std::vector<std::int16_t>& samples) override {
    EXPECT_TRUE(open);
    if (refuses) return false;
    played.push_back(samples);
    const auto frames = static_cast<std::int64_t>(samples.size() / 2);
    end_ = pump_.Now() + std::chrono::microseconds(frames * 1'000'000 / rates->stream_hz);
    return true;
  }
  bool Played() const override { return drops || (!stuck && pump_.Now() >= end_); }
  void Close() override { open = false; }

 private:
  platform::MessagePump& pump_;
  platform::Moment end_{};
};

// By its zero crossings; 0 for silence.
int PitchOf(const std::vector<std::int16_t>& samples) {
  int crossings = 0;
  int before = 0;
  for (std::size_t at = 0; at < samples.size(); at += 2) {
    if (samples[at] == 0) continue;
    if (before * samples[at] < 0) ++crossings;
    before = samples[at] > 0 ? 1 : -1;
  }
  return static_cast<int>(std::lround(crossings / 2.0 / 0.8 / 100)) * 100;
}

class HearingWindowTest : public testing::Test {
 protected:
  void Open() {
    window_.emplace(
        HearingWindow::Services{sim.windows, sim.pump, sim.random, sim.messages, output}, language);
    window_->Show();
  }
  HearingWindow& window() { return *window_; }

  const std::string& State() { return window().lblState.Caption(); }

  bool WaitFor(const std::function<bool()>& done, std::chrono::milliseconds at_most = 20s) {
    return sim.pump.Pass(done, sim.pump.Now() + at_most, platform::Grain::kCoarse);
  }
  bool WaitForQuestion() {
    return WaitFor([&] { return State() == TextsOf(language).question; });
  }
  void Wait(std::chrono::milliseconds time) {
    WaitFor([] { return false; }, time);
  }

  // Answers every question until the test is over; what the listener is asked is what sounded.
  void Run(const std::function<bool(int)>& hears) {
    window().cmdStart.Click();
    while (WaitForQuestion()) {
      (hears(PitchOf(output.played.back())) ? window().cmdYes : window().cmdNo).Click();
      if (window().cmdStart.Enabled()) return;
    }
  }
  void RunUpTo(int highest_hz) {
    Run([=](int pitch) { return pitch != 0 && pitch <= highest_hz; });
  }

  platform::simulated::Simulation sim;
  FakeOutput output{sim.pump};
  Language language = Language::kEnglish;

 private:
  std::optional<HearingWindow> window_;
};

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
