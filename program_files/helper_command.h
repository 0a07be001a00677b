// How the player starts the 16-bit helper.
#pragma once

#include <string>

namespace program_files {

// The command that starts play16.exe in `folder`.
std::string ClassicHelperCommand(const std::string& folder);

}  // namespace program_files
