// Plays what the hand-over file asked for, as long as that file and the program that wrote it are
// there.
#pragma once

#include <cstdint>
#include <optional>

#include "helpers/device_watch.h"
#include "helpers/mixer.h"
#include "helpers/owner.h"
#include "helpers/request_file.h"
#include "helpers/request_watch.h"
#include "helpers/tone_stream.h"
#include "helpers/wave_device.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {

enum class AtTop { kEnd, kStaySilent };

// What a sweep does at its top is up to `at_top`. Without a sound device, or with none that carries
// the pitch, it does the same in silence, and tries again each second.
class TonePlayer {
 public:
  TonePlayer(const RequestFile& file, std::uint32_t request, AtTop at_top);

  // Returns when the file or its writer is gone, or at the end of a sweep that is to end. In all
  // other cases the process plays on until it is terminated.
  void Run();

 private:
  void Open();
  void Feed();
  void GiveUpDevice();
  bool SweepOver() const;

  const RequestFile& file_;
  const std::uint32_t request_;
  const AtTop at_top_;
  const DWORD began_ms_;
  OwnerProcess owner_;
  RequestWatch watch_;
  DeviceWatch device_watch_;
  bool tried_ = false;
  std::optional<ToneStream> stream_;  // while the device plays
  std::optional<Mixer> mixer_;        // once it has been asked
  WaveDevice device_;
};

}  // namespace helpers
