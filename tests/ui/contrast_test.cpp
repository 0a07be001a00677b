#include <gtest/gtest.h>

#include "ui/contrast.h"

namespace ui {
namespace {

TEST(ContrastTest, IsGreatestBetweenBlackAndWhite) {
  EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 1e-9);
  EXPECT_NEAR(Contrast(0xFFFFFF, 0x000000), 21, 1e-9);
  EXPECT_NEAR(Contrast(0x336699, 0x336699), 1, 1e-9);
}

// The greys that the guidelines' own explanations use for the border of what is readable on white.
TEST(ContrastTest, TheBorderOfReadableTextOnWhite) {
  EXPECT_TRUE(IsReadable(0x767676, 0xFFFFFF));
  EXPECT_FALSE(IsReadable(0x777777, 0xFFFFFF));
}

TEST(ContrastTest, EveryChannelCountsAsTheEyeSeesIt) {
  EXPECT_NEAR(Contrast(0xFF0000, 0x000000), 5.252, 0.001);
  EXPECT_NEAR(Contrast(0x00FF00, 0x000000), 15.304, 0.001);
  EXPECT_NEAR(Contrast(0x0000FF, 0x000000), 2.444, 0.001);
}

}  // namespace
}  // namespace ui
