// A window of the hearing test on a simulated machine, and who does the test.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "hearing/hearing_window.h"
#include "platform/simulated/simulation.h"

namespace hearing {

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
inline int PitchOf(const std::vector<std::int16_t>& samples) {
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

}  // namespace hearing
