#include <gtest/gtest.h>

#include "ui/placing.h"

namespace ui {
namespace {

constexpr Rect kWork{0, 0, 1366, 728};

void ExpectCorner(Corner corner, int x, int y) {
  EXPECT_EQ(corner.x, x);
  EXPECT_EQ(corner.y, y);
}

TEST(PlacingTest, PixelsGrowWithTheResolution) {
  EXPECT_EQ(Scaled(100, 96), 100);
  EXPECT_EQ(Scaled(100, 120), 125);
  EXPECT_EQ(Scaled(101, 144), 152);
  EXPECT_EQ(Scaled(-101, 144), -152);
  EXPECT_EQ(Scaled(7, 192), 14);
}

TEST(PlacingTest, TheFontOfTheDesignLeavesTheScreensResolution) {
  EXPECT_EQ(LayoutDpi(96, 12), 96);
  EXPECT_EQ(LayoutDpi(96, 11), 96);
  EXPECT_EQ(LayoutDpi(120, 15), 120);
  EXPECT_EQ(LayoutDpi(144, 18), 144);
  EXPECT_EQ(LayoutDpi(110, 14), 110);  // 9 points, rounded up
  EXPECT_EQ(LayoutDpi(192, 24), 192);
}

TEST(PlacingTest, ControlsGrowWithALargerFont) {
  EXPECT_EQ(LayoutDpi(96, 18), 144);
  EXPECT_EQ(LayoutDpi(96, 24), 192);
  EXPECT_EQ(LayoutDpi(144, 27), 216);
}

TEST(PlacingTest, AWindowThatFitsHasTheWantedResolution) {
  EXPECT_EQ(FittingDpi(96, {640, 486}, {6, 60}, {1366, 728}), 96);
  EXPECT_EQ(FittingDpi(192, {640, 486}, {6, 60}, {3840, 2080}), 192);
}

TEST(PlacingTest, OneThatDoesNotIsMadeSmallerUntilItDoes) {
  // 486 pixels at 131 DPI are 663 of the 668 that the frame leaves, at 132 they are 668.25.
  EXPECT_EQ(FittingDpi(144, {640, 486}, {6, 60}, {1366, 728}), 131);
  // The width counts as well: 640 pixels at 89 DPI are 593.
  EXPECT_EQ(FittingDpi(96, {640, 486}, {6, 60}, {600, 4000}), 89);
  EXPECT_EQ(FittingDpi(96, {640, 486}, {6, 60}, {5, 5}), 1);
  EXPECT_EQ(LimitedTo({806, 900}, {1366, 728}).height, 728);
  EXPECT_EQ(LimitedTo({806, 900}, {1366, 728}).width, 806);
}

TEST(PlacingTest, AWindowStandsInTheMiddleOfItsWorkArea) {
  ExpectCorner(FreeCorner({666, 528}, kWork, Height::kMiddle, 26, {}), 350, 100);
  ExpectCorner(FreeCorner({666, 528}, {1366, 40, 1000, 728}, Height::kMiddle, 26, {}), 1533, 140);
  ExpectCorner(FreeCorner({366, 128}, kWork, Height::kUpperThird, 26, {}), 500, 100);
}

TEST(PlacingTest, ASecondCopyStepsAside) {
  ExpectCorner(FreeCorner({666, 528}, kWork, Height::kMiddle, 26, {{350, 100}}), 376, 126);
  ExpectCorner(FreeCorner({666, 528}, kWork, Height::kMiddle, 26, {{360, 90}, {376, 126}}), 402,
               152);
}

TEST(PlacingTest, OneInAnotherPlaceIsInNobodysWay) {
  ExpectCorner(FreeCorner({666, 528}, kWork, Height::kMiddle, 26, {{350, 126}, {324, 100}}), 350,
               100);
}

TEST(PlacingTest, ItStepsTheOtherWayWhereTheLowerRightHasNoRoomLeft) {
  ExpectCorner(FreeCorner({666, 628}, kWork, Height::kMiddle, 26, {{350, 50}, {376, 76}}), 324, 24);
}

TEST(PlacingTest, WithoutRoomToStepAsideItStaysInTheMiddle) {
  ExpectCorner(FreeCorner({1366, 728}, kWork, Height::kMiddle, 26, {{0, 0}}), 0, 0);
  ExpectCorner(FreeCorner({1400, 800}, kWork, Height::kMiddle, 26, {}), 0, 0);
}

TEST(PlacingTest, OnANewScreenItKeepsTheMiddleOfTheSuggestedPlace) {
  ExpectCorner(CornerOnNewScreen({1000, 700}, {1500, 100, 1000, 700}, {1366, 0, 1920, 1040}), 1500,
               100);
  ExpectCorner(CornerOnNewScreen({800, 600}, {1500, 100, 1000, 700}, {1366, 0, 1920, 1040}), 1600,
               150);
}

TEST(PlacingTest, OnANewScreenItLiesInsideTheWorkArea) {
  ExpectCorner(CornerOnNewScreen({1000, 700}, {1300, -50, 1000, 700}, {1366, 0, 1920, 1040}), 1366,
               0);
  ExpectCorner(CornerOnNewScreen({1000, 700}, {3000, 900, 1000, 700}, {1366, 0, 1920, 1040}), 2286,
               340);
}

}  // namespace
}  // namespace ui
