// The registry through the system's own functions (advapi32), loaded when first needed.
#pragma once

#include "platform/registry.h"
#include "platform/windows/api/windows_api.h"

namespace platform::windows {

class WindowsRegistry final : public Registry {
 public:
  std::optional<RegistryValue> Read(RegistryRoot root, const std::string& key,
                                    const std::string& value) override;

 private:
  using OpenFunction = decltype(&RegOpenKeyExW);
  using QueryFunction = decltype(&RegQueryValueExW);
  using CloseFunction = decltype(&RegCloseKey);

  bool Load();

  bool tried_ = false;
  OpenFunction open_ = nullptr;
  QueryFunction query_ = nullptr;
  CloseFunction close_ = nullptr;
};

}  // namespace platform::windows
