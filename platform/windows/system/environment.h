// The process's surroundings: variables, command line, folders.
#pragma once

#include "platform/system.h"

namespace platform::windows {

class WindowsEnvironment final : public Environment {
 public:
  std::string Get(const std::string& name) override;
  std::string Arguments() override;
  std::string SystemFolder() override;
  std::string ProgramFolder() override;
  std::string ProgramName() override;
  std::string FullPath(const std::string& path) override;
  void SetCurrentFolder(const std::string& path) override;
  char DecimalSign() override;
};

}  // namespace platform::windows
