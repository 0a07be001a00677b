// The default output device, kept at work. One that has to be woken by the first tone swallows that
// tone's beginning; beside a silent sound that plays already, each tone is heard whole.
#pragma once

#include <memory>

namespace platform {

// Silence that plays until it is dropped.
class SilentSound {
 public:
  virtual ~SilentSound() = default;

  // Whether the device has begun to play it.
  virtual bool Plays() = 0;
};

class AwakeOutput {
 public:
  virtual ~AwakeOutput() = default;

  // Returns without waiting for the device. Null where there is none.
  virtual std::unique_ptr<SilentSound> Start() = 0;
};

}  // namespace platform
