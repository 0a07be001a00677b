// The screen's figures and the system's version.
#pragma once

#include "platform/system.h"

namespace platform::windows {

class WindowsScreen final : public Screen {
 public:
  PixelsPerInch LogicalPixelsPerInch() override;
  Size Pixels() override;
};

class WindowsVersion final : public SystemVersion {
 public:
  VersionRecord Query() override;
};

}  // namespace platform::windows
