// Windows-1252, the code page of Western European Windows, in which tone programs are written
// (mapping: https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT). Its five
// bytes without a character stand for the control characters of the same number, as in Windows.
#pragma once

#include <string>
#include <string_view>

namespace tools {

// What the code page has not, and what is no UTF-8, becomes "?".
std::string ToCodePage(std::string_view utf8);

std::string FromCodePage(std::string_view bytes);

}  // namespace tools
