// What is legal in a tone program and does not sound as meant.
#pragma once

#include <vector>

#include "program_files/program_reader.h"
#include "tools/problem.h"

namespace tools {

std::vector<Problem> WarningsOf(const program_files::ReadProgram& read);

}  // namespace tools
