// DirectSound (dsound.dll), loaded when a tone first takes that route.
#pragma once

#include "platform/direct_sound.h"

namespace platform::windows {

class WindowsDirectSound final : public DirectSound {
 public:
  std::unique_ptr<DirectSoundRoot> Create() override;
};

}  // namespace platform::windows
