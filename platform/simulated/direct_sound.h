// DirectSound in the journal, failing at any of its calls on demand.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/direct_sound.h"
#include "platform/simulated/journal.h"

namespace platform::simulated {

enum class DirectSoundCall { kRoot, kDevice, kLevel, kBuffer, kPlay, kStop };

class FakeDirectSound : public DirectSound {
 public:
  explicit FakeDirectSound(Journal& journal) : journal_(journal) {}

  // Calls of this kind fail.
  void Fail(DirectSoundCall call) { fails_[call] = true; }
  void Heal() { fails_.clear(); }

  int live_objects = 0;     // made and not yet dropped
  int playing_buffers = 0;  // started and not stopped

  std::unique_ptr<DirectSoundRoot> Create() override;

  // Takes note of a call, and throws where it is to fail.
  void Call(DirectSoundCall call, const std::string& text);

 private:
  Journal& journal_;
  std::map<DirectSoundCall, bool> fails_;
};

}  // namespace platform::simulated
