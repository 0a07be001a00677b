// The points of the sine preview. Lengths are twips (display/twips.h) from the upper left corner;
// one point stands at every twip of the width.
#pragma once

#include <cstdint>
#include <vector>

namespace display {

struct TwipSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

struct TwipPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;

  bool operator==(const TwipPoint&) const = default;
};

// Radians per twip of a tone of `pitch` Hz.
float AngularStep(std::int16_t pitch);

// The phase of the frame after one with `phase`, in radians: 100, 200, ... 100000, 100, ...
std::int32_t NextPhase(std::int32_t phase);

// At x the sine of `angular_step` times x + `phase`, rounded to the nearest twip. Few sines are
// computed: a point is the one before it, turned by `angular_step` (the angle sum formulas), and
// where rounding might differ for that it has a sine of its own.
std::vector<TwipPoint> SineFrame(float angular_step, std::int32_t phase, TwipSize size);

}  // namespace display
