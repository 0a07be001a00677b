#include "platform/simulated/pump.h"

#include <algorithm>
#include <string>
#include <utility>

namespace platform::simulated {

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
}

void VirtualPump::Sleep(int milliseconds) {
  if (milliseconds < 0) milliseconds = 0;
  if (journal_waits) journal_.Add(Kind::kWait, "sleep " + std::to_string(milliseconds));
  AdvanceTo(now_ms_ + milliseconds);
  if (actions_.empty() && now_ms_ - last_action_ms_ > kLongestWaitMs) {
    throw Stalled("the program waits for something that never comes");
  }
}

void VirtualPump::Run() {
  while (any_visible_()) {
    if (actions_.empty()) throw ScriptOver{};
    AdvanceTo(std::max(now_ms_, actions_.begin()->first));
    ProcessPending();
  }
}

void VirtualPump::AdvanceTo(std::int64_t now_ms) {
  now_ms_ = now_ms;
  journal_.SetTime(now_ms);
}

}  // namespace platform::simulated
