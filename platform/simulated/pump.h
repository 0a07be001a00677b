// The message pump on a virtual clock: what a test schedules happens inside the program's own
// message loops, and sleeping costs no time.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>

#include "platform/simulated/journal.h"
#include "platform/system.h"
#include "platform/timers.h"

namespace platform::simulated {

// The program sleeps on and on although nothing is going to happen any more.
struct Stalled : std::logic_error {
  using std::logic_error::logic_error;
};

// Nothing is scheduled any more, and the program waits for its user.
struct ScriptOver {};

class VirtualPump : public MessagePump, public Timers {
 public:
  // `any_visible` tells whether a window is on the screen.
  VirtualPump(Journal& journal, std::function<bool()> any_visible)
      : journal_(journal), any_visible_(std::move(any_visible)) {}

  std::int64_t now_ms() const { return now_ms_; }
  bool journal_waits = false;  // whether each Sleep and Pass is recorded
  int oversleep_ms = 0;        // how late each Sleep ends

  // Schedules what a user or another program does. Equal times keep their order.
  void At(std::int64_t at_ms, std::function<void()> action);

  void ProcessPending(const std::function<bool()>& enough = {}) override;
  bool ProcessUntil(const std::function<bool()>& done, int at_most_ms) override;
  bool Pass(const std::function<bool()>& stopped, Moment end, Grain grain) override;
  Moment Now() const override { return std::chrono::milliseconds(now_ms_); }
  void Sleep(int milliseconds) override;
  void SleepUntil(Moment end) override;

  // Throws ScriptOver when nothing is scheduled any more while a window is visible.
  void Run() override;

  std::unique_ptr<Timer> Start(int period_ms, std::function<void()> tick) override;
  std::size_t running_timers() const { return timers_.size(); }

 private:
  friend class VirtualTimer;

  struct Ticking {
    std::int64_t due_ms = 0;
    int period_ms = 0;
    std::function<void()> tick;
  };

  void AdvanceTo(std::int64_t now_ms);
  void NoteWait(const std::string& name, std::int64_t milliseconds);
  std::int64_t NextMoment() const;
  void RunTimers(const std::function<bool()>& enough);

  static constexpr std::int64_t kLongestWaitMs = 24 * 60 * 60 * 1000;

  Journal& journal_;
  std::function<bool()> any_visible_;
  std::int64_t now_ms_ = 0;
  std::int64_t last_action_ms_ = 0;
  std::multimap<std::int64_t, std::function<void()>> actions_;
  std::map<int, Ticking> timers_;  // by number, in the order in which they were started
  int last_timer_ = 0;
};

}  // namespace platform::simulated
