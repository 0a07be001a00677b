// The scale of a result, as portable bitmaps (P4) that were looked at before they were checked in.
// A picture that differs is left in the build folder, beside the others' names.
#include "hearing/scale_picture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace hearing {
namespace {

constexpr int kWidth = 340;  // pixels at 96 DPI, as in the window
constexpr int kHeight = 84;

std::string BitmapOf(const ui::Canvas& canvas) {
  std::string bitmap =
      "P4\n" + std::to_string(canvas.width()) + " " + std::to_string(canvas.height()) + "\n";
  for (int y = 0; y < canvas.height(); ++y) {
    for (int x = 0; x < canvas.width(); ++x) {
      if (x % 8 == 0) bitmap += '\0';
      if (canvas.At(x, y) != ui::Canvas::kForeground) continue;
      bitmap.back() = static_cast<char>(bitmap.back() | 0x80 >> x % 8);
    }
  }
  return bitmap;
}

void ExpectScale(const std::string& name, int pitch_hz, int percent) {
  ui::Canvas canvas(kWidth * percent / 100, kHeight * percent / 100);
  DrawScale(pitch_hz, canvas);
  const std::string file_name = name + ".pbm";
  std::ifstream file(std::filesystem::path(TONMIRA_SCALES) / file_name, std::ios::binary);
  const std::string wanted((std::istreambuf_iterator<char>(file)), {});
  const std::string bitmap = BitmapOf(canvas);
  if (bitmap == wanted) return;
  std::ofstream(file_name, std::ios::binary) << bitmap;
  ADD_FAILURE() << "another picture than " << name << ": see "
                << std::filesystem::absolute(file_name);
}

TEST(ScalePicture, AMarkAmongTheBars) {
  ExpectScale("scale-13400", 13400, 100);
}

TEST(ScalePicture, TheLowestAndTheHighestPitch) {
  ExpectScale("scale-8000", 8000, 100);
  ExpectScale("scale-20000", 20000, 100);
}

TEST(ScalePicture, OnFineScreens) {
  ExpectScale("scale-13400-144dpi", 13400, 150);
  ExpectScale("scale-13400-192dpi", 13400, 200);
}

TEST(ScalePicture, AnyCanvasWillDo) {
  for (const auto& [width, height] :
       {std::pair{1, 1}, std::pair{2, 1}, std::pair{1, 50}, std::pair{50, 1}, std::pair{3, 5}}) {
    ui::Canvas canvas(width, height);
    DrawScale(20000, canvas);
  }
}

}  // namespace
}  // namespace hearing
