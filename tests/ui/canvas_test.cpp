#include "ui/canvas.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace ui {
namespace {

using Lines = std::vector<std::string>;

Lines Shown(const Canvas& canvas) {
  Lines rows;
  for (int y = 0; y < canvas.height(); ++y) {
    std::string row;
    for (int x = 0; x < canvas.width(); ++x) {
      row += canvas.At(x, y) == Canvas::kForeground ? '#' : '.';
    }
    rows.push_back(row);
  }
  return rows;
}

Lines LineFrom(Canvas::Point from, Canvas::Point to) {
  Canvas canvas(6, 4);
  canvas.DrawLine(from, to);
  return Shown(canvas);
}

TEST(Canvas, ANewOneIsTheSystemsBackgroundAllOver) {
  const Canvas canvas(3, 2);
  EXPECT_EQ(canvas.pixels(), (std::vector<std::uint32_t>(6, Canvas::kBackground)));
}

TEST(Canvas, InAnotherSizeItShowsTheSamePicture) {
  Canvas canvas(4, 2);
  canvas.DrawPoint({0.5, 0.5});
  canvas.DrawPoint({3.5, 1.5});
  EXPECT_EQ(Shown(canvas.ScaledTo(8, 4)), (Lines{"##......", "##......", "......##", "......##"}));
  EXPECT_EQ(Shown(canvas.ScaledTo(2, 2)), (Lines{"#.", ".."}));
}

TEST(Canvas, APointFillsThePixelThatHoldsIt) {
  Canvas canvas(6, 4);
  canvas.DrawPoint({0, 0});
  canvas.DrawPoint({2.99, 1.5});
  canvas.DrawPoint({5.999, 3.999});
  EXPECT_EQ(Shown(canvas), (Lines{"#.....", "..#...", "......", ".....#"}));
}

TEST(Canvas, ClearingLeavesNothing) {
  Canvas canvas(6, 4);
  canvas.DrawPoint({1, 1});
  canvas.Clear();
  EXPECT_EQ(Shown(canvas), Lines(4, "......"));
}

TEST(Canvas, LinesHaveBothTheirEnds) {
  EXPECT_EQ(LineFrom({1.5, 2.5}, {4.5, 2.5}), (Lines{"......", "......", ".####.", "......"}));
  EXPECT_EQ(LineFrom({2.5, 3.5}, {2.5, 0.5}), (Lines{"..#...", "..#...", "..#...", "..#..."}));
  EXPECT_EQ(LineFrom({0.5, 0.5}, {3.5, 3.5}), (Lines{"#.....", ".#....", "..#...", "...#.."}));
  EXPECT_EQ(LineFrom({5.5, 0.5}, {0.5, 1.5}), (Lines{"...###", "###...", "......", "......"}));
  EXPECT_EQ(LineFrom({3.5, 1.5}, {3.5, 1.5}), (Lines{"......", "...#..", "......", "......"}));
}

TEST(Canvas, WhatLiesOutsideIsCutOff) {
  EXPECT_EQ(LineFrom({-10, 1.5}, {20, 1.5}), (Lines{"......", "######", "......", "......"}));
  EXPECT_EQ(LineFrom({2.5, -1e30}, {2.5, 1e30}), (Lines{"..#...", "..#...", "..#...", "..#..."}));
  EXPECT_EQ(LineFrom({-3, -2.5}, {20, 20.5}), (Lines{"#.....", ".#....", "..#...", "...#.."}));
  EXPECT_EQ(LineFrom({-5, 1}, {-1, 3}), Lines(4, "......"));
  EXPECT_EQ(LineFrom({0, 4}, {5, 4}), Lines(4, "......"));
  EXPECT_EQ(LineFrom({-4, 3}, {3, 12}), Lines(4, "......"));
}

TEST(Canvas, CoordinatesThatAreNoNumbersDrawNothing) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double nothing = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(LineFrom({nothing, 1}, {5, 1}), Lines(4, "......"));
  EXPECT_EQ(LineFrom({0, 1}, {infinity, 1}), Lines(4, "......"));
  Canvas canvas(6, 4);
  canvas.DrawPoint({nothing, nothing});
  canvas.DrawPoint({-infinity, 1});
  canvas.DrawPoint({6, 0});
  canvas.DrawPoint({-0.001, 0});
  EXPECT_EQ(Shown(canvas), Lines(4, "......"));
}

TEST(Canvas, OneWithoutPixelsTakesEverything) {
  Canvas canvas(0, 0);
  canvas.DrawLine({0, 0}, {5, 5});
  canvas.DrawPoint({0, 0});
  EXPECT_TRUE(canvas.pixels().empty());
}

TEST(Canvas, TheDifferenceIsTheSmallestAreaWithEveryOtherPixel) {
  Canvas before(6, 4);
  Canvas after(6, 4);
  EXPECT_TRUE(after.DifferenceFrom(before).Empty());
  after.DrawPoint({2, 1});
  EXPECT_EQ(after.DifferenceFrom(before), (Canvas::Area{2, 1, 1, 1}));
  after.DrawPoint({4, 3});
  EXPECT_EQ(after.DifferenceFrom(before), (Canvas::Area{2, 1, 3, 3}));
  before.DrawPoint({2, 1});  // the same in both
  EXPECT_EQ(after.DifferenceFrom(before), (Canvas::Area{4, 3, 1, 1}));
  before.DrawPoint({0, 0});  // what is gone counts, too
  EXPECT_EQ(after.DifferenceFrom(before), (Canvas::Area{0, 0, 5, 4}));
  after.DrawPoint({5, 0});
  EXPECT_EQ(after.DifferenceFrom(before), (Canvas::Area{0, 0, 6, 4}));
}

TEST(Canvas, OfAnotherSizeAllIsDifferent) {
  EXPECT_EQ(Canvas(6, 4).DifferenceFrom(Canvas(4, 6)), (Canvas::Area{0, 0, 6, 4}));
  EXPECT_TRUE(Canvas(0, 0).DifferenceFrom(Canvas(0, 0)).Empty());
}

}  // namespace
}  // namespace ui
