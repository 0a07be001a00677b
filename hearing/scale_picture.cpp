#include "hearing/scale_picture.h"

#include <algorithm>

#include "hearing/age_guide.h"
#include "hearing/procedure.h"

namespace hearing {
namespace {

constexpr int kTickEvery = 1000;      // Hz
constexpr int kLongTickEvery = 4000;  // Hz

int ColumnOf(int pitch_hz, const ui::Canvas& canvas) {
  return (pitch_hz - kLowestPitch) * (canvas.width() - 1) / (kHighestPitch - kLowestPitch);
}

int PitchAt(int column, const ui::Canvas& canvas) {
  return kLowestPitch + column * (kHighestPitch - kLowestPitch) / std::max(1, canvas.width() - 1);
}

void DrawPixel(int x, int y, ui::Canvas& canvas) {
  canvas.DrawPoint({static_cast<double>(x), static_cast<double>(y)});
}

void DrawDown(int x, int top, int bottom, ui::Canvas& canvas) {
  for (int y = top; y < bottom; ++y) DrawPixel(x, y, canvas);
}

// Every other pixel: the line of the listener can be seen on it.
void DrawBar(int age, int top, int bottom, ui::Canvas& canvas) {
  for (int x = 0; x < canvas.width(); ++x) {
    if (!Holds(AgesOf(PitchAt(x, canvas)), age)) continue;
    for (int y = top; y < bottom; ++y) {
      if ((x + y) % 2 == 0) DrawPixel(x, y, canvas);
    }
  }
}

void DrawTicks(int top, ui::Canvas& canvas) {
  const int height = canvas.height() - top;
  for (int x = 0; x < canvas.width(); ++x) DrawPixel(x, top, canvas);
  for (int pitch = kLowestPitch; pitch <= kHighestPitch; pitch += kTickEvery) {
    const int length = pitch % kLongTickEvery == 0 ? height : height / 2;
    DrawDown(ColumnOf(pitch, canvas), top, top + length, canvas);
  }
}

// A line that is as thick on every screen, with an arrow on the scale.
void DrawMark(int pitch_hz, int scale_top, ui::Canvas& canvas) {
  const int column = ColumnOf(pitch_hz, canvas);
  const int half = std::max(1, canvas.width() / 300);
  for (int x = column - half; x <= column + half; ++x) DrawDown(x, 0, scale_top, canvas);
  for (int down = 0; down < canvas.height() - scale_top; ++down) {
    for (int x = column - down / 2; x <= column + down / 2; ++x) {
      DrawPixel(x, scale_top + down, canvas);
    }
  }
}

}  // namespace

void DrawScale(int pitch_hz, ui::Canvas& canvas) {
  const int part = canvas.height() / kScaleParts;
  const int gap = std::max(1, part / 5);
  int top = 0;
  for (const int age : kBarAges) {
    DrawBar(age, top + gap, top + part - gap, canvas);
    top += part;
  }
  DrawTicks(top, canvas);
  DrawMark(pitch_hz, top, canvas);
}

}  // namespace hearing
