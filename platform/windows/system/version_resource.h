// The program's version resource, through the system's library for it (version.dll), loaded when
// first needed.
#pragma once

#include "platform/version_resource.h"

namespace platform::windows {

class WindowsVersionResource final : public VersionResource {
 public:
  ProgramVersion Read() override;
};

}  // namespace platform::windows
