// Other processes, and the end of this one.
#pragma once

#include <functional>

#include "platform/system.h"

namespace platform::windows {

class WindowsProcesses final : public Processes {
 public:
  // From then on every program that this one starts can tell whose it is (base/owner_text.h).
  // `at_end` happens when the process ends itself.
  explicit WindowsProcesses(std::function<void()> at_end);

  std::vector<ProcessEntry> Snapshot() override;
  bool Terminate(std::uint32_t id) override;
  void Start(const std::string& command) override;
  void StartHidden(const std::string& program, const std::string& command) override;
  void StartProgram(const std::string& program, const std::string& arguments) override;
  [[noreturn]] void EndProcess() override;

 private:
  std::function<void()> at_end_;
};

}  // namespace platform::windows
