// Command lines: which part of one are the arguments, and how one is made for the interpreter.
#pragma once

#include <string>
#include <string_view>

namespace base {

// What follows the program's own name, without the blanks between, as it was given. The name ends
// at the first blank outside quotes; but when the line begins with the whole of `program_path`,
// without quotes, that is the name, whatever blanks it holds.
std::string_view Arguments(std::string_view command_line, std::string_view program_path);

// The command that has cmd start the program `name` in `folder`, which is cmd's current folder:
// quoted, and with a second pair of quotes where cmd could take the outermost ones away ("cmd /?"
// tells when) and then act on what is left. Nothing keeps cmd from putting in the values of
// variables between percent or, where it is set up so, exclamation marks: a folder with one of
// these is not named.
std::string InterpreterCommand(const std::string& folder, const std::string& name);

}  // namespace base
