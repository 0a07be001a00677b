// How a helper starts another one from its own folder.
#pragma once

#include <string_view>

#include "helpers/wide_text.h"

namespace helpers {

// The file `name` in the folder of the program whose full path is `program`.
WideText Beside(std::wstring_view program, std::wstring_view name);

// The command line that consists of a program's path alone, whatever its folder is called.
WideText CommandLine(std::wstring_view program);

}  // namespace helpers
