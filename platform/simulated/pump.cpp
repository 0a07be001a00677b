#include "platform/simulated/pump.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace platform::simulated {

namespace {

std::int64_t MillisecondsOf(Moment moment) {
  return std::chrono::ceil<std::chrono::milliseconds>(moment).count();
}

}  // namespace

class VirtualTimer : public Timer {
 public:
  VirtualTimer(VirtualPump& pump, int number) : pump_(pump), number_(number) {}
  ~VirtualTimer() override { pump_.timers_.erase(number_); }

 private:
  VirtualPump& pump_;
  int number_;
};

void VirtualPump::At(std::int64_t at_ms, std::function<void()> action) {
  actions_.emplace(at_ms, std::move(action));
}

void VirtualPump::ProcessPending(const std::function<bool()>& enough) {
  while (!actions_.empty() && actions_.begin()->first <= now_ms_) {
    const auto action = std::move(actions_.begin()->second);
    actions_.erase(actions_.begin());
    last_action_ms_ = now_ms_;
    action();
    if (enough && enough()) return;
  }
  RunTimers(enough);
}

bool VirtualPump::ProcessUntil(const std::function<bool()>& done, int at_most_ms) {
  const std::int64_t end = now_ms_ + at_most_ms;
  for (;;) {
    ProcessPending(done);
    if (done()) return true;
    if (now_ms_ >= end) return false;
    AdvanceTo(actions_.empty() ? end : std::min(end, actions_.begin()->first));
  }
}

bool VirtualPump::Pass(const std::function<bool()>& stopped, Moment end, Grain /*grain*/) {
  const std::int64_t end_ms = MillisecondsOf(end);
  NoteWait("wait", end_ms - now_ms_);
  while (!stopped()) {
    ProcessPending(stopped);
    if (stopped() || now_ms_ >= end_ms) break;
    AdvanceTo(std::max(now_ms_, std::min(end_ms, NextMoment())));
  }
  return stopped();
}

void VirtualPump::Sleep(int milliseconds) {
  if (milliseconds < 0) milliseconds = 0;
  NoteWait("sleep", milliseconds);
  if (milliseconds > 0) milliseconds += oversleep_ms;
  AdvanceTo(now_ms_ + milliseconds);
}

void VirtualPump::SleepUntil(Moment end) {
  const std::int64_t left_ms = MillisecondsOf(end) - now_ms_;
  if (left_ms > 0) Sleep(static_cast<int>(left_ms));
}

void VirtualPump::NoteWait(const std::string& name, std::int64_t milliseconds) {
  if (journal_waits) journal_.Add(Kind::kWait, name + " " + std::to_string(milliseconds));
  if (actions_.empty() && now_ms_ + milliseconds - last_action_ms_ > kLongestWaitMs) {
    throw Stalled("the program waits for something that never comes");
  }
}

void VirtualPump::Run() {
  while (any_visible_()) {
    if (actions_.empty()) throw ScriptOver{};
    AdvanceTo(std::max(now_ms_, NextMoment()));
    ProcessPending();
  }
}

std::unique_ptr<Timer> VirtualPump::Start(int period_ms, std::function<void()> tick) {
  timers_[++last_timer_] = {now_ms_ + period_ms, period_ms, std::move(tick)};
  return std::make_unique<VirtualTimer>(*this, last_timer_);
}

std::int64_t VirtualPump::NextMoment() const {
  std::int64_t next_ms = std::numeric_limits<std::int64_t>::max();
  if (!actions_.empty()) next_ms = actions_.begin()->first;
  for (const auto& [number, timer] : timers_) next_ms = std::min(next_ms, timer.due_ms);
  return next_ms;
}

// As the system's timers do: after everything else, and once however often one was missed.
void VirtualPump::RunTimers(const std::function<bool()>& enough) {
  std::vector<int> due;
  for (const auto& [number, timer] : timers_) {
    if (timer.due_ms <= now_ms_) due.push_back(number);
  }
  for (const int number : due) {
    const auto timer = timers_.find(number);
    if (timer == timers_.end()) continue;
    timer->second.due_ms = now_ms_ + timer->second.period_ms;
    const auto tick = timer->second.tick;
    tick();
    if (enough && enough()) return;
  }
}

void VirtualPump::AdvanceTo(std::int64_t now_ms) {
  now_ms_ = now_ms;
  journal_.SetTime(now_ms);
}

}  // namespace platform::simulated
