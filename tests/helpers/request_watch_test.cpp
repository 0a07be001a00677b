#include "helpers/request_watch.h"

#include <gtest/gtest.h>

namespace helpers {
namespace {

TEST(RequestWatch, AFileThatStaysIsNotGone) {
  RequestWatch watch;
  for (unsigned now_ms = 0; now_ms < 1000; now_ms += 50) EXPECT_FALSE(watch.Gone(false, now_ms));
}

TEST(RequestWatch, MissedTwiceInARowItIsGone) {
  RequestWatch watch;
  EXPECT_FALSE(watch.Gone(false, 1000));
  EXPECT_FALSE(watch.Gone(true, 1050));
  EXPECT_TRUE(watch.Gone(true, 1100));
}

TEST(RequestWatch, MissingFromTheStartItIsGoneAtTheSecondLook) {
  RequestWatch watch;
  EXPECT_FALSE(watch.Gone(true, 0));
  EXPECT_TRUE(watch.Gone(true, 100));
}

TEST(RequestWatch, OneMissDoesNotCount) {
  RequestWatch watch;
  for (unsigned now_ms = 0; now_ms < 1000; now_ms += 100) {
    EXPECT_FALSE(watch.Gone(true, now_ms));
    EXPECT_FALSE(watch.Gone(false, now_ms + 50));
  }
}

TEST(RequestWatch, LooksInQuickSuccessionAreOneLook) {
  RequestWatch watch;
  EXPECT_FALSE(watch.Gone(true, 1000));
  EXPECT_FALSE(watch.Gone(true, 1001));
  EXPECT_FALSE(watch.Gone(true, 1049));
  EXPECT_TRUE(watch.Gone(true, 1050));
}

TEST(RequestWatch, ManyQuickLooksDoNotPutTheEndOff) {
  RequestWatch watch;
  unsigned now_ms = 1000;
  while (!watch.Gone(true, now_ms)) now_ms += 7;
  EXPECT_EQ(now_ms, 1056u);
}

TEST(RequestWatch, TheClockMayWrapAround) {
  RequestWatch watch;
  EXPECT_FALSE(watch.Gone(true, 0xFFFFFFF0u));
  EXPECT_FALSE(watch.Gone(true, 0x10u));
  EXPECT_TRUE(watch.Gone(true, 0x30u));
}

}  // namespace
}  // namespace helpers
