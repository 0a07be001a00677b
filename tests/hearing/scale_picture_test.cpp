// The scale of a result, as pictures.
#include "hearing/scale_picture.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/ui/checked_picture.h"

namespace hearing {
namespace {

constexpr int kWidth = 340;  // pixels at 96 DPI, as in the window
constexpr int kHeight = 84;

void ExpectScale(const std::string& name, int pitch_hz, int percent) {
  ui::Canvas canvas(kWidth * percent / 100, kHeight * percent / 100);
  DrawScale(pitch_hz, canvas);
  ui::ExpectPicture(canvas, TONMIRA_SCALES, name);
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
