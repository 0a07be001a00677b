// An output device that needs its time to wake, or is not there. Silence is heard by nobody, so it
// is in the journal only where a test asks for it.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/awake_output.h"
#include "platform/simulated/journal.h"
#include "platform/simulated/pump.h"

namespace platform::simulated {

class FakeAwakeOutput : public AwakeOutput {
 public:
  FakeAwakeOutput(Journal& journal, VirtualPump& pump) : journal_(journal), pump_(pump) {}

  bool there = true;
  std::int64_t wakes_after_ms = 0;
  bool journaled = false;  // "awake" and "asleep", as sounds
  int playing = 0;         // silent sounds
  int started = 0;         // as far as there was a device

  std::unique_ptr<SilentSound> Start() override;

  // For the sounds.
  VirtualPump& pump() const { return pump_; }
  void Change(int by);

 private:
  Journal& journal_;
  VirtualPump& pump_;
};

}  // namespace platform::simulated
