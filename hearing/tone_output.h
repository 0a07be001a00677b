// The sound device, as a hearing test asks for it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace hearing {

class ToneOutput {
 public:
  virtual ~ToneOutput() = default;

  struct Rates {
    std::uint32_t stream_hz = 0;   // frames per second of what is played
    std::uint32_t carried_hz = 0;  // the same or, where that is lower, of what it is mixed into
  };

  // Takes the default device. Nothing where there is none.
  virtual std::optional<Rates> Open() = 0;

  // Plays 16 bit stereo and returns at once; nothing else sounds then. False when the device does
  // not take it any more.
  virtual bool Play(const std::vector<std::int16_t>& samples) = 0;

  // Nothing sounds any more.
  virtual bool Played() const = 0;

  // Silence, and the device is given back.
  virtual void Close() = 0;
};

}  // namespace hearing
