// The modes that DrawSine, the sine preview, is called with. In any other it draws nothing.
#pragma once

#include <cstdint>

namespace base {

inline constexpr std::int16_t kMovingSine = 1;
inline constexpr std::int16_t kStillSine = 930;

}  // namespace base
