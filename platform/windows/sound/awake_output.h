// Silence on the system's default wave output (waveOut, winmm), looped by the system itself.
#pragma once

#include "platform/awake_output.h"

namespace platform::windows {

class WindowsAwakeOutput final : public AwakeOutput {
 public:
  std::unique_ptr<SilentSound> Start() override;
};

}  // namespace platform::windows
