// A recording device without sound: it hands over blocks that a test provides, once every half
// buffer of virtual time, and fails at any call on demand.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/errors.h"
#include "platform/simulated/journal.h"
#include "platform/sound_capture.h"
#include "platform/timers.h"

namespace platform::simulated {

enum class CaptureCall { kRoot, kDevices, kDevice, kBuffer, kEvent, kPositions, kStart, kStop };

class FakeSoundCapture : public SoundCapture {
 public:
  FakeSoundCapture(Journal& journal, Timers& timers) : journal_(journal), timers_(timers) {}

  std::vector<std::string> devices{"microphone"};
  bool plugged_in = true;  // false: capture stands still and nothing can be read
  bool delivers = true;    // false: capture starts, but never tells of anything
  int live_objects = 0;    // made and not yet dropped
  int running_buffers = 0;

  // What the buffer holds at a byte offset.
  std::function<std::uint8_t(std::uint32_t)> sound = [](std::uint32_t) { return std::uint8_t{0}; };

  // Calls of this kind fail.
  void Fail(CaptureCall call, base::ErrorCode code = base::ErrorCode::kDeviceError) {
    fails_[call] = code;
  }
  void Heal() { fails_.clear(); }

  // Runs the callback of event `id`, as a notification that was under way does.
  void Notify(std::int32_t id);

  std::unique_ptr<CaptureRoot> Create() override;

  // For the objects made.
  void Call(CaptureCall call, const std::string& text);
  void Note(const std::string& text);
  Timers& timers() { return timers_; }
  std::map<std::int32_t, std::function<void(std::int32_t)>> callbacks;  // of live events, by id

 private:
  Journal& journal_;
  Timers& timers_;
  std::map<CaptureCall, base::ErrorCode> fails_;
};

}  // namespace platform::simulated
