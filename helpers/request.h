// What a tone helper is asked to play: the one line of the hand-over file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/pitches.h"

namespace helpers {

inline constexpr std::uint32_t kHighestPitch = base::kHighestPitch;  // Hz
inline constexpr std::uint32_t kSweep = base::kHelperSweep;          // asks for a sweep, not a tone
inline constexpr std::size_t kLongestLine = 64;  // characters, the line's end not counted

// Reads the first line of `text`: a whole decimal number between blanks or tabs, 1 (kSweep) or a
// pitch in Hz up to kHighestPitch. Nothing if it is anything else.
std::optional<std::uint32_t> ParseRequest(std::string_view text);

}  // namespace helpers
