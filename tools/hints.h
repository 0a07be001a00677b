// What is usually meant by a line of a tone program that fails a check.
#pragma once

#include <string>

#include "program_files/tone_program.h"

namespace tools {

// "expected [info], found "[Info]": small letters only". The hint behind the colon is there where
// the mistake is a usual one.
std::string WhatFailed(const program_files::Finding& finding);

}  // namespace tools
