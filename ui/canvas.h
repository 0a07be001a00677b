// A small raster that picture boxes draw into.
//
// Pixels are 0x00RRGGBB, row by row from the top; kBackground stands for the colour of the
// system's window background and kForeground for that of its text, whatever those are.
#pragma once

#include <cstdint>
#include <vector>

namespace ui {

class Canvas {
 public:
  static constexpr std::uint32_t kBackground = 0x01000000;
  static constexpr std::uint32_t kForeground = 0x02000000;

  Canvas(int width, int height)
      : width_(width),
        height_(height),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kBackground) {}

  int width() const { return width_; }
  int height() const { return height_; }
  const std::vector<std::uint32_t>& pixels() const { return pixels_; }

 private:
  int width_;
  int height_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace ui
