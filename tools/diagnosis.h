// What is wrong with a tone program, for the one who writes it.
//
// The errors are the findings of the player's own checks (program_files/program_checks.h), nothing
// else. One mistake can fail several checks: then it is told once, where the first of them failed,
// and named. So there is an error if and only if the player finds one.
//
// The warnings are about what is legal and does not sound as meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "program_files/program_reader.h"
#include "tools/problem.h"

namespace tools {

inline constexpr std::int32_t kRestHz = 22050;           // half the sampling rate: silence
inline constexpr std::int32_t kLowestHeardHz = 20;       // below, only the clicks are heard
inline constexpr std::int32_t kShortestHeardMs = 10;     // below, a tone is heard as a click
inline constexpr std::int32_t kLongestPlayedMs = 32767;  // by the multimedia player's route

// Errors and warnings in the order of the lines.
std::vector<Problem> Diagnose(const program_files::ReadProgram& read);

// The messages that the player shows for the file, as lines of text; empty for a legal file.
std::string PlayersMessages(std::string_view file,
                            const std::vector<program_files::Finding>& findings);

}  // namespace tools
