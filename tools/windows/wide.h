// UTF-8, as the program has it, and UTF-16, as Windows has it.
#pragma once

#include <string>
#include <string_view>

namespace tools::native {

std::wstring Wide(std::string_view utf8);
std::string Narrow(std::wstring_view utf16);

}  // namespace tools::native
