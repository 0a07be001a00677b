#include "tone/awake.h"

#include <algorithm>
#include <chrono>

#include "base/error_trap.h"

namespace tone {
namespace {

using namespace std::chrono_literals;

constexpr platform::Moment kLongestWait = 500ms;
constexpr int kUnusedMs = 60'000;

}  // namespace

void Awake::Prepare() {
  base::Quietly([this] {
    Start();
    if (silence_) unused_ = platform_.timers.Start(kUnusedMs, [this] { End(); });
  });
  // Without the timer nobody would give it up.
  if (!unused_) End();
}

void Awake::Begin(const std::function<bool()>& stopped) {
  unused_.reset();
  base::Quietly([&] {
    Start();
    const auto over = [&] { return stopped() || !silence_ || silence_->Plays(); };
    if (over()) return;
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(called_ + kLongestWait - platform_.pump.Now());
    platform_.pump.ProcessUntil(over, static_cast<int>(std::max(left, 0ms).count()));
  });
}

void Awake::End() {
  silence_.reset();
  unused_.reset();
}

void Awake::Start() {
  if (silence_) return;
  called_ = platform_.pump.Now();
  silence_ = platform_.awake_output.Start();
}

}  // namespace tone
