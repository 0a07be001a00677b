// Text as Windows has it, and as the driver's lines carry it.
#pragma once

#include <string>
#include <vector>

// One line's fields.
using Fields = std::vector<std::string>;

std::wstring Wide(const std::string& text);

// UTF-8, with blanks in place of what would part fields and lines.
std::string Utf8(const std::wstring& wide);
