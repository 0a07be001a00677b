// DirectSound capture (dsound.dll), loaded when recording is first wanted.
#pragma once

#include "platform/sound_capture.h"

namespace platform::windows {

class WindowsSoundCapture final : public SoundCapture {
 public:
  std::unique_ptr<CaptureRoot> Create() override;
};

}  // namespace platform::windows
