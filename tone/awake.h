// Keeps the output device awake from before the first of many tones until after the last one.
#pragma once

#include <functional>
#include <memory>

#include "platform/platform.h"

namespace tone {

// Where the device cannot be woken the tones do without; nothing is reported.
class Awake {
 public:
  explicit Awake(platform::Platform& platform) : platform_(platform) {}

  // Has begun.
  Awake(platform::Platform& platform, const std::function<bool()>& stopped) : platform_(platform) {
    Begin(stopped);
  }
  Awake(const Awake&) = delete;
  Awake& operator=(const Awake&) = delete;

  // Begins ahead of time, so that there is hardly anything to wait for later. What nobody waits for
  // within a minute is given up: a device that is awake keeps the whole machine from sleeping.
  void Prepare();

  // Handles messages until the device is awake, half a second after it was called at the latest,
  // or until `stopped` holds. A device that is awake already costs no time.
  void Begin(const std::function<bool()>& stopped);

  // Nothing plays any more.
  void End();

 private:
  void Start();

  platform::Platform& platform_;
  std::unique_ptr<platform::SilentSound> silence_;
  platform::Moment called_{};
  std::unique_ptr<platform::Timer> unused_;
};

}  // namespace tone
