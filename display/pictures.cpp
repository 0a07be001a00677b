#include "display/pictures.h"

#include <algorithm>

#include "base/numbers.h"
#include "display/twips.h"

namespace display {

void Draw(const WaveDrawing& drawing, ui::Canvas& canvas) {
  const auto place = [&](WavePoint point) {
    return ui::Canvas::Point{
        point.x / drawing.right * canvas.width(),
        (drawing.top - point.y) / (drawing.top - drawing.bottom) * canvas.height()};
  };
  for (const WaveLine& line : drawing.lines) canvas.DrawLine(place(line.from), place(line.to));
}

void Draw(const std::vector<TwipPoint>& points, TwipSize size, ui::Canvas& canvas) {
  const double across = static_cast<double>(canvas.width()) / size.width;
  const double down = static_cast<double>(canvas.height()) / size.height;
  const double dot = std::max(1.0, base::RoundToEven(across * kTwipsPerPixel));
  for (const TwipPoint point : points) {
    for (double x = 0; x < dot; ++x) {
      for (double y = 0; y < dot; ++y) {
        canvas.DrawPoint({point.x * across + x, point.y * down + y});
      }
    }
  }
}

}  // namespace display
