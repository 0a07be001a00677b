// Commands for the system's command interpreter.
#pragma once

#include <string>

#include "platform/platform.h"

namespace platform {

// Starts the interpreter of the system's own folder, whatever else is called cmd, hidden and with
// the command line `command`, which begins with "cmd /c ". Throws as Processes::StartHidden does;
// what becomes of the command is not known.
void StartInterpreter(Platform& platform, const std::string& command);

}  // namespace platform
