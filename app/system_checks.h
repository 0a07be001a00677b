// DPIGet and CheckVersion: what start-up wants to know of the system.
#pragma once

#include <cstdint>
#include <string>

#include "base/error_trap.h"
#include "platform/platform.h"

namespace app {

// The version for the log: the query's own success value, major and minor version (" 1 . 6 . 1").
std::string VersionText(const platform::VersionRecord& record);

// NT family, major version 5 or 6.
bool IsSupported(const platform::VersionRecord& record);

bool IsWindows2000(const platform::VersionRecord& record);

class SystemChecks {
 public:
  SystemChecks(platform::Platform& platform, base::ErrorReporter& errors)
      : platform_(platform), errors_(errors) {}

  // The screen's horizontal logical pixels per inch. Error value kDPIGet; 0 after an error.
  std::int32_t DPIGet();

  // Warns on Windows 2000; ends the program at once on a system that is not supported. Error value
  // 1027, after which the check is made once more.
  std::string CheckVersion();

 private:
  std::string CheckOnce();

  platform::Platform& platform_;
  base::ErrorReporter& errors_;
};

}  // namespace app
