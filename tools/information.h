// What tnf info tells of a tone program.
#pragma once

#include <string>
#include <string_view>

#include "program_files/tone_program.h"

namespace tools {

// Lines of UTF-8 text.
std::string InformationOn(std::string_view file, const program_files::ToneProgram& program);

}  // namespace tools
