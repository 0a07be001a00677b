// A small raster that picture boxes draw into.
//
// Pixels are 0x00RRGGBB, row by row from the top; kBackground stands for the colour of the
// system's window background and kForeground for that of its text, whatever those are. Drawing
// takes any coordinates, in pixels from the upper left corner; what lies outside is left out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ui {

class Canvas {
 public:
  static constexpr std::uint32_t kBackground = 0x01000000;
  static constexpr std::uint32_t kForeground = 0x02000000;

  struct Point {
    double x = 0;
    double y = 0;
  };

  // Some of the pixels: a rectangle, which may be empty.
  struct Area {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool Empty() const { return width == 0 || height == 0; }
    bool operator==(const Area&) const = default;
  };

  Canvas(int width, int height)
      : width_(width),
        height_(height),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kBackground) {}

  int width() const { return width_; }
  int height() const { return height_; }
  const std::vector<std::uint32_t>& pixels() const { return pixels_; }
  std::uint32_t At(int x, int y) const { return pixels_[Index(x, y)]; }
  const std::uint32_t* Row(int y) const { return pixels_.data() + Index(0, y); }

  void Clear();

  // The smallest area that holds every pixel in which the two differ; all of it when their sizes
  // do.
  Area DifferenceFrom(const Canvas& other) const;

  // The same picture in another size, each pixel taken from the nearest one.
  Canvas ScaledTo(int width, int height) const;

  // The pixel that holds the point, in kForeground.
  void DrawPoint(Point point);

  // A line one pixel wide, both ends included, in kForeground.
  void DrawLine(Point from, Point to);

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  // Cuts a line down to what lies on the canvas; false when nothing does.
  bool Clip(Point& from, Point& to) const;

  int width_;
  int height_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace ui
