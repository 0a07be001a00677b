// The unit of the pictures' coordinates: a 1440th of an inch.
#pragma once

namespace display {

inline constexpr int kTwipsPerPixel = 15;  // at 96 DPI

}  // namespace display
