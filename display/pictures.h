// From points and lines to pixels.
#pragma once

#include <vector>

#include "display/sine_preview.h"
#include "display/waveform.h"
#include "ui/canvas.h"

namespace display {

// Draws the lines on the whole of a canvas.
void Draw(const WaveDrawing& drawing, ui::Canvas& canvas);

// Draws the points of a picture of `size` on the whole of a canvas, on a fine one as larger dots.
void Draw(const std::vector<TwipPoint>& points, TwipSize size, ui::Canvas& canvas);

}  // namespace display
