// Pictures that were looked at before they were checked in: portable bitmaps (P4), black where the
// canvas has its foreground. One that differs is left in the folder where the tests run.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ui/canvas.h"

namespace ui {

inline std::string Bitmap(const Canvas& canvas) {
  std::string bitmap =
      "P4\n" + std::to_string(canvas.width()) + " " + std::to_string(canvas.height()) + "\n";
  for (int y = 0; y < canvas.height(); ++y) {
    for (int x = 0; x < canvas.width(); ++x) {
      if (x % 8 == 0) bitmap += '\0';
      if (canvas.At(x, y) != Canvas::kForeground) continue;
      bitmap.back() = static_cast<char>(bitmap.back() | 0x80 >> x % 8);
    }
  }
  return bitmap;
}

// The canvas beside the picture `name` in `folder`.
inline void ExpectPicture(const Canvas& canvas, const std::string& folder,
                          const std::string& name) {
  const std::string file_name = name + ".pbm";
  std::ifstream file(std::filesystem::path(folder) / file_name, std::ios::binary);
  const std::string wanted((std::istreambuf_iterator<char>(file)), {});
  const std::string bitmap = Bitmap(canvas);
  if (bitmap == wanted) return;
  std::ofstream(file_name, std::ios::binary) << bitmap;
  ADD_FAILURE() << "another picture than " << name << ": see "
                << std::filesystem::absolute(file_name);
}

}  // namespace ui
