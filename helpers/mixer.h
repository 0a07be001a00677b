// The mixer through which the system plays on its default device.
#pragma once

#include <cstdint>
#include <optional>

namespace helpers {

// Owns the thread's use of COM, by which the mixer is asked. To live as long as sound is played:
// with the last use of COM the system would unload its sound components, only to load them again.
class Mixer {
 public:
  Mixer();
  ~Mixer();
  Mixer(const Mixer&) = delete;
  Mixer& operator=(const Mixer&) = delete;

  // Frames per second. Whatever rate a stream has, nothing at half of this rate
  // or above can be heard, and a mixer that converts carelessly makes a lower tone of it. Nothing
  // where there is no device or the system does not tell (before Windows Vista).
  std::optional<std::uint32_t> Rate() const;

 private:
  bool com_;
};

}  // namespace helpers
