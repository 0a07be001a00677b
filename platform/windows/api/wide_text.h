// Between the program's UTF-8 and the UTF-16 of the system's wide functions.
#pragma once

#include <string>
#include <string_view>

namespace platform::windows {

std::wstring Widen(std::string_view utf8);
std::string Narrow(std::wstring_view wide);

}  // namespace platform::windows
