#include "platform/interpreter.h"

namespace platform {

void StartInterpreter(Platform& platform, const std::string& command) {
  platform.processes.StartHidden(platform.environment.SystemFolder() + "\\cmd.exe", command);
}

}  // namespace platform
