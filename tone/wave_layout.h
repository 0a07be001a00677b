// Numbers of the RIFF WAVE format that writing and reading it share (IBM and Microsoft, Multimedia
// Programming Interface and Data Specifications 1.0, 1991).
#pragma once

#include <cstdint>

namespace tone {

inline constexpr std::uint32_t kPcm = 1;           // the format tag of plain samples
inline constexpr std::uint32_t kFormatBytes = 16;  // of the chunk "fmt " without its header

}  // namespace tone
