// tnf: its arguments, its help, its exit codes.
#pragma once

#include <string>
#include <vector>

#include "tools/surroundings.h"

namespace tools {

// Runs the command that the arguments, which are UTF-8 and without the program's name, ask for.
// Returns 0; 1 if a text is not what it should be; 2 if something cannot be read or written, or the
// arguments are wrong.
int RunTnf(const std::vector<std::string>& arguments, Surroundings& surroundings);

}  // namespace tools
