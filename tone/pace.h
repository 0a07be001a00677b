// Waits that follow each other within one tone or one pause.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/platform.h"
#include "tone/wave_output.h"

namespace tone {

// Each wait ends where the waits since the beginning end by their lengths: what one of them
// oversleeps is missing from the next, so that the whole is late once, and never short. Messages
// wait meanwhile.
class Pace {
 public:
  explicit Pace(platform::Platform& platform) : pump_(platform.pump), waves_(platform) {}

  // When the tone or pause began; at first, where this was made.
  void BeginAt(platform::Moment begin) { due_ = begin; }

  void Wait(std::int32_t time_ms);

  // The time that `work` takes is none of the waits'.
  void Apart(const std::function<void()>& work);

 private:
  platform::MessagePump& pump_;
  WaveOutput waves_;
  platform::Moment due_ = pump_.Now();
};

}  // namespace tone
