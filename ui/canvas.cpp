#include "ui/canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace ui {
namespace {

// Far outside of every canvas, and small enough to reckon with.
constexpr double kFarAway = 1e9;

bool IsFinite(Canvas::Point point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

Canvas::Point Near(Canvas::Point point) {
  return {std::clamp(point.x, -kFarAway, kFarAway), std::clamp(point.y, -kFarAway, kFarAway)};
}

// Narrows the visible part [first, last] of a line to where start + part * run lies in
// [0, limit]; false when nothing is left (Liang and Barsky, 1984).
bool Narrow(double start, double run, double limit, double& first, double& last) {
  if (run == 0) return start >= 0 && start <= limit;
  const double at_low = -start / run;
  const double at_high = (limit - start) / run;
  first = std::max(first, std::min(at_low, at_high));
  last = std::min(last, std::max(at_low, at_high));
  return first <= last;
}

int Pixel(double coordinate, int size) {
  return std::clamp(static_cast<int>(std::floor(coordinate)), 0, size - 1);
}

}  // namespace

Canvas Canvas::ScaledTo(int width, int height) const {
  Canvas scaled(width, height);
  if (width_ == 0 || height_ == 0) return scaled;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      scaled.pixels_[scaled.Index(x, y)] = At(x * width_ / width, y * height_ / height);
    }
  }
  return scaled;
}

void Canvas::Clear() {
  std::fill(pixels_.begin(), pixels_.end(), kBackground);
}

Canvas::Area Canvas::DifferenceFrom(const Canvas& other) const {
  if (width_ != other.width_ || height_ != other.height_) return {0, 0, width_, height_};
  int left = width_;
  int right = 0;
  int top = height_;
  int bottom = 0;
  for (int y = 0; y < height_; ++y) {
    const auto row = pixels_.begin() + static_cast<std::ptrdiff_t>(Index(0, y));
    const auto row_end = row + width_;
    const auto other_row = other.pixels_.begin() + (row - pixels_.begin());
    const auto first = std::mismatch(row, row_end, other_row).first;
    if (first == row_end) continue;
    top = std::min(top, y);
    bottom = y + 1;
    left = std::min(left, static_cast<int>(first - row));
    const auto last = std::mismatch(std::reverse_iterator(row_end), std::reverse_iterator(first),
                                    std::reverse_iterator(other_row + width_));
    right = std::max(right, static_cast<int>(last.first.base() - row));
  }
  if (bottom == 0) return {};
  return {left, top, right - left, bottom - top};
}

void Canvas::DrawPoint(Point point) {
  const bool inside = point.x >= 0 && point.x < width_ && point.y >= 0 && point.y < height_;
  if (inside) pixels_[Index(static_cast<int>(point.x), static_cast<int>(point.y))] = kForeground;
}

void Canvas::DrawLine(Point from, Point to) {
  if (!IsFinite(from) || !IsFinite(to)) return;
  from = Near(from);
  to = Near(to);
  if (!Clip(from, to)) return;

  // Bresenham, 1965.
  int x = Pixel(from.x, width_);
  int y = Pixel(from.y, height_);
  const int end_x = Pixel(to.x, width_);
  const int end_y = Pixel(to.y, height_);
  const int run = std::abs(end_x - x);
  const int rise = -std::abs(end_y - y);
  const int step_x = x < end_x ? 1 : -1;
  const int step_y = y < end_y ? 1 : -1;
  int error = run + rise;
  for (;;) {
    pixels_[Index(x, y)] = kForeground;
    if (x == end_x && y == end_y) return;
    const int twice = 2 * error;
    if (twice >= rise) {
      error += rise;
      x += step_x;
    }
    if (twice <= run) {
      error += run;
      y += step_y;
    }
  }
}

bool Canvas::Clip(Point& from, Point& to) const {
  const double run = to.x - from.x;
  const double rise = to.y - from.y;
  // The last pixel ends just before the edge.
  const double right = std::nextafter(static_cast<double>(width_), 0.0);
  const double bottom = std::nextafter(static_cast<double>(height_), 0.0);
  double first = 0;
  double last = 1;
  if (width_ <= 0 || height_ <= 0 || !Narrow(from.x, run, right, first, last) ||
      !Narrow(from.y, rise, bottom, first, last)) {
    return false;
  }
  to = {from.x + last * run, from.y + last * rise};
  from = {from.x + first * run, from.y + first * rise};
  return true;
}

}  // namespace ui
