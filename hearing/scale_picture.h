// The picture of a result: pitches from left to right, ages from top to bottom. The bar of an age
// covers the pitches that it is typical of (hearing/age_guide.h); the listener's own pitch is
// marked by a line through all of them.
#pragma once

#include <array>

#include "ui/canvas.h"

namespace hearing {

// The ages of the bars, from the top; each has an equal part of the picture's height, and one more
// part is the scale of the pitches below them.
inline constexpr std::array<int, 5> kBarAges{30, 40, 50, 60, 70};
inline constexpr int kScaleParts = static_cast<int>(kBarAges.size()) + 1;

// On the whole of a canvas; its left edge is kLowestPitch and its right one kHighestPitch.
void DrawScale(int pitch_hz, ui::Canvas& canvas);

}  // namespace hearing
