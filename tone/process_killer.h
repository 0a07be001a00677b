// Ends helper processes by the name of their executable file.
#pragma once

#include <string>

#include "platform/platform.h"

namespace tone {

class ProcessKiller {
 public:
  explicit ProcessKiller(platform::Platform& platform) : platform_(platform) {}

  // Ends every process whose executable name ends in `name_process`, ignoring case; "tone16.dll"
  // also ends "xtone16.dll". Returns how many were ended. An empty name ends nothing; a process
  // that may not be ended is passed over.
  int KillProcess(const std::string& name_process);

 private:
  platform::Platform& platform_;
};

}  // namespace tone
