// What of a process's command line are its arguments.
#pragma once

#include <string>
#include <string_view>

namespace base {

// What follows the program's own name, without the blanks between, as it was given. The name ends
// at the first blank outside quotes; but when the line begins with the whole of `program_path`,
// without quotes, that is the name, whatever blanks it holds.
std::string_view Arguments(std::string_view command_line, std::string_view program_path);

}  // namespace base
