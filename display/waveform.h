// From a block of recorded samples to the lines that draw it.
//
// A drawing has coordinates of its own: x counts samples from the left, y is the amplitude,
// upwards. One line is drawn for each pixel (1/96 inch) of the picture's width, from sample to
// sample: in between nothing is looked at.
//
// A stereo block (samples of both channels in turn, the first one first) gives two traces, the
// first channel in the upper half and the second in the lower. Only the first half of a stereo
// block is drawn.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "display/twips.h"

namespace display {

struct WavePoint {
  double x = 0;
  double y = 0;
};

struct WaveLine {
  WavePoint from;
  WavePoint to;
};

struct WaveDrawing {
  double right = 0;   // x at the right edge; 0 at the left
  double top = 0;     // y at the upper edge
  double bottom = 0;  // y at the lower edge
  std::vector<WaveLine> lines;
};

// How samples become a drawing.
struct WaveView {
  int width_twips = 0;  // of the picture
  int sensitivity = 1;  // multiplies the amplitude
  bool stereo = false;
};

// The samples of a block of 16 bits a sample (little-endian); an odd last byte is left out.
std::vector<std::int16_t> Samples16(std::span<const std::uint8_t> block);

// Half-heights of 1 (stereo) or 0.5 (mono) for an amplitude of 20000 at sensitivity 1.
WaveDrawing DrawSamples(std::span<const std::int16_t> samples, const WaveView& view);

// Unsigned samples of 8 bits, on a scale from +256 to -256.
WaveDrawing DrawSamples8(std::span<const std::uint8_t> samples, const WaveView& view);

}  // namespace display
